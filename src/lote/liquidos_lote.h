#pragma once

#include <filesystem>
#include <ostream>

#include "lote/opciones_lote.h"

namespace orvemo::lote {

/// Net to gross for the people of a file of cases of withholding, each on a screen just opened. Gives the
/// exit status. Throws ArgumentoInservible, Fallo for a file that can't be read.
int CalculaLiquidos(const Opciones& opciones, const std::filesystem::path& datos, std::ostream& salida,
                    std::ostream* terminal);

}  // namespace orvemo::lote
