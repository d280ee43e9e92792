#include "benefits/riesgo_embarazo.h"

#include <gtest/gtest.h>

#include <string>

namespace orvemo::riesgo_embarazo {
namespace {

/// An employee who contributes by the month, 40 euros a day, ten days from 6 June 2005.
RegistroRiesgo casoTipo() {
    RegistroRiesgo caso;
    caso.fAlta = FechaDMA(1, 2, 2000);
    caso.f1 = FechaDMA(6, 6, 2005);
    caso.f2 = FechaDMA(15, 6, 2005);
    caso.DM = 1;
    caso.Bccant = 1200;
    return caso;
}

/// Half the hours of a year, 40 euros a day, 371 days in the company.
void aMediaJornada(RegistroRiesgo& c) {
    c.Situacion = 1;
    c.fAlta = FechaDMA(1, 6, 2004);
    c.B12 = 3600;
    c.D12 = 913;
}

struct Supuesto {
    const char* historia;
    void (*prepara)(RegistroRiesgo&);
    std::string conclusion;
};

const std::string kInicio =
    "El interesado/a desea solicitar una prestación por Riesgo durante el Embarazo.\r\n";
const std::string kCumple =
    "El trabajador cumple el requisito de afiliación y alta en la Seguridad Social,\r\n"
    "en el momento de producirse el hecho causante, habiendo cotizado, asimismo,\r\n"
    "un mínimo de 180 días, dentro de los últimos 5 años.\r\n";
const std::string kDebeJustificar =
    "El trabajador debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 años.\r\n";
const std::string kFin = "El pago de esta indemnización corre a cargo de la Seguridad Social.\r\n";

void comprueba(const Supuesto& s) {
    SCOPED_TRACE(s.historia);
    RegistroRiesgo caso = casoTipo();
    s.prepara(caso);
    Dictamen dictamen;
    dictamen.linea("what an earlier case left");
    CalculaRiesgoEmbarazo(caso, dictamen);
    EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
    EXPECT_TRUE(dictamen.ConDerecho) << "nobody is refused";
}

TEST(CalculaRiesgoEmbarazo, ThreeQuartersOfTheBaseForEveryDay) {
    const Supuesto supuestos[] = {
        {"ten days at 30 euros", [](RegistroRiesgo&) {},
         kInicio + kCumple +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 300,00 €\r\n" +
             kFin},
        {"112 days: this amount has no thousands mark",
         [](RegistroRiesgo& c) { c.f2 = FechaDMA(25, 9, 2005); },
         kInicio + kCumple +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 112\r\n"
             "La indemnización de 75% es de 3360,00 €\r\n" +
             kFin},
        {"180 days since joining are enough", [](RegistroRiesgo& c) { c.fAlta = FechaDMA(8, 12, 2004); },
         kInicio + kCumple +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 300,00 €\r\n" +
             kFin},
        {"179 are to be justified, and the amounts follow",
         [](RegistroRiesgo& c) { c.fAlta = FechaDMA(9, 12, 2004); },
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 300,00 €\r\n" +
             kFin},
        {"self-employed: the base isn't rounded, 75 % of 1000.19 / 30 is 25.00 and not 25.01",
         [](RegistroRiesgo& c) {
             c.Situacion = 2;
             c.Bccant = 1000.19;
         },
         kInicio + kCumple +
             "Base Reguladora para la prestación:33,34 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 250,00 €\r\n" +
             kFin},
        {"an employee's base is rounded: 75 % of 33.34 is 25.01",
         [](RegistroRiesgo& c) { c.Bccant = 1000.19; },
         kInicio + kCumple +
             "Base Reguladora para la prestación:33,34 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 250,10 €\r\n" +
             kFin},
        {"it ends the day before it begins", [](RegistroRiesgo& c) { c.f2 = FechaDMA(5, 6, 2005); },
         kInicio + kCumple +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 0\r\n"
             "La indemnización de 75% es de 0,00 €\r\n" +
             kFin},
        {"nine days before: nothing stops it", [](RegistroRiesgo& c) { c.f2 = FechaDMA(28, 5, 2005); },
         kInicio + kCumple +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de -8\r\n"
             "La indemnización de 75% es de -240,00 €\r\n" +
             kFin},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

/// Joined on the first of the month of the leave: 1200 euros a month and two extra pays of 1200.
void enElMesDeAlta(RegistroRiesgo& c) {
    c.fAlta = FechaDMA(1, 6, 2005);
    c.Bact = 1200;
    c.Extra = 2;
    c.IExtra = 1200;
}

TEST(CalculaRiesgoEmbarazo, TheMonthOfJoiningHasABaseOfItsOwn) {
    const Supuesto supuestos[] = {
        {"by the month: (1200 + 2400 / 12) / 30 = 46.67", enElMesDeAlta,
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:46,67 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 350,00 €\r\n" +
             kFin},
        {"by the day in June: (1200 + 2400 / 12.1667) / 30 = 46.58, 34.94 a day",
         [](RegistroRiesgo& c) {
             enElMesDeAlta(c);
             c.DM = 0;
         },
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:46,58 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 349,40 €\r\n" +
             kFin},
        {"no extra pays, whatever their amount",
         [](RegistroRiesgo& c) {
             enElMesDeAlta(c);
             c.Extra = 0;
         },
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 300,00 €\r\n" +
             kFin},
        {"February of a leap year has 28 days: 1400 / 28 = 50",
         [](RegistroRiesgo& c) {
             c.DM = 0;
             c.fAlta = FechaDMA(1, 2, 2004);
             c.f1 = FechaDMA(2, 2, 2004);
             c.f2 = FechaDMA(11, 2, 2004);
             c.Bact = 1400;
         },
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:50,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 375,00 €\r\n" +
             kFin},
        {"a farm worker has no such month: 1200 / 30",
         [](RegistroRiesgo& c) {
             enElMesDeAlta(c);
             c.Situacion = 3;
         },
         kInicio + kDebeJustificar +
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "La indemnización de 75% es de 300,00 €\r\n" +
             kFin},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaRiesgoEmbarazo, APartTimeWorkerIsToldWhatSheJustifiesAndIsPaid) {
    const Supuesto supuestos[] = {
        {"371 days in the company, the first one counted: 186 justified; 3600 / 90 a day", aMediaJornada,
         kInicio +
             "La trabajadora justifica 182 días de cotización al año, es decir 186 días desde la fecha de "
             "alta\r\n"
             "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 300,00 €\r\n" +
             kFin},
        {"180 days with the first one",
         [](RegistroRiesgo& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(9, 12, 2004);
         },
         kInicio +
             "La trabajadora justifica 182 días de cotización al año, es decir 90 días desde la fecha de "
             "alta\r\n"
             "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 300,00 €\r\n" +
             kFin},
        {"179: she doesn't comply and is paid, 112 days with a thousands mark here",
         [](RegistroRiesgo& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(10, 12, 2004);
             c.f2 = FechaDMA(25, 9, 2005);
         },
         kInicio +
             "La trabajadora justifica 182 días de cotización al año, es decir 90 días desde la fecha de "
             "alta\r\n"
             "y no cumple el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 112\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 3.360,00 €\r\n" +
             kFin},
        {"no hours: ten years looked at, nothing justified",
         [](RegistroRiesgo& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(1, 1, 1990);
             c.D12 = 0;
         },
         kInicio +
             "La trabajadora justifica 0 días de cotización al año, es decir 0 días desde la fecha de "
             "alta\r\n"
             "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 3650 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 300,00 €\r\n" +
             kFin},
        {"fifteen years at full hours: 1825 days count",
         [](RegistroRiesgo& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(1, 1, 1990);
             c.D12 = 1826;
         },
         kInicio +
             "La trabajadora justifica 365 días de cotización al año, es decir 1826 días desde la fecha de "
             "alta\r\n"
             "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 1825 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 300,00 €\r\n" +
             kFin},
        {"two full years of hours and one more: nothing is looked at, and she is paid",
         [](RegistroRiesgo& c) {
             aMediaJornada(c);
             c.D12 = 3653;
         },
         kInicio +
             "La trabajadora justifica 730 días de cotización al año, es decir 0 días desde la fecha de "
             "alta\r\n"
             "y no cumple el mínimo de 180 días de cotización dentro de los últimos 0 días.\r\n"
             "Base Reguladora para la prestación:40,00 €/diarios\r\n"
             "El número de días de prestación es de 10\r\n"
             "El importe total de la prestación de 75% de base reguladora es de 300,00 €\r\n" +
             kFin},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

}  // namespace
}  // namespace orvemo::riesgo_embarazo
