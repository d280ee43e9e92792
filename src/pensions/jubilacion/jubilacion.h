#pragma once

#include "foundations/values/dictamen.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_registro.h"

namespace orvemo::jubilacion {

/// Whether the person of the case may retire, with what percentage, reduction and limits, and the pension
/// that results (figures of 2005). `hoy` is the day whose prices a projected base is told in. Throws
/// DivisionPorCero for a month without price index and DesbordeNumerico; the lines written so far stay in the
/// conclusions.
void CalculaJubilacion(const RegistroJubilacion& caso, const pensiones::TablasPensiones& tablas, Fecha hoy,
                       Dictamen& dictamen);

/// What a person refused for lack of contributions is told: the pension of the old insurance from 1800 days
/// on, or the hint on the non-contributory pension. Nothing below 65 years.
void PensionSOVI(int edad, int diasSOVI, Dictamen& dictamen);

}  // namespace orvemo::jubilacion
