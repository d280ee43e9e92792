#include "foundations/values/fechas.h"

#include <gtest/gtest.h>

#include <limits>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"

namespace orvemo {
namespace {

std::string escrita(Fecha fecha) {
    return FormatoFecha(fecha, "dd-mm-yyyy");
}

TEST(LeeFecha, TakesDayFirstWithHyphensOrSlashes) {
    struct {
        const char* titulo;
        Valor valor;
        const char* esperada;
    } const casos[] = {
        {"hyphens", "15-03-1950", "15-03-1950"},
        {"slashes", "15/03/1950", "15-03-1950"},
        {"one digit", "1-2-2004", "01-02-2004"},
        {"blanks around", "  01-02-2004 ", "01-02-2004"},
        {"two digits, this century", "1-2-29", "01-02-2029"},
        {"two digits, the last century", "1-2-30", "01-02-1930"},
        {"two digits, its end", "31/12/99", "31-12-1999"},
        {"leap day", "29-02-2004", "29-02-2004"},
        {"first year of the calendar", "01-01-0100", "01-01-0100"},
        {"last day of the calendar", "31-12-9999", "31-12-9999"},
        {"a date already", FechaDMA(29, 2, 2004), "29-02-2004"},
    };
    for (const auto& caso : casos) {
        EXPECT_TRUE(EsFecha(caso.valor)) << caso.titulo;
        EXPECT_EQ(caso.esperada, escrita(FechaDe(caso.valor))) << caso.titulo;
    }
    EXPECT_EQ("01-02-2004", escrita(LeeFecha("1/2/04")));
}

TEST(LeeFecha, RefusesTheRestAndFechaDeMakesIt1900) {
    struct {
        const char* titulo;
        Valor valor;
    } const casos[] = {
        {"nothing", ""},
        {"never assigned", Valor{}},
        {"null", Nulo{}},
        {"a number", 38353},
        {"the mask of an empty field", "__-__-____"},
        {"no year", "15-03"},
        {"three digits of year", "15-03-195"},
        {"five digits of year", "15-03-19500"},
        {"year first", "1950-03-15"},
        {"points", "15.03.1950"},
        {"minus", "-1-03-1950"},
        {"blanks within", "15 - 03 - 1950"},
        {"month 13", "15-13-1950"},
        {"31st of April", "31-04-2005"},
        {"29th of February of a common year", "29-02-2005"},
        {"29th of February of 1900", "29-02-1900"},
        {"before the calendar", "31-12-0099"},
        {"NULs of a field never written", std::string(10, '\0')},
        {"a long paste", std::string(10000, '1')},
    };
    for (const auto& caso : casos) {
        EXPECT_FALSE(EsFecha(caso.valor)) << caso.titulo;
        EXPECT_EQ(kFechaIlegible, FechaDe(caso.valor)) << caso.titulo;
    }
}

TEST(LeeFecha, TellsWhatIsWrong) {
    EXPECT_THROW((void)LeeFecha("ayer"), TextoIlegible);
    EXPECT_THROW((void)LeeFecha("31-04-2005"), FechaInexistente);
    EXPECT_THROW((void)FechaDMA(-1, 1, 2005), FechaInexistente);
    EXPECT_THROW((void)FechaDMA(1, 1, 10000), FechaInexistente);
}

TEST(FechaDeSerie, CountsFromThe30thOfDecember1899) {
    struct {
        double serie;
        const char* esperada;
    } const casos[] = {{0, "30-12-1899"},        {2, "01-01-1900"},        {38353, "01-01-2005"},
                       {38353.99, "01-01-2005"}, {-1.5, "29-12-1899"},     {-657434, "01-01-0100"},
                       {2958465, "31-12-9999"},  {2958465.5, "31-12-9999"}};
    for (const auto& caso : casos) EXPECT_EQ(caso.esperada, escrita(FechaDeSerie(caso.serie))) << caso.serie;
    EXPECT_EQ(38353, SerieDeFecha(FechaDMA(1, 1, 2005)));
    EXPECT_EQ(-1, SerieDeFecha(FechaDMA(29, 12, 1899)));
}

TEST(FechaDeSerie, MakesWhatIsNoDate1900) {
    using Limites = std::numeric_limits<double>;
    for (const double serie : {Limites::quiet_NaN(), Limites::infinity(), -Limites::infinity(), 2958466.0,
                               -657435.0, 1e300, Limites::max()}) {
        EXPECT_EQ(kFechaIlegible, FechaDeSerie(serie)) << serie;
    }
}

TEST(DiferenciaFechas, CountsDaysWeeksMonthBoundariesAndYearNumbers) {
    struct {
        const char* titulo;
        Fecha desde, hasta;
        int dias, semanas, meses, anios;
    } const casos[] = {
        {"one day crosses a month", FechaDMA(31, 1, 2004), FechaDMA(1, 2, 2004), 1, 0, 1, 0},
        {"the same, backwards", FechaDMA(1, 2, 2004), FechaDMA(31, 1, 2004), -1, 0, -1, 0},
        {"one day crosses a year", FechaDMA(31, 12, 2004), FechaDMA(1, 1, 2005), 1, 0, 1, 1},
        {"a leap year", FechaDMA(1, 1, 2004), FechaDMA(1, 1, 2005), 366, 52, 12, 1},
        {"13 days are one week", FechaDMA(1, 3, 2005), FechaDMA(14, 3, 2005), 13, 1, 0, 0},
        {"and so are they backwards", FechaDMA(14, 3, 2005), FechaDMA(1, 3, 2005), -13, -1, 0, 0},
        {"the same day", FechaDMA(1, 3, 2005), FechaDMA(1, 3, 2005), 0, 0, 0, 0},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.dias, DiferenciaFechas(Intervalo::Dia, caso.desde, caso.hasta)) << caso.titulo;
        EXPECT_EQ(caso.semanas, DiferenciaFechas(Intervalo::Semana, caso.desde, caso.hasta)) << caso.titulo;
        EXPECT_EQ(caso.meses, DiferenciaFechas(Intervalo::Mes, caso.desde, caso.hasta)) << caso.titulo;
        EXPECT_EQ(caso.anios, DiferenciaFechas(Intervalo::Anio, caso.desde, caso.hasta)) << caso.titulo;
    }
}

TEST(SumaFecha, FallsOnTheLastDayOfAShorterMonth) {
    struct {
        const char* titulo;
        Intervalo intervalo;
        int n;
        Fecha desde;
        const char* esperada;
    } const casos[] = {
        {"days", Intervalo::Dia, 1, FechaDMA(28, 2, 2004), "29-02-2004"},
        {"days back over a year", Intervalo::Dia, -1, FechaDMA(1, 1, 2005), "31-12-2004"},
        {"weeks", Intervalo::Semana, 2, FechaDMA(28, 2, 2005), "14-03-2005"},
        {"into a leap February", Intervalo::Mes, 1, FechaDMA(31, 1, 2004), "29-02-2004"},
        {"into a common February", Intervalo::Mes, 1, FechaDMA(31, 1, 2005), "28-02-2005"},
        {"the short month isn't remembered", Intervalo::Mes, 2, FechaDMA(31, 1, 2005), "31-03-2005"},
        {"December to January", Intervalo::Mes, 1, FechaDMA(15, 12, 2004), "15-01-2005"},
        {"January back to December", Intervalo::Mes, -1, FechaDMA(15, 1, 2005), "15-12-2004"},
        {"many months back", Intervalo::Mes, -25, FechaDMA(31, 3, 2005), "28-02-2003"},
        {"years from a leap day", Intervalo::Anio, 1, FechaDMA(29, 2, 2004), "28-02-2005"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.esperada, escrita(SumaFecha(caso.intervalo, caso.n, caso.desde))) << caso.titulo;
    }
}

TEST(SumaFecha, DoesNotLeaveTheCalendar) {
    const int mucho = std::numeric_limits<int>::max();
    const int poco = std::numeric_limits<int>::min();
    for (const auto intervalo : {Intervalo::Dia, Intervalo::Semana, Intervalo::Mes, Intervalo::Anio}) {
        EXPECT_THROW((void)SumaFecha(intervalo, mucho, FechaDMA(1, 1, 2005)), DesbordeNumerico);
        EXPECT_THROW((void)SumaFecha(intervalo, poco, FechaDMA(1, 1, 2005)), DesbordeNumerico);
    }
    EXPECT_THROW((void)SumaFecha(Intervalo::Dia, 1, FechaDMA(31, 12, 9999)), DesbordeNumerico);
    EXPECT_THROW((void)SumaFecha(Intervalo::Mes, -1, FechaDMA(31, 1, 100)), DesbordeNumerico);
}

TEST(AniosCumplidos, LooksAtTheDayOnlyWithinTheSameMonth) {
    struct {
        const char* titulo;
        Fecha nacimiento, dia;
        int esperados;
    } const casos[] = {
        {"the eve of the birthday", FechaDMA(15, 3, 1950), FechaDMA(14, 3, 2005), 54},
        {"the birthday", FechaDMA(15, 3, 1950), FechaDMA(15, 3, 2005), 55},
        {"the month after", FechaDMA(31, 3, 1950), FechaDMA(1, 4, 2005), 55},
        {"the month before", FechaDMA(15, 3, 1950), FechaDMA(28, 2, 2005), 54},
        {"later in the year", FechaDMA(15, 3, 1950), FechaDMA(31, 12, 2005), 55},
        {"earlier in the year", FechaDMA(15, 11, 1950), FechaDMA(31, 1, 2005), 54},
        {"one month backwards is a year below", FechaDMA(15, 3, 2005), FechaDMA(15, 2, 2005), -1},
        {"one year backwards", FechaDMA(15, 3, 2005), FechaDMA(20, 3, 2004), -1},
        {"one year and a month backwards", FechaDMA(15, 3, 2005), FechaDMA(15, 2, 2004), -2},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.esperados, AniosCumplidos(caso.nacimiento, caso.dia)) << caso.titulo;
    }
}

TEST(DiasDelMes, KnowsLeapYears) {
    EXPECT_EQ(29, DiasDelMes(FechaDMA(1, 2, 2004)));
    EXPECT_EQ(28, DiasDelMes(FechaDMA(1, 2, 2005)));
    EXPECT_EQ(28, DiasDelMes(FechaDMA(1, 2, 1900)));
    EXPECT_EQ(31, DiasDelMes(FechaDMA(31, 12, 2005)));
    EXPECT_EQ(30, DiasDelMes(FechaDMA(1, 9, 2005)));
}

}  // namespace
}  // namespace orvemo
