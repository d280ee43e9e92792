#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace orvemo::capital {

/// Characters of one value of a tariff.
inline constexpr int kAnchoValor = 9;
/// CR LF at the end of every row.
inline constexpr int kAnchoFinDeFila = 2;

/// The shape of a tariff file: a row for each age, without gaps, and in it a key, which nobody reads, and the
/// values. Its ages and columns are also all that can be asked of it.
struct FicheroTarifa {
    std::string_view nombre;
    int clave;        ///< characters of the key
    int columnas;     ///< values of a row, counted from 1
    int primeraEdad;  ///< age of the first row
    int ultimaEdad;   ///< age of the last one

    /// Bytes of a row.
    [[nodiscard]] constexpr std::size_t longitud() const {
        const int caracteres = clave + kAnchoValor * columnas + kAnchoFinDeFila;
        return static_cast<std::size_t>(caracteres);
    }
    [[nodiscard]] constexpr bool contiene(int edad, int columna) const {
        return edad >= primeraEdad && edad <= ultimaEdad && columna >= 1 && columna <= columnas;
    }
    /// Byte of the row of that age where the value begins.
    [[nodiscard]] constexpr std::size_t posicion(int edad, int columna) const {
        const int enFila = clave + kAnchoValor * (columna - 1);
        const int filas = edad - primeraEdad;
        return static_cast<std::size_t>(filas) * longitud() + static_cast<std::size_t>(enFila);
    }
};

// clang-format off
inline constexpr FicheroTarifa kTarif1{"tarif1.nom", 3,  1,  0, 104};
inline constexpr FicheroTarifa kTarif2{"tarif2.nom", 3,  1,  0, 102};
inline constexpr FicheroTarifa kTarif3{"tarif3.nom", 2,  7, 16,  70};
inline constexpr FicheroTarifa kTarif4{"tarif4.nom", 2,  2,  0,  23};
inline constexpr FicheroTarifa kTarif5{"tarif5.nom", 2, 21, 12,  70};
inline constexpr FicheroTarifa kTarif6{"tarif6.nom", 2, 21, 12,  70};
inline constexpr FicheroTarifa kTarif7{"tarif7.nom", 2, 23,  0,  22};
inline constexpr FicheroTarifa kTarif9{"tarif9.nom", 2,  2,  0,  23};

/// One table of 104 ages by 101, cut by the lower age: the columns of each file are the lower ages from that
/// of its first row on, and no row is younger than they are.
inline constexpr std::array kTarif8{
    FicheroTarifa{"Tarif8A.NOM", 3,  6,  0, 103},
    FicheroTarifa{"Tarif8B.NOM", 3, 12,  6, 103},
    FicheroTarifa{"Tarif8C.NOM", 3, 12, 18, 103},
    FicheroTarifa{"Tarif8d.NOM", 3,  6, 30, 103},
    FicheroTarifa{"Tarif8e.NOM", 3, 12, 36, 103},
    FicheroTarifa{"Tarif8f.NOM", 3,  6, 48, 103},
    FicheroTarifa{"Tarif8g.NOM", 3, 12, 54, 103},
    FicheroTarifa{"Tarif8h.NOM", 3,  6, 66, 103},
    FicheroTarifa{"Tarif8i.NOM", 3, 12, 72, 103},
    FicheroTarifa{"Tarif8j.NOM", 3,  6, 84, 103},
    FicheroTarifa{"Tarif8k.NOM", 3, 11, 90, 103},
};
// clang-format on

/// The age at which a child's pension ends, years.
enum class TopeHijo { Veintiuno = 21, Veintitres = 23 };

/// The column of an age limit, in the tariffs that have one for each.
[[nodiscard]] constexpr int columnaDe(TopeHijo tope) {
    return tope == TopeHijo::Veintiuno ? 1 : 2;
}

}  // namespace orvemo::capital
