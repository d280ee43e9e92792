#pragma once

#include "foundations/frame/catalogo.h"

namespace orvemo {

/// The calculators of this program, in the order in which the batch lists them.
[[nodiscard]] Calculadoras CalculadorasDelPrograma();

}  // namespace orvemo
