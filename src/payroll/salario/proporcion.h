#pragma once

#include <optional>

#include "foundations/values/fechas.h"

namespace orvemo::nomina {

/// Part earned of an extra pay over the period from `Desde` to `Hasta`, both included, by a contract from
/// `Inicio` to `Cese`: in months where everything falls on whole months, otherwise in days. 0 to 1.
[[nodiscard]] double ProporcionExtra(Fecha Desde, Fecha Hasta, Fecha Inicio, std::optional<Fecha> Cese);

/// Days from one date to another, both included.
[[nodiscard]] int DiasIncluidos(Fecha desde, Fecha hasta);

[[nodiscard]] bool EsPrimeroDeMes(Fecha fecha);

/// Whether the day after is the first of a month.
[[nodiscard]] bool EsUltimoDeMes(Fecha fecha);

}  // namespace orvemo::nomina
