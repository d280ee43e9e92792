#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::familiar {

/// One case of family protection, as it lies in "Familiar.nom".
struct RegistroFamiliar {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;        ///< applicant's name
    std::int32_t Hijos = 0;  ///< children without disability
    std::int32_t HMin1 = 0;  ///< children over 18 with disability above 75%
    std::int32_t HMin2 = 0;  ///< children over 18 with disability above 65%
    std::int32_t HMin3 = 0;  ///< children under 18 with disability above 33%
    double Ingresos = 0;     ///< yearly income for the dependent children, euros
    std::int16_t Ayuda = 0;  ///< 0 dependent children, 1 birth
    Texto<2> reservado1;
    double Ingresos2 = 0;         ///< yearly income of the family unit for the birth, euros
    std::int32_t HijosParto = 0;  ///< children born in the birth
    std::int32_t TotalHijos = 0;  ///< all children, those of the birth included
    Texto<2> reservado2;
};

inline constexpr Diseno kDiseno{207,
                                Tramo{0, "Estado", &RegistroFamiliar::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroFamiliar::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroFamiliar::Nombre},
                                Tramo{161, "Hijos", &RegistroFamiliar::Hijos},
                                Tramo{165, "HMin1", &RegistroFamiliar::HMin1},
                                Tramo{169, "HMin2", &RegistroFamiliar::HMin2},
                                Tramo{173, "HMin3", &RegistroFamiliar::HMin3},
                                Tramo{177, "Ingresos", &RegistroFamiliar::Ingresos},
                                Tramo{185, "Ayuda", &RegistroFamiliar::Ayuda},
                                Tramo{187, "reservado1", &RegistroFamiliar::reservado1},
                                Tramo{189, "Ingresos2", &RegistroFamiliar::Ingresos2},
                                Tramo{197, "HijosParto", &RegistroFamiliar::HijosParto},
                                Tramo{201, "TotalHijos", &RegistroFamiliar::TotalHijos},
                                Tramo{205, "reservado2", &RegistroFamiliar::reservado2}};

}  // namespace orvemo::familiar
