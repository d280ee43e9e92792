#include "shell/imagenes.h"

#include "foundations/values/fallos.h"

namespace orvemo {

std::string ImagenPresente(const Almacen& almacen, std::string nombre) {
    if (!almacen.existe(nombre)) throw FicheroInaccesible{nombre, "no existe"};
    return nombre;
}

}  // namespace orvemo
