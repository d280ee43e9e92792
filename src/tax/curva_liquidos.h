#pragma once

#include "foundations/frame/campo.h"
#include "tax/liquidos.h"

namespace orvemo::liquidos {

/// Net against gross pay around the answer, which is marked; empty when some amount can't be worked out.
[[nodiscard]] Grafica CurvaDe(const DatosLiquidos& datos, const ResultadoLiquidos& resultado);

}  // namespace orvemo::liquidos
