// One case of withholding beside formatting its conclusions with snprintf, and the search of a gross pay that
// takes all its turns beside one withholding.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "foundations/values/dictamen.h"
#include "tax/conclusiones_irpf.h"
#include "tax/liquidos.h"

namespace {

using namespace orvemo;

irpf::DatosRetencion familia() {
    irpf::DatosRetencion datos;
    datos.AnioNacimiento = 1965;
    datos.SituacionFamiliar = 3;
    datos.Retribuciones = 24000;
    datos.Gastos = 1524;
    datos.Hijos[0] = {1, 1998, 0, 0, 0};
    datos.Hijos[1] = {1, 2003, 0, 0, 0};
    datos.Ascendientes[0] = {1, 1928, 2, 0, {}};
    return datos;
}

void Irpf_caso(benchmark::State& estado) {
    const auto datos = familia();
    for (auto _ : estado) {
        Dictamen dictamen;
        irpf::EscribeConclusiones(datos, CalculaRetencion(datos), dictamen);
        benchmark::DoNotOptimize(dictamen.Conclusion().data());
    }
}

void Irpf_snprintf(benchmark::State& estado) {
    double importes[14] = {24000, 0, 1524, 0, 0, 400, 500, 0, 7850, 22476, 8750, 13726, 12.19, 2925.6};
    int cuentas[13] = {1, 1, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1, 0};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(importes);
        benchmark::DoNotOptimize(cuentas);
        const auto* e = importes;
        const auto* n = cuentas;
        char texto[4096];
        const int largo =
            std::snprintf(texto, sizeof texto,
                          "- Situación Familiar ................................ %d\r\n"
                          "- Situación Laboral ................................ %s\r\n"
                          "- Tipo de contrato .................................. %s\r\n"
                          "- Rendimientos obtenidos en Ceuta y Melilla ......... %s\r\n"
                          "- Discapacidad ...................................... %s\r\n"
                          "- Ingresos Anuales .................................. %.2f\r\n"
                          "- Reducciones Art. 17.2 ............................. %.2f\r\n"
                          "- Gastos Anuales <<art. 17.3 a), b) y c)>> .......... %.2f\r\n"
                          "- Pensión compensatoria en favor del cónyuge......... %.2f\r\n"
                          "- Anualidades a favor de los hijos .................. %.2f\r\n"
                          "- Descendientes menores de 3 años ................... %d\r\n"
                          "- Descendientes entre 3 y 25 años ................... %d\r\n"
                          "- Descendientes discapacitados (>=33%% y <65%%)........ %d\r\n"
                          "- Descendientes discapacitados (>=65%%) .............. %d\r\n"
                          "- Descendientes discapacitados movilidad reducida.... %d\r\n"
                          "- Descendientes adoptados en los últimos 3 años ..... %d\r\n"
                          "- Descendientes totales ............................. %d\r\n"
                          "- Descendientes totales computados por entero ....... %d\r\n"
                          "- Ascendientes discapacitados (>=33%% y <65%%)........ %d\r\n"
                          "- Ascendientes discapacitados (>=65%%) .............. %d\r\n"
                          "- Ascendientes discapacitados movilidad reducida.... %d\r\n"
                          "- Ascendientes totales ............................. %d\r\n"
                          "- Ascendientes totales computados por entero ....... %d\r\n"
                          "- Reducciones por personas mayores de 65 años ...... %.2f\r\n"
                          "- Reducciones por personas mayores de 75 años ...... %.2f\r\n"
                          "- Reducciones por personas con discapacidad ........ %.2f\r\n"
                          "- Reducciones por otros conceptos .................. %.2f\r\n"
                          "- RENDIMIENTOS NETOS TOTALES ....................... %.2f\r\n"
                          "- REDUCCIONES TOTALES DE LA BASE ................... %.2f\r\n"
                          "- BASE PARA LA RETENCIÓN ........................... %.2f\r\n"
                          " LE CORRESPONDEN EL TIPO E IMPORTE ANUAL DE RETENCIÓN SIGUIENTES:\r\n"
                          "- Tipo de Retención ................................. %.2f\r\n"
                          "- Importe anual de la retención ..................... %.2f\r\n",
                          3, "Activo", "Régimen General", "No", "Sin discapacidad", e[0], e[1], e[2], e[3],
                          e[4], n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10], n[11],
                          n[12], e[5], e[6], e[7], e[8], e[9], e[10], e[11], e[12], e[13]);
        const std::string conclusion(texto, static_cast<std::size_t>(largo));
        benchmark::DoNotOptimize(conclusion.data());
    }
}

void Irpf_calculo(benchmark::State& estado) {
    const auto datos = familia();
    for (auto _ : estado) benchmark::DoNotOptimize(CalculaRetencion(datos));
}

/// Times of one `Irpf_calculo` that 500 turns may take: 500.
void Liquidos_500_vueltas(benchmark::State& estado) {
    const liquidos::DatosLiquidos datos{
        .Neto = 1000, .Extra = 2, .Grupo = 1, .TipoContrato = 0, .persona = familia()};
    for (auto _ : estado) {
        const auto resultado = LiquidosCalcular(datos);
        if (resultado.vueltas != liquidos::kMaximoVueltas) estado.SkipWithError("it ended before");
        benchmark::DoNotOptimize(resultado);
    }
}

BENCHMARK(Irpf_caso);
BENCHMARK(Irpf_snprintf);
BENCHMARK(Irpf_calculo);
BENCHMARK(Liquidos_500_vueltas);

}  // namespace
