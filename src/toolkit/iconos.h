#pragma once

#include <QIcon>
#include <string_view>

namespace orvemo {

/// The line drawings of the buttons.
enum class Dibujo {
    Ninguno,
    Nuevo,
    Carpeta,
    Disco,
    Impresora,
    Puerta,
    Papelera,
    Aspa,
    Visto,
    Calendario,
    FlechaIzquierda,
    FlechaDerecha,
    Pregunta,
    Informacion,
    Aviso,
};

/// The drawing at any size, grey while its button can't be pressed.
[[nodiscard]] QIcon icono(Dibujo dibujo);

/// The drawing in white, for a button of the accent colour.
[[nodiscard]] QIcon iconoClaro(Dibujo dibujo);

}  // namespace orvemo
