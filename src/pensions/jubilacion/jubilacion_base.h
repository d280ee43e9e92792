#pragma once

#include <span>
#include <string>

#include "pensions/comun/tablas_pensiones.h"
#include "pensions/jubilacion/jubilacion_carrera.h"

namespace orvemo::jubilacion {

/// The date from which the monthly bases are counted back. In the general scheme it is the last day of
/// contribution if within 90 days of the retirement, or the day after when that lies in a later month number
/// of the year; in every other case it is the retirement. `JubiPerHasta` are the last days of the ten
/// periods, as they stand on the screen or in the record.
[[nodiscard]] Fecha FechaReferencia(Regimen regimen, Fecha JubiFechaJub,
                                    std::span<const std::string> JubiPerHasta);

/// The same, of a case.
[[nodiscard]] Fecha FechaReferencia(const RegistroJubilacion& caso);

struct BaseReguladora {
    double importe;      ///< euros a month
    bool IPCProyectado;  ///< a month was revalued by a projected index
};

/// The regulatory base of the bases entered one by one: the last 24 months as they are, the earlier ones
/// revalued to month 25. With `rellenaLagunas` a month of 0 counts the minimum base. Throws DivisionPorCero
/// for a month without price index, DesbordeNumerico.
[[nodiscard]] BaseReguladora JubiBaseReguladora(const RegistroJubilacion& caso,
                                                const pensiones::TablasPensiones& tablas,
                                                bool rellenaLagunas);

/// The regulatory base of a case: of its sum of bases or of the bases one by one.
[[nodiscard]] BaseReguladora baseReguladora(const RegistroJubilacion& caso,
                                            const pensiones::TablasPensiones& tablas);

}  // namespace orvemo::jubilacion
