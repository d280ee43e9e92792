#pragma once

#include "payroll/caso/entradas.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

class Contratos;

/// `DatosAEstado`: what a payslip is computed from, out of its record; the contract and the dates are left to
/// those below. Throws Fallo for a month, a group or a coefficient that no screen could hold.
[[nodiscard]] Entradas DatosAEstado(const RegistroNomina& Registro);

/// Row and way of counting of the contract. Throws TextoIlegible for a code that isn't in the table.
void PonContrato(Entradas& entradas, const Contratos& contratos, const RegistroNomina& Registro);

/// Start of the contract and end of the payslip's month. Throws TextoIlegible, FechaInexistente.
void PonFechas(Entradas& entradas, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
