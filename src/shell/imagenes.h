#pragma once

#include <string>

#include "foundations/values/almacen.h"

namespace orvemo {

inline constexpr const char* kFotoLogo = "logo.bmp";

/// The name of a picture that the application directory holds. Throws FicheroInaccesible when it doesn't.
[[nodiscard]] std::string ImagenPresente(const Almacen& almacen, std::string nombre);

}  // namespace orvemo
