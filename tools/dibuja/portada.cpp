#include "portada.h"

#include "lienzo.h"
#include "marca.h"
#include "toolkit/paleta.h"

namespace orvemo::dibuja {

namespace {

// The size of the panel that the cover fills.
constexpr int kAncho = 640;
constexpr int kAlto = 440;
constexpr double kMargen = 44;

// The mark again, large and pale, running out of the sheet at the right.
constexpr QRectF kMarcaDeFondo{300, -40, 470, 470};
constexpr QColor kTono{0x35, 0x67, 0x95};
constexpr QColor kTonoBarras{0x41, 0x73, 0xA1};

}  // namespace

void dibujaPortada() {
    Lienzo lienzo(kAncho, kAlto, kColorAcento);
    dibujaMarca(lienzo.pincel(), kMarcaDeFondo, {kTono, kTonoBarras});
    lienzo.linea({kMargen, 196}, QStringLiteral("PENSIONES"), 62, kColorBase, QFont::Bold);
    lienzo.linea({kMargen, 262}, QStringLiteral("ORVEMO"), 62, kColorBase, QFont::Bold);
    lienzo.linea({kMargen, 348}, QStringLiteral("Simulador de prestaciones,"), 25, kColorAcentoPalido);
    lienzo.linea({kMargen, 382}, QStringLiteral("retenciones y nóminas. Año 2005"), 25, kColorAcentoPalido);
    lienzo.guarda(QStringLiteral("portada.bmp"));
}

}  // namespace orvemo::dibuja
