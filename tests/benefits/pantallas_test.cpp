// What whole cases can't reach of the screens: bad dates, what a new case leaves, what isn't saved.
#include "apoyo/pantalla_abierta.h"
#include "benefits/desempleo/desemp_frm.h"
#include "benefits/familiar/familiar_frm.h"
#include "benefits/maternidad/mater_frm.h"
#include "benefits/nocontributiva/nocon_frm.h"
#include "benefits/riesgo/riesgo_embarazo_frm.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kRevise = "Error: Algún dato no es correcto. Revise el supuesto";
constexpr const char* kFallo = "Error: No se ha podido completar la operación: ";

using DesempFrmTest = pruebas::PantallaAbierta<DesempFrm>;
using MaterFrmTest = pruebas::PantallaAbierta<MaterFrm>;
using RiesgoEmbarazoTest = pruebas::PantallaAbierta<RiesgoEmbarazo>;
using NoConFrmTest = pruebas::PantallaAbierta<NoConFrm>;
using FamiliarFrmTest = pruebas::PantallaAbierta<FamiliarFrm>;

TEST_F(DesempFrmTest, ANewCaseUnmarksPartTimeAndLeavesItsHoursOnView) {
    frm.marca(frm.Parcial, true);
    frm.pulsa(frm.BotonNuevo);
    EXPECT_FALSE(frm.Parcial.marcado());
    EXPECT_TRUE(frm.Horas.visible()) << "the mark went while the program itself was setting fields";
    frm.marca(frm.Parcial, true);
    frm.marca(frm.Parcial, false);
    EXPECT_FALSE(frm.Horas.visible());
}

TEST_F(MaterFrmTest, TheTypedDatesAreTestedInTheirOrder) {
    for (const char* mala : {"31-02-2005", ""}) {
        compruebaFechas({{&frm.fAlta, "Error: La fecha de alta no es correcta"},
                         {&frm.f1, "Error: La fecha de inicio del descanso no es correcta"},
                         {&frm.f2, "Error: La fecha de final del descanso no es correcta"}},
                        mala);
    }
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.f2.texto(), "25-09-2005");
}

TEST_F(MaterFrmTest, ANewCaseGoesBackToTheEmployeeAndLeavesTheReducedDayOnView) {
    frm.elige(frm.Situacion, 1);
    frm.marca(frm.jtpcnd, true);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_TRUE(frm.Bccant.visible() && frm.DM.visible() && !frm.B12.visible());
    EXPECT_FALSE(frm.jtpcnd.marcado());
    EXPECT_TRUE(frm.ptp.visible()) << "the mark went while the program itself was setting fields";
}

TEST_F(MaterFrmTest, ABaseBeyondThirtyTwoBitsOfCentsFailsWithTheLinesSoFar) {
    frm.Bccant.ponTexto("644245094,4");
    frm.elige(frm.DM, 1);
    EXPECT_EQ(concluye(), "La interesada desea solicitar una prestación por maternidad.\r\n");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(StartsWith(kFallo)));
    EXPECT_TRUE(frm.Mal.visible());
}

TEST_F(RiesgoEmbarazoTest, TheTypedDatesAreTestedInTheirOrder) {
    compruebaFechas({{&frm.fAlta, "Error: La fecha de alta no es correcta"},
                     {&frm.f1, "Error: La fecha de inicio de la baja no es correcta"},
                     {&frm.f2, "Error: La fecha de final de la baja no es correcta"}},
                    "31-02-2005");
}

TEST_F(RiesgoEmbarazoTest, TheMonthOfJoiningIsTheSameMonthOfTheSameYear) {
    const struct {
        Campo& fecha;
        const char* texto;
        bool mismoMes;
    } filas[] = {
        {frm.f1, "01-07-2005", false},
        {frm.fAlta, "31-07-2005", true},
        {frm.fAlta, "31-07-2004", false},
        {frm.fAlta, "ayer", false},
        {frm.f1, "", true},  // both unreadable: 01-01-1900
        {frm.f1, "31-01-1900", true},
        {frm.f1, "01-02-1900", false},
    };
    for (const auto& fila : filas) {
        rellena(fila.fecha, fila.texto);
        EXPECT_EQ(frm.Sup1.visible(), fila.mismoMes) << fila.fecha.def().nombre << ' ' << fila.texto;
    }
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_TRUE(frm.Sup1.visible()) << "a new case";
}

TEST_F(NoConFrmTest, ABlankIncomeStopsTheCalculationAndIsNotSaved) {
    rellena(frm.Renta, "");
    EXPECT_EQ(concluye(), "");
    EXPECT_TRUE(frm.Mal.visible());
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(StartsWith(kFallo)));
    mundo.mensajes.dichos.clear();
    EXPECT_EQ(graba("Sin renta"), "");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kRevise));
}

TEST_F(NoConFrmTest, TheFirstRecordIsAnExample) {
    graba("Uno");
    vista.alGrabar = [](GrabaSupuesto& dialogo) {
        dialogo.selecciona(0);
        dialogo.BotonBorrar();
        dialogo.BotonCancelar();
    };
    ASSERT_TRUE(frm.pulsa(frm.BotonGraba));
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: No pueden borrarse ni  sobreescribirse los supuestos entregados como ejemplo"));
}

TEST_F(FamiliarFrmTest, ABirthHasItsOwnFieldsSubtitleAndLimits) {
    frm.elige(frm.Ayuda, 1);
    EXPECT_FALSE(frm.Ingresos.visible());
    concluye();
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACION POR NACIMIENTO DE HIJO(S)");
    frm.pulsa(frm.BotonNuevo);
    EXPECT_TRUE(frm.Ingresos.visible());
    EXPECT_FALSE(frm.Ingresos2.visible());
}

TEST_F(FamiliarFrmTest, ABlankFieldIsNotSaved) {
    frm.Ingresos.ponTexto("");
    EXPECT_EQ(graba("Sin ingresos"), "");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kRevise));
}

TEST_F(FamiliarFrmTest, ABenefitOutOfRangeIsBroughtToTheNearest) {
    std::string bytes = graba("Uno");
    for (const auto& [guardado, elegido] : {std::pair{"\xFB\xFF", 0}, {"\x4D\x01", 1}}) {
        mundo.almacen["Familiar.nom"] = bytes.replace(185, 2, guardado);
        frm.DatosCargaRegistro(1);
        EXPECT_EQ(frm.Ayuda.indice(), elegido);
    }
}

}  // namespace
}  // namespace orvemo
