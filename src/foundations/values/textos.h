#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundations/values/valor.h"

namespace orvemo {

inline constexpr std::string_view kFinDeLinea = "\r\n";

/// The text without the blanks at both ends.
[[nodiscard]] std::string_view Recorta(std::string_view texto);

/// True when the trimmed text is empty or begins with a NUL, as a field never written does.
[[nodiscard]] bool EsVacio(const Valor& valor);

/// Takes off and gives what stands before the first separator; without one, the whole text, leaving it empty.
[[nodiscard]] std::string CortaCampo(std::string& texto, std::string_view separador);

/// Number of code points of a UTF-8 text.
[[nodiscard]] std::size_t CuentaCaracteres(std::string_view texto);

/// The first n code points of a UTF-8 text.
[[nodiscard]] std::string_view PrimerosCaracteres(std::string_view texto, std::size_t n);

/// The code point at byte `pos` of a UTF-8 text, `pos` moved past it; a byte that fits nowhere gives U+FFFD.
char32_t SiguienteCaracter(std::string_view texto, std::size_t& pos);

/// Appends a code point as UTF-8.
void AgregaCaracter(std::string& texto, char32_t caracter);

/// The same, a control character as people and JSON write it ("\\n", "\\u001b").
void AgregaALaVista(std::string& texto, char32_t caracter);

/// The text with its control characters written out: what comes from a record must neither break a line of a
/// list nor reach a terminal.
[[nodiscard]] std::string ControlesALaVista(std::string_view texto);

/// UTF-8 to Windows-1252; what that set lacks becomes "?".
[[nodiscard]] std::string A1252(std::string_view utf8);

/// Windows-1252 to UTF-8; every byte has a character.
[[nodiscard]] std::string De1252(std::string_view bytes);

}  // namespace orvemo
