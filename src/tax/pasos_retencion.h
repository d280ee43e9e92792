#pragma once

#include "tax/retenciones.h"

/// The steps of the withholding that stand in files of their own.
namespace orvemo::irpf {

inline constexpr int kAnioReferencia = 2004;

// Percentages that short contracts and special relations never go below.
inline constexpr std::uint8_t kContratoCorto = 1;     ///< `TipoContrato`
inline constexpr std::uint8_t kRelacionEspecial = 2;  ///< `TipoContrato`
inline constexpr double kTipoMinimoCorto = 2;
inline constexpr double kTipoMinimoEspecial = 15;

/// Reductions of the base for descendants, euros.
struct MinimosDescendientes {
    double MinDesc = 0;
    double MinMenor3 = 0;
    double MinDiscDesc = 0;
    double AsistDesc = 0;
    double Familia3 = 0;
};

/// Reductions of the base for ascendants, euros.
struct MinimosAscendientes {
    double MinAsc = 0;
    double MinAsc75 = 0;
    double MinDiscAsc = 0;
    double AsistAsc = 0;
};

/// The reductions for the descendants who are present; the counts go to `r`.
[[nodiscard]] MinimosDescendientes CalculaDescendientes(const DatosRetencion& datos, ResultadoRetencion& r);

/// The same for the ascendants.
[[nodiscard]] MinimosAscendientes CalculaAscendientes(const DatosRetencion& datos, ResultadoRetencion& r);

/// Whole years in the reference year of someone born in that year.
[[nodiscard]] constexpr std::int64_t EdadDe(std::int64_t nacimiento) {
    return kAnioReferencia - nacimiento;
}

/// The amount cut to the cent, downwards.
[[nodiscard]] double TruncaDos(double x);

/// A percentage with its two decimals.
[[nodiscard]] double TipoFinal(double x);

/// The percentage held between what the contract and the law allow.
[[nodiscard]] double LimitaPorContrato(double Rate, const DatosRetencion& datos);

/// Works the rate of `r`, that of the whole year, out anew for the months that are left.
/// Throws DivisionPorCero, DesbordeNumerico.
void Regulariza(const DatosRetencion& datos, ResultadoRetencion& r);

}  // namespace orvemo::irpf
