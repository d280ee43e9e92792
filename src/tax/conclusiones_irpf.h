#pragma once

#include <array>
#include <string>
#include <string_view>

#include "foundations/values/dictamen.h"
#include "tax/retenciones.h"

namespace orvemo::irpf {

/// `SituacionLaboral`, as the list shows it and the conclusions tell it.
inline constexpr std::array<std::string_view, 4> kSituacionesLaborales{
    "Activo", "Pensionista o Clases Pasivas", "Desempleado", "Otras Situaciones"};

/// Writes the case and what was worked out of it, each line a label with a dotted leader and its value. There
/// is always a right: a withholding is never refused.
void EscribeConclusiones(const DatosRetencion& datos, const ResultadoRetencion& resultado,
                         Dictamen& dictamen);

}  // namespace orvemo::irpf
