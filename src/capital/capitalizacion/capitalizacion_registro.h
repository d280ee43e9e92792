#pragma once

#include <cstdint>

#include "cases/registro.h"

namespace orvemo::capital {

/// One case of capitalisation, as it lies in "Capit.nom". The kind of beneficiaries is no part of it.
struct RegistroCapital {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;            ///< full name
    std::int16_t Situacion = 0;  ///< cause of the pension, its place in the list
    Texto<2> reservado1;
    double Capital = 0;        ///< reference base, euros a month
    Fecha Edad = kFechaCero;   ///< birth of the first widow or of the invalid
    Fecha EdadB = kFechaCero;  ///< birth of the second widow
    std::int32_t Dias1 = 0;    ///< days married to the first
    std::int32_t Dias2 = 0;    ///< days married to the second
    Fecha Edad1 = kFechaCero;  ///< birth of the first beneficiary
    Fecha Edad2 = kFechaCero;  ///< of the second
    Fecha Edad3 = kFechaCero;  ///< of the third
    Texto<4> reservado2;
    Fecha fConce = kFechaCero;  ///< reference date: the accident or the recognition
    Fecha fCapi = kFechaCero;   ///< declaration of the invalidity
    Texto<100> reservado3;
};

inline constexpr Diseno kDiseno{341,
                                Tramo{0, "Estado", &RegistroCapital::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroCapital::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroCapital::Nombre},
                                Tramo{161, "Situacion", &RegistroCapital::Situacion},
                                Tramo{163, "reservado1", &RegistroCapital::reservado1},
                                Tramo{165, "Capital", &RegistroCapital::Capital},
                                Tramo{173, "Edad", &RegistroCapital::Edad},
                                Tramo{181, "EdadB", &RegistroCapital::EdadB},
                                Tramo{189, "Dias1", &RegistroCapital::Dias1},
                                Tramo{193, "Dias2", &RegistroCapital::Dias2},
                                Tramo{197, "Edad1", &RegistroCapital::Edad1},
                                Tramo{205, "Edad2", &RegistroCapital::Edad2},
                                Tramo{213, "Edad3", &RegistroCapital::Edad3},
                                Tramo{221, "reservado2", &RegistroCapital::reservado2},
                                Tramo{225, "fConce", &RegistroCapital::fConce},
                                Tramo{233, "fCapi", &RegistroCapital::fCapi},
                                Tramo{241, "reservado3", &RegistroCapital::reservado3}};

}  // namespace orvemo::capital
