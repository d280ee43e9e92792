#include "benefits/desemp_frm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The screen as the menu opens it, on 15-06-2005.
class DesempFrmTest : public testing::Test {
  protected:
    DesempFrmTest() {
        frm.ponVista(&vista);
        frm.Inicia();
    }

    void escribe(Campo& campo, const char* texto) {
        ASSERT_TRUE(frm.foco(campo));
        frm.escribe(campo, texto);
    }

    void rellena() {
        escribe(frm.Nombre, "María Ñúñez");
        escribe(frm.Edad, "40");
        escribe(frm.Suma, "7200,5");
        escribe(frm.Dias, "720");
    }

    pruebas::EntornoFalso mundo;
    pruebas::VistaFalsa vista;
    DesempFrm frm{mundo.entorno};
};

TEST_F(DesempFrmTest, OpensCleanOnItsDefaults) {
    EXPECT_EQ(frm.Titulo(), "PRESTACIONES DE DESEMPLEO");
    EXPECT_EQ(frm.Subtitulo(), "Datos del solicitante");
    EXPECT_EQ(frm.actual(), &frm.Nombre);
    EXPECT_EQ(frm.Edad.texto(), "0");
    EXPECT_EQ(frm.Fecha.texto(), "15-06-2005");
    EXPECT_EQ(frm.fIni.texto(), "15-06-2005");
    EXPECT_FALSE(frm.Horas.visible());
    EXPECT_FALSE(frm.Anterior.visible());
}

TEST_F(DesempFrmTest, RefusesAnAgeAndTakesTheFocusBack) {
    ASSERT_TRUE(frm.foco(frm.Edad));
    EXPECT_FALSE(frm.pulsa(frm.Siguiente));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: El número no es correcto. Debe introducir un número entre 1 y 99"));
    EXPECT_EQ(frm.actual(), &frm.Edad);
    EXPECT_EQ(frm.PantallaActual(), 0);
    frm.escribe(frm.Edad, "40");
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.PantallaActual(), 1);
}

TEST_F(DesempFrmTest, AnAgeNeverVisitedIsNotChecked) {
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    EXPECT_EQ(frm.textoConclusion().find("65"), std::string::npos);
    EXPECT_TRUE(frm.Mal.visible());
}

TEST_F(DesempFrmTest, ReachesTheConclusionsAndComesBack) {
    rellena();
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACION DE DESEMPLEO");
    EXPECT_TRUE(frm.ConDerecho());
    EXPECT_TRUE(frm.Ok.visible());
    EXPECT_FALSE(frm.Mal.visible());
    EXPECT_FALSE(frm.Siguiente.visible());
    EXPECT_NE(frm.textoConclusion().find("Tiene derecho a 240 días de prestación."), std::string::npos);
    ASSERT_TRUE(frm.pulsa(frm.Anterior));
    EXPECT_EQ(frm.actual(), &frm.Nombre);
}

TEST_F(DesempFrmTest, HoursShowWithPartTimeButNotWhileLoading) {
    frm.marca(frm.Parcial, true);
    EXPECT_TRUE(frm.Horas.visible());
    frm.pulsa(frm.BotonNuevo);
    EXPECT_FALSE(frm.Parcial.marcado());
    EXPECT_TRUE(frm.Horas.visible()) << "the mark went while the program itself was setting fields";
    frm.marca(frm.Parcial, true);
    frm.marca(frm.Parcial, false);
    EXPECT_FALSE(frm.Horas.visible());
}

TEST_F(DesempFrmTest, UnreadableNumbersStopTheCopyAndTheCalculationGoesOn) {
    rellena();
    escribe(frm.Dias, "");
    ASSERT_TRUE(frm.foco(frm.Nombre));
    mundo.mensajes.dichos.clear();
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
    EXPECT_EQ(frm.caso().Edad, 40) << "what stands before the bad field was copied";
    EXPECT_NE(frm.textoConclusion().find("Debe haber cumplido 12 meses"), std::string::npos);
    EXPECT_TRUE(frm.Mal.visible());
}

TEST_F(DesempFrmTest, ACaseLiesInTheFileByteByByte) {
    rellena();
    frm.marca(frm.Parcial, true);
    escribe(frm.Horas, "20");
    vista.alGrabar = [](GrabaSupuesto& dialogo) {
        dialogo.ponNombre("Caso 1");
        dialogo.BotonGrabar();
    };
    ASSERT_TRUE(frm.pulsa(frm.BotonGraba));
    const std::string& bytes = mundo.almacen["desemp.nom"];
    ASSERT_EQ(bytes.size(), 297U);
    EXPECT_EQ(bytes[0], ' ');
    EXPECT_EQ(bytes.substr(1, 8), "Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 12),
              "Mar\355a \321\372\361ez ");
    const auto entero = [&](std::size_t en) {
        std::int32_t n = 0;
        std::memcpy(&n, &bytes[en], 4);
        return n;
    };
    const auto doble = [&](std::size_t en) {
        double x = 0;
        std::memcpy(&x, &bytes[en], 8);
        return x;
    };
    EXPECT_EQ(entero(161), 40);
    EXPECT_EQ(doble(165), 38518) << "15-06-2005 in days since 30-12-1899";
    EXPECT_EQ(doble(173), 38518);
    EXPECT_EQ(doble(181), 7200.5);
    EXPECT_EQ(entero(189), 720);
    EXPECT_EQ(entero(193), 0);
    EXPECT_EQ(entero(197), 20);
    EXPECT_EQ(entero(201), 1);
    EXPECT_EQ(bytes.substr(205), std::string(92, '\0'));
}

TEST_F(DesempFrmTest, ASavedCaseComesBackOnPanelZero) {
    rellena();
    frm.marca(frm.Parcial, true);
    escribe(frm.Horas, "20");
    vista.alGrabar = [](GrabaSupuesto& dialogo) { dialogo.BotonGrabar(); };
    ASSERT_TRUE(frm.pulsa(frm.BotonGraba));
    frm.marca(frm.Parcial, false);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    vista.alCargar = [](CargaSupuesto& dialogo) {
        dialogo.selecciona(0);
        dialogo.BotonCargar();
    };
    ASSERT_TRUE(frm.pulsa(frm.BotonCarga));
    EXPECT_EQ(frm.NombreActual(), "María Ñúñez");
    EXPECT_EQ(frm.Suma.texto(), "7200,50");
    EXPECT_EQ(frm.Horas.texto(), "20");
    EXPECT_TRUE(frm.Horas.visible()) << "the mark of the loaded case shows them";
    EXPECT_EQ(frm.PantallaActual(), 0);
}

TEST_F(DesempFrmTest, DatesOutOfRangeShowAs1900) {
    std::string bytes(297, '\0');
    const double loca = 1e300;
    std::memcpy(&bytes[165], &loca, 8);
    mundo.almacen["desemp.nom"] = bytes;
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.Fecha.texto(), "01-01-1900");
    EXPECT_EQ(frm.fIni.texto(), "30-12-1899") << "a date never written is day 0";
}

TEST_F(DesempFrmTest, PrintsWhatStandsOnTheScreen) {
    rellena();
    escribe(frm.Fecha, "7/6/05");
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(
        mundo.impresora.lineas,
        ElementsAre("DESEMPLEO", "Nombre:María Ñúñez", "Edad: 40", "Fecha de solicitud: 07-jun-2005",
                    "Fecha de inicio de la situación: 15-jun-2005",
                    "Suma de cotizaciones de los últimos 180 días: 7.200,50€",
                    "Número de hijos menores de 26 años o minusválidos: 0", "CONCLUSIONES",
                    "El interesado desea solicitar una prestación de desempleo.",
                    "Tiene derecho a 240 días de prestación.", "La base reguladora diaria es de 40,00 €.",
                    "Los primeros 180 días tendrá una prestación de 28,00 € diarios.",
                    "A partir del día 181 la prestación será de 24,00 € diarios."));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Informa: Impresión terminada"));
}

}  // namespace
}  // namespace orvemo
