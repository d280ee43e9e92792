#include "shell/plano_menu.h"

#include <algorithm>
#include <set>

namespace orvemo {

namespace {

// Twips. The headings take the height that the rows give up by standing closer together.
constexpr int kArribaDelTodo = 855;
constexpr int kPasoAgrupado = 560;
constexpr int kMaximoGrupos = 3;  // in a column

struct Lugar {
    std::size_t indice;
    int fila;
    Materia materia;
};

std::vector<Lugar> lugaresDe(std::span<const OpcionMenu, kNumOpciones> opciones, Columna columna) {
    std::vector<Lugar> lugares;
    for (std::size_t i = 0; i < opciones.size(); ++i) {
        const OpcionMenu& opcion = opciones[i];
        if (opcion.visible && opcion.puesto.columna == columna)
            lugares.push_back({i, opcion.puesto.fila, kOpciones[i].materia});
    }
    std::ranges::sort(lugares, {}, &Lugar::fila);
    return lugares;
}

/// The options of a column that stand together by their subject.
std::vector<std::span<const Lugar>> gruposDe(std::span<const Lugar> lugares) {
    std::vector<std::span<const Lugar>> grupos;
    while (!lugares.empty()) {
        const auto otro = std::ranges::find_if(
            lugares, [&](const Lugar& lugar) { return lugar.materia != lugares.front().materia; });
        grupos.emplace_back(lugares.begin(), otro);
        lugares = {otro, lugares.end()};
    }
    return grupos;
}

bool caben(std::span<const Lugar> lugares) {
    const auto fuera = [](const Lugar& lugar) { return lugar.fila < 1 || lugar.fila > kFilasMenu; };
    const auto encima = [](const Lugar& uno, const Lugar& otro) { return uno.fila == otro.fila; };
    return std::ranges::none_of(lugares, fuera) &&
           std::ranges::adjacent_find(lugares, encima) == lugares.end();
}

using Grupos = std::vector<std::span<const Lugar>>;

bool repiteMateria(const Grupos& izquierda, const Grupos& derecha) {
    std::set<Materia> vistas;
    const auto repetida = [&](std::span<const Lugar> grupo) {
        return !vistas.insert(grupo.front().materia).second;
    };
    return std::ranges::any_of(izquierda, repetida) || std::ranges::any_of(derecha, repetida);
}

/// Puts a column down; where there are fewer headings than in the other one they get more room, so that both
/// end at the same height.
void coloca(PlanoMenu& plano, const Grupos& grupos, Columna columna, std::size_t masGrupos) {
    int sobre = kArribaDelTodo + kAltoCabecera;
    const int separacion = grupos.size() < 2 ? 0
                                             : kAltoCabecera * static_cast<int>(masGrupos - 1) /
                                                   static_cast<int>(grupos.size() - 1);
    for (const auto& grupo : grupos) {
        for (const Lugar& lugar : grupo) plano.top[lugar.indice] = sobre + kPasoAgrupado * (lugar.fila - 1);
        plano.cabeceras.push_back(
            {grupo.front().materia, columna, plano.top[grupo.front().indice] - kAltoCabecera});
        sobre += separacion;
    }
}

}  // namespace

PlanoMenu planoDelMenu(std::span<const OpcionMenu, kNumOpciones> opciones) {
    PlanoMenu plano{};
    std::ranges::transform(opciones, plano.top.begin(),
                           [](const OpcionMenu& opcion) { return opcion.puesto.top(); });
    const auto izquierda = lugaresDe(opciones, Columna::Izquierda);
    const auto derecha = lugaresDe(opciones, Columna::Derecha);
    const Grupos aIzquierda = gruposDe(izquierda);
    const Grupos aDerecha = gruposDe(derecha);
    const std::size_t masGrupos = std::max(aIzquierda.size(), aDerecha.size());
    if (masGrupos > kMaximoGrupos || !caben(izquierda) || !caben(derecha) ||
        repiteMateria(aIzquierda, aDerecha))
        return plano;
    coloca(plano, aIzquierda, Columna::Izquierda, masGrupos);
    coloca(plano, aDerecha, Columna::Derecha, masGrupos);
    return plano;
}

}  // namespace orvemo
