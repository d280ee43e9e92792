#pragma once

#include <string>
#include <utility>
#include <vector>

#include "genera_tarifas/rentas.h"

namespace orvemo::tarifas {

/// Payments a year of the reference base, which is a month's: what turns the worth of 1 a year into euros for
/// each euro of the base.
inline constexpr int kPagosDeLaBase = 12;
/// What is added for an employer declared responsible, and to no tariff.
inline constexpr double kRecargo = 0;

/// All the tariff files, each by its name and with its contents. Throws DesbordeNumerico for a value that
/// would touch the one before it.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> Ficheros(const Rentas& rentas);

}  // namespace orvemo::tarifas
