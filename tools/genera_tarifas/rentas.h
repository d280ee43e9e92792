#pragma once

#include <array>

#include "capital/tarifas/ficheros_tarifa.h"
#include "genera_tarifas/mortalidad.h"

namespace orvemo::tarifas {

/// How many times the mortality of long-standing invalids is taken in each of the years 0 to 6 of an
/// invalidity.
using MortalidadReciente = std::array<double, 7>;

/// What is chosen, and not read from a table of mortality. See docs/tariffs.md.
struct Hipotesis {
    double interes = 0.05;  ///< effective, a year
    MortalidadReciente reciente{1, 1, 1, 1, 1, 1, 1};
};

/// What an annuity of 1 a year is worth, paid by months in arrears, for each of the nine tariffs. Independent
/// lives, whole ages.
class Rentas {
  public:
    explicit Rentas(const Mortalidad& mortalidad, const Hipotesis& hipotesis = {})
        : mortalidad_{mortalidad}, hipotesis_{hipotesis} {}

    /// For life.
    [[nodiscard]] double Tarifa1(int x) const;
    /// For the life of an invalid, long since invalid.
    [[nodiscard]] double Tarifa2(int x) const;
    /// For the life of an invalid of x + d who is in his year `d` of invalidity.
    [[nodiscard]] double Tarifa3(int x, int d) const;
    /// To a child up to the limit, while alive.
    [[nodiscard]] double Tarifa4(int x, capital::TopeHijo tope) const;
    /// For life, from n years later on.
    [[nodiscard]] double Tarifa5(int x, int n) const;
    /// While a widow and a child both live, until the child is 21.
    [[nodiscard]] double Tarifa6(int x, int y) const;
    /// While two children both live, until the elder is 23.
    [[nodiscard]] double Tarifa7(int x, int y) const;
    /// While two people both live.
    [[nodiscard]] double Tarifa8(int x, int y) const;
    /// Certain, up to the limit of a child of x.
    [[nodiscard]] double Tarifa9(int x, capital::TopeHijo tope) const;

  private:
    template <typename Permanencia>
    [[nodiscard]] double renta(int anios, Permanencia permanece) const;

    Mortalidad mortalidad_;
    Hipotesis hipotesis_;
};

}  // namespace orvemo::tarifas
