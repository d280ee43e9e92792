#pragma once

#include <string>

#include "payroll/caso/estado_nomina.h"

namespace orvemo::nomina {

/// Appends `,"estado":{…},"cuotas":{…}`: every field of the state by its name, and every quota and rate that
/// receipt and forms show by the name that tells what it is.
void AgregaEstado(std::string& json, const EstadoNomina& estado);

}  // namespace orvemo::nomina
