#include "marca.h"

#include <QImage>
#include <array>

#include "lienzo.h"
#include "toolkit/paleta.h"

namespace orvemo::dibuja {

namespace {

// Measures of the mark, in hundredths of its side.
constexpr double kGruesoAro = 11;
constexpr double kAnchoBarra = 11;
constexpr double kPieBarras = 72;
struct Barra {
    double izquierda;
    double alto;
};
constexpr std::array<Barra, 3> kBarras{{{27, 18}, {44.5, 31}, {62, 44}}};

constexpr int kLadoLogo = 200;
constexpr std::array kLadosIconos{16, 32, 48, 64, 128, 256};
constexpr double kMargen = 0.14;        // ground around the mark, of the side
constexpr double kRadioEsquina = 0.15;  // the same

/// The mark in white on a square of the house's colour with round corners.
void dibujaPlaca(QPainter& pincel, double lado) {
    pincel.setPen(Qt::NoPen);
    pincel.setBrush(kColorAcento);
    pincel.drawRoundedRect(QRectF(0, 0, lado, lado), lado * kRadioEsquina, lado * kRadioEsquina);
    const double margen = lado * kMargen;
    dibujaMarca(pincel, {margen, margen, lado - 2 * margen, lado - 2 * margen}, {kColorBase, kColorBase});
}

void dibujaIcono(int lado) {
    QImage icono(lado, lado, QImage::Format_ARGB32);
    icono.fill(Qt::transparent);
    QPainter pincel(&icono);
    pincel.setRenderHint(QPainter::Antialiasing);
    dibujaPlaca(pincel, lado);
    pincel.end();
    escribe(icono, QStringLiteral("icono-%1.png").arg(lado));
}

}  // namespace

void dibujaMarca(QPainter& pincel, QRectF caja, ColoresMarca colores) {
    pincel.save();
    pincel.translate(caja.topLeft());
    pincel.scale(caja.width() / 100, caja.height() / 100);
    pincel.setBrush(Qt::NoBrush);
    pincel.setPen(QPen(colores.aro, kGruesoAro));
    pincel.drawEllipse(QPointF(50, 50), 50 - kGruesoAro / 2, 50 - kGruesoAro / 2);
    pincel.setPen(Qt::NoPen);
    pincel.setBrush(colores.barras);
    for (const Barra& barra : kBarras) {
        pincel.drawRect(QRectF(barra.izquierda, kPieBarras - barra.alto, kAnchoBarra, barra.alto));
    }
    pincel.restore();
}

void dibujaLogo() {
    Lienzo lienzo(kLadoLogo, kLadoLogo, kColorPanel);
    dibujaPlaca(lienzo.pincel(), kLadoLogo);
    lienzo.guarda(QStringLiteral("logo.bmp"));
}

void dibujaIconos() {
    for (const int lado : kLadosIconos) {
        dibujaIcono(lado);
    }
}

}  // namespace orvemo::dibuja
