#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct RegistroNomina;

inline constexpr std::size_t kLineas = 12;  ///< six concepts and six added lines, no more

/// Lines of the receipt and what they add up to, euros.
struct Devengos {
    double AcumBaseCC = 0;       ///< concepts that enter the base for common contingencies
    double AcumBaseAT = 0;       ///< concepts that enter the base for accidents
    double BaseIRPF = 0;         ///< concepts that enter the base of the tax
    double HorasExtraFM = 0;     ///< overtime by force majeure
    double HorasExtraResto = 0;  ///< other overtime
    double Proporcion = 1;       ///< part of the extra pay earned
    std::int32_t NumLineas = 0;
    std::array<double, kLineas> LineaImporte{};
    std::array<std::string, kLineas> LineaCodigo{};  ///< two characters
    std::array<bool, kLineas> LineaSalarial{};
    double TotalDevengado = 0;
    double TipoIRPF = 0;  ///< percent
    double RetencionIRPF = 0;
    double Anticipos = 0;
    double PagoEspecie = 0;
    double IngresoCuentaEspecie = 0;  ///< the tax on it
    double PPExtras = 0;              ///< parts of extra pays of the separate receipt, added
};

/// `AcumBaseCC` and `AcumBaseAT` are told with the bases, which have the last word on them.
inline constexpr std::tuple kCamposDevengos{Nombrado{"BaseIRPF", &Devengos::BaseIRPF},
                                            Nombrado{"HorasExtraFM", &Devengos::HorasExtraFM},
                                            Nombrado{"HorasExtraResto", &Devengos::HorasExtraResto},
                                            Nombrado{"Proporcion", &Devengos::Proporcion},
                                            Nombrado{"NumLineas", &Devengos::NumLineas},
                                            Nombrado{"LineaImporte", &Devengos::LineaImporte},
                                            Nombrado{"LineaCodigo", &Devengos::LineaCodigo},
                                            Nombrado{"LineaSalarial", &Devengos::LineaSalarial},
                                            Nombrado{"TotalDevengado", &Devengos::TotalDevengado},
                                            Nombrado{"TipoIRPF", &Devengos::TipoIRPF},
                                            Nombrado{"RetencionIRPF", &Devengos::RetencionIRPF},
                                            Nombrado{"Anticipos", &Devengos::Anticipos},
                                            Nombrado{"PagoEspecie", &Devengos::PagoEspecie},
                                            Nombrado{"IngresoCuentaEspecie", &Devengos::IngresoCuentaEspecie},
                                            Nombrado{"PPExtras", &Devengos::PPExtras}};

/// All the lines of the receipt, with the withholding at the end. Throws DesbordeNumerico for a thirteenth
/// line.
[[nodiscard]] Devengos CalculaDevengos(const EstadoNomina& Estado, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
