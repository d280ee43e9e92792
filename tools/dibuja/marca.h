#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace orvemo::dibuja {

/// The two colours of the mark.
struct ColoresMarca {
    QColor aro;
    QColor barras;
};

/// The house's mark within `caja`: the O of Orvemo around three rising bars.
void dibujaMarca(QPainter& pincel, QRectF caja, ColoresMarca colores);

/// "logo.bmp": the mark as it stands on the panels and heads the printed pages.
void dibujaLogo();
/// "icono-N.png" for each size that desktops ask for.
void dibujaIconos();

}  // namespace orvemo::dibuja
