#pragma once

#include <array>
#include <cstdint>

#include "cases/registro.h"

namespace orvemo::irpf {

/// A child or other descendant of the taxpayer.
struct Hijo {
    std::uint8_t Presente = 0;     ///< anything but 0: the entry counts
    std::int16_t Nacimiento = 0;   ///< year of birth
    std::uint8_t ComputoHijo = 0;  ///< 1 when counted whole for this taxpayer
    std::int32_t Adopcion = 0;     ///< year of adoption, 0 if none
    std::uint8_t DiscapacidadHijo =
        0;  ///< 0 none, 1 from 33% under 65%, 2 the same with reduced mobility, 3 65%
    friend bool operator==(const Hijo&, const Hijo&) = default;
};
inline constexpr Diseno kDisenoHijo{9,
                                    Tramo{0, "Presente", &Hijo::Presente},
                                    Tramo{1, "Nacimiento", &Hijo::Nacimiento},
                                    Tramo{3, "ComputoHijo", &Hijo::ComputoHijo},
                                    Tramo{4, "Adopcion", &Hijo::Adopcion},
                                    Tramo{8, "DiscapacidadHijo", &Hijo::DiscapacidadHijo}};
constexpr const auto& DisenoDe(const Hijo* /*tipo*/) {
    return kDisenoHijo;
}

/// A parent or grandparent who lives with the taxpayer.
struct Ascendiente {
    std::uint8_t Presente = 0;           ///< anything but 0: the entry counts
    std::int16_t Nacimiento = 0;         ///< year of birth
    std::uint8_t Convivencia = 0;        ///< persons who share the ascendant, 1 to 9
    std::uint8_t DiscapacidadAscen = 0;  ///< the scale of the descendants
    Texto<1> reservado;
    friend bool operator==(const Ascendiente&, const Ascendiente&) = default;
};
inline constexpr Diseno kDisenoAscendiente{6,
                                           Tramo{0, "Presente", &Ascendiente::Presente},
                                           Tramo{1, "Nacimiento", &Ascendiente::Nacimiento},
                                           Tramo{3, "Convivencia", &Ascendiente::Convivencia},
                                           Tramo{4, "DiscapacidadAscen", &Ascendiente::DiscapacidadAscen},
                                           Tramo{5, "reservado", &Ascendiente::reservado}};
constexpr const auto& DisenoDe(const Ascendiente* /*tipo*/) {
    return kDisenoAscendiente;
}

/// One case of withholding, as it lies in "RIRPF.nom". Amounts are euros a year, years have four digits.
struct DatosRetencion {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;
    Texto<9> NIF;
    std::int32_t AnioNacimiento = 0;
    std::uint8_t TipoContrato = 0;  ///< `kTiposContrato`
    std::uint8_t Discapacidad = 0;  ///< anything but 0: disabled
    std::uint8_t GradoDiscapacidad =
        0;                              ///< 0 from 33% under 65%, 1 the same with need of help, 2 65% or more
    std::uint8_t SituacionLaboral = 0;  ///< `kSituacionesLaborales`
    std::uint8_t SituacionFamiliar = 0;  ///< 1, 2 or 3
    Texto<9> NIFConyuge;
    std::uint8_t CeutaMelilla = 0;    ///< 1 when the income arises there
    double Retribuciones = 0;         ///< gross pay
    double Reducciones = 0;           ///< reductions of art. 17.2
    double Gastos = 0;                ///< deductible costs, art. 17.3 a), b) and c)
    double Pension = 0;               ///< compensatory pension paid to the spouse
    double Anualidades = 0;           ///< maintenance paid to children
    std::uint8_t Regularizacion = 0;  ///< 1 when the withholding is worked out anew in mid year
    double RetribucionAcumulada = 0;  ///< pay received so far this year
    double RetencionAcumulada = 0;    ///< withholding borne so far this year
    double RetribucionInicial = 0;    ///< pay expected at the start of the year; no step uses it
    double RetencionInicial = 0;      ///< withholding expected at the start of the year
    std::array<Hijo, 10> Hijos{};
    std::array<Ascendiente, 5> Ascendientes{};
    std::uint8_t Movil = 0;     ///< 1 when geographic mobility applies
    std::uint8_t Prolon = 0;    ///< 1 when work is prolonged past the retirement age
    std::uint8_t Rencemea = 0;  ///< 1 when the regularised income arises in Ceuta or Melilla
    std::uint8_t TipoA = 0;     ///< previous percentage
    double BaseA = 0;           ///< previous withholding base
    std::uint8_t Causa = 0;     ///< of the regularisation, from 0: `kCausas`
    Texto<87> reservado;
};

inline constexpr Diseno kDiseno{482,
                                Tramo{0, "Estado", &DatosRetencion::Estado},
                                Tramo{1, "NombreSupuesto", &DatosRetencion::NombreSupuesto},
                                Tramo{81, "Nombre", &DatosRetencion::Nombre},
                                Tramo{161, "NIF", &DatosRetencion::NIF},
                                Tramo{170, "AñoNacimiento", &DatosRetencion::AnioNacimiento},
                                Tramo{174, "TipoContrato", &DatosRetencion::TipoContrato},
                                Tramo{175, "Discapacidad", &DatosRetencion::Discapacidad},
                                Tramo{176, "GradoDiscapacidad", &DatosRetencion::GradoDiscapacidad},
                                Tramo{177, "SituacionLaboral", &DatosRetencion::SituacionLaboral},
                                Tramo{178, "SituacionFamiliar", &DatosRetencion::SituacionFamiliar},
                                Tramo{179, "NIFConyuge", &DatosRetencion::NIFConyuge},
                                Tramo{188, "CeutaMelilla", &DatosRetencion::CeutaMelilla},
                                Tramo{189, "Retribuciones", &DatosRetencion::Retribuciones},
                                Tramo{197, "Reducciones", &DatosRetencion::Reducciones},
                                Tramo{205, "Gastos", &DatosRetencion::Gastos},
                                Tramo{213, "Pension", &DatosRetencion::Pension},
                                Tramo{221, "Anualidades", &DatosRetencion::Anualidades},
                                Tramo{229, "Regularizacion", &DatosRetencion::Regularizacion},
                                Tramo{230, "RetribucionAcumulada", &DatosRetencion::RetribucionAcumulada},
                                Tramo{238, "RetencionAcumulada", &DatosRetencion::RetencionAcumulada},
                                Tramo{246, "RetribucionInicial", &DatosRetencion::RetribucionInicial},
                                Tramo{254, "RetencionInicial", &DatosRetencion::RetencionInicial},
                                Tramo{262, "Hijo", &DatosRetencion::Hijos},
                                Tramo{352, "Ascendiente", &DatosRetencion::Ascendientes},
                                Tramo{382, "Movil", &DatosRetencion::Movil},
                                Tramo{383, "Prolon", &DatosRetencion::Prolon},
                                Tramo{384, "Rencemea", &DatosRetencion::Rencemea},
                                Tramo{385, "TipoA", &DatosRetencion::TipoA},
                                Tramo{386, "BaseA", &DatosRetencion::BaseA},
                                Tramo{394, "Causa", &DatosRetencion::Causa},
                                Tramo{395, "reservado", &DatosRetencion::reservado}};

}  // namespace orvemo::irpf
