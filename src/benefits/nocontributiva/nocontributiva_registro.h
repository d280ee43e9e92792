#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::nocontributiva {

/// One case of non-contributory pension, as it lies in "nocont.nom".
struct RegistroNoContributiva {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;              ///< applicant's full name
    Fecha FechaNac = kFechaCero;   ///< date of birth
    std::int32_t Estancia = 0;     ///< years of residence in Spain since the age of 16
    std::int32_t NumMiembros = 0;  ///< members of the family unit
    std::int32_t NumBenef = 0;     ///< beneficiaries of this kind of pension in the unit
    double Renta = 0;              ///< the applicant's yearly income, euros
    double RenBene = 0;            ///< yearly income of all beneficiaries, the applicant included, euros
    double RGlobal = 0;            ///< yearly income of the whole family unit, euros
    std::uint8_t Convive = 0;      ///< 1 when living with children or parents
    std::uint8_t Minusvalia = 0;   ///< 1 when disabled at 65% or more
    Texto<100> reservado;
};

inline constexpr Diseno kDiseno{307,
                                Tramo{0, "Estado", &RegistroNoContributiva::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroNoContributiva::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroNoContributiva::Nombre},
                                Tramo{161, "FechaNac", &RegistroNoContributiva::FechaNac},
                                Tramo{169, "Estancia", &RegistroNoContributiva::Estancia},
                                Tramo{173, "NumMiembros", &RegistroNoContributiva::NumMiembros},
                                Tramo{177, "NumBenef", &RegistroNoContributiva::NumBenef},
                                Tramo{181, "Renta", &RegistroNoContributiva::Renta},
                                Tramo{189, "RenBene", &RegistroNoContributiva::RenBene},
                                Tramo{197, "RGlobal", &RegistroNoContributiva::RGlobal},
                                Tramo{205, "Convive", &RegistroNoContributiva::Convive},
                                Tramo{206, "Minusvalia", &RegistroNoContributiva::Minusvalia},
                                Tramo{207, "reservado", &RegistroNoContributiva::reservado}};

}  // namespace orvemo::nocontributiva
