#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::riesgo_embarazo {

/// One case of pregnancy risk, as it lies in "RiesgoEm.nom".
struct RegistroRiesgo {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;            ///< worker's full name
    std::int32_t Situacion = 0;  ///< list index of the scheme
    Fecha fAlta = kFechaCero;    ///< date of registration with the social security
    double Bccant = 0;           ///< contribution base of the month before the leave, euros
    std::int32_t DM = 0;         ///< 0 contributes by the day, 1 by the month
    Fecha f1 = kFechaCero;       ///< first day of the leave
    Fecha f2 = kFechaCero;       ///< last day of the leave
    double Bact = 0;             ///< monthly base salary, euros
    std::int32_t Extra = 0;      ///< number of extra pays
    double IExtra = 0;           ///< amount of each extra pay, euros
    std::int32_t D12 = 0;        ///< annual hours agreed in the contract
    double B12 = 0;              ///< sum of contribution bases of the last three months, euros
    std::int32_t reservado = 0;
    Texto<2> reservadoFinal{""};
};

inline constexpr Diseno kDiseno{239,
                                Tramo{0, "Estado", &RegistroRiesgo::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroRiesgo::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroRiesgo::Nombre},
                                Tramo{161, "Situacion", &RegistroRiesgo::Situacion},
                                Tramo{165, "fAlta", &RegistroRiesgo::fAlta},
                                Tramo{173, "Bccant", &RegistroRiesgo::Bccant},
                                Tramo{181, "DM", &RegistroRiesgo::DM},
                                Tramo{185, "f1", &RegistroRiesgo::f1},
                                Tramo{193, "f2", &RegistroRiesgo::f2},
                                Tramo{201, "Bact", &RegistroRiesgo::Bact},
                                Tramo{209, "Extra", &RegistroRiesgo::Extra},
                                Tramo{213, "IExtra", &RegistroRiesgo::IExtra},
                                Tramo{221, "D12", &RegistroRiesgo::D12},
                                Tramo{225, "B12", &RegistroRiesgo::B12},
                                Tramo{233, "reservado", &RegistroRiesgo::reservado},
                                Tramo{237, "reservadoFinal", &RegistroRiesgo::reservadoFinal}};

}  // namespace orvemo::riesgo_embarazo
