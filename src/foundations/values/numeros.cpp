#include "foundations/values/numeros.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "foundations/values/fallos.h"
#include "foundations/values/textos.h"

namespace orvemo {
namespace {

/// What `Redondea` adds, so that amounts just short of a half cent in binary round up.
constexpr double kEmpujon = 0.00000001;
constexpr double kPesetasPorEuro = 166.386;
/// 10^n for the decimals that a 32-bit scaled value leaves room for.
constexpr std::array<double, 10> kPotenciasDeDiez{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

bool esCifra(char c) {
    return c >= '0' && c <= '9';
}
bool esBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool esSigno(char c) {
    return c == '-' || c == '+';
}
bool esExponente(char c) {
    return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}

/// The nearest integer, an exact half to even; nothing when the type can't hold it.
template <typename Entero>
std::optional<Entero> alPar(double valor) {
    constexpr double kMinimo = std::numeric_limits<Entero>::min();
    constexpr double kMaximo = std::numeric_limits<Entero>::max();
    const double entero = std::nearbyint(valor);
    if (!EntreLimites(entero, kMinimo, kMaximo)) return std::nullopt;
    return static_cast<Entero>(entero);
}

double finito(double valor) {
    if (!std::isfinite(valor)) throw DesbordeNumerico{valor};
    return valor;
}

/// The exponent behind the "e", cut to what makes a number tiny or huge beyond doubt.
long long leeExponente(std::string_view cifras) {
    constexpr long long kDesmedido = 1'000'000'000'000;
    if (cifras.starts_with('+')) cifras.remove_prefix(1);
    long long exponente = 0;
    const auto leido = std::from_chars(cifras.data(), cifras.data() + cifras.size(), exponente);
    if (leido.ec == std::errc{}) return exponente;
    return cifras.starts_with('-') ? -kDesmedido : kDesmedido;
}

/// Tells the numbers too small for a double from those too large: whether the first significant digit, the
/// exponent applied, lies behind the point.
bool esDiminuto(std::string_view numero) {
    const auto e = numero.find('e');
    const auto mantisa = numero.substr(0, e);
    const auto primera = mantisa.find_first_of("123456789");
    if (primera == std::string_view::npos) return true;
    const auto punto = mantisa.find('.') == std::string_view::npos ? mantisa.size() : mantisa.find('.');
    const auto exponente = e == std::string_view::npos ? 0 : leeExponente(numero.substr(e + 1));
    return static_cast<long long>(punto) - static_cast<long long>(primera) + exponente <= 0;
}

/// The double told by a minus, digits, a point and an exponent; nothing when it is too large for one.
std::optional<double> aDoble(std::string_view numero) {
    double valor = 0;
    const auto leido = std::from_chars(numero.data(), numero.data() + numero.size(), valor);
    if (leido.ec == std::errc::result_out_of_range && !esDiminuto(numero)) return std::nullopt;
    if (!std::isfinite(valor)) return std::nullopt;
    return valor;
}

std::size_t finDeCifras(std::string_view texto, std::size_t pos) {
    while (pos < texto.size() && esCifra(texto[pos])) ++pos;
    return pos;
}

/// The text up to the first character that no number with a point has, without blanks, its exponent as "e".
std::string sinBlancos(std::string_view texto) {
    std::string limpio;
    for (const char c : texto) {
        if (esBlanco(c)) continue;
        if (!esCifra(c) && !esSigno(c) && !esExponente(c) && c != '.') break;
        limpio += esExponente(c) ? 'e' : c;
    }
    return limpio;
}

/// Where the longest number at the start of the text ends; 0 when there is none.
std::size_t finDeNumero(std::string_view texto) {
    std::size_t pos = texto.empty() || !esSigno(texto[0]) ? 0 : 1;
    const std::size_t finEnteras = finDeCifras(texto, pos);
    std::size_t cifras = finEnteras - pos;
    pos = finEnteras;
    if (pos < texto.size() && texto[pos] == '.') {
        const std::size_t finDecimales = finDeCifras(texto, pos + 1);
        cifras += finDecimales - pos - 1;
        pos = finDecimales;
    }
    if (cifras == 0) return 0;
    if (pos == texto.size() || texto[pos] != 'e') return pos;
    const bool conSigno = pos + 1 < texto.size() && esSigno(texto[pos + 1]);
    const std::size_t primera = pos + (conSigno ? 2 : 1);
    const std::size_t finExponente = finDeCifras(texto, primera);
    return finExponente > primera ? finExponente : pos;
}

/// The whole text under the regional settings; nothing when it's no number or too large for a double.
std::optional<double> leeRegional(std::string_view texto, const AjustesRegionales& ajustes) {
    texto = Recorta(texto);
    std::string numero;
    if (texto.starts_with('-')) numero = '-';
    if (!texto.empty() && esSigno(texto[0])) texto.remove_prefix(1);
    bool hayCifras = false;
    bool hayComa = false;
    for (const char c : texto) {
        const bool esMarcaDeMiles = c == ajustes.marcaMiles && hayCifras && !hayComa;
        const bool esComa = c == ajustes.marcaDecimal && !hayComa;
        if (esMarcaDeMiles) continue;
        if (!esCifra(c) && !esComa) return std::nullopt;
        hayCifras = hayCifras || esCifra(c);
        hayComa = hayComa || esComa;
        numero += esComa ? '.' : c;
    }
    return hayCifras ? aDoble(numero) : std::nullopt;
}

/// Numbers as they are and texts by their reading; other values are no numbers.
std::optional<double> comoNumero(const Valor& valor, const AjustesRegionales& ajustes) {
    const auto& contenido = valor.contenido();
    if (const auto* entero = std::get_if<std::int64_t>(&contenido)) return static_cast<double>(*entero);
    if (const auto* texto = std::get_if<std::string>(&contenido)) return leeRegional(*texto, ajustes);
    const auto* doble = std::get_if<double>(&contenido);
    return doble != nullptr && std::isfinite(*doble) ? std::optional{*doble} : std::nullopt;
}

}  // namespace

std::int32_t RedondeaPar(double valor) {
    if (const auto entero = alPar<std::int32_t>(valor)) return *entero;
    throw DesbordeNumerico{valor};
}

std::int16_t RedondeaPar16(double valor) {
    if (const auto entero = alPar<std::int16_t>(valor)) return *entero;
    throw DesbordeNumerico{valor};
}

std::uint8_t RedondeaPar8(double valor) {
    if (const auto entero = alPar<std::uint8_t>(valor)) return *entero;
    throw DesbordeNumerico{valor};
}

double LeeNumero(std::string_view texto) {
    const std::string limpio = sinBlancos(texto);
    std::string_view numero = std::string_view{limpio}.substr(0, finDeNumero(limpio));
    if (numero.empty()) return 0;
    if (numero.starts_with('+')) numero.remove_prefix(1);
    if (const auto valor = aDoble(numero)) return *valor;
    throw DesbordeNumerico{std::numeric_limits<double>::infinity()};
}

double LeeNumeroRegional(std::string_view texto, const AjustesRegionales& ajustes) {
    if (const auto valor = leeRegional(texto, ajustes)) return *valor;
    throw TextoIlegible{std::string{texto}, "número"};
}

std::int32_t LeeEnteroRegional(std::string_view texto, const AjustesRegionales& ajustes) {
    return RedondeaPar(LeeNumeroRegional(texto, ajustes));
}

bool EsNumero(const Valor& valor, const AjustesRegionales& ajustes) {
    return comoNumero(valor, ajustes).has_value();
}

std::string ComaAPunto(std::string_view texto) {
    std::string cambiado{texto};
    if (const auto coma = cambiado.find(','); coma != std::string::npos) cambiado[coma] = '.';
    return cambiado;
}

double ValComa(std::string_view texto) {
    return LeeNumero(ComaAPunto(texto));
}

double DobleDe(const Valor& valor, const AjustesRegionales& ajustes) {
    return comoNumero(valor, ajustes).value_or(0);
}

std::int32_t EnteroDe(const Valor& valor, const AjustesRegionales& ajustes) {
    return alPar<std::int32_t>(DobleDe(valor, ajustes)).value_or(0);
}

double NumeroDe(const Valor& valor, const AjustesRegionales& ajustes) {
    return EsNumero(valor, ajustes) ? DobleDe(valor, ajustes) : 0;
}

float LimiteDe(const Valor& valor, const AjustesRegionales& ajustes) {
    const double doble = DobleDe(valor, ajustes);  // 0 for a blank, which is no number
    const auto simple = static_cast<float>(doble);
    if (!std::isfinite(simple)) throw DesbordeNumerico{doble};
    return simple;
}

double Redondea(double& valor, int decimales) {
    valor += kEmpujon;
    const double potencia = kPotenciasDeDiez.at(static_cast<std::size_t>(decimales));
    return RedondeaPar(valor * potencia) / potencia;
}

double Redondeado(double valor, int decimales) {
    return Redondea(valor, decimales);
}

std::int32_t Suelo(double valor) {
    const std::int32_t r = RedondeaPar(valor);
    if (r <= valor) return r;
    if (r == std::numeric_limits<std::int32_t>::min()) throw DesbordeNumerico{valor};
    return r - 1;
}

double Techo(double valor) {
    return std::ceil(valor);
}

double Divide(double a, double b) {
    return b == 0 ? 0 : finito(a / b);
}

double Cociente(double a, double b) {
    if (b == 0) throw DivisionPorCero{};
    return finito(a / b);
}

double PesetasAEuros(std::int32_t pesetas) {
    return Redondeado(pesetas / kPesetasPorEuro, 2);
}

}  // namespace orvemo
