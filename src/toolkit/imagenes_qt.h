#pragma once

#include <QPixmap>
#include <string>

#include "foundations/values/almacen.h"

namespace orvemo {

/// A picture of the application directory. One drawn more finely than the screen and saying so is finer, not
/// larger. Throws FicheroInaccesible when it is missing or is no picture.
[[nodiscard]] QPixmap cargaImagen(const Almacen& almacen, const std::string& nombre);

/// The picture at the largest size of its shape that fits in `sitio`, in logical pixels, sharp on a screen of
/// that pixel ratio.
[[nodiscard]] QPixmap encajada(const QPixmap& imagen, QSize sitio, double pixelesPorPunto);

}  // namespace orvemo
