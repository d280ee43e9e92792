#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cases/registro.h"
#include "foundations/frame/campo.h"
#include "foundations/values/fechas.h"

namespace orvemo {

/// The two ways across between the text of a field and a member of a record.
template <typename T>
struct Via {
    T (*lee)(std::string_view texto);  ///< throws Fallo, or is total, as each tells
    std::string (*escribe)(T valor);
};

namespace vias {

double leeNumero(std::string_view texto);
double leeNumeroOCero(std::string_view texto);
Fecha leeFecha(std::string_view texto);
Fecha leeFechaOCero(std::string_view texto);
std::string escribeImporte(double valor);
std::string escribeNumero(double valor);
std::string escribeFecha(Fecha valor);

/// An amount, "#0.00".
inline constexpr Via<double> kImporte{leeNumero, escribeImporte};
/// The same; what can't be read is 0.
inline constexpr Via<double> kImporteOCero{leeNumeroOCero, escribeImporte};
/// A number, plain.
inline constexpr Via<double> kNumero{leeNumero, escribeNumero};
/// The same; what can't be read is 0.
inline constexpr Via<double> kNumeroOCero{leeNumeroOCero, escribeNumero};
/// A date, "dd-MM-yyyy".
inline constexpr Via<Fecha> kFecha{leeFecha, escribeFecha};
/// The same; what can't be read is 01-01-1900.
inline constexpr Via<Fecha> kFechaOCero{leeFechaOCero, escribeFecha};

std::int32_t leeEntero(std::string_view texto);
std::int16_t leeEntero16(std::string_view texto);
std::uint8_t leeEntero8(std::string_view texto);
std::string escribeEntero(std::int32_t valor);

/// A whole number, plain. Throws DesbordeNumerico when the member can't hold it.
inline constexpr Via<std::int32_t> kEntero{leeEntero, escribeEntero};
inline constexpr Via<std::int16_t> kEntero16{leeEntero16,
                                             [](std::int16_t valor) { return escribeEntero(valor); }};
inline constexpr Via<std::uint8_t> kEntero8{leeEntero8,
                                            [](std::uint8_t valor) { return escribeEntero(valor); }};

/// What a member of its type takes unless told otherwise.
constexpr const Via<double>& deSuTipo(double /*miembro*/) {
    return kImporte;
}
constexpr const Via<Fecha>& deSuTipo(Fecha /*miembro*/) {
    return kFecha;
}
constexpr const Via<std::int32_t>& deSuTipo(std::int32_t /*miembro*/) {
    return kEntero;
}
constexpr const Via<std::int16_t>& deSuTipo(std::int16_t /*miembro*/) {
    return kEntero16;
}
constexpr const Via<std::uint8_t>& deSuTipo(std::uint8_t /*miembro*/) {
    return kEntero8;
}

}  // namespace vias

/// The ties between the fields of a screen and the members of its record, a line each, in the order in which
/// they are copied: a text that can't be read stops the copy there.
template <typename Registro>
class Enlaces {
  public:
    using Toma = std::function<void(Registro&)>;
    using Carga = std::function<void(const Registro&)>;

    /// A field with a rule of its own.
    void agrega(Toma toma, Carga carga) { todos_.push_back({std::move(toma), std::move(carga)}); }

    /// The usual rule of the field's kind and the member's type: a text without the blanks at its ends, a
    /// number or date by its way, a check box as 1 or 0, a list as the place of its entry. A member is a
    /// pointer to one, or a function of the record that gives it.
    template <typename Miembro>
    void agrega(Campo& campo, Miembro miembro) {
        agrega([&campo, miembro](Registro& r) { toma(campo, std::invoke(miembro, r)); },
               [&campo, miembro](const Registro& r) { carga(campo, std::invoke(miembro, r)); });
    }

    /// The same, by another way across.
    template <typename Miembro, typename T>
    void agrega(Campo& campo, Miembro miembro, const Via<T>& via) {
        agrega([&campo, miembro, via](Registro& r) { std::invoke(miembro, r) = via.lee(campo.texto()); },
               [&campo, miembro, via](const Registro& r) {
                   campo.ponTexto(via.escribe(std::invoke(miembro, r)));
               });
    }

    /// A row of fields and an array, in its order; what the array has over stays as it is.
    template <typename Miembro>
    void agregaSerie(const std::vector<Campo*>& campos, Miembro miembro) {
        agrega(
            [campos, miembro](Registro& r) {
                for (std::size_t i = 0; i < campos.size(); ++i) toma(*campos[i], std::invoke(miembro, r)[i]);
            },
            [campos, miembro](const Registro& r) {
                for (std::size_t i = 0; i < campos.size(); ++i) carga(*campos[i], std::invoke(miembro, r)[i]);
            });
    }
    template <typename Miembro, typename T>
    void agregaSerie(const std::vector<Campo*>& campos, Miembro miembro, const Via<T>& via) {
        agrega(
            [campos, miembro, via](Registro& r) {
                for (std::size_t i = 0; i < campos.size(); ++i) {
                    std::invoke(miembro, r)[i] = via.lee(campos[i]->texto());
                }
            },
            [campos, miembro, via](const Registro& r) {
                for (std::size_t i = 0; i < campos.size(); ++i) {
                    campos[i]->ponTexto(via.escribe(std::invoke(miembro, r)[i]));
                }
            });
    }

    /// Fields to record. Throws Fallo.
    void toma(Registro& registro) const {
        for (const Enlace& enlace : todos_) enlace.toma(registro);
    }
    /// Record to fields.
    void carga(const Registro& registro) const {
        for (const Enlace& enlace : todos_) enlace.carga(registro);
    }

  private:
    struct Enlace {
        Toma toma;
        Carga carga;
    };

    template <std::size_t N>
    static void toma(const Campo& campo, Texto<N>& miembro) {
        miembro.asigna(Recorta(campo.texto()));
    }
    template <typename T>
    static void toma(const Campo& campo, T& miembro) {
        if constexpr (std::integral<T>) {
            if (campo.def().clase == Clase::Casilla) {
                miembro = campo.marcado() ? 1 : 0;
                return;
            }
            if (campo.esLista()) {
                miembro = static_cast<T>(campo.indice());
                return;
            }
        }
        miembro = vias::deSuTipo(miembro).lee(campo.texto());
    }

    template <std::size_t N>
    static void carga(Campo& campo, const Texto<N>& miembro) {
        campo.ponTexto(miembro.utf8());
    }
    template <typename T>
    static void carga(Campo& campo, const T& miembro) {
        if constexpr (std::integral<T>) {
            if (campo.def().clase == Clase::Casilla) return campo.ponMarcado(miembro == 1);
            if (campo.esLista()) return campo.ponIndice(static_cast<int>(miembro));
        }
        campo.ponTexto(vias::deSuTipo(miembro).escribe(miembro));
    }

    std::vector<Enlace> todos_;
};

}  // namespace orvemo
