#pragma once

#include <QSize>

class QApplication;

namespace orvemo {

/// Gives the application its style, palette, letters and scale, all by the screen at hand.
void instalaEstilo(QApplication& aplicacion);
/// The same for a screen of this size, in logical pixels.
void instalaEstilo(QApplication& aplicacion, QSize pantalla);

}  // namespace orvemo
