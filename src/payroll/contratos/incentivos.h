#pragma once

#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct TablasNomina;

/// What the row of the contract grants at the end of the payslip's month; percentages.
struct Incentivos {
    double PctBonif = 0;           ///< of a bonus
    double PctReduc = 0;           ///< of a reduction
    double RecargoDesEmpresa = 0;  ///< percentage points that unemployment rises by
    double RecargoDesTrab = 0;
    bool BonifCC = false;  ///< contingencies that the bonus reaches
    bool BonifAT = false;
    bool BonifFogasa = false;
    bool BonifFP = false;
    bool BonifDes = false;
    bool EsReduccion = false;
};

inline constexpr std::tuple kCamposIncentivos{Nombrado{"PctBonif", &Incentivos::PctBonif},
                                              Nombrado{"PctReduc", &Incentivos::PctReduc},
                                              Nombrado{"RecargoDesEmpresa", &Incentivos::RecargoDesEmpresa},
                                              Nombrado{"RecargoDesTrab", &Incentivos::RecargoDesTrab},
                                              Nombrado{"BonifCC", &Incentivos::BonifCC},
                                              Nombrado{"BonifAT", &Incentivos::BonifAT},
                                              Nombrado{"BonifFogasa", &Incentivos::BonifFogasa},
                                              Nombrado{"BonifFP", &Incentivos::BonifFP},
                                              Nombrado{"BonifDes", &Incentivos::BonifDes},
                                              Nombrado{"EsReduccion", &Incentivos::EsReduccion}};

/// What the employer saves, euros: totals and what of them each contingency takes.
struct Bonificaciones {
    double Bonificacion = 0;
    double Reduccion = 0;
    double BonifPorCC = 0;
    double BonifPorAT = 0;
    double BonifPorParo = 0;  ///< FOGASA, training and unemployment
    double ReducPorCC = 0;
};

inline constexpr std::tuple kCamposBonificaciones{Nombrado{"Bonificacion", &Bonificaciones::Bonificacion},
                                                  Nombrado{"Reduccion", &Bonificaciones::Reduccion},
                                                  Nombrado{"BonifPorCC", &Bonificaciones::BonifPorCC},
                                                  Nombrado{"BonifPorAT", &Bonificaciones::BonifPorAT},
                                                  Nombrado{"BonifPorParo", &Bonificaciones::BonifPorParo},
                                                  Nombrado{"ReducPorCC", &Bonificaciones::ReducPorCC}};

/// The incentives of the row of `IndiceContrato`. Throws Fallo for an index without row.
[[nodiscard]] Incentivos CalculaIncentivos(const EstadoNomina& Estado, const TablasNomina& tablas);

/// From 65 years of age with more than 35 of contract, first row of the contracts: the worker pays 0.28 % on
/// `BaseCC` and the employer next to nothing.
[[nodiscard]] bool Senior65(const EstadoNomina& Estado);

/// From 60 years of age with more than 5 of contract, first row of the contracts, unless Senior65.
[[nodiscard]] bool Senior60(const EstadoNomina& Estado);

/// Bonuses and reductions on the quotas of `Estado`, which stand computed; all 0 on an extra pay.
[[nodiscard]] Bonificaciones CalculaBonificaciones(const EstadoNomina& Estado);

}  // namespace orvemo::nomina
