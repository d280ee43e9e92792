// Part-time contracts, work accidents and the special schemes.
#include "incapacidad_temporal_casos.h"

namespace orvemo::incapacidad_temporal {
namespace {

// --- Part-time contracts ---

/// Half the hours of a year, 40 euros a day, Mondays and Wednesdays, 21 days.
void aTiempoParcial(RegistroIncapacidad& c, EnPantalla& pantalla) {
    c.Situacion = 1;
    c.f2 = FechaDMA(26, 6, 2005);
    c.B12 = 3600;
    c.D12 = 90;
    c.HorasAno = 913;
    pantalla = {.Sup2 = false, .DSem = "LX"};
}

const std::string kMediaJornada =
    "El trabajador debe justificar un mínimo de 180 días de cotización,\r\n"
    "dentro de los últimos 2738 días.\r\n"
    "Cada año que haya trabajado se contará como 183 días cotizados.\r\n";

TEST(CalculaIncapacidad, APartTimeWorkerIsPaidTheDaysThatSheWorks) {
    const Supuesto supuestos[] = {
        {"of the 12 days to the 20th, Mondays 13 and 20 and Wednesday 15; of the next 5, Wednesday 22; the "
         "calendar days are told all the same",
         aTiempoParcial,
         kInicio + kMediaJornada +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):3 días, 72,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):1 días, 24,00 €\r\n"
             "El importe total de la prestación es de 96,00 €\r\n"},
        {"small letters are no days of the week",
         [](RegistroIncapacidad& c, EnPantalla& pantalla) {
             aTiempoParcial(c, pantalla);
             pantalla.DSem = "lx";
         },
         kInicio + kMediaJornada +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
        {"what counts is the field, not the seven letters of the record",
         [](RegistroIncapacidad& c, EnPantalla& pantalla) {
             aTiempoParcial(c, pantalla);
             c.DSem.asigna("L, M, X");
             pantalla.DSem = "L, M, X, J, V, S y D";
         },
         kInicio + kMediaJornada +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (a cargo empresa):12 días, 288,00 €\r\n"
             "Indemnización de 60% (a cargo INSS):5 días, 120,00 €\r\n"
             "Indemnización de 75% (a cargo INSS):1 días, 30,00 €\r\n"
             "El importe total de la prestación es de 438,00 €\r\n"},
        {"no days in the last three months: no base",
         [](RegistroIncapacidad& c, EnPantalla& pantalla) {
             aTiempoParcial(c, pantalla);
             c.D12 = 0;
             c.HorasAno = 0;
         },
         kInicio + "El trabajador debe justificar un mínimo de 180 días de cotización,\r\n"
                   "dentro de los últimos 3650 días.\r\n"
                   "Cada año que haya trabajado se contará como 0 días cotizados.\r\n"
                   "Base Reguladora para la prestación:0,00 €/diarios.\r\n"
                   "El número de días a subsidiar es de 18\r\n"
                   "Indemnización de 60% (a cargo empresa):3 días, 0,00 €\r\n"
                   "Indemnización de 60% (a cargo INSS):1 días, 0,00 €\r\n"
                   "El importe total de la prestación es de 0,00 €\r\n"},
        {"a work accident goes by calendar days",
         [](RegistroIncapacidad& c, EnPantalla& pantalla) {
             aTiempoParcial(c, pantalla);
             c.TBaja = 2;
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 20\r\n"
             "El importe de la prestación es de 600,00 €\r\n"
             "Está a cargo del empresario el salario íntegro correspondiente al\r\n"
             "día de la baja."},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(DiasEfectivos, CountsTheLettersUpToTheDayBeforeTheEnd) {
    const Fecha lunes = FechaDMA(6, 6, 2005);
    const Fecha lunesSiguiente = FechaDMA(13, 6, 2005);
    EXPECT_EQ(DiasEfectivos(lunes, lunesSiguiente, "LMXJVSD"), 7);
    EXPECT_EQ(DiasEfectivos(lunes, lunesSiguiente, "LX"), 2);
    EXPECT_EQ(DiasEfectivos(lunes, lunes, "L"), 0);
    EXPECT_EQ(DiasEfectivos(lunesSiguiente, lunes, "L"), 0);
    std::string semana;
    for (int dia = 0; dia < 7; ++dia) semana += MiDay(lunes + std::chrono::days{dia});
    EXPECT_EQ(semana, "LMXJVSD");
}

// --- Occupational contingencies ---

TEST(CalculaIncapacidad, AWorkAccidentIsPaidFromTheDayAfter) {
    const Supuesto supuestos[] = {
        {"by the month: (1500 - 60) / 30 + 720 / 360 = 50; ten days, not eleven",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.TBaja = 2;
             c.Batant = 1500;
             c.He = 60;
             c.He12 = 720;
             c.f2 = FechaDMA(16, 6, 2005);
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:50,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 10\r\n"
             "El importe de la prestación es de 375,00 €\r\n"
             "Está a cargo del empresario el salario íntegro correspondiente al\r\n"
             "día de la baja."},
        {"by the day in June: (1610 - 60) / 31 + 730 / 365 = 52; back on the day itself, nothing",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.TBaja = 2;
             c.DM = 0;
             c.Batant = 1610;
             c.He = 60;
             c.He12 = 730;
             c.f2 = c.f1;
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:52,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe de la prestación es de 0,00 €\r\n"
             "Está a cargo del empresario el salario íntegro correspondiente al\r\n"
             "día de la baja."},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

// --- Special schemes ---

TEST(CalculaIncapacidad, TheSelfEmployedAndFarmWorkersAreTheirOwnEmployer) {
    const Supuesto supuestos[] = {
        {"self-employed, ill for 21 days: 30 a day, one stretch of 17 and the last day",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 2;
             c.Bccant = 900;
             c.f2 = FechaDMA(26, 6, 2005);
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:30,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 18\r\n"
             "Indemnización de 60% (4º al 20º días):17 días, 306,00 €\r\n"
             "Indemnización de 75% (2º día en adelante):1 días, 22,50 €\r\n"
             "El importe total de la prestación es de 328,50 €\r\n"},
        {"farm worker, 20 days after 20 others: all at 75 %, of a base that isn't rounded",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 3;
             c.Bccant = 1000.19;
             c.Prev = 20;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,34 €/diarios.\r\n"
             "El número de días a subsidiar es de 20\r\n"
             "Indemnización de 75% (2º día en adelante):20 días, 500,00 €\r\n"
             "El importe total de la prestación es de 500,00 €\r\n"},
        {"three days: nothing but the total",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 2;
             c.f2 = FechaDMA(8, 6, 2005);
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:40,00 €/diarios.\r\n"
             "El número de días a subsidiar es de 0\r\n"
             "El importe total de la prestación es de 0,00 €\r\n"},
        {"an accident: 75 % from the first day, earlier days apart",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 3;
             c.TBaja = 1;
             c.Bccant = 1000;
             c.f2 = FechaDMA(15, 6, 2005);
             c.Prev = 4;
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de 10\r\n"
             "El importe de la prestación (75% de la B.R. x 10 días) es de 250,00 €\r\n"},
        {"an accident that ends before it begins: eight days the wrong way",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 2;
             c.TBaja = 1;
             c.Bccant = 1000;
             c.f2 = FechaDMA(28, 5, 2005);
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de -8\r\n"
             "El importe de la prestación (75% de la B.R. x -8 días) es de -200,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

TEST(CalculaIncapacidad, DomesticEmployeesWaitTwentyEightDays) {
    const Supuesto supuestos[] = {
        {"30 days: two paid, 25 euros each",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 4;
             c.Bccant = 1000;
             c.f2 = FechaDMA(5, 7, 2005);
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de 2\r\n"
             "La indemnización de 75% es de 50,00 €\r\n"},
        {"20 days of an accident after 10 others: the wait is over two days before the end",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 4;
             c.TBaja = 1;
             c.Bccant = 1000;
             c.Prev = 10;
         },
         kInicio + kSinCotizacion +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de 2\r\n"
             "La indemnización de 75% es de 50,00 €\r\n"},
        {"5 days after 40 others: 45 in all, 28 taken off the wait and 12 off the paid ones",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 4;
             c.Bccant = 1000;
             c.f2 = FechaDMA(10, 6, 2005);
             c.Prev = 40;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de 5\r\n"
             "La indemnización de 75% es de 125,00 €\r\n"},
        {"back nine days before, after 5 others: here the paid days have no floor",
         [](RegistroIncapacidad& c, EnPantalla&) {
             c.Situacion = 4;
             c.Bccant = 1000;
             c.f2 = FechaDMA(28, 5, 2005);
             c.Prev = 5;
         },
         kInicio + kCincoAnios +
             "Base Reguladora para la prestación:33,33 €/diarios.\r\n"
             "El número de días a subsidiar es de -5\r\n"
             "La indemnización de 75% es de -125,00 €\r\n"},
    };
    for (const Supuesto& s : supuestos) comprueba(s);
}

}  // namespace
}  // namespace orvemo::incapacidad_temporal
