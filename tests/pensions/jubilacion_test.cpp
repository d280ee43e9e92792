#include "pensions/jubilacion/jubilacion.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"
#include "pensions/supuestos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using namespace pruebas;

const std::string kCumple = "El interesado cumple los periodos mínimos de cotización exigidos.\r\n";
const std::string kInscrito =
    "Debe acreditar que se encuentra inscrito en la oficina de empleo desde hace por lo menos 6 meses.\r\n";
const std::string kEspecial =
    "(Coeficiente especial para trabajadores que acrediten 40 o más años\r\n"
    "de cotización y tuvieran condición de mutualistas el 1 de enero de 1967)\r\n";
const std::string kExcedeEsteAnio =
    "La fecha de jubilación EXCEDE ESTE AÑO por lo que se ajustan los\r\n"
    "diferentes valores (Bases, IPC, Etc.) a la inflación anual estimada de 2%\r\n";
const std::string kMinimo = "La pensión es inferior al valor mínimo, por lo que se toma éste.\r\n";
const std::string kSinCoeficientePorParcial =
    "Aunque la edad de jubilación es inferior a los 65 años, no se aplica\r\n"
    "coeficiente reductor en la pensión por tratarse de jubilación parcial.\r\n";
const std::string kEuros = " €/mes (con dos pagas extras).\r\n";

std::string sobreLaBase(const char* anios, const char* porcentaje, const char* base) {
    return std::string{"El periodo cotizado a efectos de cálculo del % a aplicar sobre la base \r\n"} +
           "reguladora es de " + anios + " años.\r\nEl porcentaje a aplicar sobre la base reguladora es de " +
           porcentaje + "% \r\nsiendo la base reguladora de " + base + "\r\n";
}

std::string adelanto(const char* coeficiente) {
    return std::string{"La edad de jubilación es inferior a los 65 años por lo que se ha \r\n"} +
           "aplicado un coeficiente reductor en la pensión (" + coeficiente + "). \r\n";
}

std::string limite(const char* sentido, const char* valor, const char* importe) {
    return std::string{"La pensión que se deduce es "} + sentido + " al valor " + valor +
           ", por lo que se \r\ntoma este valor que es de " + importe + " €/mes.\r\n";
}

std::string cuantia(const char* importe) {
    return "La cuantía de la pensión es de " + (importe + kEuros);
}

std::string cuantiaParcial(const char* reduccion, const char* importe) {
    return std::string{"Al ser jubilación parcial, se reduce la pensión en un "} + reduccion +
           "% siendo por tanto \r\nde " + importe + kEuros;
}

const SupuestoJubilacion kConcedidos[] = {
    {.historia = "65 years and 36 contributed: the whole base of 1000",
     .conclusion = desea("65") + cotizo("36 años", "15 años") + kCumple +
                   sobreLaBase("36", "100", "1.000,00 €.") + cuantia("1.000,00")},
    {.historia = "a base of 200 and a spouse to keep: the minimum, told in few words",
     .conyuge = true,
     .sumaBases = 42000,
     .conclusion = desea("65") + cotizo("36 años", "15 años") + kCumple +
                   sobreLaBase("36", "100", "200,00 €.") + kMinimo + cuantia("524,01")},
    {.historia = "15 years to the day, two of them within the last 15: half the base",
     .desde = "16-06-1977",
     .hasta = "15-06-1992",
     .regimen = Regimen::Autonomos,
     .conclusion = desea("65") + cotizo("15 años", "2 años") + kCumple +
                   sobreLaBase("15", "50", "1.000,00 €.") + cuantia("500,00")},
    {.historia = "67 years and 35 contributed: 2 % for each year over 65",
     .nacimiento = "15-06-1938",
     .desde = "01-06-1970",
     .conclusion = desea("67") + cotizo("35 años", "15 años") +
                   "La pensión se incrementará en un 4% por jubilarse con\r\n"
                   "posterioridad a los 65 años.\r\n" +
                   kCumple + sobreLaBase("35", "100", "1.000,00 €.") + cuantia("1.040,00")},
    {.historia = "62 years, 38 contributed since 1967: the rate stays at 8 and the special note stands",
     .nacimiento = "15-06-1943",
     .desde = "01-06-1967",
     .conclusion = desea("62") + kInscrito + cotizo("38 años", "15 años") + kCumple +
                   sobreLaBase("38", "100", "1.000,00 €.") + adelanto("0,76") + kEspecial +
                   cuantia("760,00")},
    // 14675 days and a bonus of 500,8 (1 year and 136 days): 40,55 years, that is 41, and 1.
    {.historia = "61 years, last contribution 100 days ago, but more than 30 years: 6 % a year, the maximum",
     .nacimiento = "15-06-1944",
     .desde = "01-01-1965",
     .hasta = "07-03-2005",
     .sumaBases = 840000,
     .conclusion = desea("61") + "Está en situación asimilada a baja.\r\n" + kInscrito +
                   cotizo("41 años", "15 años") + kCumple + sobreLaBase("42", "100", "4.000,00 €.") +
                   adelanto("0,76") + kEspecial + limite("superior", "máximo", "2.159,12") +
                   cuantia("2.159,12")},
    {.historia = "60 years, contributed since 1960 and left willingly: 8 % a year, the minimum of before 65",
     .nacimiento = "15-06-1945",
     .desde = "01-01-1960",
     .voluntario = true,
     .conyuge = true,
     .sumaBases = 126000,
     .conclusion = desea("60") + cotizo("46 años", "15 años") + kCumple +
                   sobreLaBase("47", "100", "600,00 €.") + adelanto("0,6") +
                   limite("inferior", "mínimo", "489,72") + cuantia("489,72")},
    {.historia = "64 years, replaced by an unemployed person: no reduction, and the minimum is that of 65",
     .nacimiento = "15-06-1941",
     .regimen = Regimen::Sustitucion64,
     .sumaBases = 90300,
     .conclusion = desea("64") + cotizo("36 años", "15 años") + kCumple +
                   sobreLaBase("36", "100", "430,00 €.") + kMinimo + cuantia("438,71")},
    {.historia = "partial at 61, not reduced for age, on the minimum: 12,5 % less of it stays below",
     .nacimiento = "15-06-1944",
     .regimen = Regimen::Parcial,
     .sumaBases = 42000,
     .redJor = 12.5,
     .conclusion = desea("61") + cotizo("36 años", "15 años") + kCumple +
                   sobreLaBase("36", "100", "200,00 €.") + kSinCoeficientePorParcial +
                   limite("inferior", "mínimo", "408,78") + cuantiaParcial("12,5", "357,68")},
    {.historia = "partial by 100 %, contributed before 1967: nothing is left but the old insurance",
     .nacimiento = "15-06-1944",
     .desde = "01-01-1965",
     .regimen = Regimen::Parcial,
     .redJor = 100,
     .conclusion = desea("61") + cotizo("41 años", "15 años") + kCumple +
                   sobreLaBase("42", "100", "1.000,00 €.") + kSinCoeficientePorParcial +
                   cuantiaParcial("100", "0,00") + "Sólo puede recibir la pensión SOVI de 313,21" + kEuros},
    {.historia = "in 2007, told as a sum: limits grow by 1,0404 and nothing is projected",
     .nacimiento = "15-06-1942",
     .hasta = "31-05-2007",
     .sumaBases = 840000,
     .jubilacion = "15-06-2007",
     .conclusion = desea("65") + cotizo("38 años", "15 años") + kCumple + kExcedeEsteAnio +
                   sobreLaBase("38", "100", "4.000,00 €.") + limite("superior", "máximo", "2.246,35") +
                   cuantia("2.246,35") + "(Importe calculado en € de hoy)\r\n"},
};

TEST(Jubilacion, GrantsWithItsNotes) {
    for (const SupuestoJubilacion& supuesto : kConcedidos) {
        const Dictamen dictamen = dictamenDe(casoDe(supuesto));
        EXPECT_EQ(dictamen.Conclusion(), supuesto.conclusion) << supuesto.historia;
        EXPECT_TRUE(dictamen.ConDerecho) << supuesto.historia;
    }
}

// Month 25 is May 2008, month 42 December 2006: 105000 x 118,5233 / 115,69 = 107571,53. The sum over 210 is
// 1512,25, and at prices of June 2005 1512,25 x 112,69 / 122,69 = 1388,99.
TEST(Jubilacion, TellsAProjectedBaseInEurosOfToday) {
    RegistroJubilacion caso = casoDe({.historia = "in 2010, partial at 65, base by base",
                                      .nacimiento = "15-06-1945",
                                      .hasta = "31-05-2010",
                                      .regimen = Regimen::Parcial,
                                      .redJor = 50,
                                      .jubilacion = "15-06-2010",
                                      .conclusion = {}});
    caso.JubiBasesDesglosadas = 1;
    caso.JubiBase.fill(0.001);  // neither a gap nor an amount
    caso.JubiBase[0] = caso.JubiBase[24] = caso.JubiBase[41] = 105000;
    EXPECT_EQ(dictamenDe(caso).Conclusion(),
              desea("65") + cotizo("41 años", "15 años") + kCumple + kExcedeEsteAnio +
                  sobreLaBase("41", "100", "1.512,25 € del año en que se jubila,") +
                  "equivalentes a 1.388,99 € de hoy (según la hipótesis de inflación).\r\n" +
                  cuantiaParcial("50", "694,50") + "(Importe calculado en € de hoy)\r\n");
}

TEST(Jubilacion, AMonthWithoutIndexStopsItWithTheLinesSoFar) {
    RegistroJubilacion caso = casoTipo();
    caso.JubiBasesDesglosadas = 1;
    Dictamen dictamen;
    EXPECT_THROW(CalculaJubilacion(caso, tablasPlanas(0), kHoy, dictamen), DivisionPorCero);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_TRUE(dictamen.Conclusion().ends_with(kCumple));
}

}  // namespace
}  // namespace orvemo::jubilacion
