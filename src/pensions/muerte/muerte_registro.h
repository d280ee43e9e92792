#pragma once

#include <array>
#include <cstdint>

#include "cases/registro.h"

namespace orvemo::muerte {

inline constexpr int kFilasPeriodos = 6;

/// One case of death and survival, as it lies in "muerte.nom".
struct RegistroMuerte {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> MuerteNombre;                 ///< name of the dead person
    Fecha MuerteFechaMuerte = kFechaCero;   ///< date of death
    Fecha MuerteFechaPension = kFechaCero;  ///< when the dead person's pension was granted
    std::uint8_t MuerteCausa = 0;           ///< cause of death, from 0 in list order
    std::uint8_t MuerteSituacion = 0;       ///< situation of the dead person, from 0 in list order
    std::uint8_t MuerteDejaViuda = 0;       ///< 1 when a widow or widower is left
    std::uint8_t MuerteHayCargas = 0;       ///< 1 with a family to keep and no other income
    std::uint8_t MuerteEdadViuda = 0;       ///< years
    std::uint8_t MuerteVariosConyuges = 0;  ///< 1 with former spouses
    std::uint8_t MuerteHijos = 0;           ///< orphans
    std::uint8_t MuerteFamiliares = 0;      ///< relatives with a pension
    std::uint8_t MuerteFami2 = 0;           ///< relatives with a subsidy
    double MuerteUltimaBase = 0;            ///< base or salary, by situation and cause, euros
    std::array<Texto<10>, kFilasPeriodos> MuertePerDesde;  ///< "dd-mm-yyyy"
    std::array<Texto<10>, kFilasPeriodos> MuertePerHasta;
    std::array<Texto<20>, kFilasPeriodos> MuertePerEmpresa;
    std::int32_t HorasTP = 0;  ///< hours a year in a part-time contract
    Texto<425> reservado;
};

inline constexpr Diseno kDiseno{863,
                                Tramo{0, "Estado", &RegistroMuerte::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroMuerte::NombreSupuesto},
                                Tramo{81, "MuerteNombre", &RegistroMuerte::MuerteNombre},
                                Tramo{161, "MuerteFechaMuerte", &RegistroMuerte::MuerteFechaMuerte},
                                Tramo{169, "MuerteFechaPension", &RegistroMuerte::MuerteFechaPension},
                                Tramo{177, "MuerteCausa", &RegistroMuerte::MuerteCausa},
                                Tramo{178, "MuerteSituacion", &RegistroMuerte::MuerteSituacion},
                                Tramo{179, "MuerteDejaViuda", &RegistroMuerte::MuerteDejaViuda},
                                Tramo{180, "MuerteHayCargas", &RegistroMuerte::MuerteHayCargas},
                                Tramo{181, "MuerteEdadViuda", &RegistroMuerte::MuerteEdadViuda},
                                Tramo{182, "MuerteVariosConyuges", &RegistroMuerte::MuerteVariosConyuges},
                                Tramo{183, "MuerteHijos", &RegistroMuerte::MuerteHijos},
                                Tramo{184, "MuerteFamiliares", &RegistroMuerte::MuerteFamiliares},
                                Tramo{185, "MuerteFami2", &RegistroMuerte::MuerteFami2},
                                Tramo{186, "MuerteUltimaBase", &RegistroMuerte::MuerteUltimaBase},
                                Tramo{194, "MuertePerDesde", &RegistroMuerte::MuertePerDesde},
                                Tramo{254, "MuertePerHasta", &RegistroMuerte::MuertePerHasta},
                                Tramo{314, "MuertePerEmpresa", &RegistroMuerte::MuertePerEmpresa},
                                Tramo{434, "HorasTP", &RegistroMuerte::HorasTP},
                                Tramo{438, "reservado", &RegistroMuerte::reservado}};

}  // namespace orvemo::muerte
