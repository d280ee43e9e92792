#pragma once

#include <cstddef>

#include "capital/tarifas/tarifas.h"

namespace orvemo::capital {

/// Whole ages of those who have a pension of death, and the parts of it that two widows have.
struct Beneficiarios {
    int a = 0, b = 0;         ///< first widow, second widow
    int c = 0, e = 0, f = 0;  ///< first, second and third of the others
    double P1 = 1, P2 = 0;    ///< by days married
};

/// What the pension of an invalid costs for each euro of its base: `x` his age at the accident, `d` the years
/// until the declaration. 0 where the place in the list of causes isn't of an invalidity.
[[nodiscard]] double FactorInvalidez(const Tarifas& tarifas, int Situacion, int x, int d);

/// What the pensions of a death cost for each euro of their base, by the kind of beneficiaries, 0 to 16.
/// Throws std::out_of_range for another.
[[nodiscard]] double FactorMuerte(const Tarifas& tarifas, std::size_t papel,
                                  const Beneficiarios& beneficiarios);

}  // namespace orvemo::capital
