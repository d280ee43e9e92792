#include <gtest/gtest.h>

#include <string>

#include "pensions/supuestos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using namespace pruebas;

const std::string kNoTieneDerecho = "\r\n*** NO TIENE DERECHO A PENSION ***\r\n";

std::string sinLaEdad(const char* edadMinima) {
    return "Al no reunir las condiciones mínimas para la jubilación anticipada (mínimo 61 \r\n"
           "años, jubilación por causa no imputable o por despido y más de 30 años cotizados)\r\n"
           "y no haber cotizado al SOVI, no corresponde adelanto en la edad de jubilación.\r\n"
           "La edad mínima para la jubilación es de " +
           std::string{edadMinima} + " años.\r\n" + kNoTieneDerecho;
}

const std::string kBaja = "Está en situación asimilada a baja.\r\n";
const std::string kSinPeriodo =
    "Luego NO CUMPLE el periodo mínimo de cotización exigido.\r\n" + kNoTieneDerecho;
const std::string kPruebeNoContributiva =
    "(Pruebe la opción de PENSIÓN NO CONTRIBUTIVA en el menú principal"
    " del programa, ya que tiene edad suficiente y a lo mejor cumple los"
    " demás requisitos sobre renta anual.)";

const SupuestoJubilacion kDenegados[] = {
    {.historia = "60 years and 36 contributed, nothing before 1967: 61 are asked for",
     .nacimiento = "15-06-1945",
     .conclusion = desea("60") + sinLaEdad("65")},
    {.historia = "62 years and 36 contributed, but the person left of their own will",
     .nacimiento = "15-06-1943",
     .voluntario = true,
     .conclusion = desea("62") + sinLaEdad("65")},
    {.historia = "62 years and 30 contributed: more than 30 are asked for",
     .nacimiento = "15-06-1943",
     .desde = "01-06-1975",
     .conclusion = desea("62") + sinLaEdad("65")},
    {.historia = "64 years, contributed before 1967, the last time 100 days ago: no longer 60 but 65",
     .nacimiento = "15-06-1941",
     .desde = "01-01-1965",
     .hasta = "07-03-2005",
     .voluntario = true,
     .conclusion = desea("64") + kBaja + sinLaEdad("65")},
    {.historia = "63 years and replaced by an unemployed person: 64 is the age",
     .nacimiento = "15-06-1942",
     .regimen = Regimen::Sustitucion64,
     .voluntario = true,
     .conclusion = desea("63") + sinLaEdad("64")},
    {.historia = "59 years and a partial pension: the age of 60 stops it before its own test",
     .nacimiento = "15-06-1946",
     .regimen = Regimen::Parcial,
     .conclusion = desea("59") + sinLaEdad("60")},
    {.historia = "65 years and no period at all: the hint on the other pension",
     .desde = "",
     .conclusion = desea("65") + kBaja + cotizo("0 meses", "0 meses") + kSinPeriodo + kPruebeNoContributiva},
    {.historia = "64 years, replaced, 10 contributed: below 65 there is no hint",
     .nacimiento = "15-06-1941",
     .desde = "01-06-1995",
     .regimen = Regimen::Sustitucion64,
     .conclusion = desea("64") + cotizo("10 años", "10 años") + kSinPeriodo},
    {.historia = "65 years, 1800 days of the old insurance and no more",
     .desde = "01-01-1960",
     .hasta = "05-12-1964",
     .regimen = Regimen::EmpleadosHogar,
     .conclusion = desea("65") + cotizo("5 años", "0 meses") + kSinPeriodo +
                   "\r\nSin embargo, TIENE DERECHO A UNA PENSIÓN SOVI de 313,21 €/mes\r\n"},
    {.historia = "65 years, 30 contributed, 1799 days of them to the old insurance, one year of the last 15",
     .desde = "27-01-1962",
     .hasta = "20-06-1991",
     .regimen = Regimen::Autonomos,
     .conclusion = desea("65") + cotizo("30 años", "1 años") +
                   "Luego NO CUMPLE el periodo mínimo de 2 años de cotización dentro de los\r\n"
                   "15 últimos años anteriores a la solicitud.\r\n" +
                   kNoTieneDerecho + kPruebeNoContributiva},
};

TEST(Jubilacion, RefusesWithItsReasons) {
    for (const SupuestoJubilacion& supuesto : kDenegados) {
        const Dictamen dictamen = dictamenDe(casoDe(supuesto));
        EXPECT_EQ(dictamen.Conclusion(), supuesto.conclusion) << supuesto.historia;
        EXPECT_FALSE(dictamen.ConDerecho) << supuesto.historia;
    }
}

TEST(Jubilacion, NinetyDaysWithoutContributingAreNotYetABaja) {
    RegistroJubilacion caso = casoTipo();
    const auto hablaDeBaja = [&](const char* ultimoDia) {
        ponPeriodo(caso, 1, "01-01-1970", ultimoDia);
        return dictamenDe(caso).Conclusion().find("asimilada a baja") != std::string::npos;
    };
    EXPECT_FALSE(hablaDeBaja("17-03-2005")) << "90 days";
    EXPECT_TRUE(hablaDeBaja("16-03-2005")) << "91 days";
    ponRegimen(caso, Regimen::Agrario);
    EXPECT_FALSE(hablaDeBaja("16-03-2005")) << "only the general scheme asks";
}

}  // namespace
}  // namespace orvemo::jubilacion
