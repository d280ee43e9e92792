#pragma once

#include "foundations/values/dictamen.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_carrera.h"

namespace orvemo::jubilacion {

/// The old-age pension of before 1967, euros a month (2005).
inline constexpr double kPensionSOVI = 313.21;

using pensiones::kAnioDelPrograma;
using pensiones::kSubidaAnual;

/// Works out the pension of a person with a right to it and writes its conclusions. `bonificacion` is the
/// percentage for retiring after 65, `hoy` the day whose prices a projected base is told in. Throws
/// DivisionPorCero for a month without price index, DesbordeNumerico.
void CalculaCuantia(const RegistroJubilacion& caso, const Carrera& carrera, int bonificacion,
                    const pensiones::TablasPensiones& tablas, Fecha hoy, Dictamen& dictamen);

/// What prices and limits grow from 2005 to the year of retirement, in single precision; 1 up to 2005.
[[nodiscard]] float FactorInflacion(int anio);

}  // namespace orvemo::jubilacion
