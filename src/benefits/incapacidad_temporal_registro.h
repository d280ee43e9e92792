#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::incapacidad_temporal {

/// One case of temporary incapacity, as it lies in "ILT.nom".
struct RegistroIncapacidad {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;            ///< worker's full name
    std::int32_t Situacion = 0;  ///< list index of the scheme
    Fecha fAlta = kFechaCero;    ///< date of registration
    double Bccant = 0;           ///< base for common contingencies, month before the leave, euros
    double Batant = 0;           ///< base for work accidents and occupational disease, month before, euros
    std::int32_t He = 0;         ///< contribution on overtime of the month before, euros
    std::int32_t He12 = 0;       ///< contribution on overtime of the last twelve months, euros
    std::int32_t DM = 0;         ///< 0 contributes by the day, 1 by the month
    Fecha f1 = kFechaCero;       ///< first day of the leave
    Fecha f2 = kFechaCero;       ///< date of return
    std::int32_t TBaja = 0;      ///< list index of the cause
    double Bact = 0;             ///< monthly base salary, euros
    std::int32_t Extra = 0;      ///< number of extra pays
    double IExtra = 0;           ///< amount of each extra pay, euros
    std::int32_t Prev = 0;       ///< days on leave in the last six months
    std::int32_t D12 = 0;        ///< days to which `B12` corresponds
    double B12 = 0;              ///< sum of the bases of the last three months, euros
    std::int32_t reservado = 0;
    std::int32_t HorasAno = 0;  ///< hours worked per year
    Texto<7> DSem;              ///< letters of the days worked, out of "LMXJVSD"
    Texto<2> reservadoFinal{""};
};

inline constexpr Diseno kDiseno{274,
                                Tramo{0, &RegistroIncapacidad::Estado},
                                Tramo{1, &RegistroIncapacidad::NombreSupuesto},
                                Tramo{81, &RegistroIncapacidad::Nombre},
                                Tramo{161, &RegistroIncapacidad::Situacion},
                                Tramo{165, &RegistroIncapacidad::fAlta},
                                Tramo{173, &RegistroIncapacidad::Bccant},
                                Tramo{181, &RegistroIncapacidad::Batant},
                                Tramo{189, &RegistroIncapacidad::He},
                                Tramo{193, &RegistroIncapacidad::He12},
                                Tramo{197, &RegistroIncapacidad::DM},
                                Tramo{201, &RegistroIncapacidad::f1},
                                Tramo{209, &RegistroIncapacidad::f2},
                                Tramo{217, &RegistroIncapacidad::TBaja},
                                Tramo{221, &RegistroIncapacidad::Bact},
                                Tramo{229, &RegistroIncapacidad::Extra},
                                Tramo{233, &RegistroIncapacidad::IExtra},
                                Tramo{241, &RegistroIncapacidad::Prev},
                                Tramo{245, &RegistroIncapacidad::D12},
                                Tramo{249, &RegistroIncapacidad::B12},
                                Tramo{257, &RegistroIncapacidad::reservado},
                                Tramo{261, &RegistroIncapacidad::HorasAno},
                                Tramo{265, &RegistroIncapacidad::DSem},
                                Tramo{272, &RegistroIncapacidad::reservadoFinal}};

}  // namespace orvemo::incapacidad_temporal
