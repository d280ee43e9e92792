#pragma once

#include "benefits/desempleo/desempleo_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::desempleo {

/// Days of contributory benefit for the days contributed in the six years before (table of 2005).
[[nodiscard]] int DiasPrestacion(int Dias);

/// Calendar days from `desde` to `hasta`, both included, or 0 when `desde` is a Saturday, a Sunday or one of
/// the holidays of any year: only the first day is looked at.
[[nodiscard]] int DiasFueraPlazo(Fecha desde, Fecha hasta);

/// Whether the worker can claim the contributory unemployment benefit of 2005, for how many days and at what
/// daily amount. Throws DesbordeNumerico when an amount passes 21,474,836.47 euros.
void CalculaDesempleo(const RegistroDesempleo& caso, Dictamen& dictamen);

}  // namespace orvemo::desempleo
