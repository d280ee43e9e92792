// Rounding and formatting of amounts, each beside snprintf on the same amounts.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace {

/// Amounts as the calculators meet them: daily bases, pensions, years of contributions.
constexpr std::array<double, 8> kImportes{0,           17.105,  33.333333333333336, 512.9, 1010.76500,
                                          2813.401234, 24567.8, 1234567.89};

/// Runs an operation over the amounts, one by one.
void porImportes(benchmark::State& estado, auto&& operacion) {
    std::size_t i = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(operacion(kImportes[i]));
        i = (i + 1) % kImportes.size();
    }
}

int conSnprintf(double importe) {
    char texto[64];
    const int largo = std::snprintf(texto, sizeof texto, "%.2f", importe);
    benchmark::DoNotOptimize(texto);
    return largo;
}

void Redondea_2(benchmark::State& estado) {
    porImportes(estado, [](double importe) { return orvemo::Redondea(importe, 2); });
}

void Redondea_2_snprintf(benchmark::State& estado) {
    porImportes(estado, conSnprintf);
}

void FormatoNumero_importe(benchmark::State& estado) {
    porImportes(estado, [](double importe) { return orvemo::FormatoNumero(importe, "##,###,##0.00"); });
}

void FormatoNumero_snprintf(benchmark::State& estado) {
    porImportes(estado, conSnprintf);
}

BENCHMARK(Redondea_2);
BENCHMARK(Redondea_2_snprintf);
BENCHMARK(FormatoNumero_importe);
BENCHMARK(FormatoNumero_snprintf);

}  // namespace
