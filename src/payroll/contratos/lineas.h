#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "foundations/values/fallos.h"
#include "foundations/values/textos.h"

namespace orvemo::nomina {

/// What no list that somebody wrote holds; a tab and the end mark of old editors it may.
[[nodiscard]] inline bool esDeTexto(char c) {
    return static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\x1A';
}

/// Calls `accion` with each line of a list, a Windows-1252 text, in UTF-8 and without its end. Throws
/// FicheroMalFormado for a line that is no text or that `accion` can't read.
void CadaLinea(std::string_view fichero, std::string_view contenido, auto&& accion) {
    for (int numero = 1; !contenido.empty(); ++numero) {
        std::string_view linea = contenido.substr(0, contenido.find('\n'));
        contenido.remove_prefix(linea.size() == contenido.size() ? linea.size() : linea.size() + 1);
        if (linea.ends_with('\r')) linea.remove_suffix(1);
        try {
            if (!std::ranges::all_of(linea, esDeTexto)) throw Fallo{"no es un texto"};
            accion(De1252(linea));
        } catch (const Fallo& fallo) {
            throw FicheroMalFormado{std::string{fichero}, numero, fallo.what()};
        }
    }
}

/// The first `ancho` characters, blanks added up to there: a text of fixed width.
[[nodiscard]] inline std::string AlAncho(std::string_view texto, std::size_t ancho) {
    std::string cortado{PrimerosCaracteres(texto, ancho)};
    return cortado.append(ancho - CuentaCaracteres(cortado), ' ');
}

}  // namespace orvemo::nomina
