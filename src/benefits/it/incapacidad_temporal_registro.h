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
                                Tramo{0, "Estado", &RegistroIncapacidad::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroIncapacidad::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroIncapacidad::Nombre},
                                Tramo{161, "Situacion", &RegistroIncapacidad::Situacion},
                                Tramo{165, "fAlta", &RegistroIncapacidad::fAlta},
                                Tramo{173, "Bccant", &RegistroIncapacidad::Bccant},
                                Tramo{181, "Batant", &RegistroIncapacidad::Batant},
                                Tramo{189, "He", &RegistroIncapacidad::He},
                                Tramo{193, "He12", &RegistroIncapacidad::He12},
                                Tramo{197, "DM", &RegistroIncapacidad::DM},
                                Tramo{201, "f1", &RegistroIncapacidad::f1},
                                Tramo{209, "f2", &RegistroIncapacidad::f2},
                                Tramo{217, "TBaja", &RegistroIncapacidad::TBaja},
                                Tramo{221, "Bact", &RegistroIncapacidad::Bact},
                                Tramo{229, "Extra", &RegistroIncapacidad::Extra},
                                Tramo{233, "IExtra", &RegistroIncapacidad::IExtra},
                                Tramo{241, "Prev", &RegistroIncapacidad::Prev},
                                Tramo{245, "D12", &RegistroIncapacidad::D12},
                                Tramo{249, "B12", &RegistroIncapacidad::B12},
                                Tramo{257, "reservado", &RegistroIncapacidad::reservado},
                                Tramo{261, "HorasAno", &RegistroIncapacidad::HorasAno},
                                Tramo{265, "DSem", &RegistroIncapacidad::DSem},
                                Tramo{272, "reservadoFinal", &RegistroIncapacidad::reservadoFinal}};

}  // namespace orvemo::incapacidad_temporal
