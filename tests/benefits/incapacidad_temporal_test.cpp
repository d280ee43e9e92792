// Employees on full time, by illness or by an accident outside work.
#include <limits>

#include "foundations/values/fallos.h"
#include "incapacidad_temporal_casos.h"

namespace orvemo::incapacidad_temporal {
namespace {

TEST(CalculaIncapacidad, AnEmployeeMovesAlongTheScaleDayByDay) {
    const Supuesto supuestos[] = {
        {"three days: all of them unpaid",
         [](RegistroIncapacidad& c, EnPantalla&) { c.f2 = FechaDMA(8, 6, 2005); },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
        {"20 days: 12 by the employer and 5 by the INSS, 24 euros each",
         [](RegistroIncapacidad&, EnPantalla&) {},
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 17\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "El importe total de la prestación es de 408,00 €\r\n"},
        {"21 days: the last at 75 %, 30 euros",
         [](RegistroIncapacidad& c, EnPantalla&) { c.f2 = FechaDMA(26, 6, 2005); },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):1 días, 30,00 €\r\n"
             "El importe total de la prestación es de 438,00 €\r\n"},
        {"60 days: 40 at 75 %, amounts with their thousands mark",
         [](RegistroIncapacidad& c, EnPantalla&) { c.f2 = FechaDMA(4, 8, 2005); },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 57\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):40 días, 1.200,00 €\r\n"
             "El importe total de la prestación es de 1.608,00 €\r\n"},
        {"an accident outside work: no contribution asked for, the same days and rates",
         [](RegistroIncapacidad& c, EnPantalla&) { c.TBaja = 1; },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 17\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "El importe total de la prestación es de 408,00 €\r\n"},
        {"back before the leave: the three first stretches have a floor, nothing is paid",
         [](RegistroIncapacidad& c, EnPantalla&) { c.f2 = FechaDMA(28, 5, 2005); },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaIncapacidad, DaysOfEarlierLeavesUseUpTheFirstStretches) {
    const Supuesto supuestos[] = {
        {"3 earlier days: 23 in all, paid from the first day of this leave",
         [](RegistroIncapacidad& c, EnPantalla&) { c.Prev = 3; },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 20\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):3 días, 90,00 €\r\n"
             "El importe total de la prestación es de 498,00 €\r\n"},
        {"25 earlier days: only the rate of 75 % is left",
         [](RegistroIncapacidad& c, EnPantalla&) { c.Prev = 25; },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 20\r\n"
             "Indemnización de 75% (a cargo INSS):20 días, 600,00 €\r\n"
             "El importe total de la prestación es de 600,00 €\r\n"},
        {"12 earlier days against 3 in all (back nine days before): the stretches stop at nothing",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Prev = 12;
             c.f2 = FechaDMA(28, 5, 2005);
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
        {"with the frame of earlier days out of view they don't count",
         [](RegistroIncapacidad& c, EnPantalla& pantalla) {
             c.Prev = 25;
             pantalla.Sup2 = false;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 17\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "El importe total de la prestación es de 408,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaIncapacidad, EarlierDaysOutOfViewLeaveTheRecordToo) {
    RegistroIncapacidad caso = casoTipo();
    caso.Prev = 25;
    Dictamen dictamen;
    CalculaIncapacidad(caso, {.Sup2 = false, .DSem = ""}, dictamen);
    EXPECT_EQ(caso.Prev, 0);
}

TEST(CalculaIncapacidad, MoreDaysThanThirtyTwoBitsHoldAreAnOverflow) {
    RegistroIncapacidad caso = casoTipo();
    caso.Prev = std::numeric_limits<std::int32_t>::max();
    Dictamen dictamen;
    EXPECT_THROW(CalculaIncapacidad(caso, {.Sup2 = true, .DSem = ""}, dictamen), DesbordeNumerico);
}

TEST(CalculaIncapacidad, TheMonthOfJoiningHasABaseOfItsOwn) {
    const Supuesto supuestos[] = {
        {"by the month: (1200 + 2 x 1200 / 12) / 30 = 46.67",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.fAlta = FechaDMA(1, 6, 2005);
             c.f2 = FechaDMA(26, 6, 2005);
             c.Bact = 1200;
             c.Extra = 2;
             c.IExtra = 1200;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:46,67 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 336,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 140,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):1 días, 35,00 €\r\n"
             "El importe total de la prestación es de 511,00 €\r\n"},
        {"by the day in June: (1200 + 2400 / (365 / 30)) / 30 = 46.5753; 60 % of it is 27.95",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.DM = 0;
             c.fAlta = FechaDMA(1, 6, 2005);
             c.Bact = 1200;
             c.Extra = 2;
             c.IExtra = 1200;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:46,58 €/diarios.\r\n"
             "El número de días a subsidiar es de 17\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 335,40 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 139,75 €\r\n"
             "El importe total de la prestación es de 475,15 €\r\n"},
        {"by the day in February of a leap year: 28 days, 1400 / 28 = 50; no extra pays, whatever their "
         "amount",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.DM = 0;
             c.fAlta = FechaDMA(1, 2, 2004);
             c.f1 = FechaDMA(2, 2, 2004);
             c.f2 = FechaDMA(22, 2, 2004);
             c.Bact = 1400;
             c.IExtra = 900;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:50,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 360,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 150,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):1 días, 37,50 €\r\n"
             "El importe total de la prestación es de 547,50 €\r\n"},
        {"the base isn't rounded: 75 % of 1000.19 / 30 is 25.00, not 25.01",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.fAlta = FechaDMA(1, 6, 2005);
             c.f2 = FechaDMA(26, 6, 2005);
             c.Bact = 1000.19;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,34 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 240,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 100,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):1 días, 25,00 €\r\n"
             "El importe total de la prestación es de 365,00 €\r\n"},
        {"a work accident takes the rounded one: 75 % of 33.34 is 25.01",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.fAlta = FechaDMA(1, 6, 2005);
             c.f2 = FechaDMA(16, 6, 2005);
             c.TBaja = 2;
             c.Bact = 1000.19;
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:33,34 €/diarios.\r\n"
             "El número de días a subsidiar es de 10\r\n"
             "El importe de la prestación es de 250,10 €\r\n"
             "Está a cargo del empresario el salario íntegro correspondiente al\r\n"
             "día de la baja."},
        {"the same month of another year is a month like any other: 1200 / 30",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.fAlta = FechaDMA(6, 6, 2004);
             c.f2 = FechaDMA(8, 6, 2005);
             c.Bact = 900;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaIncapacidad, ATrainingContractHasOneBaseWhateverWasTyped) {
    comprueba({"14.9625 a day: 8.98 at 60 %, 11.22 at 75 %",
               [](RegistroIncapacidad& c, EnPantalla&) {
                   c.Situacion = 5;
                   c.f2 = FechaDMA(26, 6, 2005);
               },
               kInicio + kCincoAnios +
                   "Base Reguladora para la prestación:14,96 €/diarios.\r\n"
                   "El número de días a subsidiar es de 18\r\n"
                   "Indemnización de 60% (a cargo empresa):12 días, 107,76 €\r\n"
                   "Indemnización de 60% (a cargo INSS):5 días, 44,90 €\r\n"
                   "Indemnización de 75% (a cargo INSS):1 días, 11,22 €\r\n"
                   "El importe total de la prestación es de 163,88 €\r\n"});
}

}  // namespace
}  // namespace orvemo::incapacidad_temporal
