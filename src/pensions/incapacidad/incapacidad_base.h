#pragma once

#include <span>
#include <string>
#include <string_view>

#include "pensions/comun/tablas_pensiones.h"
#include "pensions/incapacidad/incapacidad_expediente.h"

namespace orvemo::incapacidad {

/// The date from which the monthly bases are counted back: in the general scheme the last day of contribution
/// if within 90 days of the opinion, otherwise the opinion.
[[nodiscard]] Fecha FechaReferencia(Regimen regimen, Fecha InvaFechaInv,
                                    std::span<const std::string> InvaPerHasta);

/// Whether the pension averages a series of monthly bases, and not the last salary or base.
[[nodiscard]] bool promediaBases(Grado grado, Causa causa, bool alta);

/// What a branch of the calculation reads, which is what a person is asked for.
struct Lecturas {
    bool alta;        ///< `InvaAltaSS`
    bool conyuge;     ///< `InvaConyuge`
    bool persona;     ///< `InvaPersona`
    bool ultimaBase;  ///< `InvaUltimaBase`
    bool periodos;    ///< the periods and the hours of part-time work
    bool bases;       ///< the monthly bases or their sum
};
[[nodiscard]] Lecturas LecturasDe(Grado grado, Causa causa, bool alta);

/// What `InvaUltimaBase` is, as its label tells it.
[[nodiscard]] std::string_view RotuloUltimaBase(Grado grado, Causa causa);

/// The regulatory base of the bases entered one by one, of so many months up to 96, euros a month. Throws
/// DivisionPorCero for no months or a month without price index, DesbordeNumerico.
[[nodiscard]] double InvaBaseReguladora(const Expediente& expediente,
                                        const pensiones::TablasPensiones& tablas, int meses);

/// The regulatory base of a pension whose person was asked for `minimo` months of contribution, euros a
/// month. Throws DivisionPorCero, DesbordeNumerico.
[[nodiscard]] double baseReguladora(const Expediente& expediente, const pensiones::TablasPensiones& tablas,
                                    int minimo);

/// Months of bases that the screen asks for, up to 96; 0 when the cause averages none. They don't always
/// agree with those of the calculation: here the months are told from days, and 15 years are 5475 of them.
[[nodiscard]] int InvaMinimoBases(const Expediente& expediente);

}  // namespace orvemo::incapacidad
