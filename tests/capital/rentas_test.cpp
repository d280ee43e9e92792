#include "genera_tarifas/rentas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "foundations/values/almacen.h"
#include "foundations/values/fallos.h"
#include "genera_tarifas/mortalidad.h"

namespace orvemo::tarifas {
namespace {

using enum capital::TopeHijo;
using Vive = std::function<double(int)>;

Vive una(const TablaMortalidad& tabla, int x) {
    return [&tabla, x](int j) { return 1 - tabla.q(x + j); };
}
Vive ambas(const Vive& x, const Vive& y) {
    return [=](int j) { return x(j) * y(j); };
}

/// The other road: from the last year back, a(j) = v p(j) (1 + a(j + 1)), and the same for what is left at
/// the end.
double haciaAtras(int anios, const Vive& vive) {
    double renta = 0, queda = 1;
    for (int j = anios - 1; j >= 0; --j) {
        renta = vive(j) / 1.05 * (1 + renta);
        queda = vive(j) / 1.05 * queda;
    }
    return anios <= 0 ? 0 : renta + 11.0 / 24 * (1 - queda);
}

void esperaIgual(double uno, double otro, const char* tarifa, int x, int y = 0) {
    EXPECT_NEAR(uno, otro, 1e-10) << tarifa << ' ' << x << ' ' << y;
}

/// The tables that the tariffs that ship are made from.
const std::string kCsv = DirectorioAplicacion{ORVEMO_FUENTES}.leeTodo("mortalidad.csv");
const Mortalidad kMortalidad = LeeMortalidad(kCsv);
const Rentas kRentas{kMortalidad};

TEST(Rentas, CadaTarifaSaleTambienPorRecurrencia) {
    const Mortalidad& m = kMortalidad;
    for (int x = 0; x <= 104; ++x) {
        esperaIgual(kRentas.Tarifa1(x), haciaAtras(109 - x, una(m.vidas, x)), "T1", x);
        esperaIgual(kRentas.Tarifa2(x), haciaAtras(109 - x, una(m.invalidos, x)), "T2", x);
        esperaIgual(kRentas.Tarifa4(x, Veintitres), haciaAtras(23 - x, una(m.hijos, x)), "T4 23", x);
        for (int d = 0; d <= 6; ++d) esperaIgual(kRentas.Tarifa3(x, d), kRentas.Tarifa2(x + d), "T3", x, d);
        for (int y = 0; y <= 23; ++y) {
            const auto vidas = ambas(una(m.vidas, x), una(m.hijos, y));
            const auto hijos = ambas(una(m.hijos, x), una(m.hijos, y));
            esperaIgual(kRentas.Tarifa6(x, y), haciaAtras(21 - y, vidas), "T6", x, y);
            esperaIgual(kRentas.Tarifa7(x, y), haciaAtras(23 - std::max(x, y), hijos), "T7", x, y);
            // What is paid from a day on and what is paid before it make the whole.
            esperaIgual(kRentas.Tarifa5(x, y) + haciaAtras(y, una(m.vidas, x)), kRentas.Tarifa1(x), "T5", x,
                        y);
        }
        for (int y = 0; y <= 104; ++y) {
            const auto dos = ambas(una(m.vidas, x), una(m.vidas, y));
            esperaIgual(kRentas.Tarifa8(x, y), haciaAtras(109 - std::max(x, y), dos), "T8", x, y);
            EXPECT_EQ(kRentas.Tarifa8(x, y), kRentas.Tarifa8(y, x));
        }
    }
    for (int x = 0; x < 21; ++x)
        esperaIgual(kRentas.Tarifa9(x, Veintiuno), (1 - std::pow(1.05, x - 21)) * (20 + 11.0 / 24), "T9", x);
}

TEST(Rentas, SinInteresSonLaEsperanzaDeVidaPublicada) {
    const Rentas rentas{kMortalidad, {.interes = 0}};
    // A life counts half a year for the one in which it ends; a pension by months, 11 months in 24.
    for (const auto& [x, vida] : {std::pair{17, 63.59}, {40, 42.55}, {65, 20.10}, {80, 8.87}, {100, 1.39}})
        EXPECT_NEAR(rentas.Tarifa1(x) + 1.0 / 24, vida, 0.005) << x;
    EXPECT_DOUBLE_EQ(rentas.Tarifa9(10, Veintiuno), 11);
}

/// Half of the invalids die each year, and twice as many in the second one: all of them.
TEST(Rentas, UnaInvalidezRecienteTieneSuPropiaMortalidad) {
    TablaMortalidad::Probabilidades mitad;
    mitad.fill(0.5);
    Mortalidad mortalidad;
    mortalidad.invalidos = TablaMortalidad{mitad};
    const Rentas rentas{mortalidad, {.reciente = {1, 2, 1, 1, 1, 1, 1}}};
    EXPECT_DOUBLE_EQ(rentas.Tarifa3(30, 0), 0.5 / 1.05 + 11.0 / 24);
    EXPECT_DOUBLE_EQ(rentas.Tarifa3(30, 1), 11.0 / 24);
    EXPECT_DOUBLE_EQ(rentas.Tarifa3(30, 2), rentas.Tarifa2(32));
}

TEST(LeeMortalidad, RechazaLoQueNoEsUnaTabla) {
    const auto con = [](const std::string& esto, const std::string& otro) {
        std::string csv = kCsv;
        return csv.replace(csv.find(esto), esto.size(), otro);
    };
    for (const auto& csv : {std::string{}, con("\n50,", "\n49,"), con("\n0,0.000198", "\n0,2"),
                            con("0.002526", ""), con("\n108,1", "\n108,0.9")}) {
        EXPECT_THROW((void)LeeMortalidad(csv), FicheroMalFormado);
    }
}

}  // namespace
}  // namespace orvemo::tarifas
