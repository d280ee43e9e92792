#pragma once

#include <filesystem>
#include <iostream>

#include "foundations/frame/catalogo.h"
#include "lote/opciones_lote.h"

namespace orvemo::lote {

/// Every case was computed.
inline constexpr int kTodoCalculado = 0;
/// Some case failed.
inline constexpr int kAlgunoFallo = 1;
/// A file or an argument can't be used.
inline constexpr int kInservible = 2;

/// Computes the cases of a file one by one, each as if the calculator had just been opened, and writes what
/// stands on its conclusions. Results stream. Or takes the cases out of the file or into it as text. Gives
/// the exit status; what can't be used is told on `errores`, and on the terminal, if one is given, how far a
/// long file has come.
int ejecuta(const Opciones& opciones, Calculadoras catalogo, const std::filesystem::path& datosPorDefecto,
            std::ostream& salida, std::ostream& errores, std::istream& entrada = std::cin,
            std::ostream* terminal = nullptr);

}  // namespace orvemo::lote
