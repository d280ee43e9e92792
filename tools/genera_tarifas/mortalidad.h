#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace orvemo::tarifas {

/// The last age of the mortality tables: nobody passes it.
inline constexpr int kUltimaEdad = 108;
inline constexpr int kPrimeraEdadViudedad = 17;
inline constexpr int kPrimeraEdadIncapacidad = 16;

/// For each age, the chance of dying before the next.
class TablaMortalidad {
  public:
    using Probabilidades = std::array<double, kUltimaEdad + 1>;

    TablaMortalidad() = default;
    explicit TablaMortalidad(const Probabilidades& q) : q_{q} {}

    /// From age 0 on; certain past the last age.
    [[nodiscard]] double q(int edad) const {
        return edad > kUltimaEdad ? 1 : q_.at(static_cast<std::size_t>(edad));
    }

  private:
    Probabilidades q_{};
};

/// The mortality of those whose pensions are bought.
struct Mortalidad {
    TablaMortalidad vidas;      ///< widows, and everyone who has a pension for life; under 17, as children
    TablaMortalidad hijos;      ///< children with a pension up to an age
    TablaMortalidad invalidos;  ///< pensioners of invalidity; under 16, as children
};

/// Reads "mortalidad.csv": a row of names, then "edad,qx,lx,qx_jubilacion,qx_incapacidad,qx_viudedad,…" for
/// each age from 0 to 108. Throws FicheroMalFormado for a gap, a chance that is none, and a table whose last
/// age somebody passes.
[[nodiscard]] Mortalidad LeeMortalidad(std::string csv);

}  // namespace orvemo::tarifas
