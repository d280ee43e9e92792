#pragma once

#include <array>
#include <cstdint>

#include "cases/registro.h"

namespace orvemo::nomina {

inline constexpr int kConceptos = 6;    ///< rows of concepts on the screen; the record has one more
inline constexpr int kIncidencias = 2;  ///< rows of incidences on the screen; the record has one more
inline constexpr int kExtrasFin = 4;    ///< extra pays of a settlement; the record has one more

/// One payslip, one worker and one month of 2005, as it lies in "nominas.nom". Amounts in euros.
struct RegistroNomina {
    Texto<1> Libre;
    Texto<80> Nombre;
    Texto<80> Descripcion;      ///< the same as `Nombre`
    std::uint8_t Mes = 0;       ///< 0 for January to 11 for December
    Texto<10> FechaInicio;      ///< start of the contract
    Texto<10> FechaCese;        ///< date of leaving, may be blank
    std::uint8_t TipoPaga = 0;  ///< 1 on an extra pay
    Texto<3> reservado1;
    std::uint8_t Categoria = 0;  ///< contribution group, from 0 in list order
    Texto<3> Epigrafe;
    std::array<std::uint8_t, 2> NumPagas{};  ///< number of extra pays of each amount
    std::array<std::uint8_t, 10> reservado2{};
    Texto<8> Desempleo;    ///< coefficient of partial unemployment
    Texto<6> Pluriempleo;  ///< percentage of pluriemployment or reduced hours
    std::uint8_t Edad = 0;
    std::array<Texto<2>, 7> CodigoConcepto;
    std::array<double, 3> PagaExtra{};
    std::array<Texto<1>, 7> UnidadConcepto;  ///< period letter of each concept
    std::array<Texto<1>, 3> CodigoIncidencia;
    std::array<std::uint8_t, 3> DiaInicioInci{};
    std::array<std::uint8_t, 3> DiaFinInci{};
    Texto<10> FechaExtra1;  ///< period that earns the extra pay
    Texto<10> FechaExtra2;
    std::uint8_t ParcialDias = 0;   ///< days worked, contracts by days
    std::int32_t ParcialHoras = 0;  ///< hours worked, contracts by hours
    double Promedio6Meses = 0;      ///< average of the bases of the last 6 months
    std::int32_t HEAnt = 0;         ///< overtime of the month before the leave
    std::int32_t HEAnioAnt = 0;     ///< overtime of the year before the leave
    std::uint8_t DiasAnt = 0;       ///< days contributed before the leave
    Texto<10> FVac1;                ///< period that gives the holidays
    Texto<10> FVac2;
    std::int32_t ImpVac = 0;             ///< real salary for the holiday proportion
    std::uint8_t DiasVac = 0;            ///< days of holiday already taken
    std::array<Texto<40>, 5> FConcepto;  ///< extra pays of the settlement
    std::array<Texto<10>, 5> FFec1;
    std::array<Texto<10>, 5> FFec2;
    double BaseATEPAnt = 0;       ///< base for accidents before the leave
    double BaseCCAnt = 0;         ///< base for common contingencies before the leave
    std::int16_t FExtincion = 0;  ///< -1 to compute the severance
    std::int16_t FPreaviso = 0;   ///< -1 to compute the lack of notice
    std::int32_t DiasInd = 0;     ///< legal days of severance a year worked
    Texto<1> reservado3;
    std::int32_t MaxInd = 0;  ///< ceiling of the severance, months
    std::uint8_t reservado4 = 0;
    Texto<10> NIF;
    Texto<15> NumMatricula;
    Texto<14> CuentaSS;
    Texto<30> GrupoProfesional;
    std::int16_t DiasCom = 0;  ///< days of additional compensation a year worked
    std::uint8_t TipoDes = 0;  ///< cause of leaving, from 0 in list order
    float IRPFExtra = 0;       ///< withholding percentage
    Texto<4> CodigoContrato;
    std::array<double, 7> ImporteConcepto{};
    std::array<double, 5> FImporte{};
    double HorasDiarias = 0;  ///< daily hours of the contract
    Texto<7> DiasSemana;      ///< letters of the days of the week worked
    double Dias12 = 0;        ///< days contributed in the 12 months before the rest
    double Base12 = 0;        ///< base of those 12 months
    Texto<169> reservado5;
    Texto<2> reservado6;
};

inline constexpr Diseno kDiseno{1046,
                                Tramo{0, "Libre", &RegistroNomina::Libre},
                                Tramo{1, "Nombre", &RegistroNomina::Nombre},
                                Tramo{81, "Descripcion", &RegistroNomina::Descripcion},
                                Tramo{161, "Mes", &RegistroNomina::Mes},
                                Tramo{162, "FechaInicio", &RegistroNomina::FechaInicio},
                                Tramo{172, "FechaCese", &RegistroNomina::FechaCese},
                                Tramo{182, "TipoPaga", &RegistroNomina::TipoPaga},
                                Tramo{183, "reservado1", &RegistroNomina::reservado1},
                                Tramo{186, "Categoria", &RegistroNomina::Categoria},
                                Tramo{187, "Epigrafe", &RegistroNomina::Epigrafe},
                                Tramo{190, "NumPagas", &RegistroNomina::NumPagas},
                                Tramo{192, "reservado2", &RegistroNomina::reservado2},
                                Tramo{202, "Desempleo", &RegistroNomina::Desempleo},
                                Tramo{210, "Pluriempleo", &RegistroNomina::Pluriempleo},
                                Tramo{216, "Edad", &RegistroNomina::Edad},
                                Tramo{217, "CodigoConcepto", &RegistroNomina::CodigoConcepto},
                                Tramo{231, "PagaExtra", &RegistroNomina::PagaExtra},
                                Tramo{255, "UnidadConcepto", &RegistroNomina::UnidadConcepto},
                                Tramo{262, "CodigoIncidencia", &RegistroNomina::CodigoIncidencia},
                                Tramo{265, "DiaInicioInci", &RegistroNomina::DiaInicioInci},
                                Tramo{268, "DiaFinInci", &RegistroNomina::DiaFinInci},
                                Tramo{271, "FechaExtra1", &RegistroNomina::FechaExtra1},
                                Tramo{281, "FechaExtra2", &RegistroNomina::FechaExtra2},
                                Tramo{291, "ParcialDias", &RegistroNomina::ParcialDias},
                                Tramo{292, "ParcialHoras", &RegistroNomina::ParcialHoras},
                                Tramo{296, "Promedio6Meses", &RegistroNomina::Promedio6Meses},
                                Tramo{304, "HEAnt", &RegistroNomina::HEAnt},
                                Tramo{308, "HEAnioAnt", &RegistroNomina::HEAnioAnt},
                                Tramo{312, "DiasAnt", &RegistroNomina::DiasAnt},
                                Tramo{313, "FVac1", &RegistroNomina::FVac1},
                                Tramo{323, "FVac2", &RegistroNomina::FVac2},
                                Tramo{333, "ImpVac", &RegistroNomina::ImpVac},
                                Tramo{337, "DiasVac", &RegistroNomina::DiasVac},
                                Tramo{338, "FConcepto", &RegistroNomina::FConcepto},
                                Tramo{538, "FFec1", &RegistroNomina::FFec1},
                                Tramo{588, "FFec2", &RegistroNomina::FFec2},
                                Tramo{638, "BaseATEPAnt", &RegistroNomina::BaseATEPAnt},
                                Tramo{646, "BaseCCAnt", &RegistroNomina::BaseCCAnt},
                                Tramo{654, "FExtincion", &RegistroNomina::FExtincion},
                                Tramo{656, "FPreaviso", &RegistroNomina::FPreaviso},
                                Tramo{658, "DiasInd", &RegistroNomina::DiasInd},
                                Tramo{662, "reservado3", &RegistroNomina::reservado3},
                                Tramo{663, "MaxInd", &RegistroNomina::MaxInd},
                                Tramo{667, "reservado4", &RegistroNomina::reservado4},
                                Tramo{668, "NIF", &RegistroNomina::NIF},
                                Tramo{678, "NumMatricula", &RegistroNomina::NumMatricula},
                                Tramo{693, "CuentaSS", &RegistroNomina::CuentaSS},
                                Tramo{707, "GrupoProfesional", &RegistroNomina::GrupoProfesional},
                                Tramo{737, "DiasCom", &RegistroNomina::DiasCom},
                                Tramo{739, "TipoDes", &RegistroNomina::TipoDes},
                                Tramo{740, "IRPFExtra", &RegistroNomina::IRPFExtra},
                                Tramo{744, "CodigoContrato", &RegistroNomina::CodigoContrato},
                                Tramo{748, "ImporteConcepto", &RegistroNomina::ImporteConcepto},
                                Tramo{804, "FImporte", &RegistroNomina::FImporte},
                                Tramo{844, "HorasDiarias", &RegistroNomina::HorasDiarias},
                                Tramo{852, "DiasSemana", &RegistroNomina::DiasSemana},
                                Tramo{859, "Dias12", &RegistroNomina::Dias12},
                                Tramo{867, "Base12", &RegistroNomina::Base12},
                                Tramo{875, "reservado5", &RegistroNomina::reservado5},
                                Tramo{1044, "reservado6", &RegistroNomina::reservado6}};

}  // namespace orvemo::nomina
