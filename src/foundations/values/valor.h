#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "foundations/values/fechas.h"

namespace orvemo {

struct Vacio {};  ///< never assigned
struct Nulo {};   ///< assigned nothing on purpose

/// The dynamic value on which the conversion helpers work. A control stands for its text.
class Valor {
  public:
    using Contenido = std::variant<Vacio, Nulo, std::int64_t, double, std::string, Fecha, bool>;

    // Implicit on purpose: every helper takes whatever the caller has at hand.
    // NOLINTBEGIN(google-explicit-constructor)
    Valor() = default;
    Valor(Nulo nulo) : contenido_{nulo} {}
    Valor(int numero) : contenido_{std::int64_t{numero}} {}
    Valor(std::int64_t numero) : contenido_{numero} {}
    Valor(double numero) : contenido_{numero} {}
    Valor(bool verdad) : contenido_{verdad} {}
    Valor(Fecha fecha) : contenido_{fecha} {}
    Valor(const char* texto) : contenido_{std::string{texto}} {}
    Valor(std::string_view texto) : contenido_{std::string{texto}} {}
    Valor(std::string texto) : contenido_{std::move(texto)} {}
    // NOLINTEND(google-explicit-constructor)

    [[nodiscard]] const Contenido& contenido() const { return contenido_; }

    /// The value's text: blank and null give "", numbers their plain text, dates "dd-mm-yyyy", truth values
    /// "Verdadero" and "Falso".
    [[nodiscard]] std::string texto() const;

  private:
    Contenido contenido_;
};

}  // namespace orvemo
