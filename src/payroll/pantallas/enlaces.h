#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <type_traits>

#include "foundations/frame/campo.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

/// A field of the screen and its member of the record, both ways.
struct Enlace {
    std::function<void(RegistroNomina&)> toma;         ///< from the screen
    std::function<void(const RegistroNomina&)> carga;  ///< to the screen
};

template <std::size_t N>
void TomaValor(const Campo& campo, Texto<N>& miembro) {
    miembro.asigna(campo.texto());
}
template <std::floating_point Real>
void TomaValor(const Campo& campo, Real& miembro) {
    miembro = static_cast<Real>(ValComa(campo.texto()));
}
inline void TomaValor(const Campo& campo, std::int32_t& miembro) {
    miembro = RedondeaPar(ValComa(campo.texto()));
}
inline void TomaValor(const Campo& campo, std::uint8_t& miembro) {
    const bool esLista = campo.def().clase == Clase::Lista;
    miembro = RedondeaPar8(esLista ? campo.indice() : ValComa(campo.texto()));
}
/// Of a check box, -1 when it is marked.
inline void TomaValor(const Campo& campo, std::int16_t& miembro) {
    const bool esCasilla = campo.def().clase == Clase::Casilla;
    miembro = esCasilla ? static_cast<std::int16_t>(campo.marcado() ? -1 : 0)
                        : RedondeaPar16(ValComa(campo.texto()));
}

template <std::size_t N>
void CargaValor(Campo& campo, const Texto<N>& miembro) {
    campo.ponTexto(miembro.utf8());
}
template <typename Numero>
requires std::is_arithmetic_v<Numero>
void CargaValor(Campo& campo, Numero miembro) {
    if (campo.def().clase == Clase::Lista) {
        campo.ponIndice(static_cast<int>(miembro));
    } else if (campo.def().clase == Clase::Casilla) {
        campo.ponMarcado(miembro != 0);
    } else {
        campo.ponTexto(TextoPlano(miembro));
    }
}

/// Ties a field to what `miembro` gives of a record.
template <typename Miembro>
[[nodiscard]] Enlace Enlaza(Campo& campo, Miembro miembro) {
    return {
        .toma = [&campo, miembro](RegistroNomina& registro) { TomaValor(campo, miembro(registro)); },
        .carga = [&campo, miembro](const RegistroNomina& registro) { CargaValor(campo, miembro(registro)); }};
}

/// Ties a field to a member of the record.
template <typename T>
[[nodiscard]] Enlace Enlaza(Campo& campo, T RegistroNomina::*miembro) {
    return Enlaza(campo, [miembro](auto& registro) -> decltype(auto) { return (registro.*miembro); });
}

/// Ties a field to an element of an array of the record.
template <typename T, std::size_t N>
[[nodiscard]] Enlace Enlaza(Campo& campo, std::array<T, N> RegistroNomina::*miembro, std::size_t i) {
    return Enlaza(campo, [miembro, i](auto& registro) -> decltype(auto) { return ((registro.*miembro)[i]); });
}

}  // namespace orvemo::nomina
