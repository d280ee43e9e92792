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

using BasesJubilacionTest = pruebas::PantallaJubilacion;

// --- Series of bases

TEST_F(BasesJubilacionTest, LinesBearTheirMonths) {
    sigue();
    EXPECT_EQ(frm.JubiBase(1).rotulo(), "01. may-05");
    EXPECT_EQ(frm.JubiBase(180).rotulo(), "180. jun-90");
    escribe(frm.periodos[0].PerDesde, "01-01-1970");
    escribe(frm.periodos[0].PerHasta, "20-04-2005");
    sigue();
    EXPECT_EQ(frm.JubiBase(1).rotulo(), "01. mar-05") << "counted anew on leaving the periods";
}

TEST_F(BasesJubilacionTest, ATypedBaseRunsDownToTheEndOfItsYear) {
    vaABases();
    escribe(frm.JubiBase(1), "1234,56");
    escribe(frm.JubiBase(2), "1000");
    escribe(frm.JubiBase(6), "900");
    ASSERT_TRUE(frm.foco(frm.JubiBase(3)));
    ASSERT_TRUE(frm.foco(frm.JubiBase(4)));
    EXPECT_THAT(bases(1, 18), ElementsAre("1234,56", "1000", "1000", "1000", "1000", "900", "900", "900",
                                          "900", "900", "900", "900", "900", "900", "900", "900", "900", "0"))
        << "2005 goes from May to January, 2004 twelve lines; a line only passed through copies nothing";
    EXPECT_EQ(frm.JubiBase(1).presentacion(), "1.234,56");
}

TEST_F(BasesJubilacionTest, ARefusedBaseIsNotCopied) {
    vaABases();
    escribe(frm.JubiBase(1), "1000000");
    EXPECT_FALSE(frm.foco(frm.JubiBase(2)));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: El número no es correcto. Debe introducir un número entre 0 y 999999"));
    EXPECT_THAT(bases(1, 2), ElementsAre("1000000", "0"));
    frm.escribe(frm.JubiBase(1), "999999");
    EXPECT_TRUE(frm.foco(frm.JubiBase(2)));
    EXPECT_THAT(bases(1, 2), ElementsAre("999999", "999999"));
}

// --- Projection

/// A retirement on 15-03-2006: lines 1 and 2 are of 2006, 3 to 14 of 2005, 15 of December 2004.
class ProyeccionTest : public BasesJubilacionTest {
  protected:
    void proyecta(const char* baseActual) {
        frm.MuestraPantalla(0);
        escribe(frm.JubiFechaJub, "15-03-2006");
        ASSERT_TRUE(frm.foco(frm.JubiNombre));
        escribe(frm.JubiBaseActual, baseActual);
        sigue();
    }
    static constexpr const char* kPregunta = "Confirma: ¿Recalcular bases futuras proyectadas?";
};

TEST_F(ProyeccionTest, EmptyMonthsAreFilledAndFilledOnesAskedAboutOnce) {
    proyecta("1000");
    EXPECT_THAT(bases(1, 4), ElementsAre("1020,00", "1020,00", "1000,00", "1000,00"));
    EXPECT_THAT(bases(14, 15), ElementsAre("1000,00", "0"));
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    mundo.mensajes.respuestas = {false, true};
    proyecta("2000");
    EXPECT_THAT(bases(1, 3), ElementsAre("1020,00", "1020,00", "1000,00"));
    proyecta("3000");
    EXPECT_THAT(bases(1, 3), ElementsAre("3060,00", "3060,00", "3000,00"));
    frm.JubiBase(1).ponTexto("0");
    proyecta("3000,00");
    EXPECT_THAT(bases(1, 2), ElementsAre("0", "3060,00")) << "the same base projects nothing more";
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kPregunta, kPregunta));
}

TEST_F(ProyeccionTest, AnEmptyMonthTurnsANoIntoAYesForThoseAfterIt) {
    for (const int i : {1, 2, 4, 5}) frm.JubiBase(i).ponTexto("700");
    mundo.mensajes.respuestas = {false};
    proyecta("1000");
    EXPECT_THAT(bases(1, 5), ElementsAre("700", "700", "1000,00", "1000,00", "1000,00"));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kPregunta));
}

TEST_F(ProyeccionTest, TheQuestionIsPutEvenAfterAnEmptyMonth) {
    frm.JubiBase(2).ponTexto("700");
    mundo.mensajes.respuestas = {false};
    proyecta("1000");
    EXPECT_THAT(bases(1, 3), ElementsAre("1020,00", "700", "1000,00"));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kPregunta));
}

TEST_F(ProyeccionTest, ALoadedCaseOffersNoneUntilItsBaseChanges) {
    proyecta("1000");
    graba();
    frm.pulsa(frm.BotonNuevo);
    frm.DatosCargaRegistro(1);
    EXPECT_TRUE(frm.JubiBaseActual.visible());
    sigue();
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    proyecta("2000");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kPregunta));
}

}  // namespace
}  // namespace orvemo
