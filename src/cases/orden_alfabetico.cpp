#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

/// Letters of Windows-1252 that sort as a plain one.
struct Equivalencia {
    char base;
    std::string_view letras;
};
constexpr std::array kEquivalencias{
    Equivalencia{'A', "\xC0\xC1\xC2\xC3\xC4\xC5\xE0\xE1\xE2\xE3\xE4\xE5"},
    Equivalencia{'C', "\xC7\xE7"},
    Equivalencia{'E', "\xC8\xC9\xCA\xCB\xE8\xE9\xEA\xEB"},
    Equivalencia{'I', "\xCC\xCD\xCE\xCF\xEC\xED\xEE\xEF"},
    Equivalencia{'O', "\xD2\xD3\xD4\xD5\xD6\xF2\xF3\xF4\xF5\xF6"},
    Equivalencia{'U', "\xD9\xDA\xDB\xDC\xF9\xFA\xFB\xFC"},
    Equivalencia{'Y', "\xDD\xFD\xFF"},
};
constexpr std::string_view kEnies = "\xD1\xF1";

using Pesos = std::array<char16_t, 256>;

constexpr std::size_t lugar(char c) {
    return static_cast<unsigned char>(c);
}

/// Twice the code of the letter, so that ñ fits between n and o.
constexpr Pesos tablaDePesos() {
    Pesos pesos{};
    for (std::size_t c = 0; c < pesos.size(); ++c) pesos[c] = static_cast<char16_t>(2 * c);
    for (char c = 'a'; c <= 'z'; ++c) pesos[lugar(c)] = pesos[lugar(static_cast<char>(c - 'a' + 'A'))];
    for (const Equivalencia& grupo : kEquivalencias) {
        for (const char c : grupo.letras) pesos[lugar(c)] = pesos[lugar(grupo.base)];
    }
    for (const char c : kEnies) pesos[lugar(c)] = static_cast<char16_t>(pesos[lugar('N')] + 1);
    return pesos;
}
constexpr Pesos kPesos = tablaDePesos();

std::u16string clave(std::string_view nombre) {
    const std::string letras = A1252(nombre);
    std::u16string pesos(letras.size(), u'\0');
    std::ranges::transform(letras, pesos.begin(), [](char c) { return kPesos[lugar(c)]; });
    return pesos;
}

}  // namespace

std::vector<EntradaSupuesto> OrdenaAlfabeticamente(std::vector<EntradaSupuesto> lista) {
    std::vector<std::pair<std::u16string, std::size_t>> claves;
    claves.reserve(lista.size());
    for (std::size_t i = 0; i < lista.size(); ++i) claves.emplace_back(clave(lista[i].nombre), i);
    std::ranges::sort(claves);
    std::vector<EntradaSupuesto> ordenada;
    ordenada.reserve(lista.size());
    for (const auto& [pesos, i] : claves) ordenada.push_back(std::move(lista[i]));
    return ordenada;
}

}  // namespace orvemo
