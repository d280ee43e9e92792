#pragma once

namespace orvemo::pensiones {

// Limits of the contributory pensions of 2005, euros a month in fourteen payments.

inline constexpr double kPensionMaxima = 2159.12;

/// The least pension, with a dependent spouse and without.
struct Minimos {
    double conConyuge, sinConyuge;

    [[nodiscard]] constexpr double segun(bool conyuge) const { return conyuge ? conConyuge : sinConyuge; }
};
inline constexpr Minimos kMinimosAntesDe65{489.72, 408.78};
inline constexpr Minimos kMinimosDesde65{524.01, 438.71};

}  // namespace orvemo::pensiones
