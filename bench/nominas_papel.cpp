// A payslip printed to PDF, beside a bare page of PDF with as many texts and lines.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <array>
#include <cstdlib>

#include "foundations/values/almacen.h"
#include "payroll/caso/calcula_nomina.h"
#include "printing/nominas/formularios.h"
#include "toolkit/impresora_pdf.h"

namespace {

using namespace orvemo;
using namespace orvemo::nomina;

/// A month with sick leave.
struct Mes {
    Mes() {
        registro.Nombre.asigna("María Fernández de la Peña");
        registro.Mes = 5;
        registro.FechaInicio.asigna("01-01-2004");
        registro.Epigrafe.asigna("113");
        registro.CodigoContrato.asigna("100");
        registro.CodigoConcepto[0].asigna("01");
        registro.UnidadConcepto[0].asigna("M");
        registro.ImporteConcepto[0] = 1500;
        registro.CodigoIncidencia[0].asigna("1");
        registro.DiaInicioInci[0] = 9;
        registro.DiaFinInci[0] = 30;
        registro.BaseCCAnt = registro.BaseATEPAnt = 1500;
        registro.DiasAnt = 30;
        calcula(registro);
    }

    RegistroNomina registro;
    OpcionesImpresion empresa;
    EstadoNomina estado;

  private:
    void calcula(const RegistroNomina& caso) {
        const TablasNomina tablas{Contratos{"100#100 Indefinido#100###NNN\n"},
                                  Epigrafes{"113#0.45#0.54#Oficina\n"}};
        if (!CalculaSupuesto(caso, tablas, estado).empty()) std::abort();
    }
};

void ReciboEnPdf(benchmark::State& vueltas) {
    const Mes mes;
    const QTemporaryDir carpeta;
    const DirectorioAplicacion directorio{carpeta.path().toStdString()};
    for (auto _ : vueltas) {
        DestinoPdf papel{directorio, carpeta.filePath("recibo.pdf").toStdString(), "Nómina"};
        ImprimeReciboSalarios(papel, {mes.estado, mes.registro, mes.empresa, "María", FechaDMA(30, 6, 2005)});
    }
}

/// As many texts as the receipt has, in its letters, the rows of dots among them.
void PdfDesnudo(benchmark::State& vueltas) {
    constexpr int kTextos = 130;
    constexpr int kLineas = 7;
    const QTemporaryDir carpeta;
    const QString puntos(100, '.');
    const std::array letras{QFont{"Liberation Sans", 8}, QFont{"Liberation Sans", 8, QFont::Bold},
                            QFont{"Liberation Sans", 6}};
    for (auto _ : vueltas) {
        QPdfWriter escritor{carpeta.filePath("desnudo.pdf")};
        QPainter pincel{&escritor};
        for (int i = 0; i < kLineas; ++i) pincel.drawLine(0, i * 100, 5000, i * 100);
        for (int i = 0; i < kTextos; ++i) {
            pincel.setFont(letras.at(static_cast<std::size_t>(i) % letras.size()));
            pincel.drawText(100, 100 + i * 50,
                            i % 4 == 0 ? puntos : QString{"Contingencias comunes %1"}.arg(i));
        }
    }
}

BENCHMARK(ReciboEnPdf)->Unit(benchmark::kMillisecond);
BENCHMARK(PdfDesnudo)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion{argc, argv};
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
