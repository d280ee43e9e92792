#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "tax/datos_retencion.h"

namespace {

using namespace orvemo;
using irpf::DatosRetencion;
using irpf::kDiseno;

DatosRetencion persona(const char* supuesto, const char* nombre, const char* nif, int nacimiento,
                       double Retribuciones) {
    DatosRetencion caso;
    caso.NombreSupuesto.asigna(supuesto);
    caso.Nombre.asigna(nombre);
    caso.NIF.asigna(nif);
    caso.NIFConyuge.asigna("");
    caso.AnioNacimiento = nacimiento;
    caso.SituacionFamiliar = 3;
    caso.Retribuciones = Retribuciones;
    caso.reservado.asigna("");
    return caso;
}

DatosRetencion exento() {
    DatosRetencion caso =
        persona("Ejemplo 1: aprendiz, exento y al 2 %", "Íñigo Vera Sanz", "00000001R", 1986, 6900);
    caso.TipoContrato = 1;
    caso.Gastos = 438.15;
    return caso;
}

/// The story of the manual.
DatosRetencion dosHijos() {
    DatosRetencion caso =
        persona("Ejemplo 2: dos hijos y el padre en casa", "Ana Mora Gil", "00000002W", 1965, 24000);
    caso.Gastos = 1524;
    caso.Hijos[0] = {1, 1998, 0, 0, 0};
    caso.Hijos[1] = {1, 2003, 0, 0, 0};
    caso.Ascendientes[0] = {1, 1928, 2, 0, {}};
    return caso;
}

DatosRetencion regularizacion() {
    DatosRetencion caso =
        persona("Ejemplo 3: sube el sueldo en julio", "Pablo Leal Ruiz", "00000003A", 1970, 30000);
    caso.Regularizacion = 1;
    caso.RetribucionAcumulada = 12000;
    caso.RetencionAcumulada = 1800;
    caso.RetribucionInicial = 24000;
    caso.RetencionInicial = 3600;
    caso.BaseA = 18200;
    caso.TipoA = 15;
    return caso;
}

DatosRetencion enCeuta() {
    DatosRetencion caso = persona("Ejemplo 4: en Ceuta, con discapacidad y un hijo adoptado",
                                  "Samira Haddad Ruiz", "00000004G", 1958, 30000);
    caso.CeutaMelilla = 1;
    caso.Discapacidad = 1;
    caso.GradoDiscapacidad = 1;
    caso.Gastos = 1905;
    caso.Hijos[0] = {1, 1999, 1, 2003, 1};
    return caso;
}

}  // namespace

void ejemplosIrpf(Almacen& directorio) {
    ArchivoSupuestos archivo{directorio, "RIRPF.nom", kDiseno.longitud()};
    for (const DatosRetencion& caso : {exento(), dosHijos(), regularizacion(), enCeuta()}) {
        archivo.agrega(kDiseno.escribe(caso));
    }
}
