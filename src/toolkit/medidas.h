#pragma once

#include <QColor>
#include <QSize>

namespace orvemo {

// The palette: light whatever the desktop's, with one accent.
inline constexpr QColor kColorVentana{0xEE, 0xF1, 0xF4};
inline constexpr QColor kColorPanel{0xFB, 0xFC, 0xFD};
inline constexpr QColor kColorBase{0xFF, 0xFF, 0xFF};
inline constexpr QColor kColorBorde{0xC9, 0xD1, 0xD9};
inline constexpr QColor kColorBordeControl{0xA3, 0xB0, 0xBD};
inline constexpr QColor kColorTexto{0x1F, 0x29, 0x33};
inline constexpr QColor kColorTextoSecundario{0x52, 0x60, 0x6D};
inline constexpr QColor kColorTextoInactivo{0x8A, 0x96, 0xA3};
inline constexpr QColor kColorAcento{0x2B, 0x5C, 0x8A};
inline constexpr QColor kColorAcentoClaro{0x3A, 0x70, 0xA3};
inline constexpr QColor kColorAcentoOscuro{0x22, 0x4B, 0x72};
inline constexpr QColor kColorAcentoPalido{0xDC, 0xE7, 0xF1};
inline constexpr QColor kColorFavorable{0x1E, 0x7B, 0x4B};
inline constexpr QColor kColorDesfavorable{0xB0, 0x3A, 0x2E};

// The panel that every screen stands on, in twips.
inline constexpr int kAnchoSupuesto = 9600;
inline constexpr int kAltoSupuesto = 6600;
/// Side of the logo beside the title of a screen.
inline constexpr int kLadoLogo = 660;
/// Between the edge of a text or list field and what it shows.
inline constexpr int kRellenoCampo = 60;

/// The one factor between the twips of a screen (15 to the pixel) and logical pixels, chosen once for the
/// screen at hand and for the user's size of letters.
[[nodiscard]] double escala();
/// Chooses the factor for a screen: the whole panel fits on it with a margin, and it is neither smaller than
/// legible nor larger than comfortable for letters enlarged so many times.
[[nodiscard]] double escalaPara(QSize pantalla, double ampliacionDeLetras);
void ponEscala(double escala);

/// Logical pixels of a length in twips.
[[nodiscard]] int px(int twips);

}  // namespace orvemo
