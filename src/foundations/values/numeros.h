#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundations/values/ajustes.h"
#include "foundations/values/valor.h"

namespace orvemo {

/// Nearest 32-bit integer, an exact half to the even neighbour. Throws DesbordeNumerico.
[[nodiscard]] std::int32_t RedondeaPar(double valor);

/// The same for a 16-bit integer.
[[nodiscard]] std::int16_t RedondeaPar16(double valor);

/// The same for a byte, 0 to 255.
[[nodiscard]] std::uint8_t RedondeaPar8(double valor);

/// The longest prefix that reads as a number with a point as decimal mark, blanks skipped anywhere, an
/// exponent (E or D) allowed. Stops at the first other character, a comma included; nothing readable gives 0.
/// Throws DesbordeNumerico when the number is too large for a double.
[[nodiscard]] double LeeNumero(std::string_view texto);

/// The whole text as a number under the regional settings: a sign, digits with thousands marks anywhere after
/// the first, one decimal mark and digits, blanks at both ends. No exponent. Throws TextoIlegible, also for a
/// number too large for a double.
[[nodiscard]] double LeeNumeroRegional(std::string_view texto, const AjustesRegionales& ajustes = kEspana);

/// The whole text as a 32-bit integer under the regional settings, an exact half to even. Throws
/// TextoIlegible, DesbordeNumerico.
[[nodiscard]] std::int32_t LeeEnteroRegional(std::string_view texto,
                                             const AjustesRegionales& ajustes = kEspana);

/// True when LeeNumeroRegional would succeed; false on the empty text.
[[nodiscard]] bool EsNumero(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// The text with its first comma turned into a point.
[[nodiscard]] std::string ComaAPunto(std::string_view texto);

/// LeeNumero of ComaAPunto: no thousands mark may be present. Throws DesbordeNumerico as LeeNumero does.
[[nodiscard]] double ValComa(std::string_view texto);

/// The value as a double; 0 when null or unreadable.
[[nodiscard]] double DobleDe(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// The value as a 32-bit integer, an exact half to even; 0 when null, unreadable or out of range.
[[nodiscard]] std::int32_t EnteroDe(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// DobleDe of what EsNumero accepts, otherwise 0.
[[nodiscard]] double NumeroDe(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// The value as a limit or plain input: 0 when blank, otherwise DobleDe narrowed to single precision. Throws
/// DesbordeNumerico when single precision can't hold it.
[[nodiscard]] float LimiteDe(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// Rounds to `decimales`, an exact tie to even, after adding 0.00000001 to the variable, which keeps it.
/// `decimales` goes from 0 to 9. Throws DesbordeNumerico when the scaled value passes 32 bits.
double Redondea(double& valor, int decimales);

/// Redondea of an expression: nobody sees the nudge.
[[nodiscard]] double Redondeado(double valor, int decimales);

/// Largest integer not above the value. Throws DesbordeNumerico as RedondeaPar does.
[[nodiscard]] std::int32_t Suelo(double valor);

/// Smallest whole number not below the value.
[[nodiscard]] double Techo(double valor);

/// a / b, or 0 when b is 0. Throws DesbordeNumerico when a double can't hold the quotient.
[[nodiscard]] double Divide(double a, double b);

/// a / b. Throws DivisionPorCero when b is 0, whatever a is, and DesbordeNumerico as Divide does.
[[nodiscard]] double Cociente(double a, double b);

/// The greater, b on a tie.
template <typename T>
[[nodiscard]] constexpr T Mayor(T a, T b) {
    return a > b ? a : b;
}

/// The smaller, b on a tie.
template <typename T>
[[nodiscard]] constexpr T Menor(T a, T b) {
    return a < b ? a : b;
}

/// True from lo to hi, both included.
template <typename T>
[[nodiscard]] constexpr bool EntreLimites(T valor, T lo, T hi) {
    return valor >= lo && valor <= hi;
}

/// Pesetas to euros at 166.386, to 2 decimals.
[[nodiscard]] double PesetasAEuros(std::int32_t pesetas);

}  // namespace orvemo
