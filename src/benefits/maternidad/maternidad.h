#pragma once

#include "benefits/maternidad/maternidad_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::maternidad {

enum class Jornada { Completa, Reducida };

/// Whether a worker on maternity leave has the right to the benefit under the rules of 2005, and how much it
/// comes to. Throws DesbordeNumerico when an amount passes 21,474,836.47 euros, and DivisionPorCero when the
/// reduced working day is the whole of it.
void CalculaMaternidad(const RegistroMaternidad& caso, Jornada jornada, Dictamen& dictamen);

}  // namespace orvemo::maternidad
