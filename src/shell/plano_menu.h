#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "shell/programa.h"

namespace orvemo {

/// The name of a subject over its options.
struct Cabecera {
    Materia materia;
    Columna columna;
    int top;  ///< twips from the top of `Menu`
    friend bool operator==(const Cabecera&, const Cabecera&) = default;
};

inline constexpr int kAltoCabecera = 270;  // twips

/// Where everything of the menu stands.
struct PlanoMenu {
    std::array<int, kNumOpciones> top;  ///< twips, by the index of the option
    std::vector<Cabecera> cabeceras{};  ///< none unless the options stand by subjects
};

/// Options that stand by subjects, each subject together in one column, are parted by their headings; any
/// other order is an even grid.
[[nodiscard]] PlanoMenu planoDelMenu(std::span<const OpcionMenu, kNumOpciones> opciones);

}  // namespace orvemo
