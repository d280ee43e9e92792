#pragma once

#include <tuple>

#include "foundations/values/octeto.h"
#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct RegistroNomina;

/// The days of the month. Counters are bytes: more days of leave than the month has are a failure.
struct Dias {
    Octeto DiasMes;            ///< days of the month; February has 29
    Octeto DiasTrabajados;     ///< at the company's charge
    Octeto DiasCotizados;      ///< contributed
    Octeto DiasBajaCotizados;  ///< contributed less worked when there is leave
    Octeto DiasNoCotizados;
    Octeto DiasPermiso;        ///< unpaid leave
    Octeto DiasHuelga;         ///< strike or suspension
    Octeto DiasFueraContrato;  ///< before the start or after the leaving date
    Octeto DiasBaja;           ///< sick leave, work accident and maternity
    Octeto DiasIT;             ///< sick leave, and its stages
    Octeto DiasIT1a3;
    Octeto DiasIT4a15;
    Octeto DiasIT16a20;
    Octeto DiasIT21;
    Octeto LabIT;  ///< those that fall on working days
    Octeto LabIT1a3;
    Octeto LabIT4a15;
    Octeto LabIT16a20;
    Octeto LabIT21;
    Octeto LabMes;   ///< working days of the month of a part-time contract
    Octeto LabAT;    ///< working days of the work-accident leave
    Octeto LabMat;   ///< working days of the maternity leave
    Octeto DiasAT;   ///< work accident
    Octeto DiasMat;  ///< maternity
    Octeto OrdenIT;  ///< running number of the sick-leave day, across both incidences

    /// Days of leave that fall on the working days of the contract's week.
    [[nodiscard]] int laborablesDeBaja() const { return LabIT + LabAT + LabMat; }
};

inline constexpr std::tuple kCamposDias{Nombrado{"DiasMes", &Dias::DiasMes},
                                        Nombrado{"DiasTrabajados", &Dias::DiasTrabajados},
                                        Nombrado{"DiasCotizados", &Dias::DiasCotizados},
                                        Nombrado{"DiasBajaCotizados", &Dias::DiasBajaCotizados},
                                        Nombrado{"DiasNoCotizados", &Dias::DiasNoCotizados},
                                        Nombrado{"DiasPermiso", &Dias::DiasPermiso},
                                        Nombrado{"DiasHuelga", &Dias::DiasHuelga},
                                        Nombrado{"DiasFueraContrato", &Dias::DiasFueraContrato},
                                        Nombrado{"DiasBaja", &Dias::DiasBaja},
                                        Nombrado{"DiasIT", &Dias::DiasIT},
                                        Nombrado{"DiasIT1a3", &Dias::DiasIT1a3},
                                        Nombrado{"DiasIT4a15", &Dias::DiasIT4a15},
                                        Nombrado{"DiasIT16a20", &Dias::DiasIT16a20},
                                        Nombrado{"DiasIT21", &Dias::DiasIT21},
                                        Nombrado{"LabIT", &Dias::LabIT},
                                        Nombrado{"LabIT1a3", &Dias::LabIT1a3},
                                        Nombrado{"LabIT4a15", &Dias::LabIT4a15},
                                        Nombrado{"LabIT16a20", &Dias::LabIT16a20},
                                        Nombrado{"LabIT21", &Dias::LabIT21},
                                        Nombrado{"LabMes", &Dias::LabMes},
                                        Nombrado{"LabAT", &Dias::LabAT},
                                        Nombrado{"LabMat", &Dias::LabMat},
                                        Nombrado{"DiasAT", &Dias::DiasAT},
                                        Nombrado{"DiasMat", &Dias::DiasMat},
                                        Nombrado{"OrdenIT", &Dias::OrdenIT}};

/// The days of the payslip's month, from the dates of the contract and the two incidences. Throws Fallo for
/// counters that leave a byte and for days that the month lacks.
[[nodiscard]] Dias CalculaDias(const EstadoNomina& Estado, const RegistroNomina& Registro);

}  // namespace orvemo::nomina
