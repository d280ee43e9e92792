#pragma once

#include "foundations/values/dictamen.h"
#include "pensions/muerte/muerte_registro.h"

namespace orvemo::muerte {

/// Whether the death of the person of the case gives its survivors a right, and the pensions, lump sums and
/// subsidies that they get (figures of 2005). Throws DesbordeNumerico; the lines written so far stay in the
/// conclusions.
void MuerteCalcula(const RegistroMuerte& caso, Dictamen& dictamen);

}  // namespace orvemo::muerte
