#pragma once

#include <cstdint>
#include <limits>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

/// A counter of 0 to 255 that never wraps: more days of leave than the month has are a failure and not some
/// other number of days. Sums and differences of two counters are counters; with a plain number they are
/// plain numbers, checked when a counter takes them. Every operation throws DesbordeNumerico.
class Octeto {
  public:
    constexpr Octeto() = default;
    explicit constexpr Octeto(int valor) : valor_{comprobado(valor)} {}
    constexpr Octeto& operator=(int valor) {
        valor_ = comprobado(valor);
        return *this;
    }
    /// An amount is rounded first, by RedondeaPar8 or as the domain tells.
    Octeto& operator=(double) = delete;

    // Implicit on purpose: it stands in formulas and comparisons as the number that it is.
    // NOLINTNEXTLINE(google-explicit-constructor)
    constexpr operator int() const { return valor_; }

    friend constexpr Octeto operator+(Octeto a, Octeto b) { return Octeto{a.valor_ + b.valor_}; }
    friend constexpr Octeto operator-(Octeto a, Octeto b) { return Octeto{a.valor_ - b.valor_}; }
    constexpr Octeto& operator+=(int otro) { return *this = valor_ + otro; }
    constexpr Octeto& operator-=(int otro) { return *this = valor_ - otro; }
    Octeto& operator+=(double) = delete;
    Octeto& operator-=(double) = delete;
    constexpr Octeto& operator++() { return *this += 1; }

  private:
    static constexpr std::uint8_t comprobado(int valor) {
        if (!EntreLimites(valor, 0, int{std::numeric_limits<std::uint8_t>::max()}))
            throw DesbordeNumerico{static_cast<double>(valor)};
        return static_cast<std::uint8_t>(valor);
    }

    std::uint8_t valor_ = 0;
};

}  // namespace orvemo
