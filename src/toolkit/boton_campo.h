#pragma once

#include "toolkit/control.h"

namespace orvemo {

/// Whether a button leads to the next panel or to the one before, wherever it stands.
[[nodiscard]] bool esDePaso(const Campo& campo);

/// The button of a field, shaped by where it stands: an icon on the bar, "Siguiente" and "Anterior" with
/// their arrows on the foot, its caption on a panel.
[[nodiscard]] Control* nuevoBoton(Campo& campo, Anfitrion& anfitrion);

}  // namespace orvemo
