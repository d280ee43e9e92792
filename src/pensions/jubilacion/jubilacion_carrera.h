#pragma once

#include <vector>

#include "pensions/comun/pensiones.h"
#include "pensions/jubilacion/jubilacion_registro.h"

namespace orvemo::jubilacion {

inline constexpr int kEdadOrdinaria = 65;  ///< years (2005)

/// Schemes of the social security under which a person retires, in list order.
enum class Regimen { General = 1, Autonomos, Agrario, EmpleadosHogar, Sustitucion64, Parcial };

[[nodiscard]] Regimen regimenDe(const RegistroJubilacion& caso);

struct AniosMeses {
    int anios = 0;
    int meses = 0;
};

/// What the contributions of a person come to on the day of retirement.
struct Carrera {
    int edad = 0;  ///< whole years
    Regimen regimen = Regimen::General;
    AniosMeses cotizado;
    AniosMeses ultimos15;         ///< contributed within the last 15 years
    int diasSOVI = 0;             ///< contributed to the old-age insurance before 1967
    int aniosParaPorcentaje = 0;  ///< with the bonus for contributions before 1967
    double porcentaje = 0;        ///< of the regulatory base
    double coeficiente = 0;       ///< reduction for retiring early, 1 for none
    bool CoeficienteEspecial = false;
    bool antesDe1967 = false;  ///< contributed before 01-01-1967
    AniosMeses periodoMinimo;
    int edadMinima = 0;
    Fecha ultimaFecha;  ///< last day of contribution, 01-01-1901 where it plays no part
};

/// The career of a case. Throws DesbordeNumerico when hours or days pass 32 bits.
[[nodiscard]] Carrera estudiaCarrera(const RegistroJubilacion& caso);

/// Days that hours of part-time work are worth: 1.5 for each 5 hours, rounded twice, divided in single
/// precision.
[[nodiscard]] int DiasDeHoras(double horas);

struct AniosPorcentaje {
    int anios;
    bool antesDe1967;
};

/// Years that count for the percentage: from 1960 on, a part of a year counting whole, and the bonus years of
/// who contributed before 1967. The days of part-time work are added once for each period.
[[nodiscard]] AniosPorcentaje AniosParaPorcentaje(pensiones::Periodos periodos, Fecha fechaNac,
                                                  Regimen regimen, int diasParciales);

/// Bonus days by the age on 01-01-1967, for the schemes that have them.
[[nodiscard]] double DiasBonificados(Fecha fechaNac, Regimen regimen);

/// Days of a period from 01-01-1960 on; all of them for the self-employed and domestic schemes.
[[nodiscard]] int DiasDesde1960(Fecha desde, Fecha hasta, Regimen regimen);

/// Percentage of the regulatory base: 50 at 15 years, 3 a year up to 25, 2 a year up to 35, at most 100.
[[nodiscard]] double PorcentajeSobreBase(int anios);

struct Coeficiente {
    double valor;
    bool especial;  ///< a long career softens the reduction
};

/// Reduction of the pension for each year short of 65: 1 from 65 on, 0 below 60 (2005).
[[nodiscard]] Coeficiente CoeficienteReductor(int edad, int anios, bool antesDe1967, bool voluntario);

/// The value in single precision. Throws DesbordeNumerico when it passes that.
[[nodiscard]] float precisionSimple(double valor);

/// Months of contribution that the pension asks for, whatever the date.
[[nodiscard]] int PeriodoMinimoJubilacion(Fecha fecha);

}  // namespace orvemo::jubilacion
