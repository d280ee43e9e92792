// The yardstick of the start-up: the least that a program with sixteen buttons can do.

#include <QApplication>
#include <QPushButton>
#include <QStyleFactory>

#include "arranque/primer_dibujo.h"

namespace {

constexpr int kBotones = 16;
constexpr int kFilas = 8;

}  // namespace

int main(int argc, char** argv) {
    QApplication aplicacion{argc, argv};
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget ventana;
    ventana.resize(960, 660);
    for (int i = 0; i < kBotones; ++i) {
        auto* boton = new QPushButton{QStringLiteral("Opción %1").arg(i + 1), &ventana};
        boton->setGeometry(10 + i / kFilas * 740, 130 + i % kFilas * 58, 200, 50);
    }
    const orvemo::bench::PrimerDibujo dibujo{ventana, orvemo::bench::avisaYTermina};
    ventana.show();
    return QApplication::exec();
}
