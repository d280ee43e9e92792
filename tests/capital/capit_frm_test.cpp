#include "capital/capitalizacion/capit_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

constexpr int kMuerte = 3;

class CapitFrmTest : public pruebas::PantallaAbierta<CapitFrm> {
  protected:
    /// What is on view: V the widows' births, D their days, 1 to 3 the others' births, F the declaration's
    /// date.
    std::string pedidos() const {
        const std::pair<const Campo*, const char*> campos[] = {{&frm.EdadB, "V"}, {&frm.Dias1, "D"},
                                                               {&frm.Edad1, "1"}, {&frm.Edad2, "2"},
                                                               {&frm.Edad3, "3"}, {&frm.fCapi, "F"}};
        EXPECT_EQ(frm.Edad.visible(), frm.EdadB.visible() || frm.fCapi.visible());
        EXPECT_EQ(frm.Dias2.visible(), frm.Dias1.visible());
        std::string vistos;
        for (const auto& [campo, letra] : campos) vistos += campo->visible() ? letra : "";
        return vistos;
    }
};

TEST_F(CapitFrmTest, CadaTipoPideSusDatos) {
    const char* const porTipo[] = {"1",   "1",   "V",   "VD",   "V1",  "V1",   "12",    "12",  "VD1",
                                   "VD1", "123", "V12", "V123", "V12", "VD12", "VD123", "VD12"};
    frm.elige(frm.Situacion, kMuerte);
    for (int papel = 0; papel < 17; ++papel) {
        frm.elige(frm.Papel, papel);
        EXPECT_EQ(pedidos(), porTipo[papel]) << papel;
    }
    EXPECT_EQ(frm.fConce.rotulo(), "Fecha de reconocimiento de la pensión");
    EXPECT_EQ(frm.Edad.rotulo(), "Fecha de nacimiento del viudo/a:");
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_EQ(pedidos(), "F") << "a new case";
    EXPECT_EQ(frm.fConce.rotulo(), "Fecha del accidente:");
}

TEST_F(CapitFrmTest, ElSupuestoNoGuardaElTipo) {
    frm.elige(frm.Situacion, kMuerte);
    frm.elige(frm.Papel, 15);
    ASSERT_EQ(graba("Tres y dos").size(), 341U);
    frm.elige(frm.Papel, 6);
    frm.elige(frm.Situacion, 0);
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.Situacion.texto(), "Muerte");
    EXPECT_EQ(pedidos(), "12") << "the kind is where it stood";
}

}  // namespace
}  // namespace orvemo
