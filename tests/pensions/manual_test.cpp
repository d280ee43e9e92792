// The stories of the user's manual are what the program says.
#include "apoyo/manual.h"

#include <gmock/gmock.h>

#include <iterator>

#include "apoyo/entorno_falso.h"
#include "pensions/incapacidad/inva_frm.h"
#include "pensions/jubilacion/pension_frm.h"
#include "pensions/muerte/muerte_frm.h"

namespace orvemo::pruebas {
namespace {

TEST(Manual, TellsItsStoriesAsTheProgramDoes) {
    EntornoFalso mundo;
    std::ifstream ipc{ORVEMO_DATOS "/ipc.txt", std::ios::binary};
    mundo.almacen["ipc.txt"] = std::string{std::istreambuf_iterator<char>{ipc}, {}};
    compruebaManual<PensionFrm>(mundo.entorno, ORVEMO_MANUAL, "Jubilación");
    compruebaManual<InvaFrm>(mundo.entorno, ORVEMO_MANUAL, "Incapacidad permanente");
    compruebaManual<MuerteFrm>(mundo.entorno, ORVEMO_MANUAL, "Muerte y supervivencia");
    EXPECT_THAT(mundo.mensajes.dichos, testing::IsEmpty());
}

}  // namespace
}  // namespace orvemo::pruebas
