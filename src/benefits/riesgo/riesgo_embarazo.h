#pragma once

#include "benefits/riesgo/riesgo_embarazo_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::riesgo_embarazo {

/// The benefit of a worker whose job is a risk for her pregnancy under the rules of 2005: 75 per cent of a
/// daily base. The lines on contribution inform and refuse nobody. Throws DesbordeNumerico when an amount
/// passes 21,474,836.47 euros.
void CalculaRiesgoEmbarazo(const RegistroRiesgo& caso, Dictamen& dictamen);

}  // namespace orvemo::riesgo_embarazo
