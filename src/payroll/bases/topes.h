#pragma once

#include "payroll/caso/entradas.h"

namespace orvemo::nomina {

/// The limits of a base, euros.
struct Topes {
    double minimo, maximo;
};

/// The base held between its limits. Where they cross, what lies below the minimum becomes the minimum.
[[nodiscard]] double Sujeta(double base, const Topes& topes);

/// The same, rounded to cents where no limit touches it.
[[nodiscard]] double Topada(double base, const Topes& topes);

/// The limits of so many days of a month of 30, each rounded to cents.
[[nodiscard]] Topes DeUnosDias(const Topes& mensuales, int dias);

/// Least base for common contingencies of the group, in the way of the contract: a month, its days or its
/// hours. Euros.
[[nodiscard]] double MinimoCC(const Entradas& entradas);

/// The same for accidents, unemployment, FOGASA and training, alike in every group.
[[nodiscard]] double MinimoAT(const Entradas& entradas);

// The limits in force for the part of the working day that the contract has (`CoefPluriempleo`).
[[nodiscard]] Topes TopesMensualesCC(const Entradas& entradas);
[[nodiscard]] Topes TopesMensualesAT(const Entradas& entradas);
[[nodiscard]] Topes TopesDiariosCC(const Entradas& entradas);
/// Rounded to cents before the part of the working day.
[[nodiscard]] Topes TopesDiariosAT(const Entradas& entradas);

}  // namespace orvemo::nomina
