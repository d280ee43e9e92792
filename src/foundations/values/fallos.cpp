#include "foundations/values/fallos.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"

namespace orvemo {
namespace {

/// Characters of an unreadable text that a message shows.
constexpr std::size_t kMuestra = 40;
/// From here on a number is told in words: its digits would fill the box.
constexpr double kNumeroLargo = 1e15;

std::string nombraNumero(double valor) {
    const bool corto = std::abs(valor) < kNumeroLargo;  // false for NaN too
    return corto ? "el número " + TextoPlano(valor) : "un número";
}

std::string dosCifras(int numero) {
    return FormatoNumero(numero, "00");
}

std::string nombraLinea(int linea) {
    return linea == 0 ? std::string{} : " en la línea " + TextoPlano(linea);
}

}  // namespace

std::string EntreComillas(std::string_view texto) {
    const std::string_view cabe = PrimerosCaracteres(texto, kMuestra);
    return '"' + ControlesALaVista(cabe) + (cabe.size() < texto.size() ? "…\"" : "\"");
}

DesbordeNumerico::DesbordeNumerico(double numero)
    : Fallo{nombraNumero(numero) + " está fuera de los límites admitidos"}, valor{numero} {}

DivisionPorCero::DivisionPorCero() : Fallo{"se ha dividido por cero"} {}

TextoIlegible::TextoIlegible(std::string leido, const std::string& clase)
    : Fallo{"el texto " + EntreComillas(leido) + " no se puede leer como " + clase},
      texto{std::move(leido)} {}

FechaInexistente::FechaInexistente(int d, int m, int a)
    : Fallo{"la fecha " + dosCifras(d) + "-" + dosCifras(m) + "-" + FormatoNumero(a, "0000") + " no existe"},
      dia{d},
      mes{m},
      anio{a} {}

FicheroInaccesible::FicheroInaccesible(std::string fichero, const std::string& motivo)
    : Fallo{"el fichero " + EntreComillas(fichero) + " no se puede usar (" + motivo + ")"},
      nombre{std::move(fichero)} {}

FicheroMalFormado::FicheroMalFormado(std::string fichero, int numeroLinea, const std::string& motivo)
    : Fallo{"el fichero " + EntreComillas(fichero) + " no es correcto" + nombraLinea(numeroLinea) + " (" +
            motivo + ")"},
      nombre{std::move(fichero)},
      linea{numeroLinea} {}

}  // namespace orvemo
