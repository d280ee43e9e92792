#pragma once

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

#include "foundations/values/textos.h"

namespace orvemo {

/// What a calculation writes: its lines of conclusions and whether there is a right to the benefit.
class Dictamen {
  public:
    bool ConDerecho = false;

    /// Empties the conclusions and takes the right back, as every calculation does first.
    void vacia() {
        ConDerecho = false;
        conclusion_.clear();
        conclusion_.reserve(kLargoHabitual);
    }

    /// Appends the pieces (texts and whole numbers) as they stand.
    template <typename... Piezas>
    void AddConc(const Piezas&... piezas) {
        (agrega(piezas), ...);
    }

    /// Appends the pieces and a line end.
    template <typename... Piezas>
    void linea(const Piezas&... piezas) {
        AddConc(piezas..., kFinDeLinea);
    }

    [[nodiscard]] const std::string& Conclusion() const { return conclusion_; }

  private:
    static constexpr std::size_t kLargoHabitual = 1024;  ///< bytes that most conclusions fit in

    void agrega(std::string_view texto) { conclusion_ += texto; }
    void agrega(std::integral auto numero) {
        char cifras[24];
        const auto fin = std::to_chars(cifras, cifras + sizeof cifras, numero);
        agrega(std::string_view{cifras, fin.ptr});
    }

    std::string conclusion_;
};

}  // namespace orvemo
