#include <algorithm>
#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

/// Characters of Windows-1252 that sort as plain letters.
struct Equivalencia {
    std::string_view base;
    std::string_view letras;
};
constexpr std::array kEquivalencias{
    Equivalencia{"A", "\xC0\xC1\xC2\xC3\xC4\xC5\xE0\xE1\xE2\xE3\xE4\xE5\xAA"},  // with ª
    Equivalencia{"AE", "\xC6\xE6"},
    Equivalencia{"C", "\xC7\xE7"},
    Equivalencia{"E", "\xC8\xC9\xCA\xCB\xE8\xE9\xEA\xEB"},
    Equivalencia{"I", "\xCC\xCD\xCE\xCF\xEC\xED\xEE\xEF"},
    Equivalencia{"O", "\xD2\xD3\xD4\xD5\xD6\xD8\xF2\xF3\xF4\xF5\xF6\xF8\xBA"},  // with º
    Equivalencia{"OE", "\x8C\x9C"},
    Equivalencia{"S", "\x8A\x9A"},
    Equivalencia{"SS", "\xDF"},
    Equivalencia{"U", "\xD9\xDA\xDB\xDC\xF9\xFA\xFB\xFC"},
    Equivalencia{"Y", "\xDD\xFD\xFF\x9F"},
    Equivalencia{"Z", "\x8E\x9E"},
};
constexpr std::string_view kEnies = "\xD1\xF1";

/// What a character adds to the key of a name: one place in the alphabet, or two for a ligature.
struct Peso {
    char primero = '\0';
    char segundo = '\0';
};
using Pesos = std::array<Peso, 256>;

constexpr std::size_t lugar(char c) {
    return static_cast<unsigned char>(c);
}

/// Capitals and what stands between them and the small letters move up one place, so that ñ fits after n. The
/// small letters sort as capitals and leave their places free.
constexpr char lugarEnAlfabeto(char c) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return c > 'N' && c < 'a' ? static_cast<char>(c + 1) : c;
}

constexpr Pesos tablaDePesos() {
    Pesos pesos{};
    for (std::size_t c = 0; c < pesos.size(); ++c) pesos[c].primero = lugarEnAlfabeto(static_cast<char>(c));
    for (const Equivalencia& grupo : kEquivalencias) {
        const Peso peso{lugarEnAlfabeto(grupo.base.front()),
                        grupo.base.size() > 1 ? lugarEnAlfabeto(grupo.base[1]) : '\0'};
        for (const char c : grupo.letras) pesos[lugar(c)] = peso;
    }
    for (const char c : kEnies) pesos[lugar(c)].primero = 'N' + 1;
    return pesos;
}
constexpr Pesos kPesos = tablaDePesos();

/// Writes what a character of Windows-1252 adds to a key; gives the key's new end.
char* escribePeso(char* fin, char c) {
    const Peso peso = kPesos[lugar(c)];
    *fin++ = peso.primero;
    if (peso.segundo != '\0') *fin++ = peso.segundo;
    return fin;
}

/// The bytes that the key of a name takes at most.
std::size_t anchoDeClave(const EntradaSupuesto& entrada) {
    return 2 * entrada.nombre.size();
}

/// Writes what a character beyond ASCII adds to a key; those of Latin-1 have its byte in Windows-1252 too.
char* escribeAjeno(char* fin, std::string_view nombre, std::size_t& pos) {
    const std::size_t inicio = pos;
    const char32_t caracter = SiguienteCaracter(nombre, pos);
    if (caracter >= 0xA0 && caracter <= 0xFF) return escribePeso(fin, static_cast<char>(caracter));
    for (const char c : A1252(nombre.substr(inicio, pos - inicio))) fin = escribePeso(fin, c);
    return fin;
}

/// Writes the key of a name; gives its end.
char* escribeClave(char* fin, std::string_view nombre) {
    for (std::size_t pos = 0; pos < nombre.size();)
        fin = lugar(nombre[pos]) < 0x80 ? escribePeso(fin, nombre[pos++]) : escribeAjeno(fin, nombre, pos);
    return fin;
}

/// Some places of a key, from one on, as a number: most names already differ in their first sixteen.
std::uint64_t lugaresDe(std::string_view clave, std::size_t desde) {
    std::uint64_t lugares = 0;
    for (std::size_t i = desde; i < desde + sizeof lugares; ++i)
        lugares = lugares << 8U | (i < clave.size() ? lugar(clave[i]) : 0U);
    return lugares;
}

/// A name's place in the list; its key is made once and not at every comparison.
struct Ficha {
    std::uint64_t principio;
    std::uint64_t siguiente;
    std::string_view clave;
    EntradaSupuesto* entrada;

    friend bool operator<(const Ficha& a, const Ficha& b) {
        if (a.principio != b.principio) return a.principio < b.principio;
        if (a.siguiente != b.siguiente) return a.siguiente < b.siguiente;
        return std::is_lt(std::tie(a.clave, a.entrada->nombre, a.entrada->registro) <=>
                          std::tie(b.clave, b.entrada->nombre, b.entrada->registro));
    }
};

/// The names with their keys, which lie one after another in `claves`.
std::vector<Ficha> fichasDe(std::vector<EntradaSupuesto>& lista, std::string& claves) {
    std::size_t ancho = 0;
    for (const EntradaSupuesto& entrada : lista) ancho += anchoDeClave(entrada);
    claves.resize(ancho);
    std::vector<Ficha> fichas;
    fichas.reserve(lista.size());
    char* inicio = claves.data();
    for (EntradaSupuesto& entrada : lista) {
        char* const fin = escribeClave(inicio, entrada.nombre);
        const std::string_view clave{inicio, fin};
        fichas.push_back({lugaresDe(clave, 0), lugaresDe(clave, sizeof(std::uint64_t)), clave, &entrada});
        inicio = fin;
    }
    return fichas;
}

}  // namespace

std::vector<EntradaSupuesto> OrdenaAlfabeticamente(std::vector<EntradaSupuesto> lista) {
    std::string claves;
    std::vector<Ficha> fichas = fichasDe(lista, claves);
    std::sort(fichas.begin(), fichas.end());
    std::vector<EntradaSupuesto> ordenada;
    ordenada.reserve(lista.size());
    for (const Ficha& ficha : fichas) ordenada.push_back(std::move(*ficha.entrada));
    return ordenada;
}

}  // namespace orvemo
