// The story of the user's manual is what the program says.
#include "apoyo/manual.h"

#include <gmock/gmock.h>

#include "apoyo/entorno_falso.h"
#include "tax/rirpf_frm.h"

namespace orvemo::pruebas {
namespace {

TEST(Manual, TellsItsStoryAsTheProgramDoes) {
    EntornoFalso mundo;
    compruebaManual<RetIrpfFrm>(mundo.entorno, ORVEMO_MANUAL, "Retenciones del IRPF");
    EXPECT_THAT(mundo.mensajes.dichos, testing::IsEmpty());
}

}  // namespace
}  // namespace orvemo::pruebas
