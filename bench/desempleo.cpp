// One case of unemployment, beside formatting the same text with snprintf.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "benefits/desempleo/desempleo.h"
#include "foundations/values/dictamen.h"

namespace {

orvemo::desempleo::RegistroDesempleo casoParcialConRetraso() {
    orvemo::desempleo::RegistroDesempleo caso;
    caso.Edad = 40;
    caso.fIni = orvemo::FechaDMA(6, 6, 2005);
    caso.Fecha_ = orvemo::FechaDMA(27, 6, 2005);
    caso.Suma = 9000;
    caso.Dias = 2160;
    caso.Hijos = 2;
    caso.Parcial = 1;
    caso.Horas = 20;
    return caso;
}

void Desempleo_caso(benchmark::State& estado) {
    const auto caso = casoParcialConRetraso();
    for (auto _ : estado) {
        orvemo::Dictamen dictamen;
        CalculaDesempleo(caso, dictamen);
        benchmark::DoNotOptimize(dictamen.Conclusion().data());
    }
}

void Desempleo_snprintf(benchmark::State& estado) {
    double base = 50, importe = 20.55, porcentaje = 50;
    int dias = 720, retraso = 22;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(base);
        benchmark::DoNotOptimize(importe);
        benchmark::DoNotOptimize(dias);
        char texto[2048];
        const int largo = std::snprintf(
            texto, sizeof texto,
            "El interesado desea solicitar una prestación de desempleo.\r\n"
            "Tiene derecho a %d días de prestación.\r\n"
            "La base reguladora diaria es de %.2f €.\r\n"
            "Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,\r\n"
            "equivalentes a %.15g%%, por ser contrato a tiempo parcial.\r\n"
            "La prestación diaria para los primeros 180 días supera la máxima, por lo que se toma ésta.\r\n"
            "Los primeros 180 días tendrá una prestación de %.2f € diarios.\r\n"
            "La prestación diaria para los restantes 120 días supera la máxima, por lo que se toma ésta.\r\n"
            "A partir del día 181 la prestación será de %.2f € diarios.\r\n"
            "La solicitud ha sido hecha fuera del plazo de 15 días por lo que pierde la\r\n"
            "prestación correspondiente a %d días.\r\n",
            dias, base, porcentaje, importe, importe, retraso);
        const std::string conclusion(texto, static_cast<std::size_t>(largo));
        benchmark::DoNotOptimize(conclusion.data());
    }
}

BENCHMARK(Desempleo_caso);
BENCHMARK(Desempleo_snprintf);

}  // namespace
