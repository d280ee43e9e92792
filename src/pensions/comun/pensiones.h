#pragma once

#include <span>
#include <string>

#include "foundations/values/fechas.h"

namespace orvemo::pensiones {

inline constexpr int kAnioDelPrograma = 2005;  ///< year of the figures of the law
inline constexpr double kSubidaAnual = 1.02;   ///< of prices and bases in the years after it

/// A period of contribution. Its days are `hasta` minus `desde`: the last one is not counted.
struct Periodo {
    Fecha desde;
    Fecha hasta;
};

/// The periods that the user filled in, in screen order; they may overlap and need not be sorted.
using Periodos = std::span<const Periodo>;

/// The months before that of a date: the first is the month before.
class MesesAnteriores {
  public:
    explicit MesesAnteriores(Fecha fecha) : mes_{12 * Anio(fecha) + Mes(fecha)} {}
    [[nodiscard]] int anio(int k) const { return (mes_ - k - 1) / 12; }
    [[nodiscard]] int mes(int k) const { return 1 + (mes_ - k - 1) % 12; }

  private:
    int mes_;  ///< counted from the year 0
};

/// Year and month of the k-th month before that of `fecha`.
[[nodiscard]] int AnioDelMesAnterior(Fecha fecha, int k);
[[nodiscard]] int MesDelMesAnterior(Fecha fecha, int k);

[[nodiscard]] Fecha PrimeroDeMes(int anio, int mes);

/// Month boundaries crossed, whatever the days.
[[nodiscard]] int MesesEntreFechas(Fecha desde, Fecha hasta);

/// Days of contribution in the 100 years before `fecha`; a period that runs past `fecha` counts whole.
[[nodiscard]] double DiasCotizados(Periodos periodos, Fecha fecha);

/// The same within a span before `fecha`: days when above 100, otherwise years of 365.25 days, so that the
/// result may carry a fraction.
[[nodiscard]] double DiasCotizados(Periodos periodos, Fecha fecha, double ventana);

/// Days contributed to the old-age insurance before 1967 (1940 to 1966). A period outside those years adds a
/// negative amount.
[[nodiscard]] int DiasSOVI(Periodos periodos);

/// "3 años y 5 meses". Twelve months beside years read as eleven.
[[nodiscard]] std::string AniosMesesTexto(int anios, int meses);

/// Days as years and months of 30.416666666 days.
[[nodiscard]] std::string DiasATexto(double dias);

/// From one date to another, as years of age and the calendar months over them.
[[nodiscard]] std::string PeriodoATexto(Fecha desde, Fecha hasta);

/// The series of monthly bases that a pension averages.
struct SerieBases {
    int MesesBases;      ///< months in the series
    int PantallasBases;  ///< frames of lines that show them
    int DivisorBases;    ///< months × 7 / 6: twelve months carry fourteen payments
};

/// The series that the law asks for in the year of the event (it grew from 120 months in 1998 to 180 in
/// 2002).
[[nodiscard]] SerieBases SerieBasesDe(int anio);

}  // namespace orvemo::pensiones
