#pragma once

#include <memory>

#include "toolkit/control.h"

namespace orvemo {

/// The widget for the field's kind, a child of `padre`, showing the field's present state.
[[nodiscard]] Control* nuevoControl(Campo& campo, Anfitrion& anfitrion, QWidget* padre);

}  // namespace orvemo
