#pragma once

#include <ostream>
#include <string>

namespace orvemo::lote {

/// What became of one case.
struct Resultado {
    int registro = 0;
    std::string supuesto;  ///< name of the case
    std::string nombre;    ///< the person's
    bool derecho = false;
    std::string conclusion;  ///< with its CR LF and report marks
    std::string error;       ///< not empty when the case failed; the rest then counts for nothing
};

/// Writes one result for people to read.
void escribeTexto(std::ostream& salida, const Resultado& resultado);

/// Writes one result as a JSON object on a line of its own.
void escribeJson(std::ostream& salida, const Resultado& resultado);

}  // namespace orvemo::lote
