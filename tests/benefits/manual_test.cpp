// The stories of the user's manual are what the program says.
#include "apoyo/manual.h"

#include <gmock/gmock.h>

#include "apoyo/entorno_falso.h"
#include "benefits/desempleo/desemp_frm.h"
#include "benefits/familiar/familiar_frm.h"
#include "benefits/it/ilt_frm.h"
#include "benefits/maternidad/mater_frm.h"
#include "benefits/nocontributiva/nocon_frm.h"
#include "benefits/riesgo/riesgo_embarazo_frm.h"

namespace orvemo::pruebas {
namespace {

TEST(Manual, TellsItsStoriesAsTheProgramDoes) {
    EntornoFalso mundo;
    compruebaManual<DesempFrm>(mundo.entorno, ORVEMO_MANUAL, "Desempleo");
    compruebaManual<ILTFrm>(mundo.entorno, ORVEMO_MANUAL, "Incapacidad temporal");
    compruebaManual<MaterFrm>(mundo.entorno, ORVEMO_MANUAL, "Maternidad");
    compruebaManual<RiesgoEmbarazo>(mundo.entorno, ORVEMO_MANUAL, "Riesgo durante el embarazo");
    compruebaManual<NoConFrm>(mundo.entorno, ORVEMO_MANUAL, "Jubilación e invalidez no contributivas");
    compruebaManual<FamiliarFrm>(mundo.entorno, ORVEMO_MANUAL, "Protección familiar");
    EXPECT_THAT(mundo.mensajes.dichos, testing::IsEmpty());
}

}  // namespace
}  // namespace orvemo::pruebas
