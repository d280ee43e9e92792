// One case of retirement with 180 monthly bases, beside formatting the same text with snprintf.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "foundations/values/dictamen.h"
#include "pensions/jubilacion/jubilacion.h"

namespace {

using namespace orvemo;

jubilacion::RegistroJubilacion casoConBases() {
    jubilacion::RegistroJubilacion caso;
    caso.JubiFechaNac = FechaDMA(20, 4, 1943);
    caso.JubiFechaJub = FechaDMA(15, 6, 2005);
    caso.JubiConyuge = 1;
    caso.JubiPerDesde[0].asigna("01-10-1962");
    caso.JubiPerHasta[0].asigna("31-08-1978");
    caso.JubiPerDesde[1].asigna("15-03-1984");
    caso.JubiPerHasta[1].asigna("31-05-2005");
    caso.JubiBasesDesglosadas = 1;
    for (std::size_t i = 0; i < 180; ++i) caso.JubiBase[i] = 1500.25 - 3.5 * static_cast<double>(i);
    return caso;
}

pensiones::TablasPensiones tablas() {
    pensiones::TablaIPC ipc{};
    double indice = 42.94;
    for (auto& anio : ipc) {
        for (double& mes : anio) mes = indice *= 1.0038;
    }
    return {ipc, pensiones::CargaBasesMinimas()};
}

void Jubilacion_caso(benchmark::State& estado) {
    const auto caso = casoConBases();
    const auto indices = tablas();
    const Fecha hoy = FechaDMA(15, 6, 2005);
    for (auto _ : estado) {
        Dictamen dictamen;
        CalculaJubilacion(caso, indices, hoy, dictamen);
        benchmark::DoNotOptimize(dictamen.Conclusion().data());
    }
}

void Jubilacion_snprintf(benchmark::State& estado) {
    double base = 1228.83, coeficiente = 0.82, porcentaje = 100, pension = 1007.64;
    int edad = 62, anios = 38, recientes = 15, aniosPorcentaje = 40;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(base);
        benchmark::DoNotOptimize(pension);
        benchmark::DoNotOptimize(anios);
        char texto[2048];
        const int largo =
            std::snprintf(texto, sizeof texto,
                          "El interesado desea jubilarse a los %d años.\r\n"
                          "Ha cotizado durante %d años.\r\n"
                          "Además,  en los 15 últimos años ha cotizado %d años.\r\n"
                          "El periodo mínimo de cotización exigido es de 15 años así como 2 años dentro\r\n"
                          "de los 15 años anteriores a la solicitud.\r\n"
                          "El interesado cumple los periodos mínimos de cotización exigidos.\r\n"
                          "El periodo cotizado a efectos de cálculo del %% a aplicar sobre la base \r\n"
                          "reguladora es de %d años.\r\n"
                          "El porcentaje a aplicar sobre la base reguladora es de %.15g%% \r\n"
                          "siendo la base reguladora de %.2f €.\r\n"
                          "La edad de jubilación es inferior a los 65 años por lo que se ha \r\n"
                          "aplicado un coeficiente reductor en la pensión (%.15g). \r\n"
                          "(Coeficiente especial para trabajadores que acrediten 40 o más años\r\n"
                          "de cotización y tuvieran condición de mutualistas el 1 de enero de 1967)\r\n"
                          "La cuantía de la pensión es de %.2f €/mes (con dos pagas extras).\r\n",
                          edad, anios, recientes, aniosPorcentaje, porcentaje, base, coeficiente, pension);
        const std::string conclusion(texto, static_cast<std::size_t>(largo));
        benchmark::DoNotOptimize(conclusion.data());
    }
}

BENCHMARK(Jubilacion_caso);
BENCHMARK(Jubilacion_snprintf);

}  // namespace
