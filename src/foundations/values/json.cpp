#include "foundations/values/json.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "foundations/values/textos.h"

namespace orvemo {
namespace {

constexpr std::string_view kHexadecimales = "0123456789abcdef";

constexpr char32_t kReemplazo = 0xFFFD;

/// Stands for itself between quotes. What replaces bytes that are no character stands for others.
constexpr bool esLlano(char32_t c) {
    const bool control = c < ' ' || (c >= 0x7F && c < 0xA0);
    return !control && c != '"' && c != '\\' && c != kReemplazo;
}

/// The same for each byte that is a character.
constexpr auto kByteLlano = [] {
    std::array<bool, 256> llanos{};
    for (unsigned c = 0; c < 0x80; ++c) llanos[c] = esLlano(c);
    return llanos;
}();

/// Where the characters that stand for themselves end.
std::size_t finDeLoLlano(std::string_view texto, std::size_t pos) {
    while (pos < texto.size()) {
        if (kByteLlano[static_cast<unsigned char>(texto[pos])]) {
            ++pos;
            continue;
        }
        std::size_t siguiente = pos;
        if (!esLlano(SiguienteCaracter(texto, siguiente))) break;
        pos = siguiente;
    }
    return pos;
}

template <typename Bits>
void agregaHexadecimal(std::string& salida, Bits bits, int cifras) {
    for (int i = cifras - 1; i >= 0; --i) salida += kHexadecimales[(bits >> (4 * i)) & 0xFU];
}

void agregaCaracter(std::string& salida, char32_t caracter) {
    if (caracter == '"' || caracter == '\\') salida += '\\';
    AgregaALaVista(salida, caracter);
}

template <typename T>
void agregaNumero(std::string& salida, T numero) {
    char cifras[40];
    const auto fin = std::to_chars(cifras, cifras + sizeof cifras, numero);
    salida.append(cifras, fin.ptr);
}

template <typename Bits, typename T>
void agregaReal(std::string& salida, T numero) {
    if (!std::isfinite(numero)) {
        salida += "\"0x";
        agregaHexadecimal(salida, std::bit_cast<Bits>(numero), 2 * static_cast<int>(sizeof numero));
        salida += '"';
    } else if (numero == 0 && std::signbit(numero)) {
        salida += "-0.0";  // "-0" reads as a whole number, which has no such zero
    } else {
        agregaNumero(salida, numero);
    }
}

}  // namespace

void AgregaJson(std::string& salida, std::string_view texto) {
    salida += '"';
    for (std::size_t pos = 0; pos < texto.size();) {
        const std::size_t fin = finDeLoLlano(texto, pos);
        salida.append(texto, pos, fin - pos);
        pos = fin;
        if (pos < texto.size()) agregaCaracter(salida, SiguienteCaracter(texto, pos));
    }
    salida += '"';
}

void AgregaJson(std::string& salida, const char* texto) {
    AgregaJson(salida, std::string_view{texto});
}

void AgregaJson(std::string& salida, double numero) {
    agregaReal<std::uint64_t>(salida, numero);
}

void AgregaJson(std::string& salida, float numero) {
    const std::size_t antes = salida.size();
    agregaReal<std::uint32_t>(salida, numero);
    if (!std::isfinite(numero)) return;
    // Who reads takes the digits for a double first; where that double lies between two singles, all of its
    // own digits are needed.
    double leido = 0;
    std::from_chars(salida.data() + antes, salida.data() + salida.size(), leido);
    if (static_cast<float>(leido) == numero) return;
    salida.resize(antes);
    AgregaJson(salida, static_cast<double>(numero));
}

void AgregaEnteroJson(std::string& salida, long long numero) {
    agregaNumero(salida, numero);
}

}  // namespace orvemo
