#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::desempleo {

/// One case of unemployment, as it lies in "desemp.nom".
struct RegistroDesempleo {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;           ///< applicant's full name
    std::int32_t Edad = 0;      ///< years
    Fecha Fecha_ = kFechaCero;  ///< date of the application
    Fecha fIni = kFechaCero;    ///< date on which the situation began
    double Suma = 0;            ///< contribution bases of the last 180 days, euros
    std::int32_t Dias = 0;      ///< days contributed in the previous six years
    std::int32_t Hijos = 0;     ///< children under 26 or disabled
    std::int32_t Horas = 0;     ///< hours really worked per week
    std::int32_t Parcial = 0;   ///< 1 if part-time contract
    Texto<92> reservado;
};

inline constexpr Diseno kDiseno{297,
                                Tramo{0, "Estado", &RegistroDesempleo::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroDesempleo::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroDesempleo::Nombre},
                                Tramo{161, "Edad", &RegistroDesempleo::Edad},
                                Tramo{165, "Fecha", &RegistroDesempleo::Fecha_},
                                Tramo{173, "fIni", &RegistroDesempleo::fIni},
                                Tramo{181, "Suma", &RegistroDesempleo::Suma},
                                Tramo{189, "Dias", &RegistroDesempleo::Dias},
                                Tramo{193, "Hijos", &RegistroDesempleo::Hijos},
                                Tramo{197, "Horas", &RegistroDesempleo::Horas},
                                Tramo{201, "Parcial", &RegistroDesempleo::Parcial},
                                Tramo{205, "reservado", &RegistroDesempleo::reservado}};

}  // namespace orvemo::desempleo
