#include "pensions/muerte/muerte_frm.h"

#include <gmock/gmock.h>

#include <set>
#include <utility>

#include "apoyo/entorno_falso.h"
#include "pensions/muerte/muerte_base.h"
#include "pensions/pantalla_jubilacion.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

class PantallaMuerte : public testing::Test {
  protected:
    PantallaMuerte() {
        mundo.almacen["ipc.txt"] = ipcPlano();
        frm.Inicia();
    }

    EntornoFalso mundo;
    MuerteFrm frm{mundo.entorno};
};

TEST_F(PantallaMuerte, AsksForThePeriodsThatTheCalculationReads) {
    // The common illness of who was in alta, and all the deaths of who was not.
    const std::set<std::pair<int, int>> conPeriodos{{1, 1}, {6, 1}, {7, 1}, {9, 1}, {10, 1},
                                                    {8, 1}, {8, 2}, {8, 3}, {8, 4}, {8, 5}};
    for (int situacion = 1; situacion <= 10; ++situacion) {
        for (int causa = 1; causa <= 5; ++causa) {
            frm.elige(frm.MuerteSituacion, situacion - 1);
            frm.elige(frm.MuerteCausa, causa - 1);
            EXPECT_EQ(frm.MuerteFrmPer.grupo().visible(), conPeriodos.contains({situacion, causa}))
                << situacion << ' ' << causa;
            EXPECT_EQ(muerte::exigePeriodos(situacion, causa), conPeriodos.contains({situacion, causa}));
        }
    }
}

TEST_F(PantallaMuerte, LabelsTheBaseBySituationAndCause) {
    const auto rotulo = [&](int situacion, int causa) {
        frm.elige(frm.MuerteSituacion, situacion - 1);
        frm.elige(frm.MuerteCausa, causa - 1);
        return frm.MuerteUltimaBase.rotulo();
    };
    EXPECT_EQ(rotulo(5, 4), "Base reguladora que sirvió para determinar la pensión:");
    EXPECT_THAT(rotulo(10, 3), StartsWith("Suma de cotizaciones de 24 meses"));
    EXPECT_EQ(rotulo(7, 2), "Salario real del año anterior");
}

TEST_F(PantallaMuerte, TellsWhoIsAnOrphanAndWhoARelative) {
    frm.MuestraPantalla(frm.Observaciones.pantalla());
    frm.pulsa(frm.Observaciones);
    frm.pulsa(frm.Observacion2);
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre(EndsWith("o de 24 años si no sobreviviera ninguno de los padres."),
                            EndsWith("fuera menor de 22 años de edad.")));
}

}  // namespace
}  // namespace orvemo::pruebas
