#pragma once

#include "foundations/frame/catalogo.h"
#include "shell/programa.h"

namespace orvemo {

/// The screens that the options of the menu open: the calculators of the catalogue and the shell's own.
[[nodiscard]] Pantallas PantallasDelMenu(Calculadoras catalogo);

}  // namespace orvemo
