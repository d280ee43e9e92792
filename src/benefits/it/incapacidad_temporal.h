#pragma once

#include <string_view>

#include "benefits/it/incapacidad_temporal_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::incapacidad_temporal {

/// The letter of the day of the week: L Monday, M, X, J, V, S, D Sunday.
[[nodiscard]] char MiDay(Fecha fecha);

/// Days from `desde` to the day before `hasta` whose letter is in `dsem`, capitals and small letters told
/// apart.
[[nodiscard]] int DiasEfectivos(Fecha desde, Fecha hasta, std::string_view dsem);

/// The benefit of a worker on sick leave under the rules of 2005: who pays it, from which day, at what rate.
/// The letters of the days worked come as they were typed, however many. Throws DesbordeNumerico when an
/// amount passes 21,474,836.47 euros or the days 32 bits.
void CalculaIncapacidad(const RegistroIncapacidad& caso, std::string_view dsem, Dictamen& dictamen);

}  // namespace orvemo::incapacidad_temporal
