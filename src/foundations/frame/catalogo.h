#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "foundations/frame/calculadora.h"

namespace orvemo {

/// The record of a calculator's cases, whatever its type.
struct RegistroCatalogo {
    std::string_view fichero{};  ///< case file
    std::size_t longitud{};      ///< bytes of a record
    const Forma* forma{};        ///< and what they hold, by name
    /// What a record becomes once read and written again by its layout.
    std::string (*relee)(std::string_view bytes){};
    std::unique_ptr<Calculadora> (*abre)(Entorno&){};
};

/// A calculator, as the menu, the batch, the examples and the checks know it.
struct EntradaCatalogo {
    std::string_view clave;     ///< name on the command line
    std::string_view pantalla;  ///< screen that an option of the menu opens
    std::unique_ptr<Formulario> (*abre)(Entorno&);
    RegistroCatalogo registro{};  ///< of a calculator without cases, empty
    std::string_view ejemplos{};  ///< file of the cases that ship, within the application directory
};

using Calculadoras = std::span<const EntradaCatalogo>;

template <typename Pantalla, typename Base = Formulario>
std::unique_ptr<Base> abrePantalla(Entorno& entorno) {
    return std::make_unique<Pantalla>(entorno);
}

template <typename Pantalla>
std::string releeRegistro(std::string_view bytes) {
    typename Pantalla::RegistroDelCaso registro;
    Pantalla::diseno().lee(bytes, registro);
    return Pantalla::diseno().escribe(registro);
}

/// The entry of a calculator with cases.
template <typename Pantalla>
constexpr EntradaCatalogo conSupuestos(std::string_view clave, std::string_view pantalla,
                                       std::string_view fichero, std::string_view ejemplos = {}) {
    return {.clave = clave,
            .pantalla = pantalla,
            .abre = abrePantalla<Pantalla>,
            .registro = {.fichero = fichero,
                         .longitud = Pantalla::diseno().longitud(),
                         .forma = &kFormaDe<Pantalla::diseno()>,
                         .relee = releeRegistro<Pantalla>,
                         .abre = abrePantalla<Pantalla, Calculadora>},
            .ejemplos = ejemplos};
}

}  // namespace orvemo
