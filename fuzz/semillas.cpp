// Writes where the fuzzers start from, a folder a target, out of the examples and the files that ship:
// semillas DATA_DIRECTORY SEED_DIRECTORY

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "cases/archivo_supuestos.h"
#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "longitudes.h"

namespace {

namespace fs = std::filesystem;
using namespace orvemo;

void pon(const fs::path& carpeta, const std::string& nombre, const std::string& bytes) {
    fs::create_directories(carpeta);
    SustituyeFichero(carpeta / nombre, bytes);
}

/// What an input of fuzz_casos begins with: the length of the records and two operations, of four bytes each.
std::string dosPasos(std::size_t longitud) {
    const auto lugar = std::ranges::find(kLongitudes, longitud) - kLongitudes.begin();
    return std::string{static_cast<char>(lugar), 2} + std::string{0, 0, 0, 0} + std::string{1, 127, 0, 0};
}

void siembra(DirectorioAplicacion& datos, const fs::path& semillas) {
    char orden = 0;
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        if (entrada.registro.abre == nullptr) continue;
        const char primero = orden++;
        if (entrada.ejemplos.empty()) continue;
        const ArchivoSupuestos ejemplos{datos, std::string{entrada.ejemplos}, entrada.registro.longitud};
        for (int r = 1; r <= ejemplos.cuenta(); ++r) {
            const std::string nombre = std::string{entrada.clave} + "-" + std::to_string(r);
            const std::string bytes = ejemplos.lee(r);
            pon(semillas / "fuzz_calculadoras", nombre, primero + bytes);
            if (entrada.clave == "jubilacion") pon(semillas / "fuzz_jubilacion", nombre, bytes);
            pon(semillas / "fuzz_casos", nombre, dosPasos(bytes.size()) + bytes + bytes);
        }
    }
    pon(semillas / "fuzz_config", "config.nom", datos.leeTodo("config.nom"));
    pon(semillas / "fuzz_jubilacion", "ipc.txt", "i" + datos.leeTodo("ipc.txt"));
    for (const char* numero : {"1.234,56", "-0,005", "13-06-2005", "##,###,##0.00"})
        for (const char* blanco : {"fuzz_lectores", "fuzz_patrones"}) pon(semillas / blanco, numero, numero);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: semillas DATA_DIRECTORY SEED_DIRECTORY\n";
        return 2;
    }
    try {
        DirectorioAplicacion datos{argv[1]};
        siembra(datos, argv[2]);
        return 0;
    } catch (const std::exception& fallo) {
        std::cerr << fallo.what() << '\n';
        return 1;
    }
}
