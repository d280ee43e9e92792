#include "foundations/values/formatos.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "foundations/values/decimal.h"
#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo {
namespace {

constexpr int kCifrasPorGrupo = 3;

/// What a pattern asks for.
struct Patron {
    std::string_view antes;    ///< text before the digits
    std::string_view despues;  ///< text behind them
    int enterasMinimas = 0;
    int decimalesMinimos = 0;
    int decimalesMaximos = 0;
    bool marcaDecimal = false;
    bool marcasDeMiles = false;
};

/// A digit of the pattern: those from the first 0 of the whole part, and up to the last 0 of the decimals,
/// are always shown.
void cuentaCifra(Patron& patron, char c) {
    if (patron.marcaDecimal) {
        ++patron.decimalesMaximos;
        if (c == '0') patron.decimalesMinimos = patron.decimalesMaximos;
    } else if (c == '0' || patron.enterasMinimas > 0) {
        ++patron.enterasMinimas;
    }
}

Patron leePatron(std::string_view texto) {
    constexpr std::string_view kSignos = "#0,.";
    Patron patron;
    const auto primero = std::min(texto.find_first_of(kSignos), texto.size());
    const auto fin = texto.find_last_of(kSignos) + 1;  // npos + 1 is 0
    patron.antes = texto.substr(0, primero);
    patron.despues = texto.substr(std::max(primero, fin));
    for (std::size_t i = primero; i < fin; ++i) {
        switch (texto[i]) {
            case '#':
            case '0':
                cuentaCifra(patron, texto[i]);
                break;
            case '.':
                patron.marcaDecimal = true;
                break;
            case ',':
                patron.marcasDeMiles = true;
                break;
            default:
                break;
        }
    }
    return patron;
}

void escribeEnteras(std::string& salida, const Decimal& decimal, const Patron& patron, char marcaMiles) {
    for (int i = std::max(decimal.enteras(), patron.enterasMinimas) - 1; i >= 0; --i) {
        salida += decimal.cifra(i);
        if (patron.marcasDeMiles && i > 0 && i % kCifrasPorGrupo == 0) salida += marcaMiles;
    }
}

void escribeDecimales(std::string& salida, const Decimal& decimal, const Patron& patron, char marcaDecimal) {
    if (patron.marcaDecimal) salida += marcaDecimal;
    const int cuantos = std::max(decimal.decimales(), patron.decimalesMinimos);
    for (int i = 1; i <= cuantos; ++i) salida += decimal.cifra(-i);
}

std::string escribe(const Decimal& decimal, const Patron& patron, const AjustesRegionales& ajustes) {
    std::string salida{patron.antes};
    if (decimal.esNegativo()) salida += '-';
    escribeEnteras(salida, decimal, patron, ajustes.marcaMiles);
    escribeDecimales(salida, decimal, patron, ajustes.marcaDecimal);
    salida += patron.despues;
    return salida;
}

/// All the digits of a number and no others.
std::string textoPlano(const Decimal& decimal, const AjustesRegionales& ajustes) {
    Patron patron;
    patron.enterasMinimas = 1;
    patron.marcaDecimal = decimal.decimales() > 0;
    return escribe(decimal, patron, ajustes);
}

/// A whole number whose digits are all told.
bool esEnteroExacto(double valor) {
    constexpr double kMaximo = 1e15;
    return std::abs(valor) < kMaximo && valor == std::trunc(valor);
}

/// The number, never negative, with as many digits as stand for `cuantos` places, zeros before it.
std::string conCeros(int numero, std::size_t cuantos) {
    std::string cifras;
    for (; numero > 0 || cifras.size() < cuantos; numero /= 10)
        cifras.insert(cifras.begin(), static_cast<char>('0' + numero % 10));
    return cifras;
}

/// The letter of a date's pattern: that of the month has two cases.
char letraDe(char c) {
    return c == 'M' ? 'm' : c;
}

/// 0 for Monday.
std::size_t diaSemana(Fecha fecha) {
    return std::chrono::weekday{fecha}.iso_encoding() - 1;
}

std::string formatoDia(Fecha fecha, std::size_t letras, const AjustesRegionales& ajustes) {
    if (letras >= 4) return std::string{ajustes.diasSemana[diaSemana(fecha)]};
    return conCeros(Dia(fecha), letras == 1 ? 1 : 2);
}

std::string formatoMes(Fecha fecha, std::size_t letras, const AjustesRegionales& ajustes) {
    const auto mes = static_cast<std::size_t>(Mes(fecha) - 1);
    if (letras >= 4) return std::string{ajustes.meses[mes]};
    if (letras == 3) return std::string{ajustes.mesesCortos[mes]};
    return conCeros(Mes(fecha), letras == 1 ? 1 : 2);
}

std::string formatoAnio(Fecha fecha, std::size_t letras) {
    constexpr int kSiglo = 100;
    return letras > 2 ? conCeros(Anio(fecha), 4) : conCeros(Anio(fecha) % kSiglo, 2);
}

struct DiaMesAnio {
    int dia = 0;
    int mes = 0;
    int anio = 0;
};

/// Takes from the front of the text a whole number of so many digits at least and at most.
std::optional<int> tomaEntero(std::string_view& texto, std::size_t minimo, std::size_t maximo) {
    const auto cifras = std::min(texto.find_first_not_of("0123456789"), texto.size());
    if (cifras < minimo || cifras > maximo) return std::nullopt;
    int numero = 0;
    std::from_chars(texto.data(), texto.data() + cifras, numero);
    texto.remove_prefix(cifras);
    return numero;
}

bool tomaSeparador(std::string_view& texto) {
    if (!texto.starts_with('-') && !texto.starts_with('/')) return false;
    texto.remove_prefix(1);
    return true;
}

/// Years of two digits: 00 to 29 are of this century.
int anioCompleto(int anio, std::size_t cifras) {
    constexpr int kPrimeroDelSigloPasado = 30;
    if (cifras > 2) return anio;
    return anio < kPrimeroDelSigloPasado ? 2000 + anio : 1900 + anio;
}

/// Day, month and year as written, on the calendar or not.
std::optional<DiaMesAnio> leeDiaMesAnio(std::string_view texto) {
    texto = Recorta(texto);
    const auto dia = tomaEntero(texto, 1, 2);
    if (!dia || !tomaSeparador(texto)) return std::nullopt;
    const auto mes = tomaEntero(texto, 1, 2);
    if (!mes || !tomaSeparador(texto)) return std::nullopt;
    const auto cifras = texto.size();
    const auto anio = tomaEntero(texto, 2, 4);
    if (!anio || !texto.empty() || cifras == 3) return std::nullopt;
    return DiaMesAnio{*dia, *mes, anioCompleto(*anio, cifras)};
}

/// The date that a value holds or tells; nothing when it is none.
std::optional<Fecha> comoFecha(const Valor& valor) {
    if (const auto* fecha = std::get_if<Fecha>(&valor.contenido())) return *fecha;
    const auto* texto = std::get_if<std::string>(&valor.contenido());
    if (texto == nullptr) return std::nullopt;
    const auto leida = leeDiaMesAnio(*texto);
    if (!leida || !ExisteFecha(leida->dia, leida->mes, leida->anio)) return std::nullopt;
    return FechaDMA(leida->dia, leida->mes, leida->anio);
}

}  // namespace

std::string FormatoNumero(double valor, std::string_view patron, const AjustesRegionales& ajustes) {
    if (!std::isfinite(valor)) return {};
    if (patron.find_first_of("#0") == std::string_view::npos) return std::string{patron};
    const Patron pedido = leePatron(patron);
    Decimal decimal{valor};
    decimal.redondea(pedido.decimalesMaximos);
    return escribe(decimal, pedido, ajustes);
}

std::string TextoPlano(double valor, const AjustesRegionales& ajustes) {
    if (esEnteroExacto(valor)) return std::to_string(static_cast<long long>(valor));
    return std::isfinite(valor) ? textoPlano(Decimal{valor}, ajustes) : std::string{};
}

std::string TextoPlanoSimple(float valor, const AjustesRegionales& ajustes) {
    return std::isfinite(valor) ? textoPlano(Decimal{valor, kCifrasDeUnSimple}, ajustes) : std::string{};
}

std::string FormatoFecha(Fecha fecha, std::string_view patron, const AjustesRegionales& ajustes) {
    std::string salida;
    for (std::size_t i = 0; i < patron.size();) {
        const char letra = letraDe(patron[i]);
        std::size_t letras = 1;
        while (i + letras < patron.size() && letraDe(patron[i + letras]) == letra) ++letras;
        switch (letra) {
            case 'd':
                salida += formatoDia(fecha, letras, ajustes);
                break;
            case 'm':
                salida += formatoMes(fecha, letras, ajustes);
                break;
            case 'y':
                salida += formatoAnio(fecha, letras);
                break;
            default:
                salida += patron.substr(i, letras);
                break;
        }
        i += letras;
    }
    return salida;
}

std::string FormatoImporte(const Valor& valor, const AjustesRegionales& ajustes) {
    const double importe = NumeroDe(valor, ajustes);
    return importe == 0 ? std::string{} : FormatoNumero(importe, "##,###,###,##0.00", ajustes);
}

bool FormateaCampo(Valor& valor, std::string_view tipo, const AjustesRegionales& ajustes) {
    const bool esFecha = tipo == "D";
    const bool esNumero = tipo == "N";
    if ((!esFecha && !esNumero) || EsVacio(valor)) return true;
    if (esFecha && EsFecha(valor)) {
        valor = FormatoFecha(FechaDe(valor), "dd-mm-yyyy", ajustes);
        return true;
    }
    if (esNumero && EsNumero(valor, ajustes)) {
        valor = FormatoNumero(DobleDe(valor, ajustes), tipo, ajustes);
        return true;
    }
    return false;
}

bool EsFecha(const Valor& valor) {
    return comoFecha(valor).has_value();
}

Fecha LeeFecha(std::string_view texto) {
    const auto leida = leeDiaMesAnio(texto);
    if (!leida) throw TextoIlegible{std::string{texto}, "fecha"};
    return FechaDMA(leida->dia, leida->mes, leida->anio);
}

Fecha FechaDe(const Valor& valor) {
    return comoFecha(valor).value_or(kFechaIlegible);
}

}  // namespace orvemo
