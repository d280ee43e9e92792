#include "lote/salida.h"

#include <algorithm>
#include <string_view>

#include "foundations/values/json.h"
#include "foundations/values/textos.h"

namespace orvemo::lote {

namespace {

/// The lines of a text, ended by a line feed each; whatever else controls a terminal is written out.
void agregaLineas(std::string& salida, std::string_view texto) {
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        std::string_view linea = texto.substr(0, fin);
        if (linea.ends_with('\r')) linea.remove_suffix(1);
        salida += ControlesALaVista(linea);
        salida += '\n';
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
}

}  // namespace

void EscribeTexto(std::string& salida, const Resultado& resultado) {
    salida.append("=== ").append(std::to_string(resultado.registro)).append(". ");
    salida += ControlesALaVista(resultado.supuesto) + '\n';
    if (!resultado.error.empty()) {
        salida.append("ERROR: ").append(ControlesALaVista(resultado.error)).append("\n\n");
        return;
    }
    salida += "Nombre: " + ControlesALaVista(resultado.nombre) + '\n';
    if (resultado.conclusion.empty()) salida += '\n';
    agregaLineas(salida, resultado.conclusion);
    if (resultado.conDictamen) salida += resultado.derecho ? "[CON DERECHO]\n" : "[SIN DERECHO]\n";
    salida += '\n';
}

void EscribeJson(std::string& salida, const Resultado& resultado) {
    salida += '{';
    AgregaCampoJson(salida, "registro", resultado.registro);
    AgregaCampoJson(salida, "supuesto", resultado.supuesto);
    if (!resultado.error.empty()) {
        AgregaCampoJson(salida, "error", resultado.error);
    } else {
        AgregaCampoJson(salida, "nombre", resultado.nombre);
        AgregaCampoJson(salida, "derecho", resultado.derecho);
        AgregaCampoJson(salida, "conclusion", resultado.conclusion);
        salida += resultado.miembros;
    }
    salida += "}\n";
}

}  // namespace orvemo::lote
