#pragma once

#include <string>
#include <string_view>

#include "foundations/frame/campo.h"
#include "printing/informe.h"

namespace orvemo {

/// The person's name, in bold.
void lineaNombre(Informe& informe, const Campo& Nombre);

/// A line of data, when the field is on view.
void lineaSiSeVe(Informe& informe, const Campo& campo, std::string_view texto);

/// The field's number by the pattern; 0 when it can't be read.
[[nodiscard]] std::string numeroDe(const Campo& campo, std::string_view patron);

/// The field's date by the pattern; its text as it stands when it can't be read.
[[nodiscard]] std::string fechaDe(const Campo& campo, std::string_view patron);

}  // namespace orvemo
