#pragma once

#include <array>
#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct RegistroNomina;

/// The final settlement, euros; all 0 without a leaving date.
struct Finiquito {
    double PPVacaciones = 0;           ///< holidays earned and not taken; negative when taken in excess
    std::array<double, 4> ExtraFin{};  ///< part earned of each extra pay
    double IndExtincion = 0;           ///< severance
    double IndCompensacion = 0;        ///< additional compensation
    double IndPreaviso = 0;            ///< lack of notice
};

inline constexpr std::tuple kCamposFiniquito{Nombrado{"PPVacaciones", &Finiquito::PPVacaciones},
                                             Nombrado{"ExtraFin", &Finiquito::ExtraFin},
                                             Nombrado{"IndExtincion", &Finiquito::IndExtincion},
                                             Nombrado{"IndCompensacion", &Finiquito::IndCompensacion},
                                             Nombrado{"IndPreaviso", &Finiquito::IndPreaviso}};

[[nodiscard]] Finiquito CalculaFiniquito(const EstadoNomina& Estado, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
