#include "foundations/frame/datos_informe.h"

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

void lineaNombre(Informe& informe, const Campo& Nombre) {
    informe.linea("Nombre:$N" + Nombre.texto() + "$n");
}

void lineaSiSeVe(Informe& informe, const Campo& campo, std::string_view texto) {
    if (campo.visible()) informe.linea(texto);
}

std::string numeroDe(const Campo& campo, std::string_view patron) {
    return FormatoNumero(DobleDe(campo.texto()), patron);
}

std::string fechaDe(const Campo& campo, std::string_view patron) {
    return EsFecha(campo.texto()) ? FormatoFecha(FechaDe(campo.texto()), patron) : campo.texto();
}

}  // namespace orvemo
