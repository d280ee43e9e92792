#include "toolkit/instalacion.h"

#include <QApplication>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include "toolkit/estilo.h"
#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

constexpr double kPuntosLetra = 7.5;  // at factor 1

/// How much larger than the ordinary the user's desktop wants letters.
double ampliacionDeLetras() {
    constexpr double kPuntosDelEscritorio = 11;
    constexpr double kMaxima = 2;
    // The style's own letters, once installed, say nothing about the desktop.
    static const double ampliacion =
        std::clamp(QApplication::font().pointSizeF() / kPuntosDelEscritorio, 1.0, kMaxima);
    return ampliacion;
}

}  // namespace

void instalaEstilo(QApplication& aplicacion) {
    instalaEstilo(aplicacion, QGuiApplication::primaryScreen()->availableSize());
}

void instalaEstilo(QApplication& aplicacion, QSize pantalla) {
    const double ampliacion = ampliacionDeLetras();
    ponEscala(escalaPara(pantalla, ampliacion));
    aplicacion.setStyle(new Estilo);
    aplicacion.setPalette(paletaClara());
    QFont letra{QStringLiteral("Liberation Sans")};
    letra.setPointSizeF(kPuntosLetra * escalaPara(pantalla, 1) * ampliacion);
    QApplication::setFont(letra);
    QToolTip::setPalette(paletaClara());
    QToolTip::setFont(letra);
}

}  // namespace orvemo
