#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::maternidad {

/// One case of maternity, as it lies in "Mater.nom".
struct RegistroMaternidad {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;            ///< worker's full name
    std::int32_t Situacion = 0;  ///< list index of the scheme
    Fecha fAlta = kFechaCero;    ///< date of registration with the social security
    Fecha f1 = kFechaCero;       ///< first day of the leave
    Fecha f2 = kFechaCero;       ///< last day of the leave
    double Bccant = 0;           ///< base for common contingencies, month before the leave, euros
    std::int32_t DM = 0;         ///< 0 contributes by the day, 1 by the month
    double B12 = 0;              ///< sum of contribution bases of the last year, euros
    std::int32_t D12 = 0;        ///< annual hours agreed in the contract
    std::int32_t reservado = 0;
    std::uint8_t jtpcnd = 0;  ///< 1 if the leave has a reduced working day
    Fecha ftp = kFechaCero;   ///< first day of the reduced working day
    std::int32_t ptp = 0;     ///< percentage of the working day done
    Texto<30> reservadoFinal;
};

inline constexpr Diseno kDiseno{260,
                                Tramo{0, "Estado", &RegistroMaternidad::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroMaternidad::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroMaternidad::Nombre},
                                Tramo{161, "Situacion", &RegistroMaternidad::Situacion},
                                Tramo{165, "fAlta", &RegistroMaternidad::fAlta},
                                Tramo{173, "f1", &RegistroMaternidad::f1},
                                Tramo{181, "f2", &RegistroMaternidad::f2},
                                Tramo{189, "Bccant", &RegistroMaternidad::Bccant},
                                Tramo{197, "DM", &RegistroMaternidad::DM},
                                Tramo{201, "B12", &RegistroMaternidad::B12},
                                Tramo{209, "D12", &RegistroMaternidad::D12},
                                Tramo{213, "reservado", &RegistroMaternidad::reservado},
                                Tramo{217, "jtpcnd", &RegistroMaternidad::jtpcnd},
                                Tramo{218, "ftp", &RegistroMaternidad::ftp},
                                Tramo{226, "ptp", &RegistroMaternidad::ptp},
                                Tramo{230, "reservadoFinal", &RegistroMaternidad::reservadoFinal}};

}  // namespace orvemo::maternidad
