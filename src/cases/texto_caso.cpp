#include "cases/texto_caso.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>

#include "foundations/values/fechas.h"
#include "foundations/values/formatos.h"
#include "foundations/values/json.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

template <typename T>
T numeroEn(std::string_view bytes) {
    T numero{};
    std::memcpy(&numero, bytes.data(), sizeof numero);
    return numero;
}

template <typename T>
std::string bytesDe(T numero) {
    std::string bytes(sizeof numero, '\0');
    std::memcpy(bytes.data(), &numero, sizeof numero);
    return bytes;
}

// --- To text

void escribeFecha(std::string& salida, double serie) {
    const Fecha fecha = FechaDeSerie(serie);
    // The bits are compared: a day with hours, a zero with a minus and what is no date aren't the day itself.
    if (std::bit_cast<std::uint64_t>(SerieDeFecha(fecha)) != std::bit_cast<std::uint64_t>(serie)) {
        return AgregaJson(salida, serie);
    }
    AgregaJson(salida, FormatoFecha(fecha, "yyyy-mm-dd"));
}

void escribeTexto(std::string& salida, std::string_view bytes) {
    if (bytes.find_first_not_of('\0') == std::string_view::npos) {
        salida += "null";
    } else {
        AgregaJson(salida, De1252(bytes.substr(0, bytes.find_last_not_of(' ') + 1)));
    }
}

void escribeEntero(std::string& salida, const Forma& forma, std::string_view bytes) {
    const bool conSigno = forma.naturaleza == Naturaleza::Entero;
    switch (forma.ancho) {
        case 1:
            return conSigno ? AgregaJson(salida, numeroEn<std::int8_t>(bytes))
                            : AgregaJson(salida, numeroEn<std::uint8_t>(bytes));
        case 2:
            return conSigno ? AgregaJson(salida, numeroEn<std::int16_t>(bytes))
                            : AgregaJson(salida, numeroEn<std::uint16_t>(bytes));
        default:
            return conSigno ? AgregaJson(salida, numeroEn<std::int32_t>(bytes))
                            : AgregaJson(salida, numeroEn<std::uint32_t>(bytes));
    }
}

void escribeReal(std::string& salida, std::string_view bytes) {
    return bytes.size() == sizeof(float) ? AgregaJson(salida, numeroEn<float>(bytes))
                                         : AgregaJson(salida, numeroEn<double>(bytes));
}

void escribeValor(std::string& salida, const Forma& forma, std::string_view bytes);

void escribeLista(std::string& salida, const Forma& elemento, std::string_view bytes) {
    salida += '[';
    for (std::size_t i = 0; i < bytes.size(); i += elemento.ancho) {
        if (i > 0) salida += ',';
        escribeValor(salida, elemento, bytes.substr(i, elemento.ancho));
    }
    salida += ']';
}

void escribeConjunto(std::string& salida, const Forma& forma, std::string_view bytes) {
    salida += '{';
    for (const Miembro& miembro : forma.miembros) {
        if (salida.back() != '{') salida += ',';
        AgregaJson(salida, miembro.nombre);
        salida += ':';
        escribeValor(salida, *miembro.forma, bytes.substr(miembro.posicion, miembro.forma->ancho));
    }
    salida += '}';
}

void escribeValor(std::string& salida, const Forma& forma, std::string_view bytes) {
    switch (forma.naturaleza) {
        case Naturaleza::Texto:
            return escribeTexto(salida, bytes);
        case Naturaleza::Dias:
            return escribeFecha(salida, numeroEn<double>(bytes));
        case Naturaleza::Natural:
        case Naturaleza::Entero:
            return escribeEntero(salida, forma, bytes);
        case Naturaleza::Real:
            return escribeReal(salida, bytes);
        case Naturaleza::Lista:
            return escribeLista(salida, *forma.elemento, bytes);
        case Naturaleza::Conjunto:
            return escribeConjunto(salida, forma, bytes);
    }
}

// --- From text

/// The limits of a whole number of that form.
std::pair<double, double> limites(const Forma& forma) {
    const double combinaciones = std::exp2(8 * static_cast<double>(forma.ancho));
    if (forma.naturaleza == Naturaleza::Natural) return {0, combinaciones - 1};
    return {-combinaciones / 2, combinaciones / 2 - 1};
}

std::string esperado(const Forma& forma) {
    switch (forma.naturaleza) {
        case Naturaleza::Texto:
            return "un texto de " + TextoPlano(static_cast<double>(forma.ancho)) + " caracteres como mucho";
        case Naturaleza::Dias:
            return "una fecha (\"AAAA-MM-DD\")";
        case Naturaleza::Natural:
        case Naturaleza::Entero: {
            const auto [minimo, maximo] = limites(forma);
            return "un número entero de " + TextoPlano(minimo) + " a " + TextoPlano(maximo);
        }
        case Naturaleza::Real:
            return forma.ancho == sizeof(float) ? "un número de precisión simple" : "un número";
        case Naturaleza::Lista:
            return "una lista de " + std::to_string(forma.ancho / forma.elemento->ancho) + " elementos";
        case Naturaleza::Conjunto:
            return "un objeto con sus campos";
    }
    return {};
}

[[noreturn]] void rechaza(const std::string& campo, const Forma& forma, const std::string& ademas = {}) {
    throw CampoIncorrecto{campo, "se esperaba " + esperado(forma) + ademas};
}

template <typename T>
const T& exige(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    if (const T* contenido = std::get_if<T>(&valor.contenido)) return *contenido;
    rechaza(campo, forma);
}

/// The first character that Windows-1252 lacks.
std::optional<std::string> ajenoA1252(std::string_view texto) {
    for (std::size_t pos = 0; pos < texto.size();) {
        const std::size_t inicio = pos;
        SiguienteCaracter(texto, pos);
        const std::string_view caracter = texto.substr(inicio, pos - inicio);
        if (caracter != "?" && A1252(caracter) == "?") return std::string{caracter};
    }
    return std::nullopt;
}

std::string leeTexto(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    if (std::holds_alternative<std::nullptr_t>(valor.contenido)) return std::string(forma.ancho, '\0');
    const auto& texto = exige<std::string>(campo, forma, valor);
    if (const auto ajeno = ajenoA1252(texto)) {
        rechaza(campo, forma, " y el carácter \"" + *ajeno + "\" no existe en Windows-1252");
    }
    std::string bytes = A1252(texto);
    if (bytes.size() > forma.ancho) rechaza(campo, forma);
    bytes.resize(forma.ancho, ' ');
    return bytes;
}

/// The bits of a number that JSON can't tell.
template <typename T, typename Bits>
std::optional<T> leeBits(std::string_view texto) {
    constexpr std::string_view kMarca = "0x";
    if (!texto.starts_with(kMarca) || texto.size() != kMarca.size() + 2 * sizeof(Bits)) return std::nullopt;
    Bits bits{};
    const char* fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data() + kMarca.size(), fin, bits, 16);
    if (leido.ec != std::errc{} || leido.ptr != fin) return std::nullopt;
    return std::bit_cast<T>(bits);
}

template <typename T, typename Bits>
T leeReal(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    if (const auto* texto = std::get_if<std::string>(&valor.contenido)) {
        if (const auto numero = leeBits<T, Bits>(*texto)) return *numero;
    }
    const auto numero = static_cast<T>(exige<double>(campo, forma, valor));
    if (!std::isfinite(numero)) rechaza(campo, forma);
    return numero;
}

/// The days since 30-12-1899 of "AAAA-MM-DD".
std::optional<double> leeFechaIso(std::string_view texto) {
    if (texto.size() != 10 || texto[4] != '-' || texto[7] != '-') return std::nullopt;
    constexpr std::array<std::pair<std::size_t, std::size_t>, 3> kPartes{{{8, 2}, {5, 2}, {0, 4}}};
    std::array<int, 3> diaMesAnio{};
    for (std::size_t i = 0; i < kPartes.size(); ++i) {
        const auto cifras = texto.substr(kPartes[i].first, kPartes[i].second);
        if (cifras.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
        std::from_chars(cifras.data(), cifras.data() + cifras.size(), diaMesAnio[i]);
    }
    const auto [dia, mes, anio] = diaMesAnio;
    if (!ExisteFecha(dia, mes, anio)) return std::nullopt;
    return SerieDeFecha(FechaDMA(dia, mes, anio));
}

double leeFecha(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    if (const auto* texto = std::get_if<std::string>(&valor.contenido)) {
        if (const auto serie = leeFechaIso(*texto)) return *serie;
    }
    return leeReal<double, std::uint64_t>(campo, forma, valor);
}

std::string leeEntero(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    const double numero = exige<double>(campo, forma, valor);
    const auto [minimo, maximo] = limites(forma);
    if (numero < minimo || numero > maximo || numero != std::floor(numero)) rechaza(campo, forma);
    // The low bytes of the number are those of its narrower form, with or without sign.
    return bytesDe(static_cast<std::int64_t>(numero)).substr(0, forma.ancho);
}

std::string leeValor(const std::string& campo, const Forma& forma, const ValorDeCampo& valor);

std::string leeLista(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    const auto& lista = exige<ValorDeCampo::Lista>(campo, forma, valor);
    if (lista.size() * forma.elemento->ancho != forma.ancho) rechaza(campo, forma);
    std::string bytes;
    for (const ValorDeCampo& elemento : lista) {
        const std::size_t i = bytes.size() / forma.elemento->ancho;
        bytes +=
            leeValor(campo + '[' + TextoPlano(static_cast<double>(i + 1)) + ']', *forma.elemento, elemento);
    }
    return bytes;
}

/// "Hijo[2]" and "Nacimiento" give "Hijo[2].Nacimiento"; the members of the record stand alone.
std::string dentroDe(const std::string& campo, std::string_view miembro) {
    return campo.empty() ? std::string{miembro} : campo + '.' + std::string{miembro};
}

void rechazaSobrantes(const std::string& campo, const Forma& forma, const ValorDeCampo::Conjunto& valores) {
    for (const auto& [nombre, _] : valores) {
        if (std::ranges::find(forma.miembros, nombre, &Miembro::nombre) == forma.miembros.end())
            throw CampoIncorrecto{dentroDe(campo, nombre), "no es un campo de estos supuestos"};
    }
}

std::string leeConjunto(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    const auto& valores = exige<ValorDeCampo::Conjunto>(campo, forma, valor);
    rechazaSobrantes(campo, forma, valores);
    std::string bytes;
    for (const Miembro& miembro : forma.miembros) {
        const std::string nombre = dentroDe(campo, miembro.nombre);
        const auto suyo = std::ranges::find(valores, miembro.nombre,
                                            [](const auto& par) -> std::string_view { return par.first; });
        if (suyo == valores.end())
            throw CampoIncorrecto{nombre, "falta; se esperaba " + esperado(*miembro.forma)};
        bytes += leeValor(nombre, *miembro.forma, suyo->second);
    }
    return bytes;
}

std::string leeValor(const std::string& campo, const Forma& forma, const ValorDeCampo& valor) {
    switch (forma.naturaleza) {
        case Naturaleza::Texto:
            return leeTexto(campo, forma, valor);
        case Naturaleza::Dias:
            return bytesDe(leeFecha(campo, forma, valor));
        case Naturaleza::Natural:
        case Naturaleza::Entero:
            return leeEntero(campo, forma, valor);
        case Naturaleza::Real:
            return forma.ancho == sizeof(float)
                       ? bytesDe(leeReal<float, std::uint32_t>(campo, forma, valor))
                       : bytesDe(leeReal<double, std::uint64_t>(campo, forma, valor));
        case Naturaleza::Lista:
            return leeLista(campo, forma, valor);
        case Naturaleza::Conjunto:
            return leeConjunto(campo, forma, valor);
    }
    return {};
}

}  // namespace

CampoIncorrecto::CampoIncorrecto(std::string_view nombre, const std::string& motivo)
    : Fallo{(nombre.empty() ? std::string{"el supuesto"} : "el campo " + EntreComillas(nombre)) +
            " no es correcto: " + motivo},
      campo{nombre} {}

void EscribeCampos(std::string& salida, const Forma& forma, std::string_view bytes) {
    escribeValor(salida, forma, bytes);
}

std::string LeeCampos(const Forma& forma, const ValorDeCampo& valor) {
    return leeValor({}, forma, valor);
}

}  // namespace orvemo
