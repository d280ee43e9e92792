#pragma once

#include <string_view>
#include <tuple>

namespace orvemo::nomina {

/// A member of a struct and the name by which the world outside knows it.
template <typename Clase, typename T>
struct Nombrado {
    std::string_view nombre;
    T Clase::*campo;
};
template <typename Clase, typename T>
Nombrado(const char*, T Clase::*) -> Nombrado<Clase, T>;

/// Calls `accion(nombre, valor)` for each member of a list of Nombrado, in its order.
template <typename Clase, typename... T>
void CadaCampo(const Clase& objeto, const std::tuple<Nombrado<Clase, T>...>& lista, auto&& accion) {
    std::apply([&](const auto&... miembro) { (accion(miembro.nombre, objeto.*miembro.campo), ...); }, lista);
}

}  // namespace orvemo::nomina
