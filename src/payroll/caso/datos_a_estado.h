#pragma once

#include "payroll/caso/entradas.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

class Contratos;

/// `DatosAEstado`: what a payslip is computed from, out of its record. Throws Fallo for a contract that
/// isn't in the table; the dates are left to `PonFechas`.
[[nodiscard]] Entradas DatosAEstado(const RegistroNomina& Registro, const Contratos& contratos);

/// Start of the contract and end of the payslip's month. Throws TextoIlegible, FechaInexistente.
void PonFechas(Entradas& entradas, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
