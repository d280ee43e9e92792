#include "capital/tarifas/tarifas.h"

#include <cmath>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"

namespace orvemo::capital {

namespace {

/// The last year after the accident that has a column of its own.
constexpr int kUltimoAnioDeInvalidez = 6;

/// Puts the elder first and the younger second.
void CambiaEdades(int& a, int& b) {
    if (a < b) std::swap(a, b);
}

float aSimple(double valor) {
    const auto simple = static_cast<float>(valor);
    if (!std::isfinite(simple)) throw DesbordeNumerico{valor};
    return simple;
}

}  // namespace

float Tarifas::lee(const FicheroTarifa& fichero, int edad, int columna) const {
    if (!fichero.contiene(edad, columna)) return 0;
    const std::size_t posicion = fichero.posicion(edad, columna);
    return aSimple(ValComa(almacen_.leeTramo(fichero.nombre, posicion, kAnchoValor)));
}

float Tarifas::Tarifa1(int x) const {
    return lee(kTarif1, x, 1);
}

float Tarifas::Tarifa2(int x) const {
    return lee(kTarif2, x, 1);
}

float Tarifas::Tarifa3(int x, int d) const {
    if (!kTarif3.contiene(x, 1)) return 0;
    return d > kUltimoAnioDeInvalidez ? Tarifa2(x + d) : lee(kTarif3, x, d + 1);
}

float Tarifas::Tarifa4(int x) const {
    return lee(kTarif4, x, columnaDe(tope_));
}

float Tarifas::Tarifa5(int x, int y) const {
    return lee(kTarif5, x, y);
}

float Tarifas::Tarifa6(int x, int y) const {
    return lee(kTarif6, x, y + 1);
}

float Tarifas::Tarifa7(int x, int y) const {
    CambiaEdades(x, y);
    return lee(kTarif7, x, y + 1);
}

float Tarifas::Tarifa8(int x, int y) const {
    CambiaEdades(x, y);
    for (const FicheroTarifa& fichero : kTarif8) {
        const int columna = y - fichero.primeraEdad + 1;
        if (fichero.contiene(x, columna)) return lee(fichero, x, columna);
    }
    return 0;
}

float Tarifas::Tarifa9(int x) const {
    return lee(kTarif9, x, columnaDe(tope_));
}

}  // namespace orvemo::capital
