#include "benefits/desempleo.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::desempleo {
namespace {

/// A worker of 40 with 720 days and a base of 40 euros, in time, on a Monday.
RegistroDesempleo casoTipo() {
    RegistroDesempleo caso;
    caso.Edad = 40;
    caso.Fecha_ = FechaDMA(6, 6, 2005);
    caso.fIni = FechaDMA(6, 6, 2005);
    caso.Suma = 7200;
    caso.Dias = 720;
    return caso;
}

std::string conclusion(const RegistroDesempleo& caso) {
    Dictamen dictamen;
    CalculaDesempleo(caso, dictamen);
    return dictamen.Conclusion();
}

struct Supuesto {
    const char* historia;
    void (*prepara)(RegistroDesempleo&);
    bool derecho;
    const char* conclusion;
};

const Supuesto kSupuestos[] = {
    {"two stretches: 70 % of 40 is 28, 60 % is 24, both within the limits", [](RegistroDesempleo&) {}, true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 240 días de prestación.\r\n"
     "La base reguladora diaria es de 40,00 €.\r\n"
     "Los primeros 180 días tendrá una prestación de 28,00 € diarios.\r\n"
     "A partir del día 181 la prestación será de 24,00 € diarios.\r\n"},
    {"540 days give 180: one amount, no second stretch", [](RegistroDesempleo& c) { c.Dias = 540; }, true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 180 días de prestación.\r\n"
     "La base reguladora diaria es de 40,00 €.\r\n"
     "El importe de la prestación es de 28,00 € diarios.\r\n"},
    {"at 65 the retirement pension takes over, whatever was contributed",
     [](RegistroDesempleo& c) {
         c.Edad = 65;
         c.Dias = 2160;
     },
     false,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "El solicitante ha cumplido la edad ordinaria de jubilación por lo que\r\n"
     "no le corresponde prestación por desempleo.\r\n"
     "En su lugar debe solicitar la pensión de jubilación que pueda corresponderle."},
    {"359 days are not enough",
     [](RegistroDesempleo& c) {
         c.Edad = 64;
         c.Dias = 359;
     },
     false,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Debe haber cumplido 12 meses de cotización en los últimos 6 años.\r\n"
     "No tiene derecho a prestación.\r\n"
     "Puede estudiar la posibilidad de obtener el subsidio por desempleo.\r\n"},
    {"no bases at all: the floor without children, 14.616 a day, in both stretches",
     [](RegistroDesempleo& c) { c.Suma = 0; }, true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 240 días de prestación.\r\n"
     "La base reguladora diaria es de 0,00 €.\r\n"
     "La prestación diaria para los primeros 180 días es inferior a la mínima, por lo que se toma ésta.\r\n"
     "Los primeros 180 días tendrá una prestación de 14,62 € diarios.\r\n"
     "La prestación diaria para los restantes 120 días es inferior a la mínima, por lo que se toma ésta.\r\n"
     "A partir del día 181 la prestación será de 14,62 € diarios.\r\n"},
    {"half a working week, two children: ceilings halved to 20.55; 720 days still called 120",
     [](RegistroDesempleo& c) {
         c.Parcial = 1;
         c.Horas = 20;
         c.Hijos = 2;
         c.Dias = 2160;
         c.Suma = 9000;
     },
     true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 720 días de prestación.\r\n"
     "La base reguladora diaria es de 50,00 €.\r\n"
     "Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,\r\n"
     "equivalentes a 50%, por ser contrato a tiempo parcial.\r\n"
     "La prestación diaria para los primeros 180 días supera la máxima, por lo que se toma ésta.\r\n"
     "Los primeros 180 días tendrá una prestación de 20,55 € diarios.\r\n"
     "La prestación diaria para los restantes 120 días supera la máxima, por lo que se toma ésta.\r\n"
     "A partir del día 181 la prestación será de 20,55 € diarios.\r\n"},
    {"35 hours: the share has a decimal, 87,5 %; one child, floor 17.11, ceiling 31.97",
     [](RegistroDesempleo& c) {
         c.Parcial = 1;
         c.Horas = 35;
         c.Hijos = 1;
         c.Suma = 3600;
     },
     true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 240 días de prestación.\r\n"
     "La base reguladora diaria es de 20,00 €.\r\n"
     "Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,\r\n"
     "equivalentes a 87,5%, por ser contrato a tiempo parcial.\r\n"
     "La prestación diaria para los primeros 180 días es inferior a la mínima, por lo que se toma ésta.\r\n"
     "Los primeros 180 días tendrá una prestación de 17,11 € diarios.\r\n"
     "La prestación diaria para los restantes 120 días es inferior a la mínima, por lo que se toma ésta.\r\n"
     "A partir del día 181 la prestación será de 17,11 € diarios.\r\n"},
    {"asked for fifteen days after a Monday: sixteen days lost, the amounts as they were",
     [](RegistroDesempleo& c) {
         c.Dias = 360;
         c.Fecha_ = FechaDMA(21, 6, 2005);
     },
     true,
     "El interesado desea solicitar una prestación de desempleo.\r\n"
     "Tiene derecho a 120 días de prestación.\r\n"
     "La base reguladora diaria es de 40,00 €.\r\n"
     "El importe de la prestación es de 28,00 € diarios.\r\n"
     "La solicitud ha sido hecha fuera del plazo de 15 días por lo que pierde la\r\n"
     "prestación correspondiente a 16 días.\r\n"},
};

TEST(CalculaDesempleo, TellsTheWholeStoryOfEachCase) {
    for (const Supuesto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        RegistroDesempleo caso = casoTipo();
        s.prepara(caso);
        Dictamen dictamen;
        CalculaDesempleo(caso, dictamen);
        EXPECT_EQ(dictamen.ConDerecho, s.derecho);
        EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
    }
}

TEST(CalculaDesempleo, LimitsGoByChildren) {
    const struct {
        int hijos;
        double suma;
        const char* primera;
    } filas[] = {{0, 90000, "31,97"}, {1, 90000, "36,54"}, {2, 90000, "41,11"}, {3, 90000, "41,11"},
                 {0, 1, "14,62"},     {1, 1, "19,55"},     {2, 1, "19,55"}};
    for (const auto& fila : filas) {
        RegistroDesempleo caso = casoTipo();
        caso.Dias = 360;
        caso.Hijos = fila.hijos;
        caso.Suma = fila.suma;
        const std::string linea =
            std::string{"El importe de la prestación es de "} + fila.primera + " € diarios.";
        EXPECT_NE(conclusion(caso).find(linea), std::string::npos) << conclusion(caso);
    }
}

TEST(CalculaDesempleo, OnlyAMarkedContractOfOneToThirtyNineHoursIsPartTime) {
    for (const auto& [parcial, horas] : {std::pair{1, 0}, {1, 40}, {0, 20}, {2, 20}, {1, -5}}) {
        RegistroDesempleo caso = casoTipo();
        caso.Parcial = parcial;
        caso.Horas = horas;
        EXPECT_EQ(conclusion(caso).find("parte proporcional"), std::string::npos) << parcial << ' ' << horas;
    }
}

TEST(CalculaDesempleo, AnAmountPastTheRangeFailsWithTheLinesSoFar) {
    RegistroDesempleo caso = casoTipo();
    caso.Suma = 1e12;
    Dictamen dictamen;
    EXPECT_THROW(CalculaDesempleo(caso, dictamen), DesbordeNumerico);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_EQ(dictamen.Conclusion(),
              "El interesado desea solicitar una prestación de desempleo.\r\n"
              "Tiene derecho a 240 días de prestación.\r\n");
}

TEST(DiasPrestacion, GoesByTheBands) {
    const struct {
        int dias, prestacion;
    } filas[] = {{-1, 0},     {359, 0},    {360, 120},  {539, 120},  {540, 180},  {720, 240},
                 {900, 300},  {1079, 300}, {1080, 360}, {1260, 420}, {1440, 480}, {1620, 540},
                 {1799, 540}, {1800, 600}, {1980, 660}, {2159, 660}, {2160, 720}, {9999, 720}};
    for (const auto& fila : filas) EXPECT_EQ(DiasPrestacion(fila.dias), fila.prestacion) << fila.dias;
}

TEST(DiasFueraPlazo, LooksAtTheFirstDayAlone) {
    const struct {
        const char* historia;
        Fecha desde, hasta;
        int dias;
    } filas[] = {
        {"Monday to the fifteenth day after, weekends counted", FechaDMA(6, 6, 2005), FechaDMA(21, 6, 2005),
         16},
        {"a Saturday, however late", FechaDMA(4, 6, 2005), FechaDMA(4, 6, 2006), 0},
        {"a Sunday", FechaDMA(5, 6, 2005), FechaDMA(30, 6, 2005), 0},
        {"25 December of a weekday", FechaDMA(25, 12, 2003), FechaDMA(25, 12, 2004), 0},
        {"2 January of a weekday", FechaDMA(2, 1, 2004), FechaDMA(2, 2, 2004), 0},
        {"1 January is no holiday here", FechaDMA(1, 1, 2004), FechaDMA(31, 1, 2004), 31},
        {"one day", FechaDMA(6, 6, 2005), FechaDMA(6, 6, 2005), 1},
        {"asked for before", FechaDMA(6, 6, 2005), FechaDMA(5, 6, 2005), 0},
    };
    for (const auto& fila : filas) {
        EXPECT_EQ(DiasFueraPlazo(fila.desde, fila.hasta), fila.dias) << fila.historia;
    }
}

}  // namespace
}  // namespace orvemo::desempleo
