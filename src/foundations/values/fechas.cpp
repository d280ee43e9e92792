#include "foundations/values/fechas.h"

#include <cmath>
#include <cstdint>

#include "foundations/values/fallos.h"

namespace orvemo {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;
using std::chrono::year_month_day_last;

constexpr int kMesesPorAnio = 12;
constexpr int kDiasPorSemana = 7;

/// The calendar of the program: the years 100 to 9999.
constexpr int kPrimerAnio = 100;
constexpr int kUltimoAnio = 9999;
constexpr Fecha kPrimerDia{year{kPrimerAnio} / 1 / 1};
constexpr Fecha kUltimoDia{year{kUltimoAnio} / 12 / 31};

year_month_day calendario(Fecha fecha) {
    return year_month_day{fecha};
}

/// Months since the month 1 of the year 0.
int mesAbsoluto(Fecha fecha) {
    return Anio(fecha) * kMesesPorAnio + Mes(fecha) - 1;
}

bool enCalendario(std::int64_t anio) {
    return anio >= kPrimerAnio && anio <= kUltimoAnio;
}

int ultimoDia(int anio, int mes) {
    const auto ultimo = year{anio} / month{static_cast<unsigned>(mes)} / std::chrono::last;
    return static_cast<int>(static_cast<unsigned>(year_month_day_last{ultimo}.day()));
}

Fecha sumaDias(std::int64_t n, Fecha fecha) {
    const Fecha suma = fecha + days{n};
    if (suma < kPrimerDia || suma > kUltimoDia) throw DesbordeNumerico{static_cast<double>(n)};
    return suma;
}

Fecha sumaMeses(std::int64_t n, Fecha fecha) {
    const std::int64_t destino = mesAbsoluto(fecha) + n;
    const std::int64_t anio = destino / kMesesPorAnio;
    if (destino < 0 || !enCalendario(anio)) throw DesbordeNumerico{static_cast<double>(n)};
    const int mes = static_cast<int>(destino % kMesesPorAnio) + 1;
    const int ultimo = ultimoDia(static_cast<int>(anio), mes);
    return FechaDMA(Dia(fecha) < ultimo ? Dia(fecha) : ultimo, mes, static_cast<int>(anio));
}

/// Quotient toward minus infinity of a number of months by a year.
int aniosEnteros(int meses) {
    const int resto = meses % kMesesPorAnio;
    return (meses - resto) / kMesesPorAnio - (resto < 0 ? 1 : 0);
}

}  // namespace

Fecha FechaDMA(int dia, int mes, int anio) {
    if (!ExisteFecha(dia, mes, anio)) throw FechaInexistente{dia, mes, anio};
    return year{anio} / month{static_cast<unsigned>(mes)} / day{static_cast<unsigned>(dia)};
}

bool ExisteFecha(int dia, int mes, int anio) {
    const bool hayMes = enCalendario(anio) && mes >= 1 && mes <= kMesesPorAnio;
    return hayMes && dia >= 1 && dia <= ultimoDia(anio, mes);
}

int Dia(Fecha fecha) {
    return static_cast<int>(static_cast<unsigned>(calendario(fecha).day()));
}

int Mes(Fecha fecha) {
    return static_cast<int>(static_cast<unsigned>(calendario(fecha).month()));
}

int Anio(Fecha fecha) {
    return static_cast<int>(calendario(fecha).year());
}

double SerieDeFecha(Fecha fecha) {
    return static_cast<double>((fecha - kFechaCero).count());
}

Fecha FechaDeSerie(double serie) noexcept {
    const double entera = std::trunc(serie);
    const bool esFecha = entera >= SerieDeFecha(kPrimerDia) && entera <= SerieDeFecha(kUltimoDia);
    return esFecha ? kFechaCero + days{static_cast<std::int64_t>(entera)} : kFechaIlegible;
}

int DiferenciaFechas(Intervalo intervalo, Fecha desde, Fecha hasta) {
    const int dias = static_cast<int>((hasta - desde).count());
    switch (intervalo) {
        case Intervalo::Dia:
            return dias;
        case Intervalo::Semana:
            return dias / kDiasPorSemana;
        case Intervalo::Mes:
            return mesAbsoluto(hasta) - mesAbsoluto(desde);
        case Intervalo::Anio:
            break;
    }
    return Anio(hasta) - Anio(desde);
}

Fecha SumaFecha(Intervalo intervalo, int n, Fecha fecha) {
    const std::int64_t cuantos = n;
    switch (intervalo) {
        case Intervalo::Dia:
            return sumaDias(cuantos, fecha);
        case Intervalo::Semana:
            return sumaDias(cuantos * kDiasPorSemana, fecha);
        case Intervalo::Mes:
            return sumaMeses(cuantos, fecha);
        case Intervalo::Anio:
            break;
    }
    return sumaMeses(cuantos * kMesesPorAnio, fecha);
}

int AniosCumplidos(Fecha desde, Fecha hasta) {
    if (Mes(desde) != Mes(hasta)) return aniosEnteros(DiferenciaFechas(Intervalo::Mes, desde, hasta));
    const int anios = DiferenciaFechas(Intervalo::Anio, desde, hasta);
    return Dia(desde) <= Dia(hasta) ? anios : anios - 1;
}

int DiasDelMes(Fecha fecha) {
    return ultimoDia(Anio(fecha), Mes(fecha));
}

}  // namespace orvemo
