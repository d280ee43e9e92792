// Writes the capitalisation tariffs that ship into the current directory, from a table of mortality.
#include <cstdio>
#include <exception>
#include <filesystem>

#include "foundations/values/almacen.h"
#include "genera_tarifas/filas.h"

namespace {

using namespace orvemo;

constexpr int kUsoIncorrecto = 2;

void escribe(const std::filesystem::path& fuente) {
    const DirectorioAplicacion origen{fuente.parent_path()};
    const tarifas::Rentas rentas{tarifas::LeeMortalidad(origen.leeTodo(fuente.filename().string()))};
    DirectorioAplicacion aqui{"."};
    for (const auto& [nombre, contenido] : Ficheros(rentas)) aqui.sustituye(nombre, contenido);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("genera_tarifas MORTALITY\n", stderr);
        return kUsoIncorrecto;
    }
    try {
        escribe(argv[1]);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "genera_tarifas: %s\n", fallo.what());
        return 1;
    }
}
