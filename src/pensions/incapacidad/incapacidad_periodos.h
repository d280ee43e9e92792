#pragma once

#include <optional>

#include "foundations/values/dictamen.h"
#include "pensions/incapacidad/incapacidad_expediente.h"

namespace orvemo::incapacidad {

/// Tells the refusal of a pension, with a hint on the non-contributory one.
void deniegaPension(Dictamen& dictamen);

/// Whether the person has contributed long enough for a pension, told in lines that end in a refusal if not.
/// Gives the months asked for, which are those whose bases the pension averages: 0 when the cause asks for
/// none, nothing on a refusal.
[[nodiscard]] std::optional<int> cumplePeriodos(const Expediente& expediente, Dictamen& dictamen);

/// The same for who is not in the social security: 15 years in all and 3 of the last 10.
[[nodiscard]] std::optional<int> cumpleQuinceAnios(const Expediente& expediente, Dictamen& dictamen);

/// What an age asks for before the opinion (2005).
struct PeriodoMinimo {
    int dias;
    int meses;
};

/// From 16 years on, half of the time; for those below 26.
[[nodiscard]] PeriodoMinimo minimoDeJoven(const Expediente& expediente);

/// From 20 years on, a quarter of the time and at least five years; for those of 26 and more.
[[nodiscard]] PeriodoMinimo minimoDeAdulto(const Expediente& expediente);

inline constexpr int kEdadDeAdulto = 26;  ///< years from which a quarter is asked for and not a half

}  // namespace orvemo::incapacidad
