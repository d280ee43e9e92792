#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace orvemo {

/// What a member of a record holds, as its text form tells it.
enum class Naturaleza {
    Texto,     ///< Windows-1252
    Dias,      ///< a date, as days since 30-12-1899
    Natural,   ///< whole number without sign
    Entero,    ///< whole number
    Real,      ///< amount, of single or double precision by its width
    Lista,     ///< so many of the same
    Conjunto,  ///< members with names: a record or a part of one
};

struct Miembro;

/// The layout of a record or of a member, without its types: enough to tell its bytes by name.
struct Forma {
    Naturaleza naturaleza;
    std::size_t ancho;                    ///< bytes in all
    const Forma* elemento = nullptr;      ///< of a list
    std::span<const Miembro> miembros{};  ///< of a set, in the order of their bytes
};

struct Miembro {
    std::string_view nombre;
    std::size_t posicion;
    const Forma* forma;
};

}  // namespace orvemo
