#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "foundations/values/fechas.h"
#include "payroll/caso/nombrado.h"

namespace orvemo::nomina {

/// The one year of the payroll: every date that it builds belongs to it.
inline constexpr int kAnioNomina = 2005;

/// What a payslip is computed from, besides the record itself. Texts have the width of their field, padded
/// with blanks. Amounts in euros.
struct Entradas {
    Fecha FechaInicio = kFechaCero;   ///< start of the contract
    Fecha FinMes = kFechaCero;        ///< last day of the payslip's month
    std::uint8_t Mes = 0;             ///< 1 to 12
    std::int32_t IndiceContrato = 0;  ///< row of `Contratos`, from 1
    std::uint8_t Grupo = 0;           ///< contribution group, 1 to 11
    double CoefPluriempleo = 0;       ///< 1 for a whole working day
    double CoefDesempleo = 0;         ///< partial unemployment, 0 to 1
    double Promedio6Meses = 0;
    std::int16_t Edad = 0;
    std::string Epigrafe{};
    std::string CodigoContrato{};  ///< four characters
    std::string ClaveContrato{};   ///< its first three
    std::uint8_t ParcialDias = 0;
    std::int32_t ParcialHoras = 0;
    double BaseCCAnt = 0;    ///< base for common contingencies before the leave
    double BaseATEPAnt = 0;  ///< base for accidents before the leave
    double HEMesAnt = 0;     ///< overtime of the month before the leave
    double HEAnioAnt = 0;    ///< overtime of the year before the leave
    std::uint8_t DiasAnt = 0;
    std::string FechaCese{};            ///< blank when there is none
    std::uint8_t TipoPaga = 0;          ///< 1 on an extra pay
    std::string ModoContrato{};         ///< " ", "D" by days or "H" by hours
    std::int32_t OtrasDeducciones = 0;  ///< always 0
    double HorasDiarias = 0;
    std::string DiasSemana{};
    double Dias12 = 0;
    double Base12 = 0;
    bool ContratoParcial = false;

    [[nodiscard]] bool esPagaExtra() const { return TipoPaga == 1; }
    /// Groups 1 to 7: a whole month counts 30 days, whatever its length. The others are paid by the day.
    [[nodiscard]] bool cobraPorMeses() const { return Grupo < 8; }
    [[nodiscard]] bool hayDesempleoParcial() const { return CoefDesempleo > 0; }
    /// Training contracts, of flat bases and quotas.
    [[nodiscard]] bool esFormacion() const { return CodigoContrato == "087 "; }
    [[nodiscard]] bool esFormacion2() const { return CodigoContrato == "421A"; }
    [[nodiscard]] bool tieneCuotasFijas() const { return esFormacion() || esFormacion2(); }
    /// Neither an extra pay, which bears no quotas, nor a contract of fixed ones.
    [[nodiscard]] bool cotizaPorTipos() const { return !esPagaExtra() && !tieneCuotasFijas(); }
};

inline constexpr std::tuple kCamposEntradas{Nombrado{"FechaInicio", &Entradas::FechaInicio},
                                            Nombrado{"FinMes", &Entradas::FinMes},
                                            Nombrado{"Mes", &Entradas::Mes},
                                            Nombrado{"IndiceContrato", &Entradas::IndiceContrato},
                                            Nombrado{"Grupo", &Entradas::Grupo},
                                            Nombrado{"CoefPluriempleo", &Entradas::CoefPluriempleo},
                                            Nombrado{"CoefDesempleo", &Entradas::CoefDesempleo},
                                            Nombrado{"Promedio6Meses", &Entradas::Promedio6Meses},
                                            Nombrado{"Edad", &Entradas::Edad},
                                            Nombrado{"Epigrafe", &Entradas::Epigrafe},
                                            Nombrado{"CodigoContrato", &Entradas::CodigoContrato},
                                            Nombrado{"ClaveContrato", &Entradas::ClaveContrato},
                                            Nombrado{"ParcialDias", &Entradas::ParcialDias},
                                            Nombrado{"ParcialHoras", &Entradas::ParcialHoras},
                                            Nombrado{"BaseCCAnt", &Entradas::BaseCCAnt},
                                            Nombrado{"BaseATEPAnt", &Entradas::BaseATEPAnt},
                                            Nombrado{"HEMesAnt", &Entradas::HEMesAnt},
                                            Nombrado{"HEAnioAnt", &Entradas::HEAnioAnt},
                                            Nombrado{"DiasAnt", &Entradas::DiasAnt},
                                            Nombrado{"FechaCese", &Entradas::FechaCese},
                                            Nombrado{"TipoPaga", &Entradas::TipoPaga},
                                            Nombrado{"ModoContrato", &Entradas::ModoContrato},
                                            Nombrado{"OtrasDeducciones", &Entradas::OtrasDeducciones},
                                            Nombrado{"HorasDiarias", &Entradas::HorasDiarias},
                                            Nombrado{"DiasSemana", &Entradas::DiasSemana},
                                            Nombrado{"Dias12", &Entradas::Dias12},
                                            Nombrado{"Base12", &Entradas::Base12},
                                            Nombrado{"ContratoParcial", &Entradas::ContratoParcial}};

}  // namespace orvemo::nomina
