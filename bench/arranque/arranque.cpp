// From the start of the process to the first painted menu, the cover's second taken off, beside a bare window
// of the toolkit with as many buttons. Each start is a process of its own; the clock runs from its creation
// until it says, by one byte in a pipe, that its window is painted. Without a display both paint off screen.
// On a machine that does other things besides:
//
//     xvfb-run bench_arranque --benchmark_enable_random_interleaving=true --benchmark_repetitions=9

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>

#include "shell/programa.h"

namespace {

constexpr int kArranques = 10;

/// A process that says on its standard output when it is ready.
class Proceso {
  public:
    explicit Proceso(std::array<const char*, 2> orden) {
        std::array<int, 2> tubo{};
        if (pipe2(tubo.data(), O_CLOEXEC) != 0) std::abort();
        posix_spawn_file_actions_t acciones;
        posix_spawn_file_actions_init(&acciones);
        posix_spawn_file_actions_adddup2(&acciones, tubo[1], STDOUT_FILENO);
        std::array<char*, 3> argumentos{const_cast<char*>(orden[0]), const_cast<char*>(orden[1]), nullptr};
        if (posix_spawn(&pid_, orden[0], &acciones, nullptr, argumentos.data(), environ) != 0) std::abort();
        posix_spawn_file_actions_destroy(&acciones);
        close(tubo[1]);
        salida_ = tubo[0];
    }
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;
    ~Proceso() {
        close(salida_);
        waitpid(pid_, nullptr, 0);
    }

    [[nodiscard]] bool esperaAviso() const {
        char aviso = 0;
        return read(salida_, &aviso, 1) == 1;
    }

  private:
    pid_t pid_ = 0;
    int salida_ = -1;
};

/// Starts the program again and again. Of the time that each takes so much is waiting by design.
void arranca(benchmark::State& estado, std::array<const char*, 2> orden,
             std::chrono::duration<double> espera) {
    for (auto _ : estado) {
        const auto comienzo = std::chrono::steady_clock::now();
        const Proceso proceso{orden};
        if (!proceso.esperaAviso()) {
            estado.SkipWithError("the window has not been painted");
            return;
        }
        const std::chrono::duration<double> tardanza = std::chrono::steady_clock::now() - comienzo;
        estado.SetIterationTime((tardanza - espera).count());
    }
    estado.SetLabel(std::getenv("QT_QPA_PLATFORM"));
}

void VentanaDesnuda(benchmark::State& estado) {
    arranca(estado, {ORVEMO_VENTANA_DESNUDA, nullptr}, std::chrono::seconds::zero());
}

void Menu(benchmark::State& estado) {
    arranca(estado, {ORVEMO_MENU, ORVEMO_DATOS}, orvemo::kDuracionPortada);
}

BENCHMARK(VentanaDesnuda)->UseManualTime()->Iterations(kArranques)->Unit(benchmark::kMillisecond);
BENCHMARK(Menu)->UseManualTime()->Iterations(kArranques)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const char* plataforma = std::getenv("DISPLAY") != nullptr ? "xcb" : "offscreen";
    setenv("QT_QPA_PLATFORM", plataforma, 0);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
