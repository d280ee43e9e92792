#pragma once

namespace orvemo::dibuja {

/// "presen1.bmp" to "presen3.bmp": what the program is, what it doesn't do, where official information is
/// found.
void dibujaPresentaciones();

}  // namespace orvemo::dibuja
