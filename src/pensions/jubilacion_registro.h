#pragma once

#include <array>
#include <cstdint>

#include "cases/registro.h"

namespace orvemo::jubilacion {

inline constexpr int kFilasPeriodos = 10;     ///< rows of periods on the screen; the record has one more
inline constexpr int kLineasGuardadas = 196;  ///< monthly bases that are stored; the record has room for 240

/// One case of retirement, as it lies in "jubila.nom".
struct RegistroJubilacion {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> JubiNombre;             ///< person's name
    Fecha JubiFechaNac = kFechaCero;  ///< date of birth
    Fecha JubiFechaJub = kFechaCero;  ///< date of effective retirement
    std::uint8_t JubiRegimen = 0;     ///< scheme, from 0 in list order
    std::uint8_t JubiConyuge = 0;     ///< 1 with a dependent spouse
    std::uint8_t JubiVoluntario = 0;  ///< 1 when the person left work of their own will
    std::uint8_t JubiNoImputable = 0;
    std::array<Texto<10>, 11> JubiPerDesde;  ///< "dd-mm-yyyy"
    std::array<Texto<10>, 11> JubiPerHasta;
    std::array<Texto<20>, 11> JubiPerEmpresa;
    std::uint8_t JubiBasesDesglosadas = 0;  ///< 1 when the bases are entered one by one
    std::array<double, 240> JubiBase{};     ///< monthly bases, euros; the first is the latest month
    double JubiSumaBases = 0;               ///< weighted sum of the bases, euros
    double JubiBaseActual = 0;              ///< present monthly base, to estimate future ones, euros
    double JubiRedJor = 0;                  ///< reduction of the working day, percent
    double reservado = 0;
    double HorasTP = 0;    ///< hours in part-time contracts
    double HorasTP15 = 0;  ///< those of the last 15 years
    Texto<2> marca;        ///< "DP"
};

inline constexpr Diseno kDiseno{2592,
                                Tramo{0, &RegistroJubilacion::Estado},
                                Tramo{1, &RegistroJubilacion::NombreSupuesto},
                                Tramo{81, &RegistroJubilacion::JubiNombre},
                                Tramo{161, &RegistroJubilacion::JubiFechaNac},
                                Tramo{169, &RegistroJubilacion::JubiFechaJub},
                                Tramo{177, &RegistroJubilacion::JubiRegimen},
                                Tramo{178, &RegistroJubilacion::JubiConyuge},
                                Tramo{179, &RegistroJubilacion::JubiVoluntario},
                                Tramo{180, &RegistroJubilacion::JubiNoImputable},
                                Tramo{181, &RegistroJubilacion::JubiPerDesde},
                                Tramo{291, &RegistroJubilacion::JubiPerHasta},
                                Tramo{401, &RegistroJubilacion::JubiPerEmpresa},
                                Tramo{621, &RegistroJubilacion::JubiBasesDesglosadas},
                                Tramo{622, &RegistroJubilacion::JubiBase},
                                Tramo{2542, &RegistroJubilacion::JubiSumaBases},
                                Tramo{2550, &RegistroJubilacion::JubiBaseActual},
                                Tramo{2558, &RegistroJubilacion::JubiRedJor},
                                Tramo{2566, &RegistroJubilacion::reservado},
                                Tramo{2574, &RegistroJubilacion::HorasTP},
                                Tramo{2582, &RegistroJubilacion::HorasTP15},
                                Tramo{2590, &RegistroJubilacion::marca}};

}  // namespace orvemo::jubilacion
