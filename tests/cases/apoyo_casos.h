#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/almacen_memoria.h"
#include "cases/archivo_supuestos.h"
#include "cases/registro.h"

namespace orvemo::pruebas {

inline constexpr std::size_t kLongitud = 297;  // a record of "desemp.nom"

/// A record of that name whose bytes past the head are all `relleno`, to see what becomes of them.
[[nodiscard]] inline std::string registro(std::string_view nombre, char relleno = 'x', char estado = ' ') {
    std::string bytes(kLongitud, relleno);
    bytes[0] = estado;
    EnRegistro<Texto<kAnchoNombre>>::escribe(&bytes[1], Texto<kAnchoNombre>{nombre});
    EnRegistro<Texto<kAnchoNombre>>::escribe(&bytes[1 + kAnchoNombre], Texto<kAnchoNombre>{"Una persona"});
    return bytes;
}

/// What erasing leaves of a record: a free head over the old contents.
[[nodiscard]] inline std::string borrado(std::string bytes) {
    std::fill_n(bytes.begin(), kAnchoCabecera, ' ');
    bytes[0] = '*';
    return bytes;
}

/// "3 Ana": one line of a list.
[[nodiscard]] inline std::vector<std::string> lineas(const std::vector<EntradaSupuesto>& lista) {
    std::vector<std::string> textos;
    for (const EntradaSupuesto& entrada : lista) {
        textos.push_back(std::to_string(entrada.registro) + ' ' + entrada.nombre);
    }
    return textos;
}

/// "desemp.nom" in memory.
struct FicheroDePrueba {
    AlmacenMemoria almacen;
    ArchivoSupuestos archivo{almacen, "desemp.nom", kLongitud};

    [[nodiscard]] std::string& bytes() { return almacen["desemp.nom"]; }
};

}  // namespace orvemo::pruebas
