#include "pensions/jubilacion.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"
#include "pensions/supuestos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using namespace pruebas;

std::string sobreLaBase(const std::string& anios) {
    return "El periodo cotizado a efectos de cálculo del % a aplicar sobre la base \r\n"
           "reguladora es de " +
           anios +
           " años.\r\n"
           "El porcentaje a aplicar sobre la base reguladora es de 100% \r\n";
}

std::string adelanto(const std::string& coeficiente) {
    return "La edad de jubilación es inferior a los 65 años por lo que se ha \r\n"
           "aplicado un coeficiente reductor en la pensión (" +
           coeficiente + "). \r\n";
}

const std::string kEspecial =
    "(Coeficiente especial para trabajadores que acrediten 40 o más años\r\n"
    "de cotización y tuvieran condición de mutualistas el 1 de enero de 1967)\r\n";
const std::string kTipo65 =
    "El interesado desea jubilarse a los 65 años.\r\n"
    "Ha cotizado durante 36 años.\r\n"
    "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
    kCumplePeriodos + sobreLaBase("36");
const std::string kParcial61 =
    "El interesado desea jubilarse a los 61 años.\r\n"
    "Ha cotizado durante 36 años.\r\n"
    "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
    kCumplePeriodos + sobreLaBase("36");
const std::string kSinCoeficientePorParcial =
    "Aunque la edad de jubilación es inferior a los 65 años, no se aplica\r\n"
    "coeficiente reductor en la pensión por tratarse de jubilación parcial.\r\n";

const SupuestoJubilacion kConcedidos[] = {
    {"65 years and 36 contributed: the whole base of 1000", [](RegistroJubilacion&) {}, true,
     kTipo65 + "siendo la base reguladora de 1.000,00 €.\r\n"
               "La cuantía de la pensión es de 1.000,00 €/mes (con dos pagas extras).\r\n"},
    {"a base of 200: the minimum, told in few words", [](RegistroJubilacion& c) { c.JubiSumaBases = 42000; },
     true,
     kTipo65 + "siendo la base reguladora de 200,00 €.\r\n"
               "La pensión es inferior al valor mínimo, por lo que se toma éste.\r\n"
               "La cuantía de la pensión es de 438,71 €/mes (con dos pagas extras).\r\n"},
    {"the same with a spouse to keep",
     [](RegistroJubilacion& c) {
         c.JubiSumaBases = 42000;
         c.JubiConyuge = 1;
     },
     true,
     kTipo65 + "siendo la base reguladora de 200,00 €.\r\n"
               "La pensión es inferior al valor mínimo, por lo que se toma éste.\r\n"
               "La cuantía de la pensión es de 524,01 €/mes (con dos pagas extras).\r\n"},
    {"a base of 4000: the maximum", [](RegistroJubilacion& c) { c.JubiSumaBases = 840000; }, true,
     kTipo65 + "siendo la base reguladora de 4.000,00 €.\r\n"
               "La pensión que se deduce es superior al valor máximo, por lo que se \r\n"
               "toma este valor que es de 2.159,12 €/mes.\r\n"
               "La cuantía de la pensión es de 2.159,12 €/mes (con dos pagas extras).\r\n"},
    {"67 years and 36 contributed: 2 % for each year over 65",
     [](RegistroJubilacion& c) { ponFechas(c, "15-06-1938", "15-06-2005"); }, true,
     "El interesado desea jubilarse a los 67 años.\r\n"
     "Ha cotizado durante 36 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kPeriodosExigidos +
         "La pensión se incrementará en un 4% por jubilarse con\r\n"
         "posterioridad a los 65 años.\r\n"
         "El interesado cumple los periodos mínimos de cotización exigidos.\r\n" +
         sobreLaBase("36") +
         "siendo la base reguladora de 1.000,00 €.\r\n"
         "La cuantía de la pensión es de 1.040,00 €/mes (con dos pagas extras).\r\n"},
    {"62 years, 38 contributed since 1967: the rate stays at 8 and the special note stands all the same",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1943", "15-06-2005");
         ponPeriodo(c, 1, "01-06-1967", "31-05-2005");
     },
     true,
     "El interesado desea jubilarse a los 62 años.\r\n"
     "Debe acreditar que se encuentra inscrito en la oficina de empleo desde hace por lo menos 6 meses.\r\n"
     "Ha cotizado durante 38 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("38") + "siendo la base reguladora de 1.000,00 €.\r\n" +
         adelanto("0,76") + kEspecial +
         "La cuantía de la pensión es de 760,00 €/mes (con dos pagas extras).\r\n"},
    {"64 years, last contribution 100 days ago, but more than 30 years and not of their own will",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1941", "15-06-2005");
         ponPeriodo(c, 1, "01-01-1965", "07-03-2005");
     },
     true,
     "El interesado desea jubilarse a los 64 años.\r\n"
     "Está en situación asimilada a baja.\r\n"
     "Debe acreditar que se encuentra inscrito en la oficina de empleo desde hace por lo menos 6 meses.\r\n"
     "Ha cotizado durante 41 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("44") + "siendo la base reguladora de 1.000,00 €.\r\n" +
         adelanto("0,94") + kEspecial +
         "La cuantía de la pensión es de 940,00 €/mes (con dos pagas extras).\r\n"},
    {"60 years, contributed since 1960 and left willingly: 8 % a year, then the minimum of before 65",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1945", "15-06-2005");
         ponPeriodo(c, 1, "01-01-1960", "31-05-2005");
         c.JubiVoluntario = 1;
         c.JubiSumaBases = 126000;
     },
     true,
     "El interesado desea jubilarse a los 60 años.\r\n"
     "Ha cotizado durante 46 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("47") + "siendo la base reguladora de 600,00 €.\r\n" +
         adelanto("0,6") +
         "La pensión que se deduce es inferior al valor mínimo, por lo que se \r\n"
         "toma este valor que es de 408,78 €/mes.\r\n"
         "La cuantía de la pensión es de 408,78 €/mes (con dos pagas extras).\r\n"},
    {"the same against their will, a high base and a spouse: 6 % a year, then the maximum",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1945", "15-06-2005");
         ponPeriodo(c, 1, "01-01-1960", "31-05-2005");
         c.JubiConyuge = 1;
         c.JubiSumaBases = 840000;
     },
     true,
     "El interesado desea jubilarse a los 60 años.\r\n"
     "Ha cotizado durante 46 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("47") + "siendo la base reguladora de 4.000,00 €.\r\n" +
         adelanto("0,7") + kEspecial +
         "La pensión que se deduce es superior al valor máximo, por lo que se \r\n"
         "toma este valor que es de 2.159,12 €/mes.\r\n"
         "La cuantía de la pensión es de 2.159,12 €/mes (con dos pagas extras).\r\n"},
    {"64 years, replaced by an unemployed person: no reduction, and the minimum is that of 65",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1941", "15-06-2005");
         c.JubiRegimen = 4;
         c.JubiSumaBases = 90300;
     },
     true,
     "El interesado desea jubilarse a los 64 años.\r\n"
     "Ha cotizado durante 36 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("36") +
         "siendo la base reguladora de 430,00 €.\r\n"
         "La pensión es inferior al valor mínimo, por lo que se toma éste.\r\n"
         "La cuantía de la pensión es de 438,71 €/mes (con dos pagas extras).\r\n"},
    {"partial at 61: no reduction for age, 12,5 % less for the day still worked",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1944", "15-06-2005");
         c.JubiRegimen = 5;
         c.JubiRedJor = 12.5;
     },
     true,
     kParcial61 + "siendo la base reguladora de 1.000,00 €.\r\n" + kSinCoeficientePorParcial +
         "Al ser jubilación parcial, se reduce la pensión en un 12,5% siendo por tanto \r\n"
         "de 875,00 €/mes (con dos pagas extras).\r\n"},
    {"partial at 61 on the minimum: what is left of it lies below and stays there",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1944", "15-06-2005");
         c.JubiRegimen = 5;
         c.JubiRedJor = 85;
         c.JubiSumaBases = 42000;
     },
     true,
     kParcial61 + "siendo la base reguladora de 200,00 €.\r\n" + kSinCoeficientePorParcial +
         "La pensión que se deduce es inferior al valor mínimo, por lo que se \r\n"
         "toma este valor que es de 408,78 €/mes.\r\n"
         "Al ser jubilación parcial, se reduce la pensión en un 85% siendo por tanto \r\n"
         "de 61,32 €/mes (con dos pagas extras).\r\n"},
    {"partial at 65: nothing to say of the age",
     [](RegistroJubilacion& c) {
         c.JubiRegimen = 5;
         c.JubiRedJor = 25;
     },
     true,
     kTipo65 + "siendo la base reguladora de 1.000,00 €.\r\n"
               "Al ser jubilación parcial, se reduce la pensión en un 25% siendo por tanto \r\n"
               "de 750,00 €/mes (con dos pagas extras).\r\n"},
    {"partial by 100 %, contributed before 1967: nothing is left but the old insurance",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1944", "15-06-2005");
         ponPeriodo(c, 1, "01-01-1965", "31-05-2005");
         c.JubiRegimen = 5;
         c.JubiRedJor = 100;
     },
     true,
     "El interesado desea jubilarse a los 61 años.\r\n"
     "Ha cotizado durante 41 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos + sobreLaBase("42") + "siendo la base reguladora de 1.000,00 €.\r\n" +
         kSinCoeficientePorParcial +
         "Al ser jubilación parcial, se reduce la pensión en un 100% siendo por tanto \r\n"
         "de 0,00 €/mes (con dos pagas extras).\r\n"
         "Sólo puede recibir la pensión SOVI de 313,21 €/mes (con dos pagas extras).\r\n"},
    {"in 2007, told as a sum: limits grow by 1,0404 and nothing is projected",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1942", "15-06-2007");
         ponPeriodo(c, 1, "01-01-1970", "31-05-2007");
         c.JubiSumaBases = 840000;
     },
     true,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Ha cotizado durante 38 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos +
         "La fecha de jubilación EXCEDE ESTE AÑO por lo que se ajustan los\r\n"
         "diferentes valores (Bases, IPC, Etc.) a la inflación anual estimada de 2%\r\n" +
         sobreLaBase("38") +
         "siendo la base reguladora de 4.000,00 €.\r\n"
         "La pensión que se deduce es superior al valor máximo, por lo que se \r\n"
         "toma este valor que es de 2.246,35 €/mes.\r\n"
         "La cuantía de la pensión es de 2.246,35 €/mes (con dos pagas extras).\r\n"
         "(Importe calculado en € de hoy)\r\n"},
    // Month 25 is May 2008, month 42 December 2006: 105000 x 118,5233 / 115,69 = 107571,53. The sum over 210
    // is 1512,25, and at prices of June 2005 1512,25 x 112,69 / 122,69 = 1388,99.
    {"in 2010, partial, base by base: the index is projected and the base told in euros of today",
     [](RegistroJubilacion& c) {
         ponFechas(c, "15-06-1945", "15-06-2010");
         ponPeriodo(c, 1, "01-01-1970", "31-05-2010");
         c.JubiRegimen = 5;
         c.JubiRedJor = 50;
         c.JubiBasesDesglosadas = 1;
         c.JubiBase.fill(0.001);  // neither a gap nor an amount
         c.JubiBase[0] = c.JubiBase[24] = c.JubiBase[41] = 105000;
     },
     true,
     "El interesado desea jubilarse a los 65 años.\r\n"
     "Ha cotizado durante 41 años.\r\n"
     "Además,  en los 15 últimos años ha cotizado 15 años.\r\n" +
         kCumplePeriodos +
         "La fecha de jubilación EXCEDE ESTE AÑO por lo que se ajustan los\r\n"
         "diferentes valores (Bases, IPC, Etc.) a la inflación anual estimada de 2%\r\n" +
         sobreLaBase("41") +
         "siendo la base reguladora de 1.512,25 € del año en que se jubila,\r\n"
         "equivalentes a 1.388,99 € de hoy (según la hipótesis de inflación).\r\n"
         "Al ser jubilación parcial, se reduce la pensión en un 50% siendo por tanto \r\n"
         "de 694,50 €/mes (con dos pagas extras).\r\n"
         "(Importe calculado en € de hoy)\r\n"},
};

TEST(Jubilacion, GrantsWithItsNotes) {
    for (const SupuestoJubilacion& supuesto : kConcedidos) comprueba(supuesto);
}

TEST(Jubilacion, AMonthWithoutIndexStopsItWithTheLinesSoFar) {
    RegistroJubilacion caso = casoTipo();
    caso.JubiBasesDesglosadas = 1;
    Dictamen dictamen;
    EXPECT_THROW(CalculaJubilacion(caso, tablasPlanas(0), kHoy, dictamen), DivisionPorCero);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_TRUE(dictamen.Conclusion().ends_with(
        "El interesado cumple los periodos mínimos de cotización exigidos.\r\n"));
}

TEST(Jubilacion, EmptiesWhatStoodThereBefore) {
    Dictamen dictamen;
    dictamen.linea("de antes");
    CalculaJubilacion(casoTipo(), tablasPlanas(100), kHoy, dictamen);
    EXPECT_TRUE(dictamen.Conclusion().starts_with("El interesado desea jubilarse a los 65 años.\r\n"));
}

}  // namespace
}  // namespace orvemo::jubilacion
