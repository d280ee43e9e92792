#include "toolkit/portada.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "toolkit/imagenes_qt.h"
#include "toolkit/medidas.h"

namespace orvemo {

namespace {

constexpr int kAltoQueDeja = 400;  // twips of the screen below the cover

}  // namespace

Portada::Portada(const QPixmap& foto) : QDialog{nullptr, Qt::Window | Qt::FramelessWindowHint} {
    setObjectName(QStringLiteral("Survey"));
    auto* imagen = new QLabel{this};
    imagen->setObjectName(QStringLiteral("Foto"));
    imagen->setAlignment(Qt::AlignCenter);
    imagen->setPixmap(encajada(foto, {px(kAnchoSupuesto), px(kAltoSupuesto)}, devicePixelRatioF()));
    auto* centro = new QVBoxLayout{this};
    centro->setContentsMargins(0, 0, 0, 0);
    centro->addWidget(imagen);
    setGeometry(QGuiApplication::primaryScreen()->geometry().adjusted(0, 0, 0, -px(kAltoQueDeja)));
}

void Portada::muestra(std::chrono::milliseconds duracion) {
    QTimer::singleShot(duracion, this, &QWidget::hide);
    exec();
}

void Portada::closeEvent(QCloseEvent* suceso) {
    suceso->ignore();
}

}  // namespace orvemo
