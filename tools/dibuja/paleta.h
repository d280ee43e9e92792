#pragma once

#include <QColor>

namespace orvemo::dibuja {

/// The colours of the screens, so that the pictures sit on them without a seam.
inline constexpr QColor kAcento{0x2B, 0x5C, 0x8A};
inline constexpr QColor kAcentoClaro{0x4A, 0x7C, 0xAA};
inline constexpr QColor kAcentoPalido{0xDC, 0xE7, 0xF1};
inline constexpr QColor kTexto{0x1F, 0x29, 0x33};
inline constexpr QColor kTextoSecundario{0x52, 0x60, 0x6D};
inline constexpr QColor kVentana{0xEE, 0xF1, 0xF4};
inline constexpr QColor kPanel{0xFB, 0xFC, 0xFD};
inline constexpr QColor kBorde{0xC9, 0xD1, 0xD9};
inline constexpr QColor kBlanco{0xFF, 0xFF, 0xFF};

}  // namespace orvemo::dibuja
