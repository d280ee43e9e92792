#include "benefits/riesgo/riesgo_embarazo.h"

#include <gtest/gtest.h>

#include <string>

namespace orvemo::riesgo_embarazo {
namespace {

using Caso = RegistroRiesgo;
using Texto = std::string;

enum : int { kOrdinario, kTiempoParcial, kAutonomo, kAgrario };
enum : int { kDiaria, kMensual };

const Fecha kHaceAnios = FechaDMA(1, 1, 1990);
const Fecha kDiezDias = FechaDMA(15, 6, 2005);
const Fecha kDieciseisSemanas = FechaDMA(25, 9, 2005);

/// From 6 June 2005, by the month.
Caso deBaja(int Situacion, double Bccant, Fecha fAlta = kHaceAnios, Fecha f2 = kDiezDias) {
    Caso caso;
    caso.Situacion = Situacion;
    caso.fAlta = fAlta;
    caso.f1 = FechaDMA(6, 6, 2005);
    caso.f2 = f2;
    caso.DM = kMensual;
    caso.Bccant = Bccant;
    return caso;
}

/// Joined on the first of the month of the leave: 1200 euros a month and extra pays of 1200.
Caso enElMesDeAlta(int Situacion, int DM, int Extra) {
    Caso caso = deBaja(Situacion, 1500, FechaDMA(1, 6, 2005));
    caso.DM = DM;
    caso.Bact = caso.IExtra = 1200;
    caso.Extra = Extra;
    return caso;
}

Caso altaEnFebreroBisiesto() {
    Caso caso = enElMesDeAlta(kOrdinario, kDiaria, 0);
    caso.fAlta = FechaDMA(1, 2, 2004);
    caso.f1 = FechaDMA(2, 2, 2004);
    caso.f2 = FechaDMA(11, 2, 2004);
    caso.Bact = 1400;
    return caso;
}

/// Part time, 40 euros a day.
Caso aTiempoParcial(Fecha fAlta, int D12, Fecha f2 = kDiezDias) {
    Caso caso = deBaja(kTiempoParcial, 0, fAlta, f2);
    caso.B12 = 3600;
    caso.D12 = D12;
    return caso;
}

const Texto kInicio = "El interesado/a desea solicitar una prestación por Riesgo durante el Embarazo.\r\n";
const Texto kCumple =
    "El trabajador cumple el requisito de afiliación y alta en la Seguridad Social,\r\n"
    "en el momento de producirse el hecho causante, habiendo cotizado, asimismo,\r\n"
    "un mínimo de 180 días, dentro de los últimos 5 años.\r\n";
const Texto kDebeJustificar =
    "El trabajador debe justificar un mínimo de 180 días de cotización,\r\ndentro de los últimos 5 años.\r\n";
const Texto kFin = "El pago de esta indemnización corre a cargo de la Seguridad Social.\r\n";

Texto paga(const Texto& base, const Texto& dias, const Texto& importe) {
    return "Base Reguladora para la prestación:" + base +
           " €/diarios\r\nEl número de días de prestación es de " + dias +
           "\r\nLa indemnización de 75% es de " + importe + " €\r\n" + kFin;
}
Texto justifica(const Texto& anuales, const Texto& dias, const Texto& cumple, const Texto& plazo) {
    return "La trabajadora justifica " + anuales + " días de cotización al año, es decir " + dias +
           " días desde la fecha de alta\r\n" + cumple +
           " el mínimo de 180 días de cotización dentro de los últimos " + plazo + " días.\r\n";
}
Texto pagaParcial(const Texto& dias, const Texto& importe) {
    return "Base Reguladora para la prestación:40,00 €/diarios\r\nEl número de días de prestación es de " +
           dias + "\r\nEl importe total de la prestación de 75% de base reguladora es de " + importe +
           " €\r\n" + kFin;
}

const struct {
    const char* historia;
    Caso caso;
    Texto conclusion;  // after the first line
} kSupuestos[] = {
    {"ten days at 30 euros", deBaja(kOrdinario, 1200), kCumple + paga("40,00", "10", "300,00")},
    {"112 days: this amount has no thousands mark", deBaja(kOrdinario, 1200, kHaceAnios, kDieciseisSemanas),
     kCumple + paga("40,00", "112", "3360,00")},
    {"180 days since joining are enough", deBaja(kOrdinario, 1200, FechaDMA(8, 12, 2004)),
     kCumple + paga("40,00", "10", "300,00")},
    {"179 are to be justified, and the amounts follow", deBaja(kOrdinario, 1200, FechaDMA(9, 12, 2004)),
     kDebeJustificar + paga("40,00", "10", "300,00")},
    {"self-employed: the base isn't rounded, 75 % of 1000.19 / 30 is 25.00", deBaja(kAutonomo, 1000.19),
     kCumple + paga("33,34", "10", "250,00")},
    {"an employee's base is: 75 % of 33.34 is 25.01", deBaja(kOrdinario, 1000.19),
     kCumple + paga("33,34", "10", "250,10")},
    {"it ends nine days before it begins: nothing stops it",
     deBaja(kOrdinario, 1200, kHaceAnios, FechaDMA(28, 5, 2005)), kCumple + paga("40,00", "-8", "-240,00")},

    {"the month of joining, by the month: (1200 + 2400 / 12) / 30", enElMesDeAlta(kOrdinario, kMensual, 2),
     kDebeJustificar + paga("46,67", "10", "350,00")},
    {"by the day in June: (1200 + 2400 / 12.1667) / 30 = 46.58, 34.94 a day",
     enElMesDeAlta(kOrdinario, kDiaria, 2), kDebeJustificar + paga("46,58", "10", "349,40")},
    {"no extra pays, whatever their amount", enElMesDeAlta(kOrdinario, kMensual, 0),
     kDebeJustificar + paga("40,00", "10", "300,00")},
    {"February of a leap year has 28 days: 1400 / 28", altaEnFebreroBisiesto(),
     kDebeJustificar + paga("50,00", "10", "375,00")},
    {"a farm worker has no such month: 1500 / 30", enElMesDeAlta(kAgrario, kMensual, 2),
     kDebeJustificar + paga("50,00", "10", "375,00")},

    {"part time, 371 days with the first one: 186 justified", aTiempoParcial(FechaDMA(1, 6, 2004), 913),
     justifica("182", "186", "cumpliendo", "2738") + pagaParcial("10", "300,00")},
    {"180 days with the first one", aTiempoParcial(FechaDMA(9, 12, 2004), 913),
     justifica("182", "90", "cumpliendo", "2738") + pagaParcial("10", "300,00")},
    {"179: she doesn't comply and is paid, with a thousands mark here",
     aTiempoParcial(FechaDMA(10, 12, 2004), 913, kDieciseisSemanas),
     justifica("182", "90", "y no cumple", "2738") + pagaParcial("112", "3.360,00")},
    {"no hours: ten years looked at, nothing justified", aTiempoParcial(kHaceAnios, 0),
     justifica("0", "0", "cumpliendo", "3650") + pagaParcial("10", "300,00")},
    {"fifteen years at full hours: 1825 days count", aTiempoParcial(kHaceAnios, 1826),
     justifica("365", "1826", "cumpliendo", "1825") + pagaParcial("10", "300,00")},
    {"two full years of hours and one more: nothing is looked at", aTiempoParcial(kHaceAnios, 3653),
     justifica("730", "0", "y no cumple", "0") + pagaParcial("10", "300,00")},
};

TEST(CalculaRiesgoEmbarazo, TellsTheWholeStoryOfEachCaseAndRefusesNobody) {
    for (const auto& s : kSupuestos) {
        SCOPED_TRACE(s.historia);
        Dictamen dictamen;
        dictamen.linea("what an earlier case left");
        CalculaRiesgoEmbarazo(s.caso, dictamen);
        EXPECT_EQ(dictamen.Conclusion(), kInicio + s.conclusion);
        EXPECT_TRUE(dictamen.ConDerecho);
    }
}

}  // namespace
}  // namespace orvemo::riesgo_embarazo
