#pragma once

namespace orvemo::nomina {

// The panels of the payroll.
inline constexpr int kContrato = 0;
inline constexpr int kAdicionales = 1;
inline constexpr int kFiniquito = 2;
inline constexpr int kRecibo = 3;
inline constexpr int kTC2 = 4;
inline constexpr int kTC1 = 5;
inline constexpr int kTC13 = 6;
inline constexpr int kSalida = 7;
inline constexpr int kAyudaConceptos = 8;
inline constexpr int kAyudaIncidencias = 9;

/// Characters that a number shows.
inline constexpr int kAnchoNumero = 10;

}  // namespace orvemo::nomina
