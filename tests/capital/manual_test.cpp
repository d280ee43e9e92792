// The story of the user's manual is what the program says, with the tariffs that ship.
#include "apoyo/manual.h"

#include "apoyo/entorno_falso.h"
#include "capital/capitalizacion/capit_frm.h"

namespace orvemo::pruebas {
namespace {

TEST(ManualCapital, CuentaLoQueDiceElPrograma) {
    EntornoFalso mundo;
    const DirectorioAplicacion datos{ORVEMO_DATOS};
    for (const char* tarifa : {"tarif1.nom", "tarif4.nom", "tarif6.nom"})
        mundo.almacen[tarifa] = datos.leeTodo(tarifa);
    compruebaManual<CapitFrm>(mundo.entorno, ORVEMO_MANUAL, "Capitalización de pensiones");
    EXPECT_TRUE(mundo.mensajes.dichos.empty());
}

}  // namespace
}  // namespace orvemo::pruebas
