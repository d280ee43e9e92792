#include "genera_tarifas/rentas.h"

#include <algorithm>
#include <cstddef>

namespace orvemo::tarifas {

namespace {

using capital::TopeHijo;

/// What twelve payments at the ends of the months are worth above one at the end of the year, as a part of
/// one year's pension.
constexpr double kPorMeses = 11.0 / 24;
constexpr int kTopePareja = 23;  // years: two children alone
constexpr int kTopeConViuda = 21;

int aniosHasta(TopeHijo tope, int edad) {
    return static_cast<int>(tope) - edad;
}

/// Years that a life of that age may still see the end of, the last of them by nobody.
int aniosDeVida(int edad) {
    return kUltimaEdad + 1 - edad;
}

}  // namespace

/// 1 a year for so many years while something lasts; `permanece(j)` is the chance that it lasts the year j,
/// counted from 0, if it has lasted so far. What is paid by months is lost where it ends at its term.
template <typename Permanencia>
double Rentas::renta(int anios, Permanencia permanece) const {
    double pago = 1;  // present value of 1 at the end of the year, if it comes to be paid
    double suma = 0;
    for (int j = 0; j < anios; ++j) {
        pago *= permanece(j) / (1 + hipotesis_.interes);
        suma += pago;
    }
    return anios <= 0 ? 0 : suma + kPorMeses * (1 - pago);
}

double Rentas::Tarifa1(int x) const {
    return renta(aniosDeVida(x), [&](int j) { return 1 - mortalidad_.vidas.q(x + j); });
}

double Rentas::Tarifa2(int x) const {
    return renta(aniosDeVida(x), [&](int j) { return 1 - mortalidad_.invalidos.q(x + j); });
}

double Rentas::Tarifa3(int x, int d) const {
    const auto veces = [&](int t) {
        const auto anio = static_cast<std::size_t>(t);
        return anio < hipotesis_.reciente.size() ? hipotesis_.reciente[anio] : 1;
    };
    return renta(aniosDeVida(x + d),
                 [&](int j) { return 1 - std::min(1.0, veces(d + j) * mortalidad_.invalidos.q(x + d + j)); });
}

double Rentas::Tarifa4(int x, TopeHijo tope) const {
    return renta(aniosHasta(tope, x), [&](int j) { return 1 - mortalidad_.hijos.q(x + j); });
}

double Rentas::Tarifa5(int x, int n) const {
    double llega = 1;
    for (int j = 0; j < n; ++j) llega *= (1 - mortalidad_.vidas.q(x + j)) / (1 + hipotesis_.interes);
    return llega * Tarifa1(x + n);
}

double Rentas::Tarifa6(int x, int y) const {
    return renta(kTopeConViuda - y,
                 [&](int j) { return (1 - mortalidad_.vidas.q(x + j)) * (1 - mortalidad_.hijos.q(y + j)); });
}

double Rentas::Tarifa7(int x, int y) const {
    return renta(kTopePareja - std::max(x, y),
                 [&](int j) { return (1 - mortalidad_.hijos.q(x + j)) * (1 - mortalidad_.hijos.q(y + j)); });
}

double Rentas::Tarifa8(int x, int y) const {
    return renta(aniosDeVida(std::max(x, y)),
                 [&](int j) { return (1 - mortalidad_.vidas.q(x + j)) * (1 - mortalidad_.vidas.q(y + j)); });
}

double Rentas::Tarifa9(int x, TopeHijo tope) const {
    return renta(aniosHasta(tope, x), [](int) { return 1.0; });
}

}  // namespace orvemo::tarifas
