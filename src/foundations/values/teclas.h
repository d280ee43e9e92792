#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace orvemo {

/// What becomes of a typed character, given the field's whole present text: the character to insert, 0 when
/// it is swallowed.
using FiltroTecla = std::function<char32_t(char32_t codigo, std::string_view texto)>;

/// Control keys and digits.
[[nodiscard]] char32_t TeclaDigito(char32_t codigo, std::string_view texto = {});

/// Control keys, digits, one comma (a point becomes it) and a minus in an empty text.
[[nodiscard]] char32_t TeclaNumero(char32_t codigo, std::string_view texto);

/// Upper case under the regional settings.
[[nodiscard]] char32_t TeclaMayuscula(char32_t codigo, std::string_view texto = {});

/// A text (typed, pasted, dictated) sent through the filter character by character, as if typed between what
/// stands before and behind it: gives all three together.
[[nodiscard]] std::string FiltraTexto(const FiltroTecla& filtro, std::string_view texto,
                                      std::string_view antes = {}, std::string_view despues = {});

}  // namespace orvemo
