#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "cases/forma.h"
#include "foundations/values/fallos.h"

namespace orvemo {

// The text form of a record: its members by name. Whatever bytes a record holds, even damaged ones, their
// text form gives back the same bytes:
//
// - a text goes without the blanks at its end; one never written (NUL throughout) is null, and a NUL or any
//   other control within a text stays as the character that it is;
// - a date is "2005-06-13"; one that isn't a whole day of the years 100 to 9999 is its number of days;
// - an amount or number of days that JSON has no number for is its bits ("0x7ff8000000000000").

/// Appends the record of that form as a JSON object, on one line.
void EscribeCampos(std::string& salida, const Forma& forma, std::string_view bytes);

/// A value of a text form as whoever parsed it hands it over.
struct ValorDeCampo {
    using Lista = std::vector<ValorDeCampo>;
    using Conjunto = std::vector<std::pair<std::string, ValorDeCampo>>;
    std::variant<std::nullptr_t, bool, double, std::string, Lista, Conjunto> contenido{nullptr};
};

/// A member is unknown, is missing or doesn't hold what it should.
class CampoIncorrecto : public Fallo {
  public:
    CampoIncorrecto(std::string_view campo, const std::string& motivo);
    const std::string campo;  ///< "Hijo[2].Nacimiento"
};

/// The bytes of the record that the text form tells. Every member must be there and no other. Throws
/// CampoIncorrecto, which says what was expected.
[[nodiscard]] std::string LeeCampos(const Forma& forma, const ValorDeCampo& valor);

}  // namespace orvemo
