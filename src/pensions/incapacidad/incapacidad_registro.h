#pragma once

#include <array>
#include <cstdint>

#include "cases/registro.h"

namespace orvemo::incapacidad {

inline constexpr int kFilasPeriodos = 6;
inline constexpr int kLineasBases = 96;  ///< monthly bases in use; the record has room for 120

/// One case of permanent incapacity, as it lies in "invalid.nom".
struct RegistroIncapacidad {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> InvaNombre;             ///< person's name
    Fecha InvaFechaNac = kFechaCero;  ///< date of birth
    Fecha InvaFechaInv = kFechaCero;  ///< date of the medical opinion
    std::uint8_t InvaInvalidez = 0;   ///< grade, from 0 in list order
    std::uint8_t InvaCausa = 0;       ///< cause, from 0 in list order
    std::uint8_t InvaRegimen = 0;     ///< scheme, from 0 in list order
    std::uint8_t InvaConyuge = 0;     ///< 1 with a dependent spouse
    double InvaUltimaBase = 0;        ///< daily base, yearly salary or sum of 24 months, by the cause, euros
    std::uint8_t InvaRecargo = 0;     ///< 1 when machinery without safety devices caused the injury
    std::uint8_t InvaAltaSS = 0;      ///< 1 while in the social security or in a situation like it
    std::uint8_t InvaPersona = 0;     ///< 1 when a person has to be paid for care
    std::array<Texto<10>, kFilasPeriodos> InvaPerDesde;  ///< "dd-mm-yyyy"
    std::array<Texto<10>, kFilasPeriodos> InvaPerHasta;
    std::array<Texto<20>, kFilasPeriodos> InvaPerEmpresa;
    std::uint8_t InvaBasesDesglosadas = 0;  ///< 1 when the bases are entered one by one
    std::array<double, 120> InvaBase{};     ///< monthly bases, euros; the first is the latest month
    double InvaSumaBases = 0;               ///< weighted sum of the bases, euros
    std::int32_t HorasTP = 0;               ///< hours in part-time contracts
    std::int32_t HorasTP10 = 0;             ///< those of the last ten years
    Texto<2> reservado;
};

inline constexpr Diseno kDiseno{
    1411,
    Tramo{0, "Estado", &RegistroIncapacidad::Estado},
    Tramo{1, "NombreSupuesto", &RegistroIncapacidad::NombreSupuesto},
    Tramo{81, "InvaNombre", &RegistroIncapacidad::InvaNombre},
    Tramo{161, "InvaFechaNac", &RegistroIncapacidad::InvaFechaNac},
    Tramo{169, "InvaFechaInv", &RegistroIncapacidad::InvaFechaInv},
    Tramo{177, "InvaInvalidez", &RegistroIncapacidad::InvaInvalidez},
    Tramo{178, "InvaCausa", &RegistroIncapacidad::InvaCausa},
    Tramo{179, "InvaRegimen", &RegistroIncapacidad::InvaRegimen},
    Tramo{180, "InvaConyuge", &RegistroIncapacidad::InvaConyuge},
    Tramo{181, "InvaUltimaBase", &RegistroIncapacidad::InvaUltimaBase},
    Tramo{189, "InvaRecargo", &RegistroIncapacidad::InvaRecargo},
    Tramo{190, "InvaAltaSS", &RegistroIncapacidad::InvaAltaSS},
    Tramo{191, "InvaPersona", &RegistroIncapacidad::InvaPersona},
    Tramo{192, "InvaPerDesde", &RegistroIncapacidad::InvaPerDesde},
    Tramo{252, "InvaPerHasta", &RegistroIncapacidad::InvaPerHasta},
    Tramo{312, "InvaPerEmpresa", &RegistroIncapacidad::InvaPerEmpresa},
    Tramo{432, "InvaBasesDesglosadas", &RegistroIncapacidad::InvaBasesDesglosadas},
    Tramo{433, "InvaBase", &RegistroIncapacidad::InvaBase},
    Tramo{1393, "InvaSumaBases", &RegistroIncapacidad::InvaSumaBases},
    Tramo{1401, "HorasTP", &RegistroIncapacidad::HorasTP},
    Tramo{1405, "HorasTP10", &RegistroIncapacidad::HorasTP10},
    Tramo{1409, "reservado", &RegistroIncapacidad::reservado}};

}  // namespace orvemo::incapacidad
