#pragma once

#include <string>

#include "tax/datos_retencion.h"

namespace orvemo::irpf {

/// What a calculation of the withholding finds out; amounts are euros a year.
struct ResultadoRetencion {
    double TipoRetencion = 0;     ///< final percentage
    double ImporteRetencion = 0;  ///< withholding
    double RendimientoNeto = 0;   ///< pay less reductions and costs, never below 0
    double ReduccionTrabajo = 0;  ///< reduction for work income
    double ReduccionesBase = 0;   ///< all reductions of the base
    double BaseRetencion = 0;     ///< base after those reductions
    double MayorDe65 = 0;         ///< reductions for persons of 65 or more
    double MayorDe75 = 0;         ///< the same of 75 or more
    double PorDiscapacidad = 0;   ///< reductions for disability
    double Pension600 = 0;        ///< the pensioner's own 600
    int NumDescendientes = 0;
    int NumMenores3 = 0;       ///< under 3
    int NumDe3a25 = 0;         ///< from 3 to 24
    int NumAdoptados = 0;      ///< adopted after 2001
    int NumEnteros = 0;        ///< counted whole
    int NumDescDisc33 = 0;     ///< disabled from 33% under 65%
    int NumDescDisc65 = 0;     ///< disabled at 65% or more
    int NumDescMovilidad = 0;  ///< of the first, those with reduced mobility
    int NumAscendientes = 0;
    int NumAscEnteros = 0;
    int NumAscDisc33 = 0;
    int NumAscDisc65 = 0;
    int NumAscMovilidad = 0;
    bool Exento = false;     ///< the pay doesn't reach the taxed minimum
    std::string LimitaTipo;  ///< "S" once a regularisation of the run has had to cap the rate
};

/// The withholding on work income by the rules of 2004, which hold for 2005. `LimitaTipo` is what the
/// calculation before it in the same run of the program left; only regularisations look at it. Throws
/// DivisionPorCero when all the pay of a regularisation has already been received, DesbordeNumerico for
/// amounts above 21,474,836.47.
[[nodiscard]] ResultadoRetencion CalculaRetencion(const DatosRetencion& datos, std::string LimitaTipo = {});

/// The tax on a base, to the cent. Throws DesbordeNumerico.
[[nodiscard]] double CuotaRetencion(double base);

}  // namespace orvemo::irpf
