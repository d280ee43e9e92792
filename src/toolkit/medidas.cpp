#include "toolkit/medidas.h"

#include <QtGlobal>
#include <algorithm>

namespace orvemo {

namespace {

constexpr double kTwipsPorPixel = 15;

// Pixels that a window needs at factor 1: the panel, a margin around it and the title bar.
constexpr double kAnchoNecesario = 660;
constexpr double kAltoNecesario = 460;
constexpr double kBarraDeTitulo = 40;

constexpr double kEscalaMinima = 0.7;
constexpr double kEscalaComoda = 1.5;

double factor = 1;

}  // namespace

double escala() {
    return factor;
}

double escalaPara(QSize pantalla, double ampliacionDeLetras) {
    const double cabe =
        std::min(pantalla.width() / kAnchoNecesario, (pantalla.height() - kBarraDeTitulo) / kAltoNecesario);
    return std::clamp(cabe, kEscalaMinima, kEscalaComoda * ampliacionDeLetras);
}

void ponEscala(double escala) {
    factor = escala;
}

int px(int twips) {
    return qRound(twips / kTwipsPorPixel * factor);
}

}  // namespace orvemo
