#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apoyo/destino_grabador.h"
#include "printing/rutinas_impresion.h"

namespace orvemo::pruebas {

/// The engine on a recorder, with a logo three times as wide as high.
struct Papel : ::testing::Test {
    Papel() { rutinas.empieza(papel); }

    /// A document with its body in "Arial" 12 at X 1, Y 6, and the record cleared: what follows is the
    /// test's.
    void empiezaCuerpo() {
        rutinas.ImprimeCabecera(1);
        rutinas.PonFuente("Arial", 12, "");
        rutinas.PonPosicion(1.0F, 6.0F);
        papel.operaciones.clear();
    }

    DestinoGrabador papel;
    RutinasImpresion rutinas{Imagen{.nombre = "logo.bmp", .ancho = 300, .alto = 100}};
};

}  // namespace orvemo::pruebas
