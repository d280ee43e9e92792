#pragma once

#include <QColor>

class QPalette;

namespace orvemo {

// The one table of colours, of the screens and of the pictures drawn for them: light whatever the desktop's,
// with one accent. Texts read at 4.5 : 1 on what lies below them, edges of controls at 3 : 1.
inline constexpr QColor kColorVentana{0xEE, 0xF1, 0xF4};
inline constexpr QColor kColorPanel{0xFB, 0xFC, 0xFD};
inline constexpr QColor kColorBase{0xFF, 0xFF, 0xFF};
inline constexpr QColor kColorBorde{0xC9, 0xD1, 0xD9};
inline constexpr QColor kColorBordeControl{0x82, 0x8F, 0x9C};
inline constexpr QColor kColorTexto{0x1F, 0x29, 0x33};
inline constexpr QColor kColorTextoSecundario{0x52, 0x60, 0x6D};
inline constexpr QColor kColorTextoInactivo{0x64, 0x71, 0x7E};
inline constexpr QColor kColorAcento{0x2B, 0x5C, 0x8A};
inline constexpr QColor kColorAcentoClaro{0x3A, 0x70, 0xA3};
inline constexpr QColor kColorAcentoOscuro{0x22, 0x4B, 0x72};
inline constexpr QColor kColorAcentoPalido{0xDC, 0xE7, 0xF1};
inline constexpr QColor kColorFavorable{0x1E, 0x7B, 0x4B};
inline constexpr QColor kColorDesfavorable{0xB0, 0x3A, 0x2E};

/// The colours in the roles that the toolkit gives them.
[[nodiscard]] QPalette paletaClara();

}  // namespace orvemo
