#pragma once

#include "foundations/values/numeros.h"

namespace orvemo::nomina {

/// Days of a month of pay and of base, whatever the month, for those who are paid by the month.
inline constexpr int kDiasPorMes = 30;

/// The amount rounded to cents.
[[nodiscard]] inline double Centimos(double euros) {
    return Redondeado(euros, 2);
}

/// So much percent of a base, rounded to cents.
[[nodiscard]] inline double Porcentaje(double base, double tipo) {
    return Centimos(base * tipo / 100);
}

/// A sum of amounts that nobody rounds. Throws DesbordeNumerico when a double can't hold it.
[[nodiscard]] inline double Finito(double euros) {
    return Cociente(euros, 1);
}

}  // namespace orvemo::nomina
