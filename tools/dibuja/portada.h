#pragma once

namespace orvemo::dibuja {

/// "portada.bmp": the cover, also shown small between the two columns of the menu.
void dibujaPortada();

}  // namespace orvemo::dibuja
