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
                                Tramo{0, "Estado", &RegistroJubilacion::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroJubilacion::NombreSupuesto},
                                Tramo{81, "JubiNombre", &RegistroJubilacion::JubiNombre},
                                Tramo{161, "JubiFechaNac", &RegistroJubilacion::JubiFechaNac},
                                Tramo{169, "JubiFechaJub", &RegistroJubilacion::JubiFechaJub},
                                Tramo{177, "JubiRegimen", &RegistroJubilacion::JubiRegimen},
                                Tramo{178, "JubiConyuge", &RegistroJubilacion::JubiConyuge},
                                Tramo{179, "JubiVoluntario", &RegistroJubilacion::JubiVoluntario},
                                Tramo{180, "JubiNoImputable", &RegistroJubilacion::JubiNoImputable},
                                Tramo{181, "JubiPerDesde", &RegistroJubilacion::JubiPerDesde},
                                Tramo{291, "JubiPerHasta", &RegistroJubilacion::JubiPerHasta},
                                Tramo{401, "JubiPerEmpresa", &RegistroJubilacion::JubiPerEmpresa},
                                Tramo{621, "JubiBasesDesglosadas", &RegistroJubilacion::JubiBasesDesglosadas},
                                Tramo{622, "JubiBase", &RegistroJubilacion::JubiBase},
                                Tramo{2542, "JubiSumaBases", &RegistroJubilacion::JubiSumaBases},
                                Tramo{2550, "JubiBaseActual", &RegistroJubilacion::JubiBaseActual},
                                Tramo{2558, "JubiRedJor", &RegistroJubilacion::JubiRedJor},
                                Tramo{2566, "reservado", &RegistroJubilacion::reservado},
                                Tramo{2574, "HorasTP", &RegistroJubilacion::HorasTP},
                                Tramo{2582, "HorasTP15", &RegistroJubilacion::HorasTP15},
                                Tramo{2590, "marca", &RegistroJubilacion::marca}};

}  // namespace orvemo::jubilacion
