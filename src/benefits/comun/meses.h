#pragma once

#include <array>
#include <cstddef>

#include "foundations/values/fechas.h"

namespace orvemo {

/// A whole number for each month of the year, January first.
using TablaMensual = std::array<int, 12>;

// Divisors that turn a monthly base into a daily one, for workers who contribute by the day, by the month in
// which the leave begins. Each benefit has its own: the first two agree, and maternity, which follows the
// length of the month before, tells January and August apart.
// clang-format off
//                                               ene feb mar abr may jun jul ago sep oct nov dic
inline constexpr TablaMensual kDivisorIncapacidad{30, 31, 28, 31, 30, 31, 30, 30, 31, 30, 31, 30};
inline constexpr TablaMensual kDivisorRiesgo{     30, 31, 28, 31, 30, 31, 30, 30, 31, 30, 31, 30};
inline constexpr TablaMensual kDivisorMaternidad{ 31, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30};

/// Real length of each month; February has 28 days in leap years too.
inline constexpr TablaMensual kDiasDelMes{        31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
// clang-format on

/// The divisor of those who contribute by the month, and of every scheme without a table.
inline constexpr int kDivisorFijo = 30;

/// The table's figure for the month of the date.
[[nodiscard]] inline int delMes(const TablaMensual& tabla, Fecha fecha) {
    return tabla[static_cast<std::size_t>(Mes(fecha) - 1)];
}

/// Same month of the same year.
[[nodiscard]] inline bool mismoMes(Fecha una, Fecha otra) {
    return Anio(una) == Anio(otra) && Mes(una) == Mes(otra);
}

}  // namespace orvemo
