#include "payroll/caso/opciones_impresion.h"

#include <algorithm>
#include <string>

namespace orvemo::nomina {

OpcionesImpresion LeeOpciones(Almacen& almacen) {
    std::string bytes(kDisenoOpciones.longitud(), '\0');
    almacen.abre(kFicheroOpciones, Acceso::Lectura)->lee(0, bytes);
    OpcionesImpresion opciones;
    kDisenoOpciones.lee(bytes, opciones);
    return opciones;
}

void GrabaOpciones(Almacen& almacen, const OpcionesImpresion& opciones) {
    // Records beyond the first are none of ours and stay.
    std::string bytes = almacen.existe(kFicheroOpciones) ? almacen.leeTodo(kFicheroOpciones) : "";
    bytes.resize(std::max(bytes.size(), kDisenoOpciones.longitud()), '\0');
    kDisenoOpciones.escribe(bytes.data(), opciones);
    almacen.sustituye(kFicheroOpciones, bytes);
}

}  // namespace orvemo::nomina
