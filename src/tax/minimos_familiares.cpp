#include <algorithm>
#include <array>

#include "foundations/values/numeros.h"
#include "tax/pasos_retencion.h"

namespace orvemo::irpf {

namespace {

// Figures of the law for 2004, euros a year.
constexpr std::array kPorDescendiente{1400.0, 1500.0, 2200.0,
                                      2300.0};  // first, second, third, fourth and later
constexpr double kPorMenorDe3 = 1200;
constexpr double kDiscapacidad65 = 5000;
constexpr double kDiscapacidad33 = 2000;
constexpr double kAsistencia = 2000;
constexpr double kFamiliaNumerosa = 600;
constexpr double kPorAscendiente = 800;
constexpr double kPorAscendienteDe75 = 1000;
constexpr int kFamiliaDeTres = 3;
constexpr int kEdadMenor = 3;
constexpr int kEdadMaxima = 25;
constexpr int kUltimoAnioSinComputo = 2001;  // births and adoptions after it count as of the last three years
constexpr int kMayoriaDeEdadAdoptado = 19;   // adopted at this age or later
constexpr int kEdadAscendiente = 74;

// Degrees of disability of the dependants.
constexpr int k33 = 1;
constexpr int k33Movilidad = 2;
constexpr int k65 = 3;

double pesoDe(const Hijo& hijo) {
    return hijo.ComputoHijo == 1 ? 1.0 : 0.5;
}

double porOrden(int n) {
    const auto fila = static_cast<std::size_t>(n - 1);
    return kPorDescendiente.at(std::min(fila, kPorDescendiente.size() - 1));
}

/// A child born earlier counts as under three when it was adopted young and lately.
bool computaMenorDe3(const Hijo& hijo) {
    if (hijo.Nacimiento > kUltimoAnioSinComputo) return true;
    const std::int64_t edadAlAdoptar = std::int64_t{hijo.Adopcion} - hijo.Nacimiento;
    return edadAlAdoptar < kMayoriaDeEdadAdoptado && edadAlAdoptar >= 0 &&
           hijo.Adopcion > kUltimoAnioSinComputo;
}

double porDiscapacidad(int grado) {
    if (grado == k65) return kDiscapacidad65;
    return grado == k33 || grado == k33Movilidad ? kDiscapacidad33 : 0;
}

double porAsistencia(int grado) {
    return grado == k65 || grado == k33Movilidad ? kAsistencia : 0;
}

void cuenta(const Hijo& hijo, ResultadoRetencion& r) {
    ++r.NumDescendientes;
    if (hijo.ComputoHijo == 1) ++r.NumEnteros;
    const auto edad = EdadDe(hijo.Nacimiento);
    if (edad < kEdadMenor) {
        ++r.NumMenores3;
    } else if (edad < kEdadMaxima) {
        ++r.NumDe3a25;
    }
    if (hijo.Adopcion > kUltimoAnioSinComputo) ++r.NumAdoptados;
    if (hijo.DiscapacidadHijo == k65) ++r.NumDescDisc65;
    if (hijo.DiscapacidadHijo == k33 || hijo.DiscapacidadHijo == k33Movilidad) ++r.NumDescDisc33;
    if (hijo.DiscapacidadHijo == k33Movilidad) ++r.NumDescMovilidad;
}

void cuenta(const Ascendiente& ascendiente, int C, ResultadoRetencion& r) {
    ++r.NumAscendientes;
    if (C == 1) ++r.NumAscEnteros;
    const int grado = ascendiente.DiscapacidadAscen;
    if (grado == k65) ++r.NumAscDisc65;
    if (grado == k33 || grado == k33Movilidad) ++r.NumAscDisc33;
    if (grado == k33Movilidad) ++r.NumAscMovilidad;
}

}  // namespace

MinimosDescendientes CalculaDescendientes(const DatosRetencion& datos, ResultadoRetencion& r) {
    MinimosDescendientes m;
    for (const Hijo& hijo : datos.Hijos) {
        if (hijo.Presente == 0) continue;
        cuenta(hijo, r);
        const double Peso = pesoDe(hijo);
        m.MinDesc += Peso * porOrden(r.NumDescendientes);
        if (computaMenorDe3(hijo)) m.MinMenor3 += Peso * kPorMenorDe3;
        m.MinDiscDesc += Peso * porDiscapacidad(hijo.DiscapacidadHijo);
        m.AsistDesc += Peso * porAsistencia(hijo.DiscapacidadHijo);
    }
    m.MinDesc = Redondea(m.MinDesc, 2);
    m.MinMenor3 = Redondea(m.MinMenor3, 2);
    m.MinDiscDesc = Redondea(m.MinDiscDesc, 2);
    m.AsistDesc = Redondea(m.AsistDesc, 2);
    if (r.NumDescendientes >= kFamiliaDeTres) m.Familia3 = kFamiliaNumerosa;
    return m;
}

MinimosAscendientes CalculaAscendientes(const DatosRetencion& datos, ResultadoRetencion& r) {
    MinimosAscendientes m;
    for (const Ascendiente& ascendiente : datos.Ascendientes) {
        if (ascendiente.Presente == 0) continue;
        const int C = Mayor(int{ascendiente.Convivencia}, 1);
        cuenta(ascendiente, C, r);
        m.MinAsc += kPorAscendiente / C;
        if (EdadDe(ascendiente.Nacimiento) > kEdadAscendiente) m.MinAsc75 += kPorAscendienteDe75 / C;
        m.MinDiscAsc += porDiscapacidad(ascendiente.DiscapacidadAscen) / C;
        m.AsistAsc += porAsistencia(ascendiente.DiscapacidadAscen) / C;
    }
    m.MinAsc = Redondea(m.MinAsc, 2);
    m.MinAsc75 = Redondea(m.MinAsc75, 2);
    m.MinDiscAsc = Redondea(m.MinDiscAsc, 2);
    m.AsistAsc = Redondea(m.AsistAsc, 2);
    return m;
}

}  // namespace orvemo::irpf
