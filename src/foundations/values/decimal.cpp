#include "foundations/values/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace orvemo {

namespace {

/// Room for d.dddddddddddddddde-308, its longest form.
using Cientifico = std::array<char, 32>;

/// The digits of a number in scientific form, as few as tell it apart, and at most so many. As few are
/// quicker, and up to fifteen they are those that rounding gives: but for numbers too small to have them.
std::string_view escribe(double valor, int cifras, Cientifico& texto) {
    char* const fin = texto.data() + texto.size();
    const auto breve = std::to_chars(texto.data(), fin, valor, std::chars_format::scientific);
    const std::string_view escrito{texto.data(), breve.ptr};
    const auto mantisa = static_cast<int>(escrito.find('e'));
    const bool bastan = mantisa <= cifras + 1 && (valor == 0 || std::isnormal(valor));
    if (bastan) return escrito;
    const auto justo = std::to_chars(texto.data(), fin, valor, std::chars_format::scientific, cifras - 1);
    return {texto.data(), justo.ptr};
}

}  // namespace

Decimal::Decimal(double valor, int cifras) : cuantas_{0}, negativo_{valor < 0} {
    Cientifico texto;
    const std::string_view escrito = escribe(std::abs(valor), cifras, texto);
    std::size_t i = 0;
    for (; escrito[i] != 'e'; ++i)
        if (escrito[i] != '.') cifras_[static_cast<std::size_t>(cuantas_++)] = escrito[i];
    const std::string_view exponente = escrito.substr(escrito[i + 1] == '+' ? i + 2 : i + 1);
    std::from_chars(exponente.data(), exponente.data() + exponente.size(), exponente_);
    quitaCerosFinales();
}

void Decimal::redondea(int decimales) {
    const int quedan = exponente_ + 1 + decimales;
    if (quedan >= cuantas_) return;
    const bool haciaArriba = quedan >= 0 && cifras_[static_cast<std::size_t>(quedan)] >= '5';
    cuantas_ = std::max(quedan, 0);
    if (haciaArriba) {
        sumaUno();
    } else {
        quitaCerosFinales();
    }
}

void Decimal::quitaCerosFinales() {
    while (cuantas_ > 0 && cifras_[static_cast<std::size_t>(cuantas_ - 1)] == '0') --cuantas_;
    if (esCero()) exponente_ = 0;
}

/// Adds one to the last digit kept. Nines carry: 9,99 becomes 1 of the next power.
void Decimal::sumaUno() {
    while (cuantas_ > 0 && cifras_[static_cast<std::size_t>(cuantas_ - 1)] == '9') --cuantas_;
    if (cuantas_ > 0) {
        ++cifras_[static_cast<std::size_t>(cuantas_ - 1)];
        return;
    }
    cifras_[0] = '1';
    cuantas_ = 1;
    ++exponente_;
}

}  // namespace orvemo
