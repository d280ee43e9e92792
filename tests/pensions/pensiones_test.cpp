#include "pensions/comun/pensiones.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "foundations/values/formatos.h"

namespace orvemo::pensiones {
namespace {

Periodo periodo(const char* desde, const char* hasta) {
    return {LeeFecha(desde), LeeFecha(hasta)};
}

TEST(MesAnterior, WalksBackOverTheYears) {
    struct Paso {
        const char* fecha;
        int k, anio, mes;
    };
    const Paso pasos[] = {{"15-06-2004", 5, 2004, 1},
                          {"15-06-2004", 6, 2003, 12},
                          {"01-01-2005", 1, 2004, 12},
                          {"31-12-2005", 180, 1990, 12}};
    for (const Paso& paso : pasos) {
        EXPECT_EQ(AnioDelMesAnterior(LeeFecha(paso.fecha), paso.k), paso.anio) << paso.fecha << paso.k;
        EXPECT_EQ(MesDelMesAnterior(LeeFecha(paso.fecha), paso.k), paso.mes) << paso.fecha << paso.k;
    }
    EXPECT_EQ(PrimeroDeMes(2005, 5), LeeFecha("01-05-2005"));
    EXPECT_EQ(MesesEntreFechas(LeeFecha("31-12-2004"), LeeFecha("01-01-2005")), 1);
    EXPECT_EQ(MesesEntreFechas(LeeFecha("01-03-2005"), LeeFecha("31-01-2004")), -14);
}

TEST(DiasCotizados, CutsAtTheFarEndOnly) {
    const Fecha fecha = LeeFecha("15-06-2005");
    const std::array dobles{periodo("01-01-2005", "11-01-2005"), periodo("06-01-2005", "11-01-2005")};
    EXPECT_EQ(DiasCotizados(dobles, fecha), 15) << "the last day isn't counted, what overlaps counts twice";
    const std::array largo{periodo("01-01-2005", "01-01-2006")};
    EXPECT_EQ(DiasCotizados(largo, fecha), 365) << "a period past the date counts whole";
    const std::array secular{periodo("01-01-1801", "01-01-2005")};
    EXPECT_EQ(DiasCotizados(secular, fecha), 36525 - 165) << "a hundred years, less the days since January";

    const std::array todo{periodo("01-01-1970", "15-06-2005")};
    EXPECT_EQ(DiasCotizados(todo, fecha, 15), 5478.75);
    EXPECT_EQ(DiasCotizados(todo, fecha, 100), 12949) << "a hundred are still years";
    EXPECT_EQ(DiasCotizados(todo, fecha, 101), 101) << "more than a hundred are days";
    const std::array alLimite{periodo("01-01-1970", "06-03-2005")};
    EXPECT_EQ(DiasCotizados(alLimite, fecha, 101), 0) << "ends on the very limit";
}

TEST(DiasSOVI, CountsEveryPeriodEvenBackwards) {
    const auto dias = [](const char* desde, const char* hasta) {
        return DiasSOVI(std::array{periodo(desde, hasta)});
    };
    EXPECT_EQ(dias("01-01-1939", "01-01-1941"), 366) << "from 1940 on";
    EXPECT_EQ(dias("01-12-1966", "31-12-1970"), 30) << "up to 1966";
    EXPECT_EQ(dias("01-01-1970", "01-01-1971"), -1097);
    EXPECT_EQ(dias("01-01-1938", "01-01-1939"), -365);
    EXPECT_EQ(DiasSOVI(std::array{periodo("01-01-1960", "01-01-1961"), periodo("01-01-1970", "01-01-1971")}),
              366 - 1097);
}

TEST(TextosDePeriodos, EachCountsTwelveMonthsInItsWay) {
    EXPECT_EQ(AniosMesesTexto(3, 5), "3 años y 5 meses");
    EXPECT_EQ(AniosMesesTexto(3, 12), "3 años y 11 meses");
    EXPECT_EQ(AniosMesesTexto(3, 0), "3 años");
    EXPECT_EQ(AniosMesesTexto(0, 12), "12 meses");
    EXPECT_EQ(AniosMesesTexto(0, 0), "0 meses");

    EXPECT_EQ(DiasATexto(1000), "2 años y 8 meses");
    EXPECT_EQ(DiasATexto(365), "1 años");
    EXPECT_EQ(DiasATexto(364), "11 meses");

    const auto texto = [](const char* desde, const char* hasta) {
        return PeriodoATexto(LeeFecha(desde), LeeFecha(hasta));
    };
    EXPECT_EQ(texto("15-03-1950", "15-03-2005"), "55 años");
    EXPECT_EQ(texto("15-03-1950", "14-03-2005"), "54 años y 12 meses") << "its month reached, its day not";
    EXPECT_EQ(texto("15-03-2005", "01-05-2005"), "2 meses");
}

TEST(SerieBases, GrewWithTheYears) {
    const std::array<std::array<int, 4>, 6> series{{{1998, 120, 3, 140},
                                                    {1999, 132, 3, 154},
                                                    {2000, 144, 3, 168},
                                                    {2001, 156, 4, 182},
                                                    {2002, 180, 4, 210},
                                                    {2040, 180, 4, 210}}};
    for (const auto& [anio, meses, pantallas, divisor] : series) {
        const SerieBases serie = SerieBasesDe(anio);
        EXPECT_EQ(serie.MesesBases, meses) << anio;
        EXPECT_EQ(serie.PantallasBases, pantallas) << anio;
        EXPECT_EQ(serie.DivisorBases, divisor) << anio;
    }
}

}  // namespace
}  // namespace orvemo::pensiones
