#pragma once

#include <filesystem>
#include <istream>
#include <ostream>

#include "foundations/frame/catalogo.h"

namespace orvemo::lote {

// Cases as text, a line each: to keep, compare and edit them, and to make them elsewhere.

/// Writes the cases in use of a file, each as a JSON object with the fields of its record. Throws
/// FicheroInaccesible.
void Exporta(const RegistroCatalogo& registro, const std::filesystem::path& fichero, std::ostream& salida);

/// Appends to a file the cases that the lines tell in the same form; a file that is absent is made. Gives
/// false, and writes nothing, when some line is no case: which and why is told on `errores`. Throws
/// FicheroInaccesible, DemasiadosSupuestos.
[[nodiscard]] bool Importa(const RegistroCatalogo& registro, const std::filesystem::path& fichero,
                           std::istream& entrada, std::ostream& errores);

}  // namespace orvemo::lote
