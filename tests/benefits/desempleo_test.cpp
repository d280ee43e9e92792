#include "benefits/desempleo/desempleo.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::desempleo {
namespace {

using Caso = RegistroDesempleo;

/// A worker of 40 with 720 days and a base of 40 euros, in time, on a Monday.
Caso casoTipo() {
    Caso caso;
    caso.Edad = 40;
    caso.Fecha_ = caso.fIni = FechaDMA(6, 6, 2005);
    caso.Suma = 7200;
    caso.Dias = 720;
    return caso;
}

Caso deEdad(int Edad, int Dias) {
    Caso caso = casoTipo();
    caso.Edad = Edad;
    caso.Dias = Dias;
    return caso;
}

Caso conBases(double Suma, int Hijos, int Dias = 720) {
    Caso caso = casoTipo();
    caso.Suma = Suma;
    caso.Hijos = Hijos;
    caso.Dias = Dias;
    return caso;
}

Caso aTiempoParcial(Caso caso, int Horas, int Parcial = 1) {
    caso.Parcial = Parcial;
    caso.Horas = Horas;
    return caso;
}

Caso pedidaElDia(int dia) {
    Caso caso = deEdad(40, 360);
    caso.Fecha_ = FechaDMA(dia, 6, 2005);
    return caso;
}

using Texto = std::string;

const Texto kSolicita = "El interesado desea solicitar una prestación de desempleo.\r\n";
const Texto kSubsidio = "Puede estudiar la posibilidad de obtener el subsidio por desempleo.\r\n";

Texto derecho(const Texto& dias) {
    return kSolicita + "Tiene derecho a " + dias + " días de prestación.\r\n";
}
Texto base(const Texto& euros) {
    return "La base reguladora diaria es de " + euros + " €.\r\n";
}
Texto parcial(const Texto& parte) {
    return "Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,\r\nequivalentes a " +
           parte + "%, por ser contrato a tiempo parcial.\r\n";
}
Texto maxima(const Texto& dias) {
    return "La prestación diaria para los " + dias + " días supera la máxima, por lo que se toma ésta.\r\n";
}
Texto minima(const Texto& dias) {
    return "La prestación diaria para los " + dias +
           " días es inferior a la mínima, por lo que se toma ésta.\r\n";
}
Texto unica(const Texto& euros) {
    return "El importe de la prestación es de " + euros + " € diarios.\r\n";
}
Texto primera(const Texto& euros) {
    return "Los primeros 180 días tendrá una prestación de " + euros + " € diarios.\r\n";
}
Texto segunda(const Texto& euros) {
    return "A partir del día 181 la prestación será de " + euros + " € diarios.\r\n";
}

struct Supuesto {
    const char* historia;
    Caso caso;
    bool derecho;
    Texto conclusion;
};

const Supuesto kSupuestos[] = {
    {"two stretches: 70 % of 40 is 28, 60 % is 24, both within the limits", casoTipo(), true,
     derecho("240") + base("40,00") + primera("28,00") + segunda("24,00")},
    {"540 days give 180: one amount, no second stretch", deEdad(64, 540), true,
     derecho("180") + base("40,00") + unica("28,00")},
    {"at 65 the retirement pension takes over, whatever was contributed", deEdad(65, 2160), false,
     kSolicita + "El solicitante ha cumplido la edad ordinaria de jubilación por lo que\r\n"
                 "no le corresponde prestación por desempleo.\r\n"
                 "En su lugar debe solicitar la pensión de jubilación que pueda corresponderle."},
    {"359 days are not enough", deEdad(64, 359), false,
     kSolicita +
         "Debe haber cumplido 12 meses de cotización en los últimos 6 años.\r\n"
         "No tiene derecho a prestación.\r\n" +
         kSubsidio},
    {"no bases at all: the floor without children in both stretches", conBases(0, 0), true,
     derecho("240") + base("0,00") + minima("primeros 180") + primera("14,62") + minima("restantes 120") +
         segunda("14,62")},
    {"the floor with a child: 19.5489", conBases(1, 1, 360), true,
     derecho("120") + base("0,01") + minima("primeros 180") + unica("19,55")},
    {"with three the same", conBases(1, 3, 360), true,
     derecho("120") + base("0,01") + minima("primeros 180") + unica("19,55")},
    {"the ceiling without children: 31.9725", conBases(90000, 0, 360), true,
     derecho("120") + base("500,00") + maxima("primeros 180") + unica("31,97")},
    {"with one: 36.54", conBases(90000, 1, 360), true,
     derecho("120") + base("500,00") + maxima("primeros 180") + unica("36,54")},
    {"with two or more: 41.1075", conBases(90000, 3, 360), true,
     derecho("120") + base("500,00") + maxima("primeros 180") + unica("41,11")},
    {"28 of 40 is 70 %, 24 is 60 %: the floor of the second stretch alone", conBases(4320, 0), true,
     derecho("240") + base("24,00") + primera("16,80") + minima("restantes 120") + segunda("14,62")},
    {"half a week, two children: 20.55; 720 days, and the rest is still called 120",
     aTiempoParcial(conBases(9000, 2, 2160), 20), true,
     derecho("720") + base("50,00") + parcial("50") + maxima("primeros 180") + primera("20,55") +
         maxima("restantes 120") + segunda("20,55")},
    {"35 hours: the share has a decimal; one child, floor 17.11", aTiempoParcial(conBases(3600, 1), 35), true,
     derecho("240") + base("20,00") + parcial("87,5") + minima("primeros 180") + primera("17,11") +
         minima("restantes 120") + segunda("17,11")},
    {"fifteen days after a Monday: sixteen lost, the amounts as they were", pedidaElDia(21), true,
     derecho("120") + base("40,00") + unica("28,00") +
         "La solicitud ha sido hecha fuera del plazo de 15 días por lo que pierde la\r\n"
         "prestación correspondiente a 16 días.\r\n"},
    {"fourteen days after: fifteen, in time", pedidaElDia(20), true,
     derecho("120") + base("40,00") + unica("28,00")},
};

TEST(CalculaDesempleo, TellsTheWholeStoryOfEachCase) {
    for (const Supuesto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        Dictamen dictamen;
        dictamen.linea("what an earlier case left");
        CalculaDesempleo(s.caso, dictamen);
        EXPECT_EQ(dictamen.ConDerecho, s.derecho);
        EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
    }
}

TEST(CalculaDesempleo, OnlyAMarkedContractOfOneToThirtyNineHoursIsPartTime) {
    for (const auto& [marca, horas] : {std::pair{1, 0}, {1, 40}, {0, 20}, {2, 20}, {1, -5}}) {
        Dictamen dictamen;
        CalculaDesempleo(aTiempoParcial(casoTipo(), horas, marca), dictamen);
        EXPECT_EQ(dictamen.Conclusion(), kSupuestos[0].conclusion) << marca << ' ' << horas;
    }
}

TEST(CalculaDesempleo, AnAmountPastTheRangeFailsWithTheLinesSoFar) {
    Dictamen dictamen;
    EXPECT_THROW(CalculaDesempleo(conBases(1e12, 0), dictamen), DesbordeNumerico);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_EQ(dictamen.Conclusion(), derecho("240"));
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
