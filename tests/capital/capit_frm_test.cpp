#include "capital/capitalizacion/capit_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

constexpr int kMuerte = 3;

class CapitFrmTest : public pruebas::PantallaAbierta<CapitFrm> {
  protected:
    /// The fields on view besides the four that always are, and besides the kind.
    std::string pedidos() const {
        std::string nombres;
        for (const Campo* c :
             {&frm.Dias1, &frm.Dias2, &frm.fCapi, &frm.Edad, &frm.EdadB, &frm.Edad1, &frm.Edad2, &frm.Edad3})
            if (c->visible()) nombres += (nombres.empty() ? "" : " ") + c->def().nombre;
        return nombres;
    }
};

TEST_F(CapitFrmTest, CadaTipoPideSusDatos) {
    const char* const pedidosPorTipo[] = {
        "Edad1",
        "Edad1",
        "Edad EdadB",
        "Dias1 Dias2 Edad EdadB",
        "Edad EdadB Edad1",
        "Edad EdadB Edad1",
        "Edad1 Edad2",
        "Edad1 Edad2",
        "Dias1 Dias2 Edad EdadB Edad1",
        "Dias1 Dias2 Edad EdadB Edad1",
        "Edad1 Edad2 Edad3",
        "Edad EdadB Edad1 Edad2",
        "Edad EdadB Edad1 Edad2 Edad3",
        "Edad EdadB Edad1 Edad2",
        "Dias1 Dias2 Edad EdadB Edad1 Edad2",
        "Dias1 Dias2 Edad EdadB Edad1 Edad2 Edad3",
        "Dias1 Dias2 Edad EdadB Edad1 Edad2",
    };
    frm.elige(frm.Situacion, kMuerte);
    for (int papel = 0; papel < 17; ++papel) {
        frm.elige(frm.Papel, papel);
        EXPECT_EQ(pedidos(), pedidosPorTipo[papel]) << papel;
    }
    EXPECT_EQ(frm.fConce.rotulo(), "Fecha de reconocimiento de la pensión");
    EXPECT_EQ(frm.Edad.rotulo(), "Fecha de nacimiento del viudo/a:");
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_EQ(pedidos(), "fCapi Edad") << "a new case";
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
    EXPECT_EQ(pedidos(), "Edad1 Edad2") << "the kind is where it stood";
}

}  // namespace
}  // namespace orvemo
