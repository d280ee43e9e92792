#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvemo::nomina {

/// What a numeric field of the payroll accepts, and what it says when it doesn't.
struct RangoNumero {
    std::string_view campo;
    double minimo;
    double maximo;
    std::string_view mensaje;
    std::string_view formato;  ///< pattern of its display; blank for none
};

/// The numeric fields in their order. `NomiImporte`, `NomiPromedio6Meses` and `NomiDiasAnt` have a rule of
/// their own, below.
[[nodiscard]] std::span<const RangoNumero> RangosNomina();

/// The row of a field. The field must be one of the table.
[[nodiscard]] const RangoNumero& RangoDe(std::string_view campo);

/// The checks of a field on leaving: the message to show, empty when the value stands. Numbers are read by
/// ValComa; one too large for a double is out of any range.
[[nodiscard]] std::string CompruebaNumero(const RangoNumero& rango, std::string_view texto);
/// From 0 to the limit of the concept, in whole euros.
[[nodiscard]] std::string CompruebaImporte(std::string_view texto, std::int32_t Limite);
/// Anything below 10000.
[[nodiscard]] std::string CompruebaPromedio(std::string_view texto);
/// From 0 to 90 whatever the contract. The message names the days of the month before the payslip's.
[[nodiscard]] std::string CompruebaDiasAnt(std::string_view texto, int Mes);
/// A letter of "DMAX", or none.
[[nodiscard]] std::string CompruebaPeriodo(std::string_view letra);

/// The largest base, average or overtime that a month or a year before the leave may have, euros.
inline constexpr double kMaximoAnterior = 10000;
/// Whether the number of a text passes a limit.
[[nodiscard]] bool Supera(std::string_view texto, double limite);

/// `AvisoExtras`: what is said of an extra pay that seems monthly in a group paid by the day; empty
/// otherwise.
[[nodiscard]] std::string_view AvisoExtras(bool cobraPorDias, std::span<const std::string> pagas);

}  // namespace orvemo::nomina
