#include "lote/progreso.h"

#include <algorithm>

#include "foundations/values/formatos.h"

namespace orvemo::lote {

namespace {

using namespace std::chrono_literals;

constexpr auto kEspera = 500ms;  // what takes less needs no telling
constexpr auto kCadencia = 200ms;

std::string conMillares(int numero) {
    return FormatoNumero(numero, "#,##0");
}

}  // namespace

Progreso::Progreso(std::ostream* terminal, int total, Instante comienzo)
    : terminal_{terminal}, de_{" de " + conMillares(total)}, siguiente_{comienzo + kEspera} {}

void Progreso::llega(int registro, Instante ahora) {
    if (terminal_ == nullptr || ahora < siguiente_) return;
    siguiente_ = ahora + kCadencia;
    // Numbers only grow: each line covers the one before it.
    const std::string linea = "Caso " + conMillares(registro) + de_;
    *terminal_ << '\r' << linea << std::flush;
    escrito_ = std::max(escrito_, linea.size());
}

void Progreso::borra() {
    if (escrito_ > 0) *terminal_ << '\r' << std::string(escrito_, ' ') << '\r' << std::flush;
}

}  // namespace orvemo::lote
