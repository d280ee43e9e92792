#pragma once

#include <chrono>

namespace orvemo {

/// A whole day of the calendar.
using Fecha = std::chrono::sys_days;

/// Day 0 of the dates in files: 30-12-1899. A date never written reads as this.
inline constexpr Fecha kFechaCero{std::chrono::year{1899} / 12 / 30};

/// What an unreadable date becomes: 01-01-1900.
inline constexpr Fecha kFechaIlegible{std::chrono::year{1900} / 1 / 1};

/// The units in which dates are told apart and moved.
enum class Intervalo { Dia, Semana, Mes, Anio };

/// True for a day that the calendar has, in the years 100 to 9999.
[[nodiscard]] bool ExisteFecha(int dia, int mes, int anio);

/// The date of a day, month and year. Throws FechaInexistente.
[[nodiscard]] Fecha FechaDMA(int dia, int mes, int anio);

[[nodiscard]] int Dia(Fecha fecha);
[[nodiscard]] int Mes(Fecha fecha);
[[nodiscard]] int Anio(Fecha fecha);

/// Days since 30-12-1899, as dates stand in files.
[[nodiscard]] double SerieDeFecha(Fecha fecha);

/// The date of a number of days since 30-12-1899, its fraction dropped; 01-01-1900 when the number is no
/// date (NaN, infinite, or outside the years 100 to 9999).
[[nodiscard]] Fecha FechaDeSerie(double serie) noexcept;

/// Signed distance from `desde` to `hasta`: days; whole weeks, toward zero; month boundaries crossed,
/// whatever the days; difference of the year numbers.
[[nodiscard]] int DiferenciaFechas(Intervalo intervalo, Fecha desde, Fecha hasta);

/// The date `n` units later. A day that the target month lacks falls on that month's last day. Throws
/// DesbordeNumerico, with `n`, when the result leaves the years 100 to 9999.
[[nodiscard]] Fecha SumaFecha(Intervalo intervalo, int n, Fecha fecha);

/// Whole years as one counts an age, save that in different months only the month numbers are looked at.
[[nodiscard]] int AniosCumplidos(Fecha desde, Fecha hasta);

/// Days of the month of `fecha`, leap years told apart.
[[nodiscard]] int DiasDelMes(Fecha fecha);

}  // namespace orvemo
