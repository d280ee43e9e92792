#pragma once

#include <QFont>

#include "printing/destino_impresion.h"

namespace orvemo {

/// The free font, as wide as the one named, that reports are printed in; without underline, which is drawn.
[[nodiscard]] QFont tipoDeLetra(const Fuente& fuente);

/// True when those fonts are on this machine; without them texts are cut elsewhere than they should.
[[nodiscard]] bool fuentesInstaladas();

}  // namespace orvemo
