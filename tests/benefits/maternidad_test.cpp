#include "benefits/maternidad.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::maternidad {
namespace {

/// An employee who contributes by the month, 40 euros a day, sixteen weeks from 6 June 2005.
RegistroMaternidad casoTipo() {
    RegistroMaternidad caso;
    caso.fAlta = FechaDMA(1, 2, 2000);
    caso.f1 = FechaDMA(6, 6, 2005);
    caso.f2 = FechaDMA(25, 9, 2005);
    caso.DM = 1;
    caso.Bccant = 1200;
    return caso;
}

/// Half the hours of a year, 20 euros a day, 370 days in the company.
void aMediaJornada(RegistroMaternidad& c) {
    c.Situacion = 1;
    c.fAlta = FechaDMA(1, 6, 2004);
    c.B12 = 7300;
    c.D12 = 913;
}

/// From the seventh week on, 60 % of the working day.
void conJornadaReducida(RegistroMaternidad& c) {
    c.ftp = FechaDMA(18, 7, 2005);
    c.ptp = 60;
}

struct Supuesto {
    const char* historia;
    void (*prepara)(RegistroMaternidad&);
    bool derecho;
    std::string conclusion;
};

const std::string kInicio = "La interesada desea solicitar una prestación por maternidad.\r\n";
const std::string kCincoAnios =
    "La trabajadora debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 "
    "años.\r\n";

void comprueba(const Supuesto& s, bool jtpcnd = false) {
    SCOPED_TRACE(s.historia);
    RegistroMaternidad caso = casoTipo();
    s.prepara(caso);
    Dictamen dictamen;
    dictamen.linea("what an earlier case left");
    CalculaMaternidad(caso, {.jtpcnd = jtpcnd}, dictamen);
    EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
    EXPECT_EQ(dictamen.ConDerecho, s.derecho);
}

TEST(CalculaMaternidad, TheWholeBaseForEveryDay) {
    const Supuesto supuestos[] = {
        {"sixteen weeks", [](RegistroMaternidad&) {}, true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar es de 112\r\n"
             "El importe de la prestación es de 4.480,00 €\r\n"},
        {"one day", [](RegistroMaternidad& c) { c.f2 = c.f1; }, true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar es de 1\r\n"
             "El importe de la prestación es de 40,00 €\r\n"},
        {"it ends before it begins: nothing stops it",
         [](RegistroMaternidad& c) { c.f2 = FechaDMA(1, 6, 2005); }, true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar es de -4\r\n"
             "El importe de la prestación es de -160,00 €\r\n"},
        {"domestic employee: the base is rounded, 1000 / 30 = 33.33, before the days are multiplied",
         [](RegistroMaternidad& c) {
             c.Situacion = 4;
             c.Bccant = 1000;
         },
         true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,33 €\r\n"
             "El número de días a subsidiar es de 112\r\n"
             "El importe de la prestación es de 3.732,96 €\r\n"},
        {"a reduced working day in the record counts for nothing while its box is off",
         [](RegistroMaternidad& c) {
             conJornadaReducida(c);
             c.jtpcnd = 1;
         },
         true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar es de 112\r\n"
             "El importe de la prestación es de 4.480,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaMaternidad, APartTimeWorkerJustifiesHerDays) {
    const Supuesto supuestos[] = {
        {"370 days in the company: 182.6 a year, 185 in all", aMediaJornada, true,
         kInicio + "La trabajadora justifica 182 días de cotización al año, es decir 185 días desde la fecha "
                   "de alta\r\n"
                   "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"
                   "Base Reguladora para la prestación:20,00 €\r\n"
                   "El número de días a subsidiar es de 112\r\n"
                   "El importe de la prestación es de 2.240,00 €\r\n"},
        {"180 days in the company are enough, although they justify 90",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(8, 12, 2004);
         },
         true,
         kInicio + "La trabajadora justifica 182 días de cotización al año, es decir 90 días desde la fecha "
                   "de alta\r\n"
                   "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"
                   "Base Reguladora para la prestación:20,00 €\r\n"
                   "El número de días a subsidiar es de 112\r\n"
                   "El importe de la prestación es de 2.240,00 €\r\n"},
        {"179 are not: no amounts",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(9, 12, 2004);
         },
         false,
         kInicio + "La trabajadora justifica 182 días de cotización al año, es decir 90 días desde la fecha "
                   "de alta\r\n"
                   "y no cumple el mínimo de 180 días de cotización dentro de los últimos 2738 días.\r\n"},
        {"a full year of hours: five years looked at, and no more days than that",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.fAlta = FechaDMA(1, 1, 1990);
             c.D12 = 1826;
         },
         true,
         kInicio +
             "La trabajadora justifica 365 días de cotización al año, es decir 1826 días desde la fecha de "
             "alta\r\n"
             "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 1825 días.\r\n"
             "Base Reguladora para la prestación:20,00 €\r\n"
             "El número de días a subsidiar es de 112\r\n"
             "El importe de la prestación es de 2.240,00 €\r\n"},
        {"no hours at all: ten years looked at, nothing justified and the right all the same",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.D12 = 0;
         },
         true,
         kInicio + "La trabajadora justifica 0 días de cotización al año, es decir 0 días desde la fecha de "
                   "alta\r\n"
                   "cumpliendo el mínimo de 180 días de cotización dentro de los últimos 3650 días.\r\n"
                   "Base Reguladora para la prestación:20,00 €\r\n"
                   "El número de días a subsidiar es de 112\r\n"
                   "El importe de la prestación es de 2.240,00 €\r\n"},
        {"an hour over two full years: nothing is looked at",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.D12 = 3653;
         },
         false,
         kInicio + "La trabajadora justifica 730 días de cotización al año, es decir 0 días desde la fecha "
                   "de alta\r\n"
                   "y no cumple el mínimo de 180 días de cotización dentro de los últimos 0 días.\r\n"},
        {"eight hours over: less than nothing",
         [](RegistroMaternidad& c) {
             aMediaJornada(c);
             c.D12 = 3660;
         },
         false,
         kInicio + "La trabajadora justifica 732 días de cotización al año, es decir -14 días desde la fecha "
                   "de alta\r\n"
                   "y no cumple el mínimo de 180 días de cotización dentro de los últimos -7 días.\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaMaternidad, AReducedWorkingDayLengthensTheRest) {
    const Supuesto supuestos[] = {
        {"six weeks whole; ten weeks at 40 % of the base last 175 days", conJornadaReducida, true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar antes del inicio del contrato a T.P. es de 42\r\n"
             "El importe de la prestación para este período es de 1.680,00 €\r\n"
             "Base Reguladora reducida para la segunda prestación:16,00 €\r\n"
             "Días durante los cuales recibirá esta prestación:175\r\n"
             "El importe de la prestación para este segundo período es de 2.800,00 €\r\n"},
        {"0 % of the working day: the base and the days as they were",
         [](RegistroMaternidad& c) {
             conJornadaReducida(c);
             c.ptp = 0;
         },
         true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar antes del inicio del contrato a T.P. es de 42\r\n"
             "El importe de la prestación para este período es de 1.680,00 €\r\n"
             "Base Reguladora reducida para la segunda prestación:40,00 €\r\n"
             "Días durante los cuales recibirá esta prestación:70\r\n"
             "El importe de la prestación para este segundo período es de 2.800,00 €\r\n"},
        {"98 %: 0.80 a day, 3,500 days with their thousands mark",
         [](RegistroMaternidad& c) {
             conJornadaReducida(c);
             c.ptp = 98;
         },
         true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar antes del inicio del contrato a T.P. es de 42\r\n"
             "El importe de la prestación para este período es de 1.680,00 €\r\n"
             "Base Reguladora reducida para la segunda prestación:0,80 €\r\n"
             "Días durante los cuales recibirá esta prestación:3.500\r\n"
             "El importe de la prestación para este segundo período es de 2.800,00 €\r\n"},
        {"reduced three days before the leave: a first stretch of less than nothing, 287.5 days go up to 288",
         [](RegistroMaternidad& c) {
             conJornadaReducida(c);
             c.ftp = FechaDMA(3, 6, 2005);
         },
         true,
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €\r\n"
             "El número de días a subsidiar antes del inicio del contrato a T.P. es de -3\r\n"
             "El importe de la prestación para este período es de -120,00 €\r\n"
             "Base Reguladora reducida para la segunda prestación:16,00 €\r\n"
             "Días durante los cuales recibirá esta prestación:288\r\n"
             "El importe de la prestación para este segundo período es de 4.608,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s, true);
}

TEST(CalculaMaternidad, TheWholeWorkingDayDoneIsADivisionByZero) {
    RegistroMaternidad caso = casoTipo();
    conJornadaReducida(caso);
    caso.ptp = 100;
    Dictamen dictamen;
    EXPECT_THROW(CalculaMaternidad(caso, {.jtpcnd = true}, dictamen), DivisionPorCero);
    EXPECT_EQ(dictamen.Conclusion(),
              kInicio + kCincoAnios +
                  "Base Reguladora para la prestación:40,00 €\r\n"
                  "El número de días a subsidiar antes del inicio del contrato a T.P. es de 42\r\n"
                  "El importe de la prestación para este período es de 1.680,00 €\r\n");
}

TEST(CalculaMaternidad, ABaseBeyondThirtyTwoBitsOfCentsIsAnOverflow) {
    RegistroMaternidad caso = casoTipo();
    caso.Bccant = 21474836.48 * 30;
    Dictamen dictamen;
    EXPECT_THROW(CalculaMaternidad(caso, {}, dictamen), DesbordeNumerico);
    EXPECT_EQ(dictamen.Conclusion(), kInicio);
    EXPECT_FALSE(dictamen.ConDerecho);
}

}  // namespace
}  // namespace orvemo::maternidad
