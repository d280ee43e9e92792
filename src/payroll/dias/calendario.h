#pragma once

#include <optional>
#include <string_view>

#include "foundations/values/fechas.h"
#include "payroll/caso/entradas.h"

namespace orvemo::nomina {

/// Days of a month of 2005: February has 29 here. 0 and 13 are the months before January and after December.
[[nodiscard]] int DiasDelMes(int Mes);

/// D Sunday, L Monday, M Tuesday, W Wednesday, J Thursday, V Friday, S Saturday.
[[nodiscard]] char LetraDia(Fecha fecha);

/// Whether the letter of the day is among those worked.
[[nodiscard]] bool EsLaborable(Fecha fecha, std::string_view DiasSemana);

/// Days of 2005 that are worked.
[[nodiscard]] int DiasLaborablesAnio(std::string_view DiasSemana);

/// The leaving date; nothing when it is blank. Throws TextoIlegible, FechaInexistente.
[[nodiscard]] std::optional<Fecha> FechaDeCese(const Entradas& entradas);

}  // namespace orvemo::nomina
