#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "printing/destino_impresion.h"

class QPagedPaintDevice;

namespace orvemo {

/// What is put on one page, in centimetres from its printable corner.
struct Hoja {
    struct Texto {
        double x, y, ancho;  ///< left, top and measured width
        Fuente fuente;
        QString texto;
        double estrechez = 1;  ///< of its letters: 1 as they are
    };
    struct Rectangulo {
        double x1, y1, x2, y2;
    };
    struct Foto {
        QImage imagen;
        Rectangulo sitio;
    };

    std::vector<Foto> fotos;
    std::vector<Rectangulo> cajas;   ///< solid black
    std::vector<Rectangulo> lineas;  ///< from one corner to the opposite
    std::vector<Texto> textos;
};

/// Brings the page within `limite` centimetres: rules and boxes end there, and a line of text that passes it
/// is condensed from its left edge on, all the pieces that abut in it alike, so that no letter falls off the
/// paper. What else stands at its height stays as it is.
void encaja(Hoja& hoja, double limite);

/// The margin that a page keeps on the paper, in centimetres.
struct Margen {
    double x = 0, y = 0;
};

/// Paints the pages on a printer or a PDF. Throws FalloImpresion.
void pinta(const std::vector<Hoja>& hojas, Margen margen, QPagedPaintDevice& dispositivo);

}  // namespace orvemo
