#pragma once

#include "capital/tarifas/ficheros_tarifa.h"
#include "foundations/values/almacen.h"

namespace orvemo::capital {

/// The capitalisation tariffs of the application directory: what a pension costs for each euro of its base.
/// Each reading opens its file and closes it. Outside the ages of a tariff, past the end of a short file and
/// on a text that is no number the value is 0. All throw FicheroInaccesible for a file that is missing and
/// DesbordeNumerico for a number that single precision can't hold.
class Tarifas {
  public:
    /// `tope` is the limit that children's tariffs go by.
    Tarifas(const Almacen& almacen, TopeHijo tope) : almacen_{almacen}, tope_{tope} {}

    /// For life, from the age `x`, 0 to 104.
    [[nodiscard]] float Tarifa1(int x) const;
    /// For the life of an invalid of `x`, 0 to 102, long since invalid.
    [[nodiscard]] float Tarifa2(int x) const;
    /// For the life of an invalid who had the accident at `x`, 16 to 70, `d` years before; from the seventh
    /// year on he is long since invalid.
    [[nodiscard]] float Tarifa3(int x, int d) const;
    /// A child of `x`, 0 to 23, up to the limit while alive.
    [[nodiscard]] float Tarifa4(int x) const;
    /// For the life of a widow of `x`, 12 to 70, from `y` years later on, 1 to 21.
    [[nodiscard]] float Tarifa5(int x, int y) const;
    /// While a widow of `x`, 12 to 70, and a child of `y`, 0 to 20, both live, up to the child's limit.
    [[nodiscard]] float Tarifa6(int x, int y) const;
    /// While two children, 0 to 22, both live, up to the limit of the elder. In either order.
    [[nodiscard]] float Tarifa7(int x, int y) const;
    /// While two people both live, 0 to 103 the elder and 0 to 100 the younger. In either order.
    [[nodiscard]] float Tarifa8(int x, int y) const;
    /// Certain, up to the limit of a child of `x`, 0 to 23.
    [[nodiscard]] float Tarifa9(int x) const;

  private:
    [[nodiscard]] float lee(const FicheroTarifa& fichero, int edad, int columna) const;

    const Almacen& almacen_;
    TopeHijo tope_;
};

}  // namespace orvemo::capital
