#include "benefits/it/incapacidad_temporal.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::incapacidad_temporal {
namespace {

using Caso = RegistroIncapacidad;
using Texto = std::string;

enum : int { kOrdinario, kTiempoParcial, kAutonomo, kAgrario, kEmpleadoHogar, kFormacion };
enum : int { kEnfermedad, kAccidente, kAccidenteLaboral };
enum : int { kDiaria, kMensual };

// --- People. The leave begins on Monday 6 June 2005 and, without earlier ones, lasts as many days as they
// tell

Fecha dia(int n) {
    return FechaDMA(5, 6, 2005) + std::chrono::days{n};
}

/// Who contributes that base by the month.
Caso deBaja(int Situacion, int TBaja, double Bccant, int dias, int Prev = 0) {
    Caso caso;
    caso.Situacion = Situacion;
    caso.TBaja = TBaja;
    caso.fAlta = FechaDMA(1, 2, 2000);
    caso.f1 = dia(1);
    caso.f2 = dia(dias);
    caso.DM = kMensual;
    caso.Bccant = Bccant;
    caso.Prev = Prev;
    return caso;
}

/// An employee of 40 euros a day, ill.
Caso empleado(int dias, int Prev = 0) {
    return deBaja(kOrdinario, kEnfermedad, 1200, dias, Prev);
}

Caso enElMesDeAlta(int DM, double Bact, int Extra, double IExtra, int dias, int TBaja = kEnfermedad) {
    Caso caso = deBaja(kOrdinario, TBaja, 0, dias);
    caso.fAlta = FechaDMA(1, 6, 2005);
    caso.DM = DM;
    caso.Bact = Bact;
    caso.Extra = Extra;
    caso.IExtra = IExtra;
    return caso;
}

Caso altaEnFebreroBisiesto() {
    Caso caso = enElMesDeAlta(kDiaria, 1400, 0, 900, 0);
    caso.fAlta = FechaDMA(1, 2, 2004);
    caso.f1 = FechaDMA(2, 2, 2004);
    caso.f2 = FechaDMA(22, 2, 2004);
    return caso;
}

Caso altaEnJunioDelAnioAnterior() {
    Caso caso = empleado(3);
    caso.fAlta = FechaDMA(6, 6, 2004);
    caso.Bact = 900;
    return caso;
}

Caso accidentado(int DM, double Batant, int He12, int dias) {
    Caso caso = deBaja(kOrdinario, kAccidenteLaboral, 0, dias);
    caso.DM = DM;
    caso.Batant = Batant;
    caso.He = 60;
    caso.He12 = He12;
    return caso;
}

/// 21 days of a part-time worker of 3600 euros in three months.
Caso aTiempoParcial(int TBaja, int D12, int HorasAno) {
    Caso caso = deBaja(kTiempoParcial, TBaja, 0, 21);
    caso.B12 = 3600;
    caso.D12 = D12;
    caso.HorasAno = HorasAno;
    caso.DSem.asigna("LMXJVSD");
    return caso;
}

// --- Sentences

const Texto kCincoAnios =
    "El trabajador debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 años.\r\n";
const Texto kSinCotizacion = "El trabajador no debe justificar cotizaciones anteriores.\r\n";
const Texto kACargoDelEmpresario =
    "Está a cargo del empresario el salario íntegro correspondiente al\r\ndía de la baja.";

Texto plazo(const Texto& dias, const Texto& anuales) {
    return "El trabajador debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos " +
           dias + " días.\r\nCada año que haya trabajado se contará como " + anuales + " días cotizados.\r\n";
}
Texto base(const Texto& euros) {
    return "Base Reguladora para la prestación:" + euros + " €/diarios.\r\n";
}
Texto subsidiados(const Texto& dias) {
    return "El número de días a subsidiar es de " + dias + "\r\n";
}
Texto empresa(const Texto& tramo) {
    return "Indemnización de 60% (a cargo empresa):" + tramo + " €\r\n";
}
Texto inss(const Texto& tramo) {
    return "Indemnización de 60% (a cargo INSS):" + tramo + " €\r\n";
}
Texto pleno(const Texto& tramo) {
    return "Indemnización de 75% (a cargo INSS):" + tramo + " €\r\n";
}
Texto total(const Texto& euros) {
    return "El importe total de la prestación es de " + euros + " €\r\n";
}
Texto importe(const Texto& euros) {
    return "El importe de la prestación es de " + euros + " €\r\n";
}

const Texto kVeinteDias = kCincoAnios + base("40,00") + subsidiados("17") + empresa("12 días, 288,00") +
                          inss("5 días, 120,00") + total("408,00");

struct Supuesto {
    const char* historia;
    Caso caso;
    Texto conclusion;  // after the first line
    EnPantalla pantalla{.Sup2 = true, .DSem = "LX"};
};

void comprueba(std::initializer_list<Supuesto> supuestos) {
    for (const Supuesto& s : supuestos) {
        SCOPED_TRACE(s.historia);
        Caso caso = s.caso;
        Dictamen dictamen;
        dictamen.linea("what an earlier case left");
        CalculaIncapacidad(caso, s.pantalla, dictamen);
        EXPECT_EQ(
            dictamen.Conclusion(),
            "El interesado/a desea solicitar una prestación por Incapacidad Temporal.\r\n" + s.conclusion);
        EXPECT_TRUE(dictamen.ConDerecho);
        EXPECT_EQ(caso.Prev, s.pantalla.Sup2 ? s.caso.Prev : 0);
    }
}

TEST(CalculaIncapacidad, AnEmployeeMovesAlongTheScaleDayByDay) {
    comprueba({
        {"three days: all of them unpaid", empleado(3),
         kCincoAnios + base("40,00") + subsidiados("0") + total("0,00")},
        {"20 days: 12 by the employer and 5 by the INSS, 24 euros each", empleado(20), kVeinteDias},
        {"60 days: 40 at 75 %, 30 euros, amounts with their thousands mark", empleado(60),
         kCincoAnios + base("40,00") + subsidiados("57") + empresa("12 días, 288,00") +
             inss("5 días, 120,00") + pleno("40 días, 1.200,00") + total("1.608,00")},
        {"an accident outside work: no contribution asked for, the same days and rates",
         deBaja(kOrdinario, kAccidente, 1200, 21),
         kSinCotizacion + base("40,00") + subsidiados("18") + empresa("12 días, 288,00") +
             inss("5 días, 120,00") + pleno("1 días, 30,00") + total("438,00")},
        {"back before the leave: the first stretches have a floor, nothing is paid", empleado(-8),
         kCincoAnios + base("40,00") + subsidiados("0") + total("0,00")},
        {"training: 14.9625 a day whatever was typed, 8.98 at 60 %, 11.22 at 75 %",
         deBaja(kFormacion, kEnfermedad, 1200, 21),
         kCincoAnios + base("14,96") + subsidiados("18") + empresa("12 días, 107,76") +
             inss("5 días, 44,90") + pleno("1 días, 11,22") + total("163,88")},
    });
}

TEST(CalculaIncapacidad, DaysOfEarlierLeavesUseUpTheFirstStretches) {
    comprueba({
        {"3 earlier days: 23 in all, paid from the first day of this leave", empleado(20, 3),
         kCincoAnios + base("40,00") + subsidiados("20") + empresa("12 días, 288,00") +
             inss("5 días, 120,00") + pleno("3 días, 90,00") + total("498,00")},
        {"25 earlier days: only the rate of 75 % is left", empleado(20, 25),
         kCincoAnios + base("40,00") + subsidiados("20") + pleno("20 días, 600,00") + total("600,00")},
        {"12 earlier days against 4 in all: the stretches stop at nothing", empleado(-8, 12),
         kCincoAnios + base("40,00") + subsidiados("0") + total("0,00")},
        {"with their frame out of view they don't count", empleado(20, 25), kVeinteDias, {.DSem = ""}},
    });
}

TEST(CalculaIncapacidad, MoreDaysThanThirtyTwoBitsHoldAreAnOverflow) {
    Caso caso = empleado(20, std::numeric_limits<std::int32_t>::max());
    Dictamen dictamen;
    EXPECT_THROW(CalculaIncapacidad(caso, {.Sup2 = true, .DSem = ""}, dictamen), DesbordeNumerico);
}

TEST(CalculaIncapacidad, TheMonthOfJoiningHasABaseOfItsOwn) {
    comprueba({
        {"by the month: (1200 + 2 x 1200 / 12) / 30 = 46.67", enElMesDeAlta(kMensual, 1200, 2, 1200, 21),
         kCincoAnios + base("46,67") + subsidiados("18") + empresa("12 días, 336,00") +
             inss("5 días, 140,00") + pleno("1 días, 35,00") + total("511,00")},
        {"by the day in June: (1200 + 2400 / (365 / 30)) / 30 = 46.5753; 60 % of it is 27.95",
         enElMesDeAlta(kDiaria, 1200, 2, 1200, 20),
         kCincoAnios + base("46,58") + subsidiados("17") + empresa("12 días, 335,40") +
             inss("5 días, 139,75") + total("475,15")},
        {"February of a leap year has 28 days: 1400 / 28; no extra pays, whatever their amount",
         altaEnFebreroBisiesto(),
         kCincoAnios + base("50,00") + subsidiados("18") + empresa("12 días, 360,00") +
             inss("5 días, 150,00") + pleno("1 días, 37,50") + total("547,50")},
        {"the base isn't rounded: 75 % of 1000.19 / 30 is 25.00, not 25.01",
         enElMesDeAlta(kMensual, 1000.19, 0, 0, 21),
         kCincoAnios + base("33,34") + subsidiados("18") + empresa("12 días, 240,00") +
             inss("5 días, 100,00") + pleno("1 días, 25,00") + total("365,00")},
        {"a work accident takes the rounded one: 75 % of 33.34 is 25.01",
         enElMesDeAlta(kMensual, 1000.19, 0, 0, 11, kAccidenteLaboral),
         kSinCotizacion + base("33,34") + subsidiados("10") + importe("250,10") + kACargoDelEmpresario},
        {"June of another year is a month like any other", altaEnJunioDelAnioAnterior(),
         kCincoAnios + base("40,00") + subsidiados("0") + total("0,00")},
    });
}

TEST(CalculaIncapacidad, AWorkAccidentIsPaidFromTheDayAfter) {
    comprueba({
        {"by the month: (1500 - 60) / 30 + 720 / 360 = 50; ten days, not eleven",
         accidentado(kMensual, 1500, 720, 11),
         kSinCotizacion + base("50,00") + subsidiados("10") + importe("375,00") + kACargoDelEmpresario},
        {"by the day in June: (1610 - 60) / 31 + 730 / 365 = 52; back on the day itself, nothing",
         accidentado(kDiaria, 1610, 730, 1),
         kSinCotizacion + base("52,00") + subsidiados("0") + importe("0,00") + kACargoDelEmpresario},
        {"part time: by calendar days", aTiempoParcial(kAccidenteLaboral, 90, 913),
         kSinCotizacion + base("40,00") + subsidiados("20") + importe("600,00") + kACargoDelEmpresario},
    });
}

TEST(CalculaIncapacidad, APartTimeWorkerIsPaidTheDaysThatSheWorks) {
    comprueba({
        {"of the 12 days to the 20th, Mondays 13 and 20 and Wednesday 15; of the next 5, Wednesday 22; the "
         "calendar days are told all the same",
         aTiempoParcial(kEnfermedad, 90, 913),
         plazo("2738", "183") + base("40,00") + subsidiados("18") + empresa("3 días, 72,00") +
             inss("1 días, 24,00") + total("96,00")},
        {"small letters are no days of the week",
         aTiempoParcial(kEnfermedad, 90, 913),
         plazo("2738", "183") + base("40,00") + subsidiados("18") + total("0,00"),
         {.DSem = "lx"}},
        {"no days in the last three months: no base", aTiempoParcial(kEnfermedad, 0, 0),
         plazo("3650", "0") + base("0,00") + subsidiados("18") + empresa("3 días, 0,00") +
             inss("1 días, 0,00") + total("0,00")},
    });
}

TEST(DiasEfectivos, CountsTheLettersUpToTheDayBeforeTheEnd) {
    EXPECT_EQ(DiasEfectivos(dia(1), dia(8), "LMXJVSD"), 7);
    EXPECT_EQ(DiasEfectivos(dia(1), dia(1), "L"), 0);
    EXPECT_EQ(DiasEfectivos(dia(8), dia(1), "L"), 0);
    std::string semana;
    for (int n = 1; n <= 7; ++n) semana += MiDay(dia(n));
    EXPECT_EQ(semana, "LMXJVSD");
}

Texto porEnfermedad(const Texto& tramo) {
    return "Indemnización de 60% (4º al 20º días):" + tramo + " €\r\n";
}
Texto enAdelante(const Texto& tramo) {
    return "Indemnización de 75% (2º día en adelante):" + tramo + " €\r\n";
}
Texto porAccidente(const Texto& dias, const Texto& euros) {
    return "El importe de la prestación (75% de la B.R. x " + dias + " días) es de " + euros + " €\r\n";
}
Texto enElHogar(const Texto& euros) {
    return "La indemnización de 75% es de " + euros + " €\r\n";
}

TEST(CalculaIncapacidad, SpecialSchemes) {
    comprueba({
        {"self-employed, ill for 21 days: 30 a day, one stretch of 17 and the last day",
         deBaja(kAutonomo, kEnfermedad, 900, 21),
         kCincoAnios + base("30,00") + subsidiados("18") + porEnfermedad("17 días, 306,00") +
             enAdelante("1 días, 22,50") + total("328,50")},
        {"farm worker, 20 days after 20 others: all at 75 %, of a base that isn't rounded",
         deBaja(kAgrario, kEnfermedad, 1000.19, 20, 20),
         kCincoAnios + base("33,34") + subsidiados("20") + enAdelante("20 días, 500,00") + total("500,00")},
        {"an accident: 75 % from the first day, earlier days apart",
         deBaja(kAgrario, kAccidente, 1000, 10, 4),
         kSinCotizacion + base("33,33") + subsidiados("10") + porAccidente("10", "250,00")},
        {"an accident that ends before it begins: eight days the wrong way",
         deBaja(kAutonomo, kAccidente, 1000, -8),
         kSinCotizacion + base("33,33") + subsidiados("-8") + porAccidente("-8", "-200,00")},
        {"domestic employee, 30 days: two paid, 25 euros each", deBaja(kEmpleadoHogar, kEnfermedad, 1000, 30),
         kCincoAnios + base("33,33") + subsidiados("2") + enElHogar("50,00")},
        {"20 days of an accident after 10 others: the wait is over two days before the end",
         deBaja(kEmpleadoHogar, kAccidente, 1000, 20, 10),
         kSinCotizacion + base("33,33") + subsidiados("2") + enElHogar("50,00")},
        {"5 days after 40 others: 45 in all, 28 taken off the wait and 12 off the paid ones",
         deBaja(kEmpleadoHogar, kEnfermedad, 1000, 5, 40),
         kCincoAnios + base("33,33") + subsidiados("5") + enElHogar("125,00")},
        {"back before the leave, after 5 others: here the paid days have no floor",
         deBaja(kEmpleadoHogar, kEnfermedad, 1000, -8, 5),
         kCincoAnios + base("33,33") + subsidiados("-5") + enElHogar("-125,00")},
    });
}

}  // namespace
}  // namespace orvemo::incapacidad_temporal
