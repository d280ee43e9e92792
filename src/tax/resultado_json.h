#pragma once

#include <string>

#include "tax/retenciones.h"

namespace orvemo::irpf {

/// Appends percentage and amount, and then all that the calculation found out by name, as members of an
/// object of JSON.
void AgregaResultado(std::string& json, const ResultadoRetencion& resultado);

}  // namespace orvemo::irpf
