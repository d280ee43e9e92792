#include "toolkit/boton_logo.h"

#include <QPainter>

#include "toolkit/medidas.h"
#include "toolkit/paleta.h"

namespace orvemo {

namespace {

constexpr double kGruesoFoco = 2;

}  // namespace

BotonLogo::BotonLogo(QWidget* padre) : QAbstractButton{padre} {
    setObjectName(QStringLiteral("LogoOrvemo"));
    ponAlcanzable(false);
}

void BotonLogo::ponImagen(const QPixmap& imagen) {
    imagen_ = imagen;
    update();
}

void BotonLogo::ponAlcanzable(bool alcanzable) {
    setFocusPolicy(alcanzable ? Qt::TabFocus : Qt::NoFocus);
    setAccessibleName(alcanzable ? QStringLiteral("Configuración del programa") : QStringLiteral("Logotipo"));
}

void BotonLogo::paintEvent(QPaintEvent* /*suceso*/) {
    QPainter pincel{this};
    const QSizeF talla = imagen_.deviceIndependentSize();
    pincel.drawPixmap(QPointF{(width() - talla.width()) / 2, (height() - talla.height()) / 2}, imagen_);
    if (!hasFocus()) return;
    pincel.setPen({kColorTexto, kGruesoFoco});
    pincel.drawRect(QRectF{rect()}.adjusted(1, 1, -1, -1));
}

}  // namespace orvemo
