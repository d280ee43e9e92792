#include "toolkit/imagen_campo.h"

#include "toolkit/imagenes_qt.h"
#include "toolkit/medidas.h"

namespace orvemo {

namespace {

constexpr int kLadoMinimo = 900;  // twips

}  // namespace

ImagenCampo::ImagenCampo(Campo& campo, Anfitrion& anfitrion) : Control{campo, anfitrion} {
    setAlignment(Qt::AlignCenter);
    if (campo.pantalla() == kBarra) setFixedSize(px(kLadoLogo), px(kLadoLogo));
}

QSize ImagenCampo::sizeHint() const {
    return (imagen_.deviceIndependentSize() * escala()).toSize();
}

QSize ImagenCampo::minimumSizeHint() const {
    return sizeHint().boundedTo({px(kLadoMinimo), px(kLadoMinimo)});
}

void ImagenCampo::refrescaValor() {
    if (campo().texto() == nombre_) return;
    imagen_ = campo().texto().empty() ? QPixmap{} : anfitrion().imagen(campo().texto());
    nombre_ = campo().texto();
    updateGeometry();
    encaja();
}

void ImagenCampo::resizeEvent(QResizeEvent* suceso) {
    QLabel::resizeEvent(suceso);
    encaja();
}

void ImagenCampo::encaja() {
    if (imagen_.isNull()) {
        clear();
    } else {
        const QSize sitio = campo().pantalla() == kBarra ? size() : size().boundedTo(sizeHint());
        setPixmap(encajada(imagen_, sitio, devicePixelRatioF()));
    }
}

}  // namespace orvemo
