#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "cases/forma.h"
#include "foundations/values/fechas.h"
#include "foundations/values/textos.h"

namespace orvemo {

static_assert(std::endian::native == std::endian::little,
              "records are little-endian and copied as they stand");

/// A text of a record: N bytes of Windows-1252, NUL until first written, blank-padded on the right.
template <std::size_t N>
class Texto {
  public:
    static constexpr std::size_t kAncho = N;

    Texto() = default;
    explicit Texto(std::string_view utf8) { asigna(utf8); }

    /// Takes a UTF-8 text: what 1252 lacks becomes "?", what does not fit is lost, the rest is blanks.
    void asigna(std::string_view utf8) {
        const std::string escrito = A1252(utf8);
        bytes_.fill(' ');
        std::copy_n(escrito.begin(), std::min(N, escrito.size()), bytes_.begin());
    }

    /// The text in UTF-8, up to its first NUL, without the blanks at both ends.
    [[nodiscard]] std::string utf8() const { return De1252(Recorta(escrito())); }

    /// The same with its blanks: codes whose width tells ("087 ").
    [[nodiscard]] std::string utf8SinRecortar() const { return De1252(escrito()); }

    [[nodiscard]] std::array<char, N>& bytes() { return bytes_; }
    [[nodiscard]] const std::array<char, N>& bytes() const { return bytes_; }
    friend bool operator==(const Texto&, const Texto&) = default;

  private:
    [[nodiscard]] std::string_view escrito() const {
        const std::string_view todo{bytes_.data(), N};
        return todo.substr(0, todo.find('\0'));
    }

    std::array<char, N> bytes_{};
};

/// A struct with a layout of its own: the function `DisenoDe(const T*)` beside it gives that layout, and the
/// struct, or an array of it, may then be a member of a record.
template <typename T>
concept ConDiseno = requires(const T* ninguno) {
    DisenoDe(ninguno).longitud();
};

template <typename T>
constexpr Naturaleza naturalezaDe() {
    if constexpr (std::is_floating_point_v<T>) return Naturaleza::Real;
    return std::is_signed_v<T> ? Naturaleza::Entero : Naturaleza::Natural;
}

/// How a field of type T lies in a record: its form, its width and the two ways across.
template <typename T>
struct EnRegistro {
    static_assert(
        std::is_arithmetic_v<T>,
        "a field of a record is a number, a date, a text, a struct with its layout or an array of them");
    static constexpr std::size_t kAncho = sizeof(T);
    static constexpr Forma kForma{naturalezaDe<T>(), kAncho};
    static void lee(const char* origen, T& campo) { std::memcpy(&campo, origen, sizeof(T)); }
    static void escribe(char* destino, const T& campo) { std::memcpy(destino, &campo, sizeof(T)); }
};

template <std::size_t N>
struct EnRegistro<Texto<N>> {
    static constexpr std::size_t kAncho = N;
    static constexpr Forma kForma{Naturaleza::Texto, kAncho};
    static void lee(const char* origen, Texto<N>& campo) { std::memcpy(campo.bytes().data(), origen, N); }
    static void escribe(char* destino, const Texto<N>& campo) {
        std::memcpy(destino, campo.bytes().data(), N);
    }
};

template <>
struct EnRegistro<Fecha> {
    static constexpr std::size_t kAncho = sizeof(double);
    static constexpr Forma kForma{Naturaleza::Dias, kAncho};
    static void lee(const char* origen, Fecha& campo) {
        double serie = 0;
        std::memcpy(&serie, origen, sizeof serie);
        campo = FechaDeSerie(serie);
    }
    static void escribe(char* destino, const Fecha& campo) {
        const double serie = SerieDeFecha(campo);
        std::memcpy(destino, &serie, sizeof serie);
    }
};

template <ConDiseno T>
struct EnRegistro<T> {
    static constexpr const auto& kDiseno = DisenoDe(static_cast<const T*>(nullptr));
    static constexpr std::size_t kAncho = kDiseno.longitud();
    static constexpr auto kMiembros = kDiseno.miembros();
    static constexpr Forma kForma{Naturaleza::Conjunto, kAncho, nullptr, kMiembros};
    static void lee(const char* origen, T& campo) { kDiseno.lee({origen, kAncho}, campo); }
    static void escribe(char* destino, const T& campo) { kDiseno.escribe(destino, campo); }
};

template <typename T, std::size_t N>
struct EnRegistro<std::array<T, N>> {
    static constexpr std::size_t kAncho = N * EnRegistro<T>::kAncho;
    static constexpr Forma kForma{Naturaleza::Lista, kAncho, &EnRegistro<T>::kForma};
    static void lee(const char* origen, std::array<T, N>& campo) {
        for (std::size_t i = 0; i < N; ++i) EnRegistro<T>::lee(origen + i * EnRegistro<T>::kAncho, campo[i]);
    }
    static void escribe(char* destino, const std::array<T, N>& campo) {
        for (std::size_t i = 0; i < N; ++i)
            EnRegistro<T>::escribe(destino + i * EnRegistro<T>::kAncho, campo[i]);
    }
};

/// One line of a layout: at this offset lies this member, known to the text form of the record by this name.
template <typename Registro, typename T>
struct Tramo {
    std::size_t posicion;
    std::string_view nombre;
    T Registro::*campo;
    static constexpr std::size_t kAncho = EnRegistro<T>::kAncho;
};
template <typename Registro, typename T>
Tramo(int, const char*, T Registro::*) -> Tramo<Registro, T>;

/// The layout of a record: where each member lies, without gap or overlap.
template <typename Registro, typename... T>
class Diseno {
  public:
    /// Checked while compiling: each offset is where the field before ends, and the last ends at `longitud`.
    explicit consteval Diseno(std::size_t longitud, Tramo<Registro, T>... tramos)
        : longitud_{longitud}, tramos_{tramos...} {
        std::size_t fin = 0;
        (
            [&](const auto& tramo) {
                if (tramo.posicion != fin)
                    throw "a field of the layout leaves a gap or overlaps the one before";
                fin += tramo.kAncho;
            }(tramos),
            ...);
        if (fin != longitud) throw "the layout does not cover the length of the record";
        std::array<std::string_view, sizeof...(T)> nombres{tramos.nombre...};
        std::ranges::sort(nombres);
        if (std::ranges::adjacent_find(nombres) != nombres.end()) throw "two fields have the same name";
    }

    /// Bytes of a record.
    [[nodiscard]] constexpr std::size_t longitud() const { return longitud_; }

    /// The same table without its types.
    [[nodiscard]] constexpr std::array<Miembro, sizeof...(T)> miembros() const {
        return std::apply(
            [](const auto&... tramo) {
                return std::array{Miembro{tramo.nombre, tramo.posicion, &EnRegistro<T>::kForma}...};
            },
            tramos_);
    }

    /// The record that stands in `bytes`, which holds at least `longitud()`.
    void lee(std::span<const char> bytes, Registro& registro) const {
        cada([&]<typename C>(const Tramo<Registro, C>& tramo) {
            EnRegistro<C>::lee(bytes.data() + tramo.posicion, registro.*tramo.campo);
        });
    }

    /// The bytes of the record, `longitud()` of them.
    [[nodiscard]] std::string escribe(const Registro& registro) const {
        std::string bytes(longitud_, '\0');
        escribe(bytes.data(), registro);
        return bytes;
    }

    /// The same, into `longitud()` bytes from `destino` on.
    void escribe(char* destino, const Registro& registro) const {
        cada([&]<typename C>(const Tramo<Registro, C>& tramo) {
            EnRegistro<C>::escribe(destino + tramo.posicion, registro.*tramo.campo);
        });
    }

  private:
    void cada(auto&& accion) const {
        std::apply([&](const auto&... tramo) { (accion(tramo), ...); }, tramos_);
    }

    std::size_t longitud_;
    std::tuple<Tramo<Registro, T>...> tramos_;
};
template <typename Registro, typename... T>
Diseno(int, Tramo<Registro, T>...) -> Diseno<Registro, T...>;

/// The layout of a record without its types.
template <const auto& kDiseno>
inline constexpr auto kMiembrosDe = kDiseno.miembros();
template <const auto& kDiseno>
inline constexpr Forma kFormaDe{Naturaleza::Conjunto, kDiseno.longitud(), nullptr, kMiembrosDe<kDiseno>};

}  // namespace orvemo
