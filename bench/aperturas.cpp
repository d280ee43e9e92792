// Opening the retirement screen, with its 196 lines of bases, that of incapacity, with 96, and the payroll's,
// beside opening the one of unemployment, and going on to a panel of bases: model, window and first painting,
// on the offscreen platform.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "benefits/desempleo/desemp_frm.h"
#include "foundations/values/almacen.h"
#include "payroll/pantallas/nomina_frm.h"
#include "pensions/incapacidad/inva_frm.h"
#include "pensions/jubilacion/pension_frm.h"
#include "toolkit/vista_formulario.h"

namespace {

using namespace orvemo;

class SinMensajes final : public Mensajes {
  public:
    bool Confirma(std::string_view /*texto*/) override { return false; }
    void Informa(std::string_view /*texto*/) override {}
    void ComunicaError(std::string_view /*texto*/) override {}
};

class SinImpresora final : public Impresora {
  public:
    std::unique_ptr<DestinoImpresion> elige(const std::string& /*documento*/) override { return nullptr; }
};

struct Mundo {
    SinMensajes mensajes;
    RelojDelSistema reloj;
    DirectorioAplicacion directorio{ORVEMO_DATOS};
    SinImpresora impresora;
    RutinasImpresion rutinas;
    ValoresPrograma valores;
    Entorno entorno{mensajes, reloj, directorio, impresora, rutinas, valores};
};

void pinta(VistaFormulario& vista) {
    vista.show();
    benchmark::DoNotOptimize(vista.grab().width());
}

template <typename Pantalla>
void Apertura(benchmark::State& estado) {
    Mundo mundo;
    for (auto _ : estado) {
        Pantalla pantalla{mundo.entorno};
        pantalla.Inicia();
        VistaFormulario vista{pantalla, mundo.directorio};
        pinta(vista);
    }
}

void Apertura_panelDeBases(benchmark::State& estado) {
    constexpr int kPrimerPanelDeBases = 3;
    Mundo mundo;
    for (auto _ : estado) {
        estado.PauseTiming();
        PensionFrm pantalla{mundo.entorno};
        pantalla.Inicia();
        VistaFormulario vista{pantalla, mundo.directorio};
        pinta(vista);
        estado.ResumeTiming();
        pantalla.MuestraPantalla(kPrimerPanelDeBases);
        pinta(vista);
    }
}

BENCHMARK(Apertura<DesempFrm>)->Unit(benchmark::kMillisecond);
BENCHMARK(Apertura<PensionFrm>)->Unit(benchmark::kMillisecond);
BENCHMARK(Apertura<InvaFrm>)->Unit(benchmark::kMillisecond);
BENCHMARK(Apertura<NominaFrm>)->Unit(benchmark::kMillisecond);
BENCHMARK(Apertura_panelDeBases)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
