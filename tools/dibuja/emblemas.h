#pragma once

#include "catalogo.h"

namespace orvemo::dibuja {

/// "fondo1.bmp" to "fondo8.bmp": the emblem that fits each subject's caption, and the caption below it.
void dibujaEmblemas(const Materias& materias);

}  // namespace orvemo::dibuja
