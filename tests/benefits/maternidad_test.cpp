#include "benefits/maternidad/maternidad.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"

namespace orvemo::maternidad {
namespace {

using Caso = RegistroMaternidad;
using Texto = std::string;

/// Sixteen weeks from 6 June 2005 at 40 euros a day, by the month.
Caso descanso(int Situacion = 0, double Bccant = 1200, Fecha f2 = FechaDMA(25, 9, 2005)) {
    Caso caso;
    caso.Situacion = Situacion;
    caso.fAlta = FechaDMA(1, 2, 2000);
    caso.f1 = FechaDMA(6, 6, 2005);
    caso.f2 = f2;
    caso.DM = 1;
    caso.Bccant = Bccant;
    return caso;
}

/// Part time, 20 euros a day.
Caso aTiempoParcial(Fecha fAlta, int D12) {
    Caso caso = descanso(1);
    caso.fAlta = fAlta;
    caso.B12 = 7300;
    caso.D12 = D12;
    return caso;
}

/// A part of the working day from the seventh week on, or from that date.
Caso conJornadaReducida(int ptp, Fecha ftp = FechaDMA(18, 7, 2005)) {
    Caso caso = descanso();
    caso.jtpcnd = 1;
    caso.ptp = ptp;
    caso.ftp = ftp;
    return caso;
}

const Texto kInicio = "La interesada desea solicitar una prestación por maternidad.\r\n";
const Texto kCincoAnios =
    kInicio +
    "La trabajadora debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 "
    "años.\r\n";

Texto justifica(const Texto& anuales, const Texto& dias, const Texto& cumple, const Texto& plazo) {
    return kInicio + "La trabajadora justifica " + anuales + " días de cotización al año, es decir " + dias +
           " días desde la fecha de alta\r\n" + cumple +
           " el mínimo de 180 días de cotización dentro de los últimos " + plazo + " días.\r\n";
}
Texto entero(const Texto& base, const Texto& dias, const Texto& importe) {
    return "Base Reguladora para la prestación:" + base + " €\r\nEl número de días a subsidiar es de " +
           dias + "\r\nEl importe de la prestación es de " + importe + " €\r\n";
}
Texto primerPeriodo(const Texto& dias, const Texto& importe) {
    return kCincoAnios +
           "Base Reguladora para la prestación:40,00 €\r\n"
           "El número de días a subsidiar antes del inicio del contrato a T.P. es de " +
           dias + "\r\nEl importe de la prestación para este período es de " + importe + " €\r\n";
}
Texto segundoPeriodo(const Texto& base, const Texto& dias, const Texto& importe) {
    return "Base Reguladora reducida para la segunda prestación:" + base +
           " €\r\nDías durante los cuales recibirá esta prestación:" + dias +
           "\r\nEl importe de la prestación para este segundo período es de " + importe + " €\r\n";
}

const Fecha kHace370Dias = FechaDMA(1, 6, 2004);
const Fecha kHace180Dias = FechaDMA(8, 12, 2004);
const Fecha kHace179Dias = FechaDMA(9, 12, 2004);
const Fecha kHaceAnios = FechaDMA(1, 1, 1990);

struct Supuesto {
    const char* historia;
    Caso caso;
    bool jtpcnd;  // the box on the screen
    bool derecho;
    Texto conclusion;
};

const Supuesto kSupuestos[] = {
    {"sixteen weeks", descanso(), false, true, kCincoAnios + entero("40,00", "112", "4.480,00")},
    {"one day", descanso(0, 1200, FechaDMA(6, 6, 2005)), false, true,
     kCincoAnios + entero("40,00", "1", "40,00")},
    {"it ends before it begins: nothing stops it", descanso(0, 1200, FechaDMA(1, 6, 2005)), false, true,
     kCincoAnios + entero("40,00", "-4", "-160,00")},
    {"domestic employee: 1000 / 30 is rounded before the days are multiplied", descanso(4, 1000), false, true,
     kCincoAnios + entero("33,33", "112", "3.732,96")},

    {"part time, 370 days in the company: 182.6 a year, 185 in all", aTiempoParcial(kHace370Dias, 913), false,
     true, justifica("182", "185", "cumpliendo", "2738") + entero("20,00", "112", "2.240,00")},
    {"180 days in the company are enough, although they justify 90", aTiempoParcial(kHace180Dias, 913), false,
     true, justifica("182", "90", "cumpliendo", "2738") + entero("20,00", "112", "2.240,00")},
    {"179 are not: no amounts", aTiempoParcial(kHace179Dias, 913), false, false,
     justifica("182", "90", "y no cumple", "2738")},
    {"a full year of hours: five years looked at, and no more days than that",
     aTiempoParcial(kHaceAnios, 1826), false, true,
     justifica("365", "1826", "cumpliendo", "1825") + entero("20,00", "112", "2.240,00")},
    {"no hours at all: nothing justified and the right all the same", aTiempoParcial(kHace370Dias, 0), false,
     true, justifica("0", "0", "cumpliendo", "3650") + entero("20,00", "112", "2.240,00")},
    {"an hour over two full years: nothing is looked at", aTiempoParcial(kHace370Dias, 3653), false, false,
     justifica("730", "0", "y no cumple", "0")},
    {"eight hours over: less than nothing", aTiempoParcial(kHace370Dias, 3660), false, false,
     justifica("732", "-14", "y no cumple", "-7")},

    {"six weeks whole; ten weeks at 40 % of the base last 175 days", conJornadaReducida(60), true, true,
     primerPeriodo("42", "1.680,00") + segundoPeriodo("16,00", "175", "2.800,00")},
    {"the record tells so and the box is off", conJornadaReducida(60), false, true,
     kCincoAnios + entero("40,00", "112", "4.480,00")},
    {"0 %: the base and the days as they were", conJornadaReducida(0), true, true,
     primerPeriodo("42", "1.680,00") + segundoPeriodo("40,00", "70", "2.800,00")},
    {"98 %: 0.80 a day, days with their thousands mark", conJornadaReducida(98), true, true,
     primerPeriodo("42", "1.680,00") + segundoPeriodo("0,80", "3.500", "2.800,00")},
    {"reduced three days before the leave: less than nothing, and 287.5 days go up to 288",
     conJornadaReducida(60, FechaDMA(3, 6, 2005)), true, true,
     primerPeriodo("-3", "-120,00") + segundoPeriodo("16,00", "288", "4.608,00")},
};

TEST(CalculaMaternidad, TellsTheWholeStoryOfEachCase) {
    for (const Supuesto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        Dictamen dictamen;
        dictamen.linea("what an earlier case left");
        CalculaMaternidad(s.caso, {.jtpcnd = s.jtpcnd}, dictamen);
        EXPECT_EQ(dictamen.Conclusion(), s.conclusion);
        EXPECT_EQ(dictamen.ConDerecho, s.derecho);
    }
}

TEST(CalculaMaternidad, WhatCannotBeComputedFailsWithTheLinesSoFar) {
    Dictamen entera;
    EXPECT_THROW(CalculaMaternidad(conJornadaReducida(100), {.jtpcnd = true}, entera), DivisionPorCero);
    EXPECT_EQ(entera.Conclusion(), primerPeriodo("42", "1.680,00")) << "the whole working day done";
    Dictamen enorme;
    EXPECT_THROW(CalculaMaternidad(descanso(0, 21474836.48 * 30), {}, enorme), DesbordeNumerico);
    EXPECT_EQ(enorme.Conclusion(), kInicio) << "a base beyond 32 bits of cents";
    EXPECT_FALSE(enorme.ConDerecho);
}

}  // namespace
}  // namespace orvemo::maternidad
