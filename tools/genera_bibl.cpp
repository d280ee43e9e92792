// Writes the "bibl.txt" that ships into the current directory, from its source in UTF-8: Windows-1252, lines
// ended by CR LF. A catalogue that the library screen couldn't show is refused.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "foundations/values/almacen.h"
#include "foundations/values/textos.h"
#include "shell/bibl_txt.h"

namespace {

using namespace orvemo;

constexpr int kUsoIncorrecto = 2;

std::string leeFuente(const std::filesystem::path& ruta) {
    const DirectorioAplicacion carpeta{ruta.parent_path()};
    return carpeta.leeTodo(ruta.filename().string());
}

std::string conFinesDeLinea(const std::string& fuente) {
    std::string texto;
    for (const char c : fuente) {
        if (c == '\n') texto += '\r';
        texto += c;
    }
    return texto;
}

std::string en1252(const std::string& utf8) {
    std::string bytes = A1252(utf8);
    if (De1252(bytes) != utf8) throw std::runtime_error{"a character of the source is not in Windows-1252"};
    return bytes;
}

void comprueba(const Catalogo& catalogo) {
    for (int i = 1; i <= kNumCapitulos; ++i) {
        const bool conLibros =
            std::ranges::find(catalogo.libros, i, &Libro::Capitulo) != catalogo.libros.end();
        const bool nombrado = catalogo.capitulo(i).linea > 0;
        if (nombrado != conLibros)
            throw std::runtime_error{"subject " + std::to_string(i) + " and its books don't match"};
    }
}

void escribe(const std::filesystem::path& fuente) {
    const std::string bytes = en1252(conFinesDeLinea(leeFuente(fuente)));
    comprueba(LeeBibl(bytes));
    DirectorioAplicacion{"."}.sustituye(kFicheroBibl, bytes);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("genera_bibl SOURCE\n", stderr);
        return kUsoIncorrecto;
    }
    try {
        escribe(argv[1]);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "genera_bibl: %s\n", fallo.what());
        return 1;
    }
}
