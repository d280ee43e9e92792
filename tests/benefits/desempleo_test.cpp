#include "benefits/desempleo/desempleo.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::desempleo {
namespace {

/// A worker of 40 with 720 days and a base of 40 euros, in time.
RegistroDesempleo casoTipo() {
    RegistroDesempleo caso;
    caso.Edad = 40;
    caso.Fecha_ = caso.fIni = FechaDMA(6, 6, 2005);
    caso.Suma = 7200;
    caso.Dias = 720;
    return caso;
}

std::string conclusionDe(const RegistroDesempleo& caso) {
    Dictamen dictamen;
    CalculaDesempleo(caso, dictamen);
    return dictamen.Conclusion();
}

TEST(CalculaDesempleo, OnlyAMarkedContractOfOneToThirtyNineHoursIsPartTime) {
    for (const auto& [marca, horas] : {std::pair{1, 0}, {1, 40}, {0, 20}, {2, 20}, {1, -5}}) {
        RegistroDesempleo caso = casoTipo();
        caso.Parcial = marca;
        caso.Horas = horas;
        EXPECT_EQ(conclusionDe(caso), conclusionDe(casoTipo())) << marca << ' ' << horas;
    }
}

TEST(CalculaDesempleo, AnAmountPastTheRangeFailsWithTheLinesSoFar) {
    RegistroDesempleo caso = casoTipo();
    caso.Suma = 1e12;
    Dictamen dictamen;
    EXPECT_THROW(CalculaDesempleo(caso, dictamen), DesbordeNumerico);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_TRUE(dictamen.Conclusion().ends_with("Tiene derecho a 240 días de prestación.\r\n"));
}

TEST(DiasPrestacion, GoesByTheBands) {
    const std::pair<int, int> filas[] = {
        {-1, 0},     {359, 0},    {360, 120},  {539, 120},  {540, 180},  {719, 180},
        {720, 240},  {899, 240},  {900, 300},  {1079, 300}, {1080, 360}, {1259, 360},
        {1260, 420}, {1439, 420}, {1440, 480}, {1619, 480}, {1620, 540}, {1799, 540},
        {1800, 600}, {1979, 600}, {1980, 660}, {2159, 660}, {2160, 720}, {9999, 720},
    };
    for (const auto& [dias, prestacion] : filas) EXPECT_EQ(DiasPrestacion(dias), prestacion) << dias;
}

TEST(DiasFueraPlazo, LooksAtTheFirstDayAlone) {
    const auto desde = [](int dia, int mes, int anio) { return FechaDMA(dia, mes, anio); };
    const struct {
        const char* historia;
        Fecha desde;
        int dias;  // up to the twentieth day after, both included
    } filas[] = {
        {"a Monday", desde(6, 6, 2005), 21},         {"a Friday", desde(10, 6, 2005), 21},
        {"a Saturday", desde(4, 6, 2005), 0},        {"a Sunday", desde(5, 6, 2005), 0},
        {"1 January counts", desde(1, 1, 2004), 21}, {"2 January", desde(2, 1, 2004), 0},
        {"6 January", desde(6, 1, 2004), 0},         {"25 July", desde(25, 7, 2005), 0},
        {"12 October", desde(12, 10, 2005), 0},      {"6 December", desde(6, 12, 2005), 0},
        {"8 December", desde(8, 12, 2005), 0},       {"25 December", desde(25, 12, 2003), 0},
    };
    for (const auto& fila : filas) {
        EXPECT_EQ(DiasFueraPlazo(fila.desde, fila.desde + std::chrono::days{20}), fila.dias) << fila.historia;
    }
    EXPECT_EQ(DiasFueraPlazo(desde(6, 6, 2005), desde(6, 6, 2005)), 1);
    EXPECT_EQ(DiasFueraPlazo(desde(6, 6, 2005), desde(5, 6, 2005)), 0) << "asked for before";
}

}  // namespace
}  // namespace orvemo::desempleo
