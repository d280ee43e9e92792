#pragma once

#include "foundations/values/almacen.h"
#include "genera_tarifas/mortalidad.h"

namespace orvemo::tarifas {

inline std::string csvDeMortalidad() {
    return DirectorioAplicacion{ORVEMO_FUENTES}.leeTodo("mortalidad.csv");
}

/// The tables that the tariffs that ship are made from.
inline const Mortalidad& mortalidadDe2000() {
    static const Mortalidad kTablas = LeeMortalidad(csvDeMortalidad());
    return kTablas;
}

}  // namespace orvemo::tarifas
