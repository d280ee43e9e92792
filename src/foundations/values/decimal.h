#pragma once

#include <array>
#include <cstddef>

namespace orvemo {

/// Decimal digits of a double that mean something.
inline constexpr int kCifrasSignificativas = 15;
/// The same of a number of single precision.
inline constexpr int kCifrasDeUnSimple = 7;

/// A number as its decimal text has it: d0 . d1 d2 … × 10^exponente. Texts of numbers are rounded on these
/// digits and not on the binary value, so that 1010.765 shows as 1010,77.
class Decimal {
  public:
    /// The first significant digits of a finite number, 15 at most.
    explicit Decimal(double valor, int cifras = kCifrasSignificativas);

    /// Leaves so many decimals, a half going away from zero.
    void redondea(int decimales);

    [[nodiscard]] bool esCero() const { return cuantas_ == 0; }
    [[nodiscard]] bool esNegativo() const { return negativo_ && !esCero(); }
    /// The digit that stands for 10^potencia.
    [[nodiscard]] char cifra(int potencia) const {
        const int i = exponente_ - potencia;
        return i >= 0 && i < cuantas_ ? cifras_[static_cast<std::size_t>(i)] : '0';
    }
    /// Digits before the decimal mark.
    [[nodiscard]] int enteras() const { return esCero() || exponente_ < 0 ? 0 : exponente_ + 1; }
    /// Digits behind the decimal mark.
    [[nodiscard]] int decimales() const { return cuantas_ > exponente_ + 1 ? cuantas_ - exponente_ - 1 : 0; }

  private:
    void quitaCerosFinales();
    void sumaUno();

    std::array<char, kCifrasSignificativas> cifras_{};
    int cuantas_;  ///< digits that count; those behind them are 0
    int exponente_ = 0;
    bool negativo_ = false;
};

}  // namespace orvemo
