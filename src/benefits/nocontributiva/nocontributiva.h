#pragma once

#include "benefits/nocontributiva/nocontributiva_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::nocontributiva {

/// Whether a non-contributory retirement or invalidity pension of 2005 is due on the day `hoy`, and how much
/// a year. Throws DivisionPorCero without beneficiaries, DesbordeNumerico when an amount passes 21,474,836.47
/// euros.
void CalculaNoContributiva(const RegistroNoContributiva& caso, Fecha hoy, Dictamen& dictamen);

}  // namespace orvemo::nocontributiva
