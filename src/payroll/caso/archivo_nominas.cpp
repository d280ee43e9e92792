#include "payroll/caso/archivo_nominas.h"

namespace orvemo::nomina {

ArchivoNominas::ArchivoNominas(Almacen& almacen) : archivo_{almacen, kFicheroNominas, kDiseno.longitud()} {}

RegistroNomina ArchivoNominas::LeeCaso(int Numero) const {
    RegistroNomina Registro;
    kDiseno.lee(archivo_.lee(Numero), Registro);
    return Registro;
}

std::optional<int> ArchivoNominas::GrabaCaso(int Numero, const RegistroNomina& Registro) {
    if (Numero == 0) return archivo_.sobrescribePorNombre(kDiseno.escribe(Registro));
    archivo_.sobrescribe(Numero, kDiseno.escribe(Registro));
    return Numero;
}

int ArchivoNominas::AltaCaso(const RegistroNomina& Registro) {
    return archivo_.agrega(kDiseno.escribe(Registro));
}

}  // namespace orvemo::nomina
