#pragma once

#include <cstdint>
#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;
struct RegistroNomina;

/// The days of the month. Counters are bytes: more days of leave than the month has are a failure.
struct Dias {
    std::uint8_t DiasMes = 0;            ///< days of the month; February has 29
    std::uint8_t DiasTrabajados = 0;     ///< at the company's charge
    std::uint8_t DiasCotizados = 0;      ///< contributed
    std::uint8_t DiasBajaCotizados = 0;  ///< contributed less worked when there is leave
    std::uint8_t DiasNoCotizados = 0;
    std::uint8_t DiasPermiso = 0;        ///< unpaid leave
    std::uint8_t DiasHuelga = 0;         ///< strike or suspension
    std::uint8_t DiasFueraContrato = 0;  ///< before the start or after the leaving date
    std::uint8_t DiasBaja = 0;           ///< sick leave, work accident and maternity
    std::uint8_t DiasIT = 0;             ///< sick leave, and its stages
    std::uint8_t DiasIT1a3 = 0;
    std::uint8_t DiasIT4a15 = 0;
    std::uint8_t DiasIT16a20 = 0;
    std::uint8_t DiasIT21 = 0;
    std::uint8_t LabIT = 0;  ///< those that fall on working days
    std::uint8_t LabIT1a3 = 0;
    std::uint8_t LabIT4a15 = 0;
    std::uint8_t LabIT16a20 = 0;
    std::uint8_t LabIT21 = 0;
    std::uint8_t LabMes = 0;   ///< working days of the month of a part-time contract
    std::uint8_t LabAT = 0;    ///< working days of the work-accident leave
    std::uint8_t LabMat = 0;   ///< working days of the maternity leave
    std::uint8_t DiasAT = 0;   ///< work accident
    std::uint8_t DiasMat = 0;  ///< maternity
    std::uint8_t OrdenIT = 0;  ///< running number of the sick-leave day, across both incidences
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
