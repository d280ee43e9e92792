#pragma once

#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

inline constexpr std::string_view kDatoIncorrecto = "Algún dato no es correcto. Revise el supuesto";
inline constexpr std::string_view kErrorEnLosDatos = "Error en los cálculos. Algún dato no es correcto.";

/// One payslip of 2005, step by step, from the entries that `Estado` has. The order is binding: the benefits
/// come from the bases of last month, the settlement goes before the lines that it adds, the bases see the
/// share of the extra pays and what the lines accumulate. Throws Fallo for data that cannot be; `Estado`
/// then holds what was computed before.
void CalculaNomina(const RegistroNomina& Registro, const TablasNomina& tablas, EstadoNomina& Estado);

/// `CalculaSupuesto` without its screens: a new state from a record. Gives what has to be told to the user,
/// empty when all went well.
[[nodiscard]] std::string_view CalculaSupuesto(const RegistroNomina& Registro, const TablasNomina& tablas,
                                               EstadoNomina& Estado);

}  // namespace orvemo::nomina
