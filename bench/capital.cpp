// One case of capitalisation with the most readings there are, each of which opens its file, beside opening
// and reading the same files bare.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>

#include "capital/capitalizacion/capitalizacion.h"
#include "foundations/values/almacen.h"

namespace {

using namespace orvemo;

constexpr int kMuerte = 3;
constexpr int kDosViudosYTresMenores = 15;
/// The files that the case opens, one after another.
constexpr std::array kLecturas{"tarif9.nom", "tarif5.nom", "tarif9.nom", "tarif5.nom",
                               "tarif4.nom", "tarif4.nom", "tarif4.nom"};

capital::RegistroCapital dosViudasYTresHijos() {
    capital::RegistroCapital caso;
    caso.Situacion = kMuerte;
    caso.Edad = FechaDMA(1, 6, 1965);
    caso.EdadB = FechaDMA(1, 6, 1960);
    caso.Edad1 = FechaDMA(1, 6, 1993);
    caso.Edad2 = FechaDMA(1, 6, 1995);
    caso.Edad3 = FechaDMA(1, 6, 1997);
    caso.Dias1 = 1000;
    caso.Dias2 = 3000;
    caso.fConce = FechaDMA(15, 6, 2005);
    return caso;
}

void Capital_caso(benchmark::State& estado) {
    const auto caso = dosViudasYTresHijos();
    const DirectorioAplicacion datos{ORVEMO_DATOS};
    for (auto _ : estado) {
        Dictamen dictamen;
        benchmark::DoNotOptimize(
            capital::CalculaCapital(caso, kDosViudosYTresMenores, "1500,00", datos, dictamen));
    }
}

void Capital_lecturaDesnuda(benchmark::State& estado) {
    std::array<char, 16384> bytes{};
    const std::filesystem::path datos{ORVEMO_DATOS};
    for (auto _ : estado) {
        for (const char* fichero : kLecturas) {
            const int descriptor = open((datos / fichero).c_str(), O_RDONLY | O_CLOEXEC);
            benchmark::DoNotOptimize(read(descriptor, bytes.data(), bytes.size()));
            close(descriptor);
        }
    }
}

BENCHMARK(Capital_caso);
BENCHMARK(Capital_lecturaDesnuda);

}  // namespace
