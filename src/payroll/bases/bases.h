#pragma once

#include <tuple>

#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

struct EstadoNomina;

/// Contribution bases of the month, euros; all 0 on an extra pay.
struct Bases {
    double AcumBaseCC = 0;  ///< those of the earnings; 0 in a training contract, whose base is flat
    double AcumBaseAT = 0;
    double BaseCCProrrata = 0;  ///< accumulated base plus the share of extra pays
    double BaseATProrrata = 0;
    double BaseCC = 0;        ///< common contingencies, days worked
    double BaseAT = 0;        ///< accidents, days worked
    double BaseIT = 0;        ///< days of leave, daily base rounded
    double BaseITExacta = 0;  ///< the same, unrounded
    double BaseITSinMat = 0;  ///< the part outside maternity
    double BaseITMat = 0;     ///< the part of maternity
    double BasePermiso = 0;   ///< unpaid leave
    double BasePermisoCopia = 0;
    double BasePermisoAT = 0;  ///< unpaid leave, accidents
    double BaseATBaja = 0;     ///< accidents, days of leave
    double BaseATBajaSinMat = 0;
    double BaseATBajaMat = 0;
    double BaseTotalCC = 0;  ///< `BasePermiso` + `BaseCC` + `BaseIT`
    double BaseParo = 0;     ///< unemployment, FOGASA and training
    double BaseParo2 = 0, BaseParo3 = 0, BaseParo4 = 0;
    double BaseParoSinMat = 0;  ///< the same without the maternity days
    double BaseParcial = 0;     ///< partial unemployment
    double BaseParcial2 = 0, BaseParcial3 = 0, BaseParcial4 = 0;
};

inline constexpr std::tuple kCamposBases{Nombrado{"AcumBaseCC", &Bases::AcumBaseCC},
                                         Nombrado{"AcumBaseAT", &Bases::AcumBaseAT},
                                         Nombrado{"BaseCCProrrata", &Bases::BaseCCProrrata},
                                         Nombrado{"BaseATProrrata", &Bases::BaseATProrrata},
                                         Nombrado{"BaseCC", &Bases::BaseCC},
                                         Nombrado{"BaseAT", &Bases::BaseAT},
                                         Nombrado{"BaseIT", &Bases::BaseIT},
                                         Nombrado{"BaseITExacta", &Bases::BaseITExacta},
                                         Nombrado{"BaseITSinMat", &Bases::BaseITSinMat},
                                         Nombrado{"BaseITMat", &Bases::BaseITMat},
                                         Nombrado{"BasePermiso", &Bases::BasePermiso},
                                         Nombrado{"BasePermisoCopia", &Bases::BasePermisoCopia},
                                         Nombrado{"BasePermisoAT", &Bases::BasePermisoAT},
                                         Nombrado{"BaseATBaja", &Bases::BaseATBaja},
                                         Nombrado{"BaseATBajaSinMat", &Bases::BaseATBajaSinMat},
                                         Nombrado{"BaseATBajaMat", &Bases::BaseATBajaMat},
                                         Nombrado{"BaseTotalCC", &Bases::BaseTotalCC},
                                         Nombrado{"BaseParo", &Bases::BaseParo},
                                         Nombrado{"BaseParo2", &Bases::BaseParo2},
                                         Nombrado{"BaseParo3", &Bases::BaseParo3},
                                         Nombrado{"BaseParo4", &Bases::BaseParo4},
                                         Nombrado{"BaseParoSinMat", &Bases::BaseParoSinMat},
                                         Nombrado{"BaseParcial", &Bases::BaseParcial},
                                         Nombrado{"BaseParcial2", &Bases::BaseParcial2},
                                         Nombrado{"BaseParcial3", &Bases::BaseParcial3},
                                         Nombrado{"BaseParcial4", &Bases::BaseParcial4}};

[[nodiscard]] Bases CalculaBases(const EstadoNomina& Estado);

}  // namespace orvemo::nomina
