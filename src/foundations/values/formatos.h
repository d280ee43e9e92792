#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "foundations/values/ajustes.h"
#include "foundations/values/fechas.h"
#include "foundations/values/valor.h"

namespace orvemo {

/// The number by a pattern of `#`, `0`, `,` and `.`, with the regional marks. Rounds half away from zero on
/// the decimal text of the value at 15 significant digits; a value that rounds to zero carries no minus. What
/// stands before and after the pattern's digits comes out as it is ("##0.00%"), and so does a pattern without
/// digits. A damaged record's NaN or infinity gives "".
[[nodiscard]] std::string FormatoNumero(double valor, std::string_view patron,
                                        const AjustesRegionales& ajustes = kEspana);

/// The plain text of a number: at most 15 significant digits, the regional decimal mark, no exponent, no
/// trailing zeros ("1010,765", "38"). NaN or infinity gives "".
[[nodiscard]] std::string TextoPlano(double valor, const AjustesRegionales& ajustes = kEspana);

/// The same for a number of single precision, which has 7 significant digits: 12.35 stays "12,35" and isn't
/// the "12,3500003814697" of its double.
[[nodiscard]] std::string TextoPlanoSimple(float valor, const AjustesRegionales& ajustes = kEspana);
template <std::same_as<float> Simple>
[[nodiscard]] std::string TextoPlano(Simple valor, const AjustesRegionales& ajustes = kEspana) {
    return TextoPlanoSimple(valor, ajustes);
}

/// The date by a pattern of d, dd, dddd (the weekday), m, mm, mmm, mmmm, yy, yyyy (m or M alike) with
/// anything else as it stands.
[[nodiscard]] std::string FormatoFecha(Fecha fecha, std::string_view patron,
                                       const AjustesRegionales& ajustes = kEspana);

/// "" for a value that is 0 or no number, otherwise the amount by "##,###,###,##0.00".
[[nodiscard]] std::string FormatoImporte(const Valor& valor, const AjustesRegionales& ajustes = kEspana);

/// Checks and rewrites by type: "D" dates, "N" numbers, blank passes both; any other type passes untouched.
/// False when the value is invalid.
[[nodiscard]] bool FormateaCampo(Valor& valor, std::string_view tipo,
                                 const AjustesRegionales& ajustes = kEspana);

/// True when the value reads as a date, day first: hyphens or slashes, two or four digits of year (00 to 29
/// are 20xx).
[[nodiscard]] bool EsFecha(const Valor& valor);

/// The date that a text tells. Throws TextoIlegible, FechaInexistente.
[[nodiscard]] Fecha LeeFecha(std::string_view texto);

/// The value as a date; 01-01-1900 when it cannot be read.
[[nodiscard]] Fecha FechaDe(const Valor& valor);

}  // namespace orvemo
