#pragma once

#include <string_view>

#include "capital/capitalizacion/capitalizacion_registro.h"
#include "foundations/values/almacen.h"
#include "foundations/values/dictamen.h"

namespace orvemo::capital {

/// The sum that buys the pension of the case, euros: reference base times a factor made of tariffs at 5 %.
/// `papel` is the kind of beneficiaries, 0 to 16, that a pension of death has. `Capital` is the reference
/// base as it is written on the screen. Throws TextoIlegible when that is no number, FicheroInaccesible
/// without a tariff that the case needs, DesbordeNumerico when a double can't hold the sum.
double CalculaCapital(const RegistroCapital& caso, int papel, std::string_view Capital,
                      const Almacen& almacen, Dictamen& dictamen);

}  // namespace orvemo::capital
