#include "pensions/jubilacion/jubilacion_carrera.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "foundations/values/fallos.h"
#include "pensions/casos_jubilacion.h"
#include "pensions/jubilacion/jubilacion_cuantia.h"

namespace orvemo::jubilacion {
namespace {

using pruebas::casoTipo;
using pruebas::ponFechas;
using pruebas::ponPeriodo;

TEST(DiasDeHoras, RoundsTheFifthsAndThenTheDays) {
    EXPECT_EQ(DiasDeHoras(0), 0);
    EXPECT_EQ(DiasDeHoras(1000), 300);
    EXPECT_EQ(DiasDeHoras(5), 2) << "1,5 days";
    EXPECT_EQ(DiasDeHoras(12.5), 5) << "2,5 fifths are 3, 4,5 days are 5";
    EXPECT_EQ(DiasDeHoras(12), 3) << "2,4 fifths are 2";
    EXPECT_THROW(static_cast<void>(DiasDeHoras(1e300)), DesbordeNumerico);
    EXPECT_THROW(static_cast<void>(DiasDeHoras(std::numeric_limits<double>::quiet_NaN())), DesbordeNumerico);
}

TEST(PorcentajeSobreBase, ClimbsByThreeThenByTwo) {
    const std::array<std::array<int, 2>, 8> pasos{
        {{10, 35}, {14, 47}, {15, 50}, {16, 53}, {25, 80}, {26, 82}, {35, 100}, {50, 100}}};
    for (const auto& [anios, porcentaje] : pasos) EXPECT_EQ(PorcentajeSobreBase(anios), porcentaje) << anios;
}

TEST(CoeficienteReductor, SoftensWithTheYearsContributed) {
    struct Caso {
        int edad, anios;
        bool antesDe1967, voluntario;
        double valor;
        bool especial;
    };
    const Caso casos[] = {
        {65, 10, true, true, 1, false},     {59, 45, true, false, 0, false},
        {60, 30, true, false, 0.6, false},  {60, 31, true, false, 0.625, true},
        {60, 34, true, false, 0.625, true}, {60, 35, true, false, 0.65, true},
        {60, 37, true, false, 0.65, true},  {60, 38, true, false, 0.6, true},
        {60, 39, true, false, 0.6, true},   {60, 40, true, false, 0.7, true},
        {60, 40, true, true, 0.6, false},   {60, 29, false, false, 0.6, false},
        {60, 30, false, false, 0.6, true},  {64, 35, false, false, 0.93, true},
    };
    for (const Caso& caso : casos) {
        const Coeficiente coeficiente =
            CoeficienteReductor(caso.edad, caso.anios, caso.antesDe1967, caso.voluntario);
        EXPECT_NEAR(coeficiente.valor, caso.valor, 1e-15) << caso.edad << " with " << caso.anios;
        EXPECT_EQ(coeficiente.especial, caso.especial) << caso.edad << " with " << caso.anios;
    }
}

TEST(DiasBonificados, GoByTheAgeOnTheFirstOf1967) {
    const auto dias = [](const char* nacimiento, Regimen regimen = Regimen::General) {
        return DiasBonificados(LeeFecha(nacimiento), regimen);
    };
    EXPECT_EQ(dias("01-01-1947"), 0) << "20 years";
    EXPECT_DOUBLE_EQ(dias("01-01-1946"), 250.4) << "21 years";
    EXPECT_DOUBLE_EQ(dias("02-01-1946"), 0) << "20, one day short of 21";
    EXPECT_DOUBLE_EQ(dias("15-06-1890"), 45 * 250.4) << "counted as 65";
    EXPECT_EQ(dias("15-06-1936", Regimen::EmpleadosHogar), 0);
    EXPECT_DOUBLE_EQ(dias("15-06-1936", Regimen::Agrario), 2504);
}

TEST(AniosParaPorcentaje, CountFrom1960WithTheBonus) {
    // Born on 15-06-1936: 30 years on 01-01-1967, 2504 bonus days, that is 6 years and 314 days.
    const auto computo = [](const char* desde, const char* hasta, Regimen regimen = Regimen::General) {
        const std::array periodos{pensiones::Periodo{LeeFecha(desde), LeeFecha(hasta)}};
        const auto c = AniosParaPorcentaje(periodos, LeeFecha("15-06-1936"), regimen, 0);
        return std::to_string(c.anios) + (c.antesDe1967 ? " con bonificación" : "");
    };
    EXPECT_EQ(computo("01-01-1960", "01-01-2000"), "47 con bonificación") << "14610 + 314 days, and 6 years";
    EXPECT_EQ(computo("01-01-1950", "31-12-1959"), "7 con bonificación") << "314 days, and 6 years";
    EXPECT_EQ(computo("01-01-1960", "01-01-2000", Regimen::Autonomos), "40") << "14610 days to the day";
    EXPECT_EQ(computo("01-01-1960", "02-01-2000", Regimen::Autonomos), "41");
    EXPECT_EQ(computo("01-01-1967", "01-01-1987"), "20");
}

TEST(DiasDesde1960, CutsOrNotByScheme) {
    const auto dias = [](const char* desde, const char* hasta, Regimen regimen = Regimen::General) {
        return DiasDesde1960(LeeFecha(desde), LeeFecha(hasta), regimen);
    };
    EXPECT_EQ(dias("01-01-1959", "01-01-1961"), 366);
    EXPECT_EQ(dias("01-01-1958", "01-01-1959"), 0);
    EXPECT_EQ(dias("01-01-1961", "01-01-1962"), 365);
    EXPECT_EQ(dias("01-01-1959", "01-01-1961", Regimen::EmpleadosHogar), 731);
}

TEST(Carrera, HoursCountOncePerPeriodForThePercentageAndOnceForTheYears) {
    RegistroJubilacion caso = casoTipo();
    // Three periods of one year, 365 days each: 1095 + 3 x 300 = 1995 days are 5,46 years.
    ponPeriodo(caso, 1, "01-01-2001", "01-01-2002");
    ponPeriodo(caso, 2, "01-01-2002", "01-01-2003");
    ponPeriodo(caso, 3, "01-01-2003", "01-01-2004");
    caso.HorasTP = 1000;
    caso.HorasTP15 = 100;
    const Carrera carrera = estudiaCarrera(caso);
    EXPECT_EQ(carrera.aniosParaPorcentaje, 6);
    EXPECT_EQ(carrera.cotizado.anios, 4) << "1395 days: the ten months over three years are another";
    EXPECT_EQ(carrera.cotizado.meses, 0);
    EXPECT_EQ(carrera.ultimos15.anios, 4) << "30 days more than three years";
    caso.HorasTP15 = 0;
    EXPECT_EQ(estudiaCarrera(caso).ultimos15.anios, 3);
}

TEST(Carrera, FifteenDaysOverAYearCountAsAnother) {
    RegistroJubilacion caso = casoTipo();
    const auto anios = [&](const char* hasta) {
        ponPeriodo(caso, 1, "01-01-2001", hasta);
        return estudiaCarrera(caso).cotizado.anios;
    };
    EXPECT_EQ(anios("15-01-2002"), 1) << "14 days over";
    EXPECT_EQ(anios("16-01-2002"), 2) << "15 days over, half a month to the nudge";
}

TEST(Carrera, TakesTheRowsWithAFirstDay) {
    RegistroJubilacion caso = casoTipo();
    ponPeriodo(caso, 1, "", "31-05-2005");
    EXPECT_EQ(estudiaCarrera(caso).cotizado.anios, 0);
    ponPeriodo(caso, 10, "01-01-2001", "01-01-2003");
    EXPECT_EQ(estudiaCarrera(caso).cotizado.anios, 2);
    ponPeriodo(caso, 10, "", "");
    ponPeriodo(caso, 11, "01-01-2001", "01-01-2003");
    EXPECT_EQ(estudiaCarrera(caso).cotizado.anios, 0) << "the eleventh row of the record isn't used";
    caso.JubiPerDesde = {};
    EXPECT_EQ(estudiaCarrera(caso).cotizado.anios, 0) << "rows never written";
}

TEST(Carrera, TheMinimumAgeGoesBySchemeAndYear) {
    struct Caso {
        int regimen;
        const char* desde;
        int edad;
    };
    const Caso casos[] = {{1, "31-12-1966", 60}, {1, "01-01-1967", 65}, {2, "31-12-1966", 65},
                          {3, "31-12-1966", 60}, {4, "31-12-1966", 65}, {5, "31-12-1966", 64},
                          {6, "01-01-1967", 60}};
    for (const Caso& c : casos) {
        RegistroJubilacion caso = casoTipo();
        caso.JubiRegimen = static_cast<std::uint8_t>(c.regimen - 1);
        ponPeriodo(caso, 1, c.desde, "31-05-2005");
        const Carrera carrera = estudiaCarrera(caso);
        EXPECT_EQ(carrera.edadMinima, c.edad) << "regime " << c.regimen << " since " << c.desde;
        EXPECT_EQ(carrera.ultimaFecha,
                  LeeFecha(c.regimen == 1 || c.regimen == 3 ? "31-05-2005" : "01-01-1901"));
    }
}

TEST(FactorInflacion, IsKeptInSinglePrecision) {
    EXPECT_EQ(FactorInflacion(2005), 1.0F);
    EXPECT_EQ(FactorInflacion(2007), 1.0404F);
    EXPECT_THROW(static_cast<void>(FactorInflacion(9999)), DesbordeNumerico);
}

}  // namespace
}  // namespace orvemo::jubilacion
