#include "foundations/values/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace orvemo {

Decimal::Decimal(double valor, int cifras) : cuantas_{cifras}, negativo_{valor < 0} {
    char texto[kCifrasSignificativas + 8];  // d.dddddddddddddde-308
    const auto fin = std::to_chars(texto, texto + sizeof texto, std::abs(valor),
                                   std::chars_format::scientific, cifras - 1);
    cifras_[0] = texto[0];
    std::copy_n(texto + 2, cifras - 1, cifras_.begin() + 1);
    const char* exponente = texto + cifras + 2;  // behind the "e"
    std::from_chars(exponente + (*exponente == '+' ? 1 : 0), fin.ptr, exponente_);
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
