// One case of permanent incapacity with 96 monthly bases and one of death, beside formatting the same texts
// with snprintf.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "foundations/values/dictamen.h"
#include "pensions/incapacidad/incapacidad.h"
#include "pensions/muerte/muerte.h"

namespace {

using namespace orvemo;

incapacidad::RegistroIncapacidad casoConBases() {
    incapacidad::RegistroIncapacidad caso;
    caso.InvaFechaNac = FechaDMA(20, 4, 1953);
    caso.InvaFechaInv = FechaDMA(15, 6, 2005);
    caso.InvaInvalidez = 1;
    caso.InvaCausa = 2;
    caso.InvaAltaSS = 1;
    caso.InvaPerDesde[0].asigna("01-10-1974");
    caso.InvaPerHasta[0].asigna("31-08-1988");
    caso.InvaPerDesde[1].asigna("15-03-1992");
    caso.InvaPerHasta[1].asigna("31-05-2005");
    caso.InvaBasesDesglosadas = 1;
    for (std::size_t i = 0; i < 96; ++i) caso.InvaBase[i] = 1500.25 - 3.5 * static_cast<double>(i);
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

void Incapacidad_caso(benchmark::State& estado) {
    const auto caso = casoConBases();
    const auto indices = tablas();
    for (auto _ : estado) {
        Dictamen dictamen;
        InvaCalcula(caso, indices, dictamen);
        benchmark::DoNotOptimize(dictamen.Conclusion().data());
    }
}

void Incapacidad_snprintf(benchmark::State& estado) {
    double base = 1228.83, pension = 675.86, incremento = 245.77;
    int anios = 52, meses = 2, dias = 9908, minimo = 96, quinta = 19, mensualidades = 84;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(base);
        benchmark::DoNotOptimize(pension);
        benchmark::DoNotOptimize(dias);
        char texto[2048];
        const int largo = std::snprintf(
            texto, sizeof texto,
            "El interesado solicita la pensión a los %d años y %d meses.\r\n"
            "Sufre Incapacidad Permanente total para la profesión habitual derivada de \r\n"
            "Enfermedad Común.\r\n"
            "Ha cotizado %d días (27 años y 1 meses), \r\n"
            "cumpliendo el periodo mínimo de %d meses establecido.\r\n"
            "También cumple el requisito de haber cotizado una quinta parte \r\n"
            "del periodo mínimo dentro de los 10 años anteriores al hecho causante \r\n"
            "(%d) meses.\r\n"
            "La base reguladora es de %.2f €.\r\n"
            "Le corresponde una PENSIÓN VITALICIA de %.2f € mensuales \r\n"
            "(14 pagas al año, una por cada mes del año más una extraordinaria en junio y otra en "
            "noviembre).\r\n"
            "Tiene derecho a un incremento de 20%% (%.2f €) cuando cumpla 55 años.\r\n"
            "Puede además solicitar un complemento de 20%% del subsidio para recuperación.\r\n"
            "Alternativamente, puede optar a una indemnización de %d mensualidades \r\n"
            "de %.15g €, hasta cumplir los 60 años, en que pasará a \r\n"
            "recibir la pensión vitalicia anterior.\r\n"
            "(Para ello debe formalizar la solicitud antes del 14-jun-2008)\r\n",
            anios, meses, dias, minimo, quinta, base, pension, incremento, mensualidades, pension);
        const std::string conclusion(texto, static_cast<std::size_t>(largo));
        benchmark::DoNotOptimize(conclusion.data());
    }
}

void Muerte_caso(benchmark::State& estado) {
    muerte::RegistroMuerte caso;
    caso.MuerteFechaMuerte = FechaDMA(15, 6, 2005);
    caso.MuertePerDesde[0].asigna("01-10-1999");
    caso.MuertePerHasta[0].asigna("31-05-2005");
    caso.MuerteDejaViuda = 1;
    caso.MuerteEdadViuda = 52;
    caso.MuerteHijos = 2;
    caso.MuerteUltimaBase = 33600;
    for (auto _ : estado) {
        Dictamen dictamen;
        MuerteCalcula(caso, dictamen);
        benchmark::DoNotOptimize(dictamen.Conclusion().data());
    }
}

void Muerte_snprintf(benchmark::State& estado) {
    double base = 1200, viudedad = 624, orfandad = 240;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(base);
        benchmark::DoNotOptimize(viudedad);
        char texto[2048];
        const int largo = std::snprintf(
            texto, sizeof texto,
            "Cumple el periodo mínimo de 500 días cotizados dentro de los últimos 5 años\r\n"
            "La base reguladora es de %.2f €.\r\n"
            "El(La) viudo(a) tiene derecho a una pensión vitalicia de %.2f € , repartidas en 14 pagas.\r\n"
            "Si el beneficiario, antes de cumplir los 60 años, contrae nuevas nupcias, \r\n"
            "la pensión se sustituye por una cantidad igual al importe de 24 mensualidades \r\n"
            "de la pensión.\r\n"
            "Cada huérfano tiene derecho a una pensión de %.2f €\r\n"
            "hasta que cumplalos 18 años, (o el máximo que corresponda en circunstancias excepcionales,\r\n"
            "según nota aclaratoria de la pantalla de parámetros del supuesto.)\r\n"
            "o vitalicia si es declarado inválido absoluto, repartidas en 14 pagas.\r\n"
            "Corresponde además un subsidio o pago único de 30,05 €, en \r\n"
            "concepto de Auxilio por Defunción.\r\n",
            base, viudedad, orfandad);
        const std::string conclusion(texto, static_cast<std::size_t>(largo));
        benchmark::DoNotOptimize(conclusion.data());
    }
}

BENCHMARK(Incapacidad_caso);
BENCHMARK(Incapacidad_snprintf);
BENCHMARK(Muerte_caso);
BENCHMARK(Muerte_snprintf);

}  // namespace
