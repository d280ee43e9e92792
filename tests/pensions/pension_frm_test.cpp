#include "pensions/jubilacion/pension_frm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundations/values/fallos.h"
#include "pensions/pantalla_jubilacion.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using PensionFrmTest = pruebas::PantallaJubilacion;

TEST_F(PensionFrmTest, DoesNotOpenWithoutItsPriceIndex) {
    mundo.almacen.ficheros.clear();
    EXPECT_THROW(frm.Inicia(), FicheroInaccesible);
    mundo.almacen["ipc.txt"] = "1984\nx\tx\t100\n";
    EXPECT_THROW(frm.Inicia(), FicheroMalFormado);
}

// --- Panels

TEST_F(PensionFrmTest, WithASumNoPanelOfBasesShows) {
    rellena();
    EXPECT_TRUE(frm.JubiSumaBases.visible());
    sigue();
    EXPECT_TRUE(frm.Ok.visible());
    EXPECT_THAT(frm.textoConclusion(), testing::EndsWith("de 1.000,00 €/mes (con dos pagas extras).\r\n"));
    ASSERT_TRUE(frm.pulsa(frm.Anterior));
    EXPECT_THAT(vista.pantallas, ElementsAre(0, 1, 2, 8, 2));
}

TEST_F(PensionFrmTest, BaseByBaseTheFramesOfTheYearShow) {
    struct Anio {
        const char* jubilacion;
        std::vector<int> pantallas;
        int meses;
    };
    const Anio anios[] = {{"15-06-2001", {1, 2, 3, 4, 5, 6, 8, 6}, 156},
                          {"15-06-2000", {1, 2, 3, 4, 5, 8, 5}, 144}};
    for (const Anio& anio : anios) {
        SCOPED_TRACE(anio.jubilacion);
        frm.Inicia();
        escribe(frm.JubiFechaJub, anio.jubilacion);
        vista.pantallas.clear();
        vaABases();
        EXPECT_EQ(frm.Subtitulo(),
                  "Bases de cotización de los últimos " + std::to_string(anio.meses) + "  meses (1)");
        while (frm.PantallaActual() != frm.ultimaPantalla()) sigue();
        ASSERT_TRUE(frm.pulsa(frm.Anterior));
        EXPECT_EQ(vista.pantallas, anio.pantallas);
        EXPECT_FALSE(frm.JubiSumaBases.visible());
        EXPECT_TRUE(frm.JubiBase(anio.meses).visible());
        EXPECT_FALSE(frm.JubiBase(anio.meses + 1).visible());
    }
}

// --- Date of retirement

TEST_F(PensionFrmTest, AFutureRetirementAsksForThePresentBase) {
    escribe(frm.JubiFechaJub, "15-06-2007");
    ASSERT_TRUE(frm.foco(frm.JubiNombre));
    EXPECT_TRUE(frm.JubiBaseActual.visible());
    escribe(frm.JubiFechaJub, "31-12-2005");
    ASSERT_TRUE(frm.foco(frm.JubiNombre));
    EXPECT_FALSE(frm.JubiBaseActual.visible());
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(PensionFrmTest, WithoutTheSwitchAFutureRetirementFallsBackToTheYear) {
    mundo.valores.VerBaseActual = false;
    escribe(frm.JubiFechaJub, "01-01-2006");
    EXPECT_FALSE(frm.foco(frm.JubiNombre));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: La fecha debe ser del año en curso"));
    EXPECT_EQ(frm.JubiFechaJub.texto(), "31-12-2005");
    EXPECT_EQ(frm.actual(), &frm.JubiFechaJub);
    EXPECT_FALSE(frm.JubiBaseActual.visible());
    EXPECT_TRUE(frm.foco(frm.JubiNombre));
}

// --- Periods

TEST_F(PensionFrmTest, APeriodIsRefusedWithItsReason) {
    struct Fila {
        const char *desde, *hasta, *mensaje;
    };
    const Fila filas[] = {
        {"1-1-2000", "", "Error: La fecha no puede quedar en blanco."},
        {"2-1-2000", "01-01-2000",
         "Error: La fecha de finalización del periodo no puede ser anterior a la inicial."},
        {"1-1-2000", "31-2-2000", "Error: La fecha no es correcta. Debe ser de tipo dd-mm-aaaa"},
    };
    sigue();
    Campo& hasta = frm.periodos[0].PerHasta;
    for (const Fila& fila : filas) {
        mundo.mensajes.dichos.clear();
        escribe(hasta, "1-1-2010");
        escribe(frm.periodos[0].PerDesde, fila.desde);
        escribe(hasta, fila.hasta);
        EXPECT_FALSE(frm.foco(frm.HorasTP));
        EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(fila.mensaje));
        EXPECT_EQ(frm.actual(), &hasta);
        EXPECT_EQ(hasta.texto(), fila.hasta) << "what was typed stays";
        frm.escribe(hasta, "1-1-2010");
    }
}

TEST_F(PensionFrmTest, AGoodPeriodIsRewrittenAndABlankOnePasses) {
    sigue();
    escribe(frm.periodos[0].PerDesde, "1/1/70");
    escribe(frm.periodos[0].PerHasta, "1-1-1970");
    escribe(frm.periodos[2].PerHasta, "31/12/99");
    sigue();
    EXPECT_EQ(frm.periodos[0].PerDesde.texto(), "01-01-1970");
    EXPECT_EQ(frm.periodos[2].PerHasta.texto(), "31-12-1999") << "a last day without its first";
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(PensionFrmTest, AFirstDayChangedAfterwardsIsCaughtOnGoingOn) {
    sigue();
    escribe(frm.periodos[3].PerDesde, "01-01-2000");
    escribe(frm.periodos[3].PerHasta, "01-01-2001");
    escribe(frm.periodos[3].PerDesde, "01-01-2002");
    ASSERT_TRUE(frm.foco(frm.HorasTP));
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: La fecha de finalización del periodo no puede ser anterior a la inicial."));
    EXPECT_EQ(frm.PantallaActual(), 1);
    EXPECT_EQ(frm.actual(), &frm.periodos[3].PerHasta);
}

}  // namespace
}  // namespace orvemo
