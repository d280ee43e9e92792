#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "pensions/comun/pensiones.h"
#include "pensions/incapacidad/incapacidad_registro.h"

namespace orvemo::incapacidad {

/// Grades of permanent incapacity, in list order.
enum class Grado { Parcial = 1, Total, Absoluta, GranInvalidez };
inline constexpr std::array<std::string_view, 4> kGrados{
    "Incapacidad Permanente parcial para la profesión habitual",
    "Incapacidad Permanente total para la profesión habitual",
    "Incapacidad Permanente absoluta para todo trabajo", "Gran invalidez"};

/// Causes of the incapacity, in list order.
enum class Causa { Profesional = 1, AccidenteNoLaboral, EnfermedadComun };
inline constexpr std::array<std::string_view, 3> kCausas{"Accidente de trabajo o enfermedad profesional",
                                                         "Accidente no laboral", "Enfermedad Común"};

/// Schemes of the social security, in list order.
enum class Regimen { General = 1, Autonomos, Agrario, EmpleadosHogar };
inline constexpr std::array<std::string_view, 4> kRegimenes{
    "R.General de la Seguridad Social", "R.E. de Autónomos", "R.E. Agrario", "R.E. de Empleados de Hogar"};

/// A case as the law looks at it.
struct Expediente {
    explicit Expediente(const RegistroIncapacidad& caso);

    // NOLINTNEXTLINE(cppcoreguidelines-avoid-const-or-ref-data-members): lives within one calculation
    const RegistroIncapacidad& caso;
    Grado grado;
    Causa causa;
    Regimen regimen;
    bool alta;      ///< in the social security, or in a situation like it
    int edad;       ///< whole years on the day of the opinion
    Fecha fecha16;  ///< when the person is 16
    Fecha fecha20;  ///< when the person is 20
    std::vector<pensiones::Periodo> periodos;
    int diasTP;    ///< that the hours of part-time work are worth
    int diasTP10;  ///< those of the last ten years
};

/// Their texts in the lists; "" for one that is in no list.
[[nodiscard]] std::string_view textoDe(Grado grado);
[[nodiscard]] std::string_view textoDe(Causa causa);

/// The day on which a person reaches an age; 01-01-1900 for a 29 February that the year lacks.
[[nodiscard]] Fecha FechaEnQueCumple(int anios, Fecha nacimiento);

/// Days contributed from a moment on, counted in days since 30-12-1899. First and last days count, so that
/// each period gives one day more than its dates are apart.
[[nodiscard]] double DiasDesdeFecha(pensiones::Periodos periodos, double fecha);

/// An amount, as all the lines tell it that don't ask for another way.
[[nodiscard]] std::string importe(double euros);

}  // namespace orvemo::incapacidad
