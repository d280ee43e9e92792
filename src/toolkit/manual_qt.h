#pragma once

#include "foundations/values/almacen.h"

class QWidget;

namespace orvemo {

/// The manual, in the application directory.
inline constexpr const char* kFicheroManual = "manual.html";

/// F1 in this window opens the manual with what the desktop reads such pages with. `almacen` must outlive it.
void ponTeclaDelManual(QWidget& ventana, const Almacen& almacen);

}  // namespace orvemo
