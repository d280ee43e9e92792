#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "cases/registro.h"
#include "pensions/comun/pensiones.h"
#include "pensions/comun/tablas_pensiones.h"

namespace orvemo::pensiones {

/// Months of a series, the latest, that count as they are; the earlier ones are brought to the prices of the
/// month before these.
inline constexpr int kMesesSinRevalorizar = 24;

/// The periods of the rows that tell a first day.
[[nodiscard]] std::vector<Periodo> PeriodosDe(std::span<const Texto<10>> desde,
                                              std::span<const Texto<10>> hasta);

/// The latest of the days written in the rows, if within 90 days of the event that gives the right to the
/// pension, before or after it.
[[nodiscard]] std::optional<Fecha> UltimoDiaCercano(std::span<const std::string> dias, Fecha hecho);

/// The rows of a record as texts.
[[nodiscard]] std::vector<std::string> TextosDe(std::span<const Texto<10>> filas);

struct SumaBases {
    double recientes = 0;        ///< the months that count as they are, euros
    double anteriores = 0;       ///< the earlier ones, revalued
    bool IPCProyectado = false;  ///< a month was revalued by a projected index
};

/// The sum of a series of `meses` monthly bases before the month of `referencia`, the latest first. With
/// `rellenaLagunas` a month of 0 counts the minimum base. Throws DivisionPorCero for a month without price
/// index, DesbordeNumerico.
[[nodiscard]] SumaBases SumaSerieBases(std::span<const double> bases, int meses, Fecha referencia,
                                       const TablasPensiones& tablas, bool rellenaLagunas);

}  // namespace orvemo::pensiones
