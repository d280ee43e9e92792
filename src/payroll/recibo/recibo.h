#pragma once

#include <string>
#include <vector>

#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

struct LineaRecibo {
    std::string texto;
    double importe = 0;    ///< euros
    std::string codigo{};  ///< of its concept; none for what the receipt adds
};

/// The receipt as panel, paper and terminal show it: the lines in their two groups and the totals, with what
/// the receipt adds to the calculation. Euros.
struct Recibo {
    std::vector<LineaRecibo> salariales;
    std::vector<LineaRecibo> noSalariales;
    double TotalDevengado = 0;
    double VacacionesEnExceso = 0;  ///< holidays taken beyond those earned; 0 when there are none
    double IRPF = 0;
    double TotalADeducir = 0;
    double Liquido = 0;
};

[[nodiscard]] Recibo PreparaRecibo(const EstadoNomina& Estado, const RegistroNomina& Registro);

/// Base for professional contingencies and joint collection that the receipt tells: without the maternity
/// days, but in training contracts, whose base is one and the same for all.
[[nodiscard]] double BaseRecaudacionConjunta(const EstadoNomina& Estado);

/// Codes of the worker's special situations on the contribution form, six characters: strike, reduced hours,
/// partial unemployment, unpaid leave and monthly pay in a group paid by the day, from the left, no gaps.
[[nodiscard]] std::string SituacionesEspeciales(const EstadoNomina& Estado, const RegistroNomina& Registro);

/// The receipt as a person reads it in a terminal: earnings, deductions, net pay and bases, lines ended by
/// "\n".
[[nodiscard]] std::string TextoRecibo(const EstadoNomina& Estado, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
