#include "benefits/riesgo_embarazo_frm.h"

#include "pantalla_de_baja.h"

namespace orvemo {
namespace {

using pruebas::dobleEn;
using pruebas::enteroEn;
using testing::ElementsAre;
using testing::IsEmpty;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario };

class RiesgoEmbarazoTest : public pruebas::PantallaDeBaja<RiesgoEmbarazo> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "f1", "f2"});
    }
    /// Ten days from 6 June 2005, by the month.
    void rellenaBaja() {
        escribe(frm.Nombre, "Begoña Ruiz");
        rellena(frm.fAlta, "01-02-2000");
        rellena(frm.f1, "06-06-2005");
        rellena(frm.f2, "15-06-2005");
        frm.elige(frm.DM, 1);
        rellena(frm.Bccant, "1240,5");
    }
    const std::vector<std::string>& imprime() {
        concluye();
        EXPECT_TRUE(frm.pulsa(frm.BotonPrint));
        return mundo.impresora.lineas;
    }
};

TEST_F(RiesgoEmbarazoTest, OpensCleanOnItsDefaults) {
    EXPECT_EQ(frm.Titulo(), "RIESGO DURANTE EL EMBARAZO");
    EXPECT_EQ(frm.Caption(), "Riesgo durante el embarazo");
    EXPECT_EQ(frm.Subtitulo(), "Datos del solicitante");
    EXPECT_EQ(frm.fichero(), "RiesgoEm.nom");
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2}) EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "Bact", "Extra", "IExtra"))
        << "she joined this very month";
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE PRESTACIÓN POR RIESGO DURANTE EMBARAZO");
}

TEST_F(RiesgoEmbarazoTest, SchemeAndDatesAskForTheirOwnData) {
    frm.elige(frm.Situacion, kTiempoParcial);
    EXPECT_THAT(opcionales(), ElementsAre("DM", "B12", "D12"));
    frm.elige(frm.Situacion, kAutonomos);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant"));
    frm.elige(frm.Situacion, kAgrario);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant"));
    frm.elige(frm.Situacion, kOrdinario);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "Bact", "Extra", "IExtra"));
    rellena(frm.f1, "01-07-2005");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM"));
    rellena(frm.fAlta, "31-07-2005");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "Bact", "Extra", "IExtra"));
    rellena(frm.fAlta, "31-07-2004");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM")) << "the same month of another year";
    frm.elige(frm.Situacion, kTiempoParcial);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "Bact", "Extra", "IExtra")) << "a new case";
}

TEST_F(RiesgoEmbarazoTest, UnreadableDatesCountAsTheFirstOf1900) {
    rellena(frm.fAlta, "ayer");
    EXPECT_FALSE(frm.Sup1.visible());
    rellena(frm.f1, "");
    EXPECT_TRUE(frm.Sup1.visible()) << "both are 01-01-1900";
    rellena(frm.f1, "31-01-1900");
    EXPECT_TRUE(frm.Sup1.visible());
    rellena(frm.f1, "01-02-1900");
    EXPECT_FALSE(frm.Sup1.visible());
}

TEST_F(RiesgoEmbarazoTest, TheTypedDatesAreTestedInTheirOrder) {
    struct {
        Campo& campo;
        const char* mensaje;
    } const filas[] = {
        {frm.f2, "Error: La fecha de final de la baja no es correcta"},
        {frm.f1, "Error: La fecha de inicio de la baja no es correcta"},
        {frm.fAlta, "Error: La fecha de alta no es correcta"},
    };
    for (const auto& fila : filas) {
        mundo.mensajes.dichos.clear();
        rellena(fila.campo, "31-02-2005");
        EXPECT_THAT(mundo.mensajes.dichos, IsEmpty()) << "nothing is checked on leaving";
        EXPECT_TRUE(frm.pulsa(frm.Siguiente));
        EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(fila.mensaje));
        EXPECT_EQ(frm.actual(), &fila.campo);
        EXPECT_EQ(frm.PantallaActual(), 0);
    }
}

TEST_F(RiesgoEmbarazoTest, TheHoursOfAContractAreThoseOfAYearAtMost) {
    frm.elige(frm.Situacion, kTiempoParcial);
    escribe(frm.D12, "1827");
    EXPECT_FALSE(frm.foco(frm.Nombre));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: El número no es correcto. Debe introducir un número entre 0 y 1826"));
    rellena(frm.D12, "1826");
    EXPECT_EQ(frm.actual(), &frm.Nombre);
}

TEST_F(RiesgoEmbarazoTest, ACaseLiesInTheFileByteByByte) {
    rellenaBaja();
    rellena(frm.fAlta, "01-06-2005");
    rellena(frm.Bact, "1200,75");
    rellena(frm.Extra, "2");
    rellena(frm.IExtra, "1100,5");
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.D12, "913");
    rellena(frm.B12, "3600,25");
    const std::string& bytes = graba("Caso 1");
    ASSERT_EQ(bytes.size(), 239U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 13),
              "Bego\xF1"
              "a Ruiz  ");
    EXPECT_EQ(enteroEn(bytes, 161), kTiempoParcial);
    EXPECT_EQ(dobleEn(bytes, 165), 38504) << "01-06-2005";
    EXPECT_EQ(dobleEn(bytes, 173), 1240.5);
    EXPECT_EQ(enteroEn(bytes, 181), 1);
    EXPECT_EQ(dobleEn(bytes, 185), 38509) << "06-06-2005";
    EXPECT_EQ(dobleEn(bytes, 193), 38518) << "15-06-2005";
    EXPECT_EQ(dobleEn(bytes, 201), 1200.75);
    EXPECT_EQ(enteroEn(bytes, 209), 2);
    EXPECT_EQ(dobleEn(bytes, 213), 1100.5);
    EXPECT_EQ(enteroEn(bytes, 221), 913);
    EXPECT_EQ(dobleEn(bytes, 225), 3600.25);
    EXPECT_EQ(enteroEn(bytes, 233), 0);
    EXPECT_EQ(bytes.substr(237), "  ");
}

TEST_F(RiesgoEmbarazoTest, ASavedCaseComesBackWithItsView) {
    rellenaBaja();
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "3600,5");
    graba("Caso 1");
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.NombreActual(), "Caso 1");
    EXPECT_EQ(frm.f1.texto(), "06-06-2005");
    EXPECT_EQ(frm.DM.texto(), "Mensual");
    EXPECT_EQ(frm.B12.texto(), "3600,50");
    EXPECT_EQ(frm.Extra.texto(), "0");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "B12", "D12"));
}

// --- The report ---

TEST_F(RiesgoEmbarazoTest, TheReportOfAnEmployee) {
    rellenaBaja();
    EXPECT_THAT(
        imprime(),
        ElementsAre("RIESGO DURANTE EL EMBARAZO", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato ordinario)",
                    "Fecha de alta en la Seguridad Social: 01-feb-2000", "Tipo de cotización: Mensual",
                    "Periodo de baja: 06-jun-2005 AL 15-jun-2005",
                    "Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                    "CONCLUSIONES",
                    "El interesado/a desea solicitar una prestación por Riesgo durante el Embarazo.",
                    "El trabajador cumple el requisito de afiliación y alta en la Seguridad Social,",
                    "en el momento de producirse el hecho causante, habiendo cotizado, asimismo,",
                    "un mínimo de 180 días, dentro de los últimos 5 años.",
                    "Base Reguladora para la prestación:41,35 €/diarios",
                    "El número de días de prestación es de 10", "La indemnización de 75% es de 310,10 €",
                    "El pago de esta indemnización corre a cargo de la Seguridad Social."));
}

/// The data lines of a report after those that all of them have.
std::vector<std::string> datosPropios(const std::vector<std::string>& lineas) {
    return {lineas.begin() + 6, std::ranges::find(lineas, "CONCLUSIONES")};
}

TEST_F(RiesgoEmbarazoTest, TheReportOfTheMonthOfJoining) {
    rellenaBaja();
    rellena(frm.fAlta, "01-06-2005");
    rellena(frm.Bact, "1200,5");
    rellena(frm.Extra, "2");
    rellena(frm.IExtra, "1100");
    EXPECT_THAT(datosPropios(imprime()),
                ElementsAre("Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                            "Datos adicionales por ser la baja en el mes de alta en la empresa:",
                            "Salario Base mensual: 1.200,50 €", "Nº de Pagas extra: 2 de 1.100,00 €"));
}

TEST_F(RiesgoEmbarazoTest, TheReportOfAPartTimeContractKeepsTheLineOfTheHiddenBase) {
    rellenaBaja();
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "3600,5");
    rellena(frm.D12, "1826");
    EXPECT_THAT(datosPropios(imprime()),
                ElementsAre("Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                            "Suma Bases Cot. 3 últimos meses: 3.600,50 €",
                            "Horas anuales pactadas en contrato: 1826"));
}

}  // namespace
}  // namespace orvemo
