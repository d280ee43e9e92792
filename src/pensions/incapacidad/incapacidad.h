#pragma once

#include "foundations/values/dictamen.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/incapacidad/incapacidad_expediente.h"

namespace orvemo::incapacidad {

/// Whether the person of the case has a right to a benefit of permanent incapacity, and which, by its grade
/// (figures of 2005). Throws DivisionPorCero for a month without price index or a person so young that no
/// month is asked for, and DesbordeNumerico; the lines written so far stay in the conclusions.
void InvaCalcula(const RegistroIncapacidad& caso, const pensiones::TablasPensiones& tablas,
                 Dictamen& dictamen);

/// Partial incapacity: a lump sum of 24 payments and no pension.
void InvaCalculaParcial(const Expediente& expediente, Dictamen& dictamen);

}  // namespace orvemo::incapacidad
