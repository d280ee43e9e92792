// One payslip beside formatting its JSON.

#include <benchmark/benchmark.h>

#include <string>

#include "payroll/caso/calcula_nomina.h"
#include "payroll/caso/json_estado.h"

namespace {

using namespace orvemo::nomina;

const TablasNomina kTablas{Contratos{"*#100 Indefinido#0\n100#100 Indefinido#100###NNN"},
                           Epigrafes{"113#0,45#0,54#Oficina"}};

/// A month with sick leave, two extra pays and overtime.
RegistroNomina mes() {
    RegistroNomina r;
    r.Nombre.asigna("Elena Ríos");
    r.Mes = 5;
    r.FechaInicio.asigna("01-03-2001");
    r.Categoria = 4;
    r.Epigrafe.asigna("113");
    r.CodigoContrato.asigna("100");
    r.NumPagas[0] = 2;
    r.PagaExtra[0] = 1200;
    r.IRPFExtra = 12;
    r.CodigoConcepto[0].asigna("01");
    r.UnidadConcepto[0].asigna("M");
    r.ImporteConcepto[0] = 1200;
    r.CodigoConcepto[1].asigna("HE");
    r.UnidadConcepto[1].asigna("A");
    r.ImporteConcepto[1] = 90;
    r.CodigoIncidencia[0].asigna("1");
    r.DiaInicioInci[0] = 9;
    r.DiaFinInci[0] = 30;
    r.BaseCCAnt = r.BaseATEPAnt = 1450;
    return r;
}

void Nomina_calculo(benchmark::State& estado) {
    const RegistroNomina registro = mes();
    EstadoNomina nomina;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CalculaSupuesto(registro, kTablas, nomina));
        benchmark::DoNotOptimize(nomina.totales.Liquido);
    }
}

void Nomina_json(benchmark::State& estado) {
    EstadoNomina nomina;
    benchmark::DoNotOptimize(CalculaSupuesto(mes(), kTablas, nomina));
    std::string json;
    for (auto _ : estado) {
        json.clear();
        AgregaEstado(json, nomina);
        benchmark::DoNotOptimize(json.data());
    }
}

BENCHMARK(Nomina_calculo);
BENCHMARK(Nomina_json);

}  // namespace
