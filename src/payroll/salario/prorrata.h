#pragma once

namespace orvemo::nomina {

struct EstadoNomina;
struct RegistroNomina;

/// The share of the extra pays: of a month for groups 1 to 7, of a day for the others. Euros.
[[nodiscard]] double CalculaProrrata(const EstadoNomina& Estado, const RegistroNomina& Registro);

/// Monthly salary of reference of the settlement, euros.
[[nodiscard]] double CalculaSalarioMensual(const EstadoNomina& Estado, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
