#include "toolkit/imagenes_qt.h"

#include <QtEndian>
#include <algorithm>

#include "foundations/values/fallos.h"

namespace orvemo {

namespace {

/// Of a picture drawn point by point for a screen of 96 to the inch.
constexpr double kPuntosPorMetro = 3780;

/// What a bitmap says of itself; 0 when it says nothing.
qint32 puntosPorMetro(const QByteArray& bytes) {
    constexpr qsizetype kEnLaCabecera = 38;
    constexpr qsizetype kFinDelDato = kEnLaCabecera + qsizetype{sizeof(qint32)};
    if (!bytes.startsWith("BM") || bytes.size() < kFinDelDato) return 0;
    return qFromLittleEndian<qint32>(bytes.constData() + kEnLaCabecera);
}

}  // namespace

QPixmap cargaImagen(const Almacen& almacen, const std::string& nombre) {
    const QByteArray bytes = QByteArray::fromStdString(almacen.leeHasta(nombre, kMaximoFicheroImagen));
    QPixmap imagen;
    if (!imagen.loadFromData(bytes)) throw FicheroInaccesible{nombre, "no es una imagen que se pueda leer"};
    imagen.setDevicePixelRatio(std::max(1.0, puntosPorMetro(bytes) / kPuntosPorMetro));
    return imagen;
}

QPixmap encajada(const QPixmap& imagen, QSize sitio, double pixelesPorPunto) {
    QPixmap escalada = imagen.scaled(sitio * pixelesPorPunto, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    escalada.setDevicePixelRatio(pixelesPorPunto);
    return escalada;
}

}  // namespace orvemo
