#pragma once

#include <string>
#include <string_view>

#include "benefits/it/incapacidad_temporal_registro.h"
#include "foundations/values/dictamen.h"

namespace orvemo::incapacidad_temporal {

/// What the calculation takes from the controls and not from the record.
struct EnPantalla {
    bool Sup2 = false;  ///< the frame of earlier days of leave is on view
    std::string DSem;   ///< days of the week as they stand on their field
};

/// The letter of the day of the week: L Monday, M, X, J, V, S, D Sunday.
[[nodiscard]] char MiDay(Fecha fecha);

/// Days from `desde` to the day before `hasta` whose letter is in `dsem`, capitals and small letters told
/// apart.
[[nodiscard]] int DiasEfectivos(Fecha desde, Fecha hasta, std::string_view dsem);

/// The benefit of a worker on sick leave under the rules of 2005: who pays it, from which day, at what rate.
/// Sets `Prev` of the record to 0 when its frame isn't on view. Throws DesbordeNumerico when an amount passes
/// 21,474,836.47 euros or the days 32 bits.
void CalculaIncapacidad(RegistroIncapacidad& caso, const EnPantalla& pantalla, Dictamen& dictamen);

}  // namespace orvemo::incapacidad_temporal
