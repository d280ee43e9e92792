#pragma once

#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;

/// Daily bases of the leave, euros; 0 without leave.
struct BasesReguladoras {
    double BRComun = 0;
    double BRProfesional = 0;
};

inline constexpr std::tuple kCamposBasesReguladoras{
    Nombrado{"BRComun", &BasesReguladoras::BRComun},
    Nombrado{"BRProfesional", &BasesReguladoras::BRProfesional}};

/// Benefits that replace pay, euros.
struct Prestaciones {
    double PrestDP = 0;  ///< partial unemployment
    double PrestIT = 0;  ///< sick leave: the two that follow
    double ITEmpresa = 0;
    double ITSeguridadSocial = 0;
    double PrestAT = 0;  ///< work accident
};

inline constexpr std::tuple kCamposPrestaciones{
    Nombrado{"PrestDP", &Prestaciones::PrestDP}, Nombrado{"PrestIT", &Prestaciones::PrestIT},
    Nombrado{"ITEmpresa", &Prestaciones::ITEmpresa},
    Nombrado{"ITSeguridadSocial", &Prestaciones::ITSeguridadSocial},
    Nombrado{"PrestAT", &Prestaciones::PrestAT}};

/// Throws DivisionPorCero for a part-time leave with no days before it.
[[nodiscard]] BasesReguladoras CalculaBasesReguladoras(const EstadoNomina& Estado);

[[nodiscard]] Prestaciones CalculaPrestaciones(const EstadoNomina& Estado);

}  // namespace orvemo::nomina
