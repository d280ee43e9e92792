#pragma once

#include <cstdint>
#include <string>

#include "tax/datos_retencion.h"

namespace orvemo::liquidos {

/// What decides the gross pay that leaves a net pay in hand.
struct DatosLiquidos {
    double Neto = 0;               ///< monthly net pay, euros
    std::int32_t Extra = 0;        ///< extra pays a year
    int Grupo = 1;                 ///< contribution group, 1 to 11
    int TipoContrato = 0;          ///< 0 permanent, 1 temporary, anything else pays no contribution
    irpf::DatosRetencion persona;  ///< circumstances; its pay, costs and regularisation don't count
};

/// The gross pay and what it leaves, euros.
struct ResultadoLiquidos {
    double Bruto = 0;          ///< a month
    double CuotaSS = 0;        ///< the worker's contribution, a month
    double TipoRetencion = 0;  ///< percentage withheld
    std::uint8_t Pagas = 0;    ///< pays a year
    int vueltas = 0;           ///< turns that it took
};

inline constexpr int kMaximoVueltas = 500;

/// Looks for the gross pay whose net is `Neto`, by the rates of 2005. It ends on an amount that a text of 15
/// digits tells exactly, or after 500 turns where it stands. Throws DesbordeNumerico for more pays than a
/// byte counts, or amounts above 21,474,836.47.
[[nodiscard]] ResultadoLiquidos LiquidosCalcular(const DatosLiquidos& datos);

/// What a gross pay leaves in hand, a month; the other way round. Throws as LiquidosCalcular.
[[nodiscard]] double LiquidoDe(const DatosLiquidos& datos, double Bruto);

/// The texts of the screen of results, by control.
struct TextosLiquidos {
    std::string LiquidosBruto, LiquidosAnual, Ret, iRet, IRetAnual, iSS, iLiq;
    friend bool operator==(const TextosLiquidos&, const TextosLiquidos&) = default;
};

/// Throws DesbordeNumerico as the rounding does.
[[nodiscard]] TextosLiquidos TextosDe(const ResultadoLiquidos& resultado);

}  // namespace orvemo::liquidos
