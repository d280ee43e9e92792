#include "foundations/values/teclas.h"

#include "foundations/values/textos.h"

namespace orvemo {
namespace {

constexpr char32_t kTragada = 0;
constexpr char32_t kBlanco = U' ';

bool esControl(char32_t codigo) {
    return codigo < kBlanco;
}
bool esDigito(char32_t codigo) {
    return codigo >= U'0' && codigo <= U'9';
}

/// The letters from à to þ, with the sign of division among them.
bool esLatinaMinuscula(char32_t codigo) {
    return codigo >= U'à' && codigo <= U'þ' && codigo != U'÷';
}

/// Distance from a small letter to its capital, both in a-z and in à-þ.
constexpr char32_t kMayuscula = U'a' - U'A';

}  // namespace

char32_t TeclaDigito(char32_t codigo, std::string_view /*texto*/) {
    return esControl(codigo) || esDigito(codigo) ? codigo : kTragada;
}

char32_t TeclaNumero(char32_t codigo, std::string_view texto) {
    if (esControl(codigo) || esDigito(codigo)) return codigo;
    const bool hayComa = texto.find(',') != std::string_view::npos;
    if (codigo == U'.' || codigo == U',') return hayComa ? kTragada : U',';
    if (codigo == U'-') return texto.empty() ? codigo : kTragada;
    return kTragada;
}

char32_t TeclaMayuscula(char32_t codigo, std::string_view /*texto*/) {
    if ((codigo >= U'a' && codigo <= U'z') || esLatinaMinuscula(codigo)) return codigo - kMayuscula;
    switch (codigo) {
        case U'š':
            return U'Š';
        case U'œ':
            return U'Œ';
        case U'ž':
            return U'Ž';
        case U'ÿ':
            return U'Ÿ';
        default:
            return codigo;
    }
}

std::string FiltraTexto(const FiltroTecla& filtro, std::string_view texto, std::string_view antes,
                        std::string_view despues) {
    const std::string cola{despues};
    std::string filtrado{antes};
    for (std::size_t pos = 0; pos < texto.size();) {
        const char32_t tecleado = SiguienteCaracter(texto, pos);
        const char32_t pasa = esControl(tecleado) ? kTragada : filtro(tecleado, filtrado + cola);
        if (pasa != kTragada) AgregaCaracter(filtrado, pasa);
    }
    return filtrado + cola;
}

}  // namespace orvemo
