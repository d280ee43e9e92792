#include "lote/corrida.h"

#include <chrono>
#include <string>
#include <utility>

#include "foundations/values/fallos.h"
#include "lote/lote.h"
#include "lote/progreso.h"

namespace orvemo::lote {

namespace {

using RelojDePared = std::chrono::steady_clock;

/// The records asked for: one, that must be in use, or all.
std::pair<int, int> registrosPedidos(const Opciones& opciones, const Calculo& calculo) {
    const int cuenta = calculo.cuenta();
    if (!opciones.registro) return {1, cuenta};
    if (*opciones.registro > cuenta || !calculo.entrada(*opciones.registro)) {
        throw ArgumentoInservible{"El fichero no tiene ningún supuesto en el registro " +
                                  std::to_string(*opciones.registro) + "."};
    }
    return {*opciones.registro, *opciones.registro};
}

/// The result of a record; nullopt for a free slot.
std::optional<Resultado> resultadoDe(Calculo& calculo, int registro) {
    try {
        if (const auto entrada = calculo.entrada(registro)) return calculo.calcula(*entrada);
        return std::nullopt;
    } catch (const Fallo& fallo) {
        Resultado resultado;
        resultado.registro = registro;
        resultado.error = fallo.what();
        return resultado;
    }
}

}  // namespace

int calculaTodo(const Opciones& opciones, Calculo& calculo, std::ostream& salida, std::ostream* terminal) {
    const auto [primero, ultimo] = registrosPedidos(opciones, calculo);
    Progreso progreso{terminal, ultimo, RelojDePared::now()};
    bool algunFallo = false;
    std::string escrito;
    for (int registro = primero; registro <= ultimo; ++registro) {
        progreso.llega(registro, RelojDePared::now());
        const auto resultado = resultadoDe(calculo, registro);
        if (!resultado) continue;
        algunFallo = algunFallo || !resultado->error.empty();
        escrito.clear();
        (opciones.json ? EscribeJson : EscribeTexto)(escrito, *resultado);
        salida.write(escrito.data(), static_cast<std::streamsize>(escrito.size()));
        // Whoever reads has each result as soon as it's there, and nothing is computed for nobody.
        if (!salida.flush()) throw ArgumentoInservible{"No se puede escribir la salida."};
    }
    return algunFallo ? kAlgunoFallo : kTodoCalculado;
}

}  // namespace orvemo::lote
