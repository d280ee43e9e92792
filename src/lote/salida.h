#pragma once

#include <string>

namespace orvemo::lote {

/// What became of one case.
struct Resultado {
    int registro = 0;
    std::string supuesto;     ///< name of the case
    std::string nombre;       ///< the person's
    bool conDictamen = true;  ///< its calculator decides on a right
    bool derecho = false;
    std::string conclusion;  ///< with its CR LF and report marks; the results of one that decides none
    std::string miembros;    ///< more members of its JSON object, a comma before each
    std::string error;       ///< not empty when the case failed; the rest then counts for nothing
};

/// Appends one result for people to read.
void EscribeTexto(std::string& salida, const Resultado& resultado);

/// Appends one result as a JSON object on a line of its own.
void EscribeJson(std::string& salida, const Resultado& resultado);

}  // namespace orvemo::lote
