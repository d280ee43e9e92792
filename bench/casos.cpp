// Listing the cases of a full file and appending to one, beside one bare pass over the same heads.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "cases/archivo_supuestos.h"
#include "cases/registro.h"
#include "foundations/values/almacen.h"

namespace {

namespace fs = std::filesystem;
using namespace orvemo;

constexpr const char* kNombre = "casos.nom";

/// People as an adviser would name the cases, in no order; the number makes nearly every name another.
std::string nombreDeCaso(int r) {
    constexpr std::array kApellidos{"García", "Núñez",  "Álvarez", "Ibáñez",
                                    "Ortiz",  "Zúñiga", "Peña",    "Sáez"};
    constexpr std::array kNombres{"María del Carmen", "José", "Ángela", "Íñigo", "Begoña", "Luis"};
    const auto n = static_cast<std::size_t>(r) * 7919;
    return std::string{kApellidos[n % kApellidos.size()]} + ' ' + kApellidos[n / 8 % kApellidos.size()] +
           ", " + kNombres[n / 64 % kNombres.size()] + ' ' + std::to_string(n % 10007);
}

std::string registro(int r, std::size_t longitud) {
    std::string bytes(longitud, ' ');
    EnRegistro<Texto<kAnchoNombre>>::escribe(bytes.data() + 1, Texto<kAnchoNombre>{nombreDeCaso(r)});
    return bytes;
}

/// A directory of its own with one file of so many cases, removed at the end.
class Fichero {
  public:
    Fichero(std::size_t longitud, int registros) : longitud_{longitud} {
        std::string plantilla = (fs::temp_directory_path() / "orvemo-bench-XXXXXX").string();
        if (mkdtemp(plantilla.data()) == nullptr) std::abort();
        carpeta_ = plantilla;
        std::string bytes;
        for (int r = 1; r <= registros; ++r) bytes += registro(r, longitud);
        almacen().sustituye(kNombre, bytes);
    }
    Fichero(const Fichero&) = delete;
    Fichero& operator=(const Fichero&) = delete;
    ~Fichero() { fs::remove_all(carpeta_); }

    [[nodiscard]] DirectorioAplicacion almacen() const { return DirectorioAplicacion{carpeta_}; }
    [[nodiscard]] fs::path ruta() const { return carpeta_ / kNombre; }
    [[nodiscard]] std::size_t longitud() const { return longitud_; }
    void corta(int registros) const {
        fs::resize_file(ruta(), static_cast<std::uintmax_t>(registros) * longitud_);
    }

  private:
    std::size_t longitud_;
    fs::path carpeta_;
};

/// The yardstick: every head read where it lies, and nothing done with it.
void PasadaPorCabeceras(benchmark::State& estado) {
    const Fichero fichero{static_cast<std::size_t>(estado.range(0)), kMaxRegistros};
    std::array<char, kAnchoCabecera> cabecera{};
    for (auto _ : estado) {
        const int descriptor = open(fichero.ruta().c_str(), O_RDONLY | O_CLOEXEC);
        for (int r = 0; r < kMaxRegistros; ++r) {
            const auto posicion = static_cast<off_t>(r) * static_cast<off_t>(fichero.longitud());
            benchmark::DoNotOptimize(pread(descriptor, cabecera.data(), cabecera.size(), posicion));
        }
        close(descriptor);
    }
}

void ListaAlfabetica(benchmark::State& estado) {
    const Fichero fichero{static_cast<std::size_t>(estado.range(0)), kMaxRegistros};
    auto almacen = fichero.almacen();
    const ArchivoSupuestos archivo{almacen, kNombre, fichero.longitud()};
    for (auto _ : estado) benchmark::DoNotOptimize(OrdenaAlfabeticamente(archivo.lista()));
}

/// The last place of the file, found by looking through all the others.
void AgregaAlFinal(benchmark::State& estado) {
    const Fichero fichero{static_cast<std::size_t>(estado.range(0)), kMaxRegistros - 1};
    auto almacen = fichero.almacen();
    ArchivoSupuestos archivo{almacen, kNombre, fichero.longitud()};
    const std::string nuevo = registro(kMaxRegistros, fichero.longitud());
    for (auto _ : estado) {
        benchmark::DoNotOptimize(archivo.agrega(nuevo));
        estado.PauseTiming();
        fichero.corta(kMaxRegistros - 1);
        estado.ResumeTiming();
    }
}

// The records of unemployment, and the longest there are.
constexpr int kDesempleo = 297;
constexpr int kJubilacion = 2592;

BENCHMARK(PasadaPorCabeceras)->Arg(kDesempleo)->Arg(kJubilacion)->Unit(benchmark::kMillisecond);
BENCHMARK(ListaAlfabetica)->Arg(kDesempleo)->Arg(kJubilacion)->Unit(benchmark::kMillisecond);
BENCHMARK(AgregaAlFinal)->Arg(kDesempleo)->Arg(kJubilacion)->Unit(benchmark::kMillisecond);

}  // namespace
