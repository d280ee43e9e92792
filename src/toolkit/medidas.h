#pragma once

#include <QSize>

namespace orvemo {

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
