// Draws the pictures that ship with the program, into the current directory.
#include <QGuiApplication>
#include <QString>
#include <cstdio>
#include <exception>

#include "catalogo.h"
#include "emblemas.h"
#include "marca.h"
#include "portada.h"
#include "presentacion.h"

namespace {

constexpr int kUsoIncorrecto = 2;

/// What to draw, by the program's only arguments: "pantallas", "fondos CATALOGUE" or "iconos".
bool dibuja(const QStringList& pedido) {
    if (pedido == QStringList{QStringLiteral("pantallas")}) {
        orvemo::dibuja::dibujaPortada();
        orvemo::dibuja::dibujaLogo();
        orvemo::dibuja::dibujaPresentaciones();
    } else if (pedido == QStringList{QStringLiteral("iconos")}) {
        orvemo::dibuja::dibujaIconos();
    } else if (pedido.size() == 2 && pedido.first() == QStringLiteral("fondos")) {
        orvemo::dibuja::dibujaEmblemas(orvemo::dibuja::leeMaterias(pedido.last()));
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // a build has no screen
    const QGuiApplication aplicacion(argc, argv);
    try {
        if (!dibuja(QGuiApplication::arguments().mid(1))) {
            std::fputs("dibuja: pantallas | fondos CATALOGO | iconos\n", stderr);
            return kUsoIncorrecto;
        }
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "dibuja: %s\n", fallo.what());
        return 1;
    }
    return 0;
}
