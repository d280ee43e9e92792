#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvemo {

inline constexpr const char* kFicheroBibl = "bibl.txt";

/// A book of the catalogue, its texts in UTF-8.
struct Libro {
    std::string Resumen{};  ///< its lines, each with its line end
    std::uint8_t Capitulo = 0;
    std::string Titulo{};
};

/// A subject that the catalogue names.
struct Capitulo {
    std::string rotulo;
    int linea = 0;  ///< where the file names it, from 1; 0 when it doesn't
};

inline constexpr int kNumCapitulos = 8;

/// The library's catalogue, as "bibl.txt" tells it.
struct Catalogo {
    std::array<Capitulo, kNumCapitulos> capitulos;
    std::vector<Libro> libros;  ///< in the order of the file; book 1 is the first

    /// Subject n, from 1 to 8.
    [[nodiscard]] const Capitulo& capitulo(int n) const {
        return capitulos.at(static_cast<std::size_t>(n) - 1);
    }
};

/// Reads the contents of "bibl.txt", Windows-1252 lines with any line end. A last book that neither another
/// book nor "#FIN" closes isn't kept. Throws FicheroMalFormado with the line to blame.
[[nodiscard]] Catalogo LeeBibl(std::string_view contenido);

}  // namespace orvemo
