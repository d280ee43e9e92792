#include "foundations/frame/declaraciones.h"

#include <utility>

namespace orvemo {

namespace {

constexpr const char* kFormatoImporte = "##,###,##0.00";

}  // namespace

DefCampo texto(std::string nombre, std::string rotulo, std::string defecto, Grupo* grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .grupo = grupo,
            .defecto = std::move(defecto)};
}

DefCampo decimal(std::string nombre, std::string rotulo, Reaccion alSalir, Grupo* grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .grupo = grupo,
            .defecto = "0",
            .contenido = Contenido::Decimal,
            .formato = kFormatoImporte,
            .alSalir = std::move(alSalir)};
}

DefCampo entero(std::string nombre, std::string rotulo, Reaccion alSalir, Grupo* grupo, std::string defecto) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .grupo = grupo,
            .defecto = std::move(defecto),
            .contenido = Contenido::Entero,
            .alSalir = std::move(alSalir)};
}

DefCampo lista(std::string nombre, std::string rotulo, std::vector<std::string> opciones,
               Reaccion alCambiar) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::Lista,
            .opciones = std::move(opciones),
            .alCambiar = std::move(alCambiar)};
}

DefCampo opciones(std::string nombre, std::string rotulo, std::vector<std::string> entradas,
                  Reaccion alCambiar) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::Opciones,
            .opciones = std::move(entradas),
            .alCambiar = std::move(alCambiar)};
}

DefCampo resultado(std::string nombre, std::string rotulo, std::string formato, int caracteres,
                   Grupo* grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::Resultado,
            .grupo = grupo,
            .formato = std::move(formato),
            .anchura = caracteres};
}

DefCampo interrogacion(std::string nombre, std::string ayuda, Reaccion alPulsar) {
    return {.nombre = std::move(nombre),
            .rotulo = "?",
            .clase = Clase::Boton,
            .alPulsar = std::move(alPulsar),
            .ayuda = std::move(ayuda),
            .mismaLinea = true,
            .pequeno = true};
}

DefCampo casilla(std::string nombre, std::string rotulo, Reaccion alCambiar) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::Casilla,
            .alCambiar = std::move(alCambiar)};
}

DefCampo fechaElegida(std::string nombre, std::string rotulo, Reaccion alCambiar, Grupo* grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::FechaSelector,
            .grupo = grupo,
            .alCambiar = std::move(alCambiar)};
}

DefCampo fechaEscrita(std::string nombre, std::string rotulo, Reaccion alCambiar) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::FechaEscrita,
            .alCambiar = std::move(alCambiar)};
}

DefCampo conAnchura(DefCampo def, int caracteres) {
    def.anchura = caracteres;
    return def;
}

DefCampo alLado(DefCampo def) {
    def.mismaLinea = true;
    return def;
}

}  // namespace orvemo
