#pragma once

#include "shell/programa.h"

namespace orvemo {

/// The screens that this program has.
[[nodiscard]] Pantallas PantallasDisponibles();

}  // namespace orvemo
