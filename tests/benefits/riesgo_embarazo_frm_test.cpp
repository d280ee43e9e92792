#include "benefits/riesgo/riesgo_embarazo_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using pruebas::doblesEn;
using pruebas::enterosEn;
using testing::ElementsAre;
using testing::ElementsAreArray;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario };

class RiesgoEmbarazoTest : public pruebas::PantallaAbierta<RiesgoEmbarazo> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "f1", "f2"});
    }
    /// Ten days from 6 June 2005, by the month, in the month of joining.
    void rellenaBaja() {
        rellena({{&frm.Nombre, "Begoña Ruiz"}, {&frm.fAlta, "01-06-2005"}, {&frm.f1, "06-06-2005"}});
        frm.elige(frm.DM, 1);
        rellena(
            {{&frm.Bccant, "1240,50"}, {&frm.Bact, "1200,75"}, {&frm.Extra, "2"}, {&frm.IExtra, "1100,50"}});
    }
};

TEST_F(RiesgoEmbarazoTest, OpensCleanOnItsDefaults) {
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2}) EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "Bact", "Extra", "IExtra"))
        << "she joined this very month";
    EXPECT_THAT(cabecera(), ElementsAre("RIESGO DURANTE EL EMBARAZO", "Riesgo durante el embarazo",
                                        "RiesgoEm.nom", "Datos del solicitante",
                                        "CONCLUSIONES SOBRE PRESTACIÓN POR RIESGO DURANTE EMBARAZO"));
}

TEST_F(RiesgoEmbarazoTest, SchemeAndDatesAskForTheirOwnData) {
    const std::vector<std::string> mesDeAlta{"Bccant", "DM", "Bact", "Extra", "IExtra"};
    EXPECT_THAT(limites(), ElementsAre("Bccant 0 y 99999999", "Bact 0 y 99999999", "Extra 0 y 9",
                                       "IExtra 0 y 99999999"));
    frm.elige(frm.Situacion, kTiempoParcial);
    EXPECT_THAT(opcionales(), ElementsAre("DM", "B12", "D12"));
    EXPECT_THAT(limites(), ElementsAre("B12 0 y 99999999", "D12 0 y 1826"));
    for (const int especial : {kAutonomos, kAgrario}) {
        frm.elige(frm.Situacion, especial);
        EXPECT_THAT(opcionales(), ElementsAre("Bccant"));
    }
    frm.elige(frm.Situacion, kOrdinario);
    EXPECT_THAT(opcionales(), ElementsAreArray(mesDeAlta));
    const struct {
        Campo& fecha;
        const char* texto;
        bool mismoMes;
    } filas[] = {
        {frm.f1, "01-07-2005", false},    {frm.fAlta, "31-07-2005", true},
        {frm.fAlta, "31-07-2004", false},                      // the same month of another year
        {frm.fAlta, "ayer", false},       {frm.f1, "", true},  // both unreadable: 01-01-1900
        {frm.f1, "31-01-1900", true},     {frm.f1, "01-02-1900", false},
    };
    for (const auto& fila : filas) {
        rellena(fila.fecha, fila.texto);
        EXPECT_EQ(frm.Sup1.visible(), fila.mismoMes) << fila.fecha.def().nombre << ' ' << fila.texto;
    }
    frm.elige(frm.Situacion, kTiempoParcial);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_THAT(opcionales(), ElementsAreArray(mesDeAlta)) << "a new case";
}

TEST_F(RiesgoEmbarazoTest, TheTypedDatesAreTestedInTheirOrder) {
    compruebaFechas({{&frm.fAlta, "Error: La fecha de alta no es correcta"},
                     {&frm.f1, "Error: La fecha de inicio de la baja no es correcta"},
                     {&frm.f2, "Error: La fecha de final de la baja no es correcta"}},
                    "31-02-2005");
}

TEST_F(RiesgoEmbarazoTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    rellenaBaja();
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena({{&frm.D12, "913"}, {&frm.B12, "3600,25"}, {&frm.f2, "16-06-2005"}});
    const std::string bytes = vaYVuelve("Caso 1");
    ASSERT_EQ(bytes.size(), 239U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 12),
              "Bego\xF1"
              "a Ruiz ");
    EXPECT_THAT(enterosEn(bytes, {161, 181, 209, 221, 233}), ElementsAre(kTiempoParcial, 1, 2, 913, 0));
    EXPECT_THAT(doblesEn(bytes, {165, 173, 185, 193, 201, 213, 225}),
                ElementsAre(38504, 1240.5, 38509, 38519, 1200.75, 1100.5, 3600.25))
        << "01-06-2005, 06-06-2005 and 16-06-2005 among them";
    EXPECT_EQ(bytes.substr(237), "  ");
}

TEST_F(RiesgoEmbarazoTest, TheReportTellsTheFramesOnView) {
    rellenaBaja();
    concluye();
    EXPECT_THAT(
        imprime(),
        ElementsAre("RIESGO DURANTE EL EMBARAZO", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato ordinario)",
                    "Fecha de alta en la Seguridad Social: 01-jun-2005", "Tipo de cotización: Mensual",
                    "Periodo de baja: 06-jun-2005 AL 15-jun-2005",
                    "Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                    "Datos adicionales por ser la baja en el mes de alta en la empresa:",
                    "Salario Base mensual: 1.200,75 €", "Nº de Pagas extra: 2 de 1.100,50 €", "CONCLUSIONES",
                    "El interesado/a desea solicitar una prestación por Riesgo durante el Embarazo.",
                    "El trabajador debe justificar un mínimo de 180 días de cotización,",
                    "dentro de los últimos 5 años.", "Base Reguladora para la prestación:46,14 €/diarios",
                    "El número de días de prestación es de 10", "La indemnización de 75% es de 346,10 €",
                    "El pago de esta indemnización corre a cargo de la Seguridad Social."));
    ASSERT_TRUE(frm.pulsa(frm.Anterior));
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena({{&frm.B12, "3600,5"}, {&frm.D12, "1826"}});
    const auto& lineas = imprime();
    EXPECT_THAT(std::vector(lineas.begin() + 6, std::ranges::find(lineas, "CONCLUSIONES")),
                ElementsAre("Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                            "Suma Bases Cot. 3 últimos meses: 3.600,50 €",
                            "Horas anuales pactadas en contrato: 1826"))
        << "with the line of the hidden base";
}

}  // namespace
}  // namespace orvemo
