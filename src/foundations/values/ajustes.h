#pragma once

#include <array>
#include <string_view>

namespace orvemo {

/// Marks and names of a country's numbers and dates. The default is Spain's, whatever the machine says.
struct AjustesRegionales {
    char marcaDecimal = ',';
    char marcaMiles = '.';
    std::array<std::string_view, 12> mesesCortos{"ene", "feb", "mar", "abr", "may", "jun",
                                                 "jul", "ago", "sep", "oct", "nov", "dic"};
    std::array<std::string_view, 12> meses{"enero",      "febrero", "marzo",     "abril",
                                           "mayo",       "junio",   "julio",     "agosto",
                                           "septiembre", "octubre", "noviembre", "diciembre"};
    std::array<std::string_view, 7> diasSemana{"lunes",   "martes", "miércoles", "jueves",
                                               "viernes", "sábado", "domingo"};
};

inline constexpr AjustesRegionales kEspana{};

}  // namespace orvemo
