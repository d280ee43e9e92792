#include "lote/progreso.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvemo::lote {
namespace {

using namespace std::chrono_literals;

TEST(ProgresoDelLote, DrawsFiveTimesASecondAtMostAndLeavesNothingBehind) {
    std::ostringstream terminal;
    {
        Progreso progreso{&terminal, 32767, {}};
        for (int ms = 0; ms < 900; ++ms) progreso.llega(ms + 1, Progreso::Instante{ms * 1ms});
        progreso.llega(1200, Progreso::Instante{2s});
    }
    EXPECT_EQ(terminal.str(), "\rCaso 501 de 32.767\rCaso 701 de 32.767\rCaso 1.200 de 32.767\r" +
                                  std::string(20, ' ') + "\r");
    terminal.str({});
    Progreso{&terminal, 3, {}}.llega(3, Progreso::Instante{400ms});
    Progreso{nullptr, 32767, {}}.llega(3, Progreso::Instante{2s});
    EXPECT_EQ(terminal.str(), "");
}

}  // namespace
}  // namespace orvemo::lote
