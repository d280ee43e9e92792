#include "toolkit/imagenes_qt.h"

#include "foundations/values/fallos.h"

namespace orvemo {

QPixmap cargaImagen(const Almacen& almacen, const std::string& nombre) {
    const QByteArray bytes = QByteArray::fromStdString(almacen.leeTodo(nombre));
    QPixmap imagen;
    if (!imagen.loadFromData(bytes)) throw FicheroInaccesible{nombre, "no es una imagen que se pueda leer"};
    return imagen;
}

QPixmap encajada(const QPixmap& imagen, QSize sitio, double pixelesPorPunto) {
    QPixmap escalada = imagen.scaled(sitio * pixelesPorPunto, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    escalada.setDevicePixelRatio(pixelesPorPunto);
    return escalada;
}

}  // namespace orvemo
