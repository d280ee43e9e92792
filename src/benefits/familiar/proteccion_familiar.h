#pragma once

#include "benefits/familiar/familiar_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::familiar {

/// The allowance for dependent children of 2005 (`Ayuda` 0) or the one-off payment for a birth (`Ayuda` 1).
/// Throws DesbordeNumerico when counts of children pass 32 bits.
void CalculaProteccionFamiliar(const RegistroFamiliar& caso, Dictamen& dictamen);

}  // namespace orvemo::familiar
