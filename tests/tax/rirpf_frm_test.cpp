#include "tax/rirpf_frm.h"

#include <limits>

#include "apoyo/pantalla_abierta.h"
#include "tax/personas.h"

namespace orvemo {
namespace {

using namespace irpf::pruebas;
using D = irpf::DatosRetencion;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class RetIrpfFrmTest : public pruebas::PantallaAbierta<RetIrpfFrm> {
  protected:
    void concluyeCon(const D& datos) {
        mundo.almacen["RIRPF.nom"] = irpf::kDiseno.escribe(datos);
        frm.DatosCargaRegistro(1);
        frm.concluye();
    }
};

TEST_F(RetIrpfFrmTest, UnTopeSeRecuerdaEnTodoElPrograma) {
    auto datos = trabajador(30000);
    datos.Regularizacion = 1;
    datos.RetribucionAcumulada = 12000;
    datos.BaseA = 24200;
    datos.TipoA = 15;
    concluyeCon(datos);
    EXPECT_EQ(mundo.valores.LimitaTipo, "S");

    datos.RetribucionAcumulada = 30000;
    concluyeCon(datos);
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(HasSubstr("dividido por cero")));
    EXPECT_FALSE(frm.resultado().has_value());
    EXPECT_TRUE(frm.Mal.visible());

    // The floor of 15, halved in Ceuta, would do for the first of a run.
    datos = trabajador(10000, kEspecial);
    datos.CeutaMelilla = datos.Regularizacion = 1;
    datos.RetribucionAcumulada = 5000;
    datos.RetencionAcumulada = 1200;
    datos.BaseA = 4000;
    datos.TipoA = 8;
    concluyeCon(datos);
    EXPECT_DOUBLE_EQ(frm.resultado()->TipoRetencion, 8);
    EXPECT_DOUBLE_EQ(frm.resultado()->ImporteRetencion, 1600);
    EXPECT_EQ(mundo.valores.LimitaTipo, "S");
}

TEST_F(RetIrpfFrmTest, UnRegistroDanadoConservaLoQueLaPantallaNoSabeDecir) {
    D datos;
    irpf::kDiseno.lee(std::string(482, '\xFF'), datos);
    datos.Retribuciones = datos.Reducciones = datos.Gastos = datos.Pension = datos.Anualidades = 0;
    datos.RetribucionAcumulada = datos.RetencionAcumulada = datos.BaseA = 0;
    datos.RetribucionInicial = datos.RetencionInicial = 0;
    concluyeCon(datos);
    EXPECT_EQ(frm.PantallaActual(), 3);
    D leidos;
    irpf::kDiseno.lee(graba("Caso").substr(irpf::kDiseno.longitud()), leidos);
    EXPECT_EQ(leidos.TipoContrato, 255);
    EXPECT_EQ(leidos.SituacionFamiliar, 255);
    EXPECT_EQ(leidos.Hijos[9], hijo(-1, 0, -1));
    EXPECT_EQ(leidos.Ascendientes[4], ascendiente(-1, 255));

    while (frm.PantallaActual() > 1) frm.pulsa(frm.Anterior);
    frm.elige(frm.familiares.Descendientes, 9);
    frm.pulsa(frm.familiares.BorraHijo);
    frm.concluye();
    EXPECT_EQ(frm.resultado()->NumDescendientes, 9);

    datos.Gastos = std::numeric_limits<double>::quiet_NaN();
    concluyeCon(datos);
    for (const char* boton : {"Hijos", "Ascen"}) {
        while (frm.PantallaActual() > 1) frm.pulsa(frm.Anterior);
        EXPECT_TRUE(frm.pulsa(frm.campo(boton, 0)));
    }
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto",
                                                   "Error: No caben más de 10 hijos y otros descendientes",
                                                   "Error: No caben más de 5 ascendientes"));
}

}  // namespace
}  // namespace orvemo
