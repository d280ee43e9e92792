#pragma once

#include <array>
#include <concepts>
#include <string>
#include <string_view>

namespace orvemo {

// JSON written straight behind what a text already holds: a line of a batch is put together a million times.

/// Appends a text between quotation marks, UTF-8; control characters, those of a terminal too, are escaped.
void AgregaJson(std::string& salida, std::string_view texto);
void AgregaJson(std::string& salida, const char* texto);

/// Appends the shortest number that reads back as the same double. What JSON has no number for (an infinity,
/// a value that is none) goes as its bits, "0x7ff0000000000000", so that nothing is lost.
void AgregaJson(std::string& salida, double numero);

/// The same of single precision: 12.35 and not the digits of its double.
void AgregaJson(std::string& salida, float numero);

void AgregaEnteroJson(std::string& salida, long long numero);
template <std::integral Entero>
void AgregaJson(std::string& salida, Entero numero) {
    if constexpr (std::same_as<Entero, bool>) {
        salida += numero ? "true" : "false";
    } else {
        AgregaEnteroJson(salida, numero);
    }
}

/// Appends a list.
template <typename T, std::size_t N>
void AgregaJson(std::string& salida, const std::array<T, N>& lista) {
    salida += '[';
    for (std::size_t i = 0; i < N; ++i) {
        if (i > 0) salida += ',';
        AgregaJson(salida, lista[i]);
    }
    salida += ']';
}

/// Appends `"nombre":valor`, with a comma before it unless it is the first of its object.
template <typename T>
void AgregaCampoJson(std::string& salida, std::string_view nombre, const T& valor) {
    if (!salida.empty() && salida.back() != '{') salida += ',';
    AgregaJson(salida, nombre);
    salida += ':';
    AgregaJson(salida, valor);
}

}  // namespace orvemo
