#pragma once

#include <string>
#include <string_view>

#include "foundations/values/textos.h"

namespace orvemo::nomina {

/// Calls `accion` with each line of a Windows-1252 text, in UTF-8 and without its end.
void CadaLinea(std::string_view contenido, auto&& accion) {
    while (!contenido.empty()) {
        const std::string_view linea = contenido.substr(0, contenido.find('\n'));
        contenido.remove_prefix(linea.size() == contenido.size() ? linea.size() : linea.size() + 1);
        accion(De1252(linea.ends_with('\r') ? linea.substr(0, linea.size() - 1) : linea));
    }
}

/// The first `ancho` characters, blanks added up to there: a text of fixed width.
[[nodiscard]] inline std::string AlAncho(std::string_view texto, std::size_t ancho) {
    std::string cortado{PrimerosCaracteres(texto, ancho)};
    return cortado.append(ancho - CuentaCaracteres(cortado), ' ');
}

}  // namespace orvemo::nomina
