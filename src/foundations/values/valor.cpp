#include "foundations/values/valor.h"

#include <charconv>

#include "foundations/values/formatos.h"

namespace orvemo {
namespace {

/// The plain text of each kind of value.
struct EnTexto {
    std::string operator()(Vacio) const { return {}; }
    std::string operator()(Nulo) const { return {}; }
    std::string operator()(std::int64_t numero) const {
        char cifras[24];
        const auto fin = std::to_chars(cifras, cifras + sizeof cifras, numero);
        return {cifras, fin.ptr};
    }
    std::string operator()(double numero) const { return TextoPlano(numero); }
    std::string operator()(const std::string& texto) const { return texto; }
    std::string operator()(Fecha fecha) const { return FormatoFecha(fecha, "dd-mm-yyyy"); }
    std::string operator()(bool verdad) const { return verdad ? "Verdadero" : "Falso"; }
};

}  // namespace

std::string Valor::texto() const {
    return std::visit(EnTexto{}, contenido_);
}

}  // namespace orvemo
