#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundations/values/fechas.h"

namespace orvemo::nomina {

/// What a check finds: the message to show, empty when the value stands, and the text that the field takes.
/// A message sends the focus back to the field.
struct Revision {
    std::string mensaje{};
    std::optional<std::string> propuesta{};

    [[nodiscard]] bool vale() const { return mensaje.empty(); }
};

/// The periods of 2005 that the screens propose.
inline constexpr std::string_view kPrimerDiaAnio = "01-01-2005";
inline constexpr std::string_view kUltimoDiaAnio = "31-12-2005";
inline constexpr std::string_view kFinPrimerSemestre = "30-06-2005";

// Contract.
[[nodiscard]] Revision CompruebaCese(std::string_view texto, std::string_view inicio, int Mes);
[[nodiscard]] Revision CompruebaFechaAlta(std::string_view texto);

// Period that earns the extra pay.
[[nodiscard]] Revision CompruebaFechaIniExtra(std::string_view texto);
[[nodiscard]] Revision CompruebaFechaFinExtra(std::string_view texto, std::string_view inicio);
/// The start plus six months; nullopt for a start that is no date.
[[nodiscard]] std::optional<std::string> FinExtraPropuesto(std::string_view inicio);

// Periods of holidays and of the extra pays of a settlement.
[[nodiscard]] Revision CompruebaFechaPeriodo1(std::string_view texto);
[[nodiscard]] Revision CompruebaFechaPeriodo2(std::string_view texto, std::string_view primera);

/// What the check of the first day of an incidence finds: of that day, and what the last one takes.
struct RevisionDia1 {
    Revision dia1;
    std::optional<std::string> dia2{};
};

// Days of an incidence, within the payslip's month.
[[nodiscard]] RevisionDia1 CompruebaDiaInci1(std::string_view codigo, std::string_view dia1,
                                             std::string_view dia2, int Mes);
[[nodiscard]] Revision CompruebaDiaInci2(std::string_view codigo, std::string_view dia1,
                                         std::string_view dia2, int Mes);

}  // namespace orvemo::nomina
