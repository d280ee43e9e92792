// A case of the batch, from its record to its line of JSON, beside its bare calculation and snprintf of that
// line.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "benefits/desempleo/desempleo.h"
#include "cases/archivo_supuestos.h"
#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "lote/lote.h"
#include "pensions/jubilacion/jubilacion.h"

namespace {

namespace fs = std::filesystem;
using namespace orvemo;

constexpr int kCasos = 1000;

/// A case file of so many equal records, removed at the end.
class Fichero {
  public:
    explicit Fichero(const std::string& registro) {
        std::string plantilla = (fs::temp_directory_path() / "orvemo-bench-XXXXXX").string();
        if (mkdtemp(plantilla.data()) == nullptr) std::abort();
        carpeta_ = plantilla;
        std::string bytes;
        for (int i = 0; i < kCasos; ++i) bytes += registro;
        SustituyeFichero(ruta(), bytes);
    }
    Fichero(const Fichero&) = delete;
    Fichero& operator=(const Fichero&) = delete;
    ~Fichero() { fs::remove_all(carpeta_); }

    [[nodiscard]] fs::path ruta() const { return carpeta_ / "casos.nom"; }

  private:
    fs::path carpeta_;
};

void porLotes(benchmark::State& estado, const char* calculadora, const std::string& registro) {
    const Fichero fichero{registro};
    const lote::Opciones opciones{
        .calculadora = calculadora, .fichero = fichero.ruta(), .hoy = FechaDMA(15, 6, 2005), .json = true};
    for (auto _ : estado) {
        std::ofstream salida{"/dev/null"};
        std::ostringstream errores;
        if (ejecuta(opciones, CalculadorasDelPrograma(), ORVEMO_DATOS, salida, errores) != 0) std::abort();
    }
    estado.SetItemsProcessed(estado.iterations() * kCasos);
}

// --- Unemployment

desempleo::RegistroDesempleo casoDeDesempleo() {
    desempleo::RegistroDesempleo caso;
    caso.NombreSupuesto.asigna("Dos años cotizados, un hijo");
    caso.Nombre.asigna("Elena Prado Ribas");
    caso.Edad = 38;
    caso.Fecha_ = FechaDMA(13, 6, 2005);
    caso.fIni = FechaDMA(6, 6, 2005);
    caso.Suma = 7650;
    caso.Dias = 730;
    caso.Hijos = 1;
    return caso;
}

void Lote_desempleo(benchmark::State& estado) {
    porLotes(estado, "desempleo", desempleo::kDiseno.escribe(casoDeDesempleo()));
}

void Desempleo_calculo_y_snprintf(benchmark::State& estado) {
    const auto caso = casoDeDesempleo();
    char linea[4096];
    for (auto _ : estado) {
        Dictamen dictamen;
        CalculaDesempleo(caso, dictamen);
        std::snprintf(
            linea, sizeof linea,
            "{\"registro\":%d,\"supuesto\":\"%s\",\"nombre\":\"%s\",\"derecho\":%s,\"conclusion\":\"%s\","
            "\"campos\":{\"Edad\":%d,\"Fecha\":\"%s\",\"fIni\":\"%s\",\"Suma\":%.17g,\"Dias\":%d,"
            "\"Hijos\":%d,\"Horas\":%d,\"Parcial\":%d}}\n",
            1, "Dos años cotizados, un hijo", "Elena Prado Ribas", dictamen.ConDerecho ? "true" : "false",
            dictamen.Conclusion().c_str(), caso.Edad, "2005-06-13", "2005-06-06", caso.Suma, caso.Dias,
            caso.Hijos, caso.Horas, caso.Parcial);
        benchmark::DoNotOptimize(linea);
    }
    estado.SetItemsProcessed(estado.iterations());
}

// --- Retirement, with 180 monthly bases

jubilacion::RegistroJubilacion casoDeJubilacion() {
    jubilacion::RegistroJubilacion caso;
    caso.NombreSupuesto.asigna("A los 62, base a base");
    caso.JubiNombre.asigna("Rosario Peña Soler");
    caso.JubiFechaNac = FechaDMA(20, 4, 1943);
    caso.JubiFechaJub = FechaDMA(15, 6, 2005);
    caso.JubiPerDesde[0].asigna("01-10-1962");
    caso.JubiPerHasta[0].asigna("31-08-1978");
    caso.JubiPerDesde[1].asigna("15-03-1984");
    caso.JubiPerHasta[1].asigna("31-05-2005");
    caso.JubiBasesDesglosadas = 1;
    for (std::size_t i = 0; i < 180; ++i) caso.JubiBase[i] = 1500.25 - 3.5 * static_cast<double>(i);
    return caso;
}

void Lote_jubilacion(benchmark::State& estado) {
    porLotes(estado, "jubilacion", jubilacion::kDiseno.escribe(casoDeJubilacion()));
}

void Jubilacion_calculo_y_snprintf(benchmark::State& estado) {
    const auto caso = casoDeJubilacion();
    const DirectorioAplicacion datos{ORVEMO_DATOS};
    const auto tablas = pensiones::IniciaPensiones(datos);
    char linea[16384];
    for (auto _ : estado) {
        Dictamen dictamen;
        CalculaJubilacion(caso, tablas, FechaDMA(15, 6, 2005), dictamen);
        int largo = std::snprintf(linea, sizeof linea,
                                  "{\"registro\":%d,\"derecho\":%s,\"conclusion\":\"%s\",\"JubiBase\":[", 1,
                                  dictamen.ConDerecho ? "true" : "false", dictamen.Conclusion().c_str());
        for (const double base : caso.JubiBase)
            largo +=
                std::snprintf(linea + largo, sizeof linea - static_cast<std::size_t>(largo), "%.17g,", base);
        benchmark::DoNotOptimize(linea);
    }
    estado.SetItemsProcessed(estado.iterations());
}

BENCHMARK(Desempleo_calculo_y_snprintf);
BENCHMARK(Lote_desempleo)->Unit(benchmark::kMillisecond);
BENCHMARK(Jubilacion_calculo_y_snprintf);
BENCHMARK(Lote_jubilacion)->Unit(benchmark::kMillisecond);

}  // namespace
