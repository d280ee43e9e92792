#pragma once

#include "apoyo/almacen_memoria.h"
#include "apoyo/impresora_falsa.h"
#include "apoyo/mensajes_falsos.h"
#include "foundations/frame/entorno.h"
#include "foundations/values/fechas.h"

namespace orvemo::pruebas {

/// A whole world outside, in memory, on one fixed day.
struct EntornoFalso {
    explicit EntornoFalso(Fecha hoy = FechaDMA(15, 6, 2005)) : reloj{hoy} {}

    MensajesFalsos mensajes;
    RelojFijo reloj;
    AlmacenMemoria almacen;
    ImpresoraFalsa impresora;
    RutinasImpresion rutinas;
    ValoresPrograma valores;
    Entorno entorno{mensajes, reloj, almacen, impresora, rutinas, valores};
};

}  // namespace orvemo::pruebas
