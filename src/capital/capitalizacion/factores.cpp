#include "capital/capitalizacion/factores.h"

#include <array>
#include <utility>

#include "capital/capitalizacion/beneficiarios.h"

namespace orvemo::capital {

namespace {

// Parts of the reference base.
constexpr double kDeTotal = 0.55;
constexpr double kDeAbsoluta = 1;
constexpr double kDeGranInvalidez = 1.5;
constexpr double kHijoSolo = 0.65;  // an orphan or ascendant without a widow has her part besides
constexpr double kViuda = 0.45;
constexpr double kHijo = 0.2;
constexpr double kTercero = 0.15;  // what the third leaves up to the whole

constexpr std::array kGrados{kDeTotal, kDeAbsoluta, kDeGranInvalidez};

/// A case and the tariffs that price it. The readings are of single precision, and so are the sums of
/// readings alone.
struct Caso : Beneficiarios {
    const Tarifas& tarifas;

    [[nodiscard]] float T1(int x) const { return tarifas.Tarifa1(x); }
    [[nodiscard]] float T4(int x) const { return tarifas.Tarifa4(x); }
    [[nodiscard]] float T5(int x, int y) const { return tarifas.Tarifa5(x, y); }
    [[nodiscard]] float T6(int x, int y) const { return tarifas.Tarifa6(x, y); }
    [[nodiscard]] float T7(int x, int y) const { return tarifas.Tarifa7(x, y); }
    [[nodiscard]] float T8(int x, int y) const { return tarifas.Tarifa8(x, y); }
    [[nodiscard]] float T9(int x) const { return tarifas.Tarifa9(x); }

    /// Years until the first of the others, the eldest, is 21.
    [[nodiscard]] int plazo() const { return static_cast<int>(TopeHijo::Veintiuno) - c; }
};

void ponMayorDelante(int& mayor, int& menor) {
    if (menor > mayor) std::swap(mayor, menor);
}

Caso conElMayorDeDos(Caso k) {
    ponMayorDelante(k.c, k.e);
    return k;
}

Caso conLosTresOrdenados(Caso k) {
    while (k.c < k.e || k.e < k.f) {
        ponMayorDelante(k.c, k.e);
        ponMayorDelante(k.e, k.f);
        ponMayorDelante(k.c, k.f);
    }
    return k;
}

// --- One function a kind, in the order of the list.

double descendienteUtil(const Caso& k) {
    return k.T4(k.c) * kHijoSolo;
}

double invalidoOAscendiente(const Caso& k) {
    return k.T1(k.c) * kHijoSolo;
}

double viudo(const Caso& k) {
    return k.T1(k.a) * kViuda;
}

double dosViudos(const Caso& k) {
    return (k.T1(k.a) * k.P1 + k.T1(k.b) * k.P2) * kViuda;
}

double viudoYMenor(const Caso& k) {
    return (k.T1(k.a) - k.T6(k.a, k.c)) * kViuda + k.T4(k.c) * kHijoSolo;
}

double viudoEIncapacitado(const Caso& k) {
    return (k.T1(k.a) - k.T8(k.a, k.c)) * kViuda + k.T1(k.c) * kHijoSolo;
}

double dosDescendientes(const Caso& k) {
    return (k.T4(k.c) + k.T4(k.e)) * kHijoSolo - k.T7(k.c, k.e) * kViuda;
}

double dosAscendientes(const Caso& k) {
    return (k.T1(k.c) + k.T1(k.e)) * kHijoSolo - k.T8(k.c, k.e) * kViuda;
}

double dosViudosYMenor(const Caso& k) {
    return ((k.T1(k.a) - k.T6(k.a, k.c)) * k.P1 + (k.T1(k.b) - k.T6(k.b, k.c)) * k.P2) * kViuda +
           k.T4(k.c) * kHijoSolo;
}

double dosViudosEIncapacitado(const Caso& k) {
    return ((k.T1(k.a) - k.T8(k.a, k.c)) * k.P1 + (k.T1(k.b) - k.T8(k.b, k.c)) * k.P2) * kViuda +
           k.T1(k.c) * kHijoSolo;
}

double tresDescendientes(const Caso& desordenado) {
    const Caso k = conLosTresOrdenados(desordenado);
    return (k.T4(k.c) + k.T4(k.e)) * kHijoSolo - k.T7(k.c, k.e) * kViuda + k.T9(k.c) * kTercero;
}

double viudoYDosMenores(const Caso& desordenado) {
    const Caso k = conElMayorDeDos(desordenado);
    return (k.T9(k.c) + k.T5(k.a, k.plazo())) * kViuda + (k.T4(k.c) + k.T4(k.e)) * kHijo;
}

double viudoYTresMenores(const Caso& desordenado) {
    const Caso k = conLosTresOrdenados(desordenado);
    return (k.T9(k.c) + k.T5(k.a, k.plazo())) * kViuda + (k.T4(k.c) + k.T4(k.e)) * kHijo +
           k.T4(k.f) * kTercero;
}

double viudoYDosInvalidos(const Caso& desordenado) {
    const Caso k = conElMayorDeDos(desordenado);
    return (k.T1(k.c) + k.T1(k.a) - k.T8(k.a, k.c)) * kViuda + (k.T1(k.c) + k.T1(k.e)) * kHijo;
}

/// What two widows and two children have, the ages in their order.
double dosViudosYDosDe(const Caso& k) {
    return ((k.T9(k.c) + k.T5(k.a, k.plazo())) * k.P1 + (k.T9(k.c) + k.T5(k.b, k.plazo())) * k.P2) * kViuda +
           (k.T4(k.c) + k.T4(k.e)) * kHijo;
}

double dosViudosYDosMenores(const Caso& desordenado) {
    return dosViudosYDosDe(conElMayorDeDos(desordenado));
}

double dosViudosYTresMenores(const Caso& desordenado) {
    const Caso k = conLosTresOrdenados(desordenado);
    return dosViudosYDosDe(k) + k.T4(k.f) * kTercero;
}

double dosViudosYDosInvalidos(const Caso& desordenado) {
    const Caso k = conElMayorDeDos(desordenado);
    return ((k.T1(k.c) + k.T1(k.a) - k.T8(k.a, k.c)) * k.P1 +
            (k.T1(k.c) + k.T1(k.b) - k.T8(k.b, k.c)) * k.P2) *
               kViuda +
           (k.T1(k.c) + k.T1(k.e)) * kHijo;
}

constexpr std::array kFactores{
    descendienteUtil,
    invalidoOAscendiente,
    viudo,
    dosViudos,
    viudoYMenor,
    viudoEIncapacitado,
    dosDescendientes,
    dosAscendientes,
    dosViudosYMenor,
    dosViudosEIncapacitado,
    tresDescendientes,
    viudoYDosMenores,
    viudoYTresMenores,
    viudoYDosInvalidos,
    dosViudosYDosMenores,
    dosViudosYTresMenores,
    dosViudosYDosInvalidos,
};
static_assert(kFactores.size() == kPapeles.size());

}  // namespace

double FactorInvalidez(const Tarifas& tarifas, int Situacion, int x, int d) {
    const auto grado = static_cast<std::size_t>(Situacion);
    return grado < kGrados.size() ? tarifas.Tarifa3(x, d) * kGrados[grado] : 0;
}

double FactorMuerte(const Tarifas& tarifas, std::size_t papel, const Beneficiarios& beneficiarios) {
    return kFactores.at(papel)(Caso{beneficiarios, tarifas});
}

}  // namespace orvemo::capital
