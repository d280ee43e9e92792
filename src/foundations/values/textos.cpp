#include "foundations/values/textos.h"

#include <algorithm>
#include <array>

namespace orvemo {
namespace {

constexpr char32_t kReemplazo = U'\uFFFD';

unsigned byteEn(std::string_view texto, std::size_t pos) {
    return static_cast<unsigned char>(texto[pos]);
}

bool esContinuacion(unsigned byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// How many bytes a first byte announces; 0 for one that can't be first.
std::size_t bytesAnunciados(unsigned primero) {
    if (primero < 0x80U) return 1;
    if (primero >= 0xC2U && primero < 0xE0U) return 2;
    if (primero >= 0xE0U && primero < 0xF0U) return 3;
    if (primero >= 0xF0U && primero < 0xF5U) return 4;
    return 0;
}

/// True for a code point that UTF-8 writes in `bytes` bytes and no fewer, the halves of UTF-16 left out.
bool esCaracter(char32_t codigo, std::size_t bytes) {
    constexpr std::array<char32_t, 5> kMinimo{0, 0, 0x80, 0x800, 0x10000};
    const bool mitadDePar = codigo >= 0xD800 && codigo <= 0xDFFF;
    return codigo >= kMinimo[bytes] && codigo <= 0x10FFFF && !mitadDePar;
}

// Windows-1252 differs from Latin 1 in these 32 codes only. The five that it leaves undefined stand for
// themselves, so that every byte of a file comes back as it was.
constexpr unsigned kPrimeroPropio = 0x80;
constexpr std::array<char32_t, 32> kPropios1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool esPropio(unsigned byte) {
    return byte >= kPrimeroPropio && byte < kPrimeroPropio + kPropios1252.size();
}

char byte1252(char32_t caracter) {
    const bool comoLatin1 = caracter < kPrimeroPropio || (caracter >= 0xA0 && caracter <= 0xFF);
    if (comoLatin1) return static_cast<char>(caracter);
    const auto propio = std::find(kPropios1252.begin(), kPropios1252.end(), caracter);
    if (propio == kPropios1252.end()) return '?';
    return static_cast<char>(kPrimeroPropio + static_cast<unsigned>(propio - kPropios1252.begin()));
}

/// The controls of the two halves of the table of characters.
bool esControl(char32_t caracter) {
    return caracter < 0x20 || (caracter >= 0x7F && caracter < 0xA0);
}

/// The characters from `pos` on that are the same in both sets and in one byte: most of any text.
std::string_view tramoLlano(std::string_view texto, std::size_t pos) {
    const auto resto = texto.substr(pos);
    const auto fin = std::find_if(resto.begin(), resto.end(),
                                  [](char c) { return static_cast<unsigned char>(c) >= kPrimeroPropio; });
    return resto.substr(0, static_cast<std::size_t>(fin - resto.begin()));
}

}  // namespace

std::string_view Recorta(std::string_view texto) {
    const auto primero = texto.find_first_not_of(' ');
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

bool EsVacio(const Valor& valor) {
    const std::string texto = valor.texto();
    return Recorta(texto).empty() || texto.front() == '\0';
}

std::string CortaCampo(std::string& texto, std::string_view separador) {
    const auto corte = texto.find(separador);
    if (corte == std::string::npos || corte == texto.size()) {
        std::string campo;
        campo.swap(texto);
        return campo;
    }
    std::string campo = texto.substr(0, corte);
    std::size_t resto = corte;
    SiguienteCaracter(texto, resto);  // one character, however long the separator is
    texto.erase(0, resto);
    return campo;
}

std::size_t CuentaCaracteres(std::string_view texto) {
    std::size_t cuenta = 0;
    for (std::size_t pos = 0; pos < texto.size(); ++cuenta) SiguienteCaracter(texto, pos);
    return cuenta;
}

std::string_view PrimerosCaracteres(std::string_view texto, std::size_t n) {
    std::size_t pos = 0;
    for (; n > 0 && pos < texto.size(); --n) SiguienteCaracter(texto, pos);
    return texto.substr(0, pos);
}

char32_t SiguienteCaracter(std::string_view texto, std::size_t& pos) {
    const unsigned primero = byteEn(texto, pos);
    const std::size_t bytes = bytesAnunciados(primero);
    const std::size_t inicio = pos++;
    if (bytes == 1) return primero;
    if (bytes == 0 || inicio + bytes > texto.size()) return kReemplazo;
    char32_t codigo = primero & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i) {
        const unsigned byte = byteEn(texto, inicio + i);
        if (!esContinuacion(byte)) return kReemplazo;
        codigo = (codigo << 6U) | (byte & 0x3FU);
    }
    if (!esCaracter(codigo, bytes)) return kReemplazo;
    pos = inicio + bytes;
    return codigo;
}

void AgregaCaracter(std::string& texto, char32_t caracter) {
    const auto continuacion = [&](unsigned desplazamiento) {
        texto += static_cast<char>(0x80U | ((caracter >> desplazamiento) & 0x3FU));
    };
    if (caracter < 0x80) {
        texto += static_cast<char>(caracter);
    } else if (caracter < 0x800) {
        texto += static_cast<char>(0xC0U | (caracter >> 6U));
        continuacion(0);
    } else if (caracter < 0x10000) {
        texto += static_cast<char>(0xE0U | (caracter >> 12U));
        continuacion(6);
        continuacion(0);
    } else {
        texto += static_cast<char>(0xF0U | (caracter >> 18U));
        continuacion(12);
        continuacion(6);
        continuacion(0);
    }
}

void AgregaALaVista(std::string& texto, char32_t caracter) {
    // The controls that have a letter of their own, from 8 on.
    constexpr std::string_view kLetras{"btn\0fr", 6};
    if (!esControl(caracter)) return AgregaCaracter(texto, caracter);
    texto += '\\';
    const char32_t lugar = caracter - '\b';
    if (lugar < kLetras.size() && kLetras[lugar] != '\0') {
        texto += kLetras[lugar];
        return;
    }
    constexpr std::string_view kCifras = "0123456789abcdef";
    texto += "u00";
    texto += kCifras[caracter >> 4U];
    texto += kCifras[caracter & 0xFU];
}

std::string ControlesALaVista(std::string_view texto) {
    std::string visible;
    visible.reserve(texto.size());
    for (std::size_t pos = 0; pos < texto.size();) AgregaALaVista(visible, SiguienteCaracter(texto, pos));
    return visible;
}

std::string A1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t pos = 0; pos < utf8.size();) {
        const std::string_view llano = tramoLlano(utf8, pos);
        bytes += llano;
        pos += llano.size();
        if (pos < utf8.size()) bytes += byte1252(SiguienteCaracter(utf8, pos));
    }
    return bytes;
}

std::string De1252(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();) {
        const std::string_view llano = tramoLlano(bytes, pos);
        utf8 += llano;
        pos += llano.size();
        if (pos == bytes.size()) break;
        const unsigned byte = byteEn(bytes, pos++);
        AgregaCaracter(utf8, esPropio(byte) ? kPropios1252[byte - kPrimeroPropio] : byte);
    }
    return utf8;
}

}  // namespace orvemo
