#include "shell/pantallas.h"

#include <algorithm>

#include "shell/fondo_frm.h"
#include "shell/presenta_frm.h"

namespace orvemo {

namespace {

Abridor& puestoDe(Pantallas& pantallas, std::string_view nombre) {
    const auto opcion = std::ranges::find(kOpciones, nombre, &DefOpcion::pantalla);
    return pantallas.at(static_cast<std::size_t>(opcion - kOpciones.begin()));
}

}  // namespace

Pantallas PantallasDelMenu(Calculadoras catalogo) {
    Pantallas pantallas;
    for (const EntradaCatalogo& entrada : catalogo) puestoDe(pantallas, entrada.pantalla) = entrada.abre;
    puestoDe(pantallas, "FondoFrm") = abrePantalla<FondoFrm>;
    puestoDe(pantallas, "PresentaFrm") = abrePantalla<PresentaFrm>;
    return pantallas;
}

}  // namespace orvemo
