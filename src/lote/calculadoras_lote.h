#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "foundations/frame/calculadora.h"

namespace orvemo::lote {

using Abridor = std::function<std::unique_ptr<Calculadora>(Entorno&)>;

/// What opens the calculator of that name on the command line; empty when there is none.
[[nodiscard]] Abridor abridorDe(std::string_view nombre);

/// The names, with commas between.
[[nodiscard]] std::string nombresDisponibles();

}  // namespace orvemo::lote
