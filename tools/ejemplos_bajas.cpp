#include "benefits/it/incapacidad_temporal_registro.h"
#include "benefits/maternidad/maternidad_registro.h"
#include "benefits/riesgo/riesgo_embarazo_registro.h"
#include "cases/archivo_supuestos.h"
#include "ejemplos.h"

using namespace orvemo;

void ejemplosIncapacidadTemporal(Almacen& directorio) {
    using incapacidad_temporal::kDiseno;
    ArchivoSupuestos archivo{directorio, "ILT.nom", kDiseno.longitud()};

    incapacidad_temporal::RegistroIncapacidad caso;
    caso.NombreSupuesto.asigna("Ejemplo 1: enfermedad con días de baja anteriores");
    caso.Nombre.asigna("Lucía Ferrer Mora");
    caso.fAlta = FechaDMA(15, 3, 2001);
    caso.DM = 1;
    caso.f1 = FechaDMA(3, 10, 2005);
    caso.f2 = FechaDMA(9, 11, 2005);
    caso.Bccant = 1350;
    caso.Prev = 5;
    caso.DSem.asigna("LMXJVSD");
    archivo.agrega(kDiseno.escribe(caso));

    caso.NombreSupuesto.asigna("Ejemplo 2: a tiempo parcial, lunes, miércoles y viernes");
    caso.Nombre.asigna("Andrés Lago Ruiz");
    caso.Situacion = 1;
    caso.Bccant = 0;
    caso.Prev = 0;
    caso.B12 = 2070;
    caso.D12 = 92;
    caso.HorasAno = 1040;
    caso.DSem.asigna("LXV");
    archivo.agrega(kDiseno.escribe(caso));
}

void ejemplosMaternidad(Almacen& directorio) {
    using maternidad::kDiseno;
    ArchivoSupuestos archivo{directorio, "Mater.nom", kDiseno.longitud()};

    maternidad::RegistroMaternidad caso;
    caso.NombreSupuesto.asigna("Ejemplo: media jornada a las ocho semanas");
    caso.Nombre.asigna("Marta Soler Vidal");
    caso.fAlta = FechaDMA(2, 9, 2002);
    caso.f1 = FechaDMA(9, 5, 2005);
    caso.f2 = FechaDMA(28, 8, 2005);
    caso.Bccant = 1260;
    caso.DM = 1;
    caso.D12 = 913;
    caso.jtpcnd = 1;
    caso.ftp = FechaDMA(4, 7, 2005);
    caso.ptp = 50;
    archivo.agrega(kDiseno.escribe(caso));
}

void ejemplosRiesgoEmbarazo(Almacen& directorio) {
    using riesgo_embarazo::kDiseno;
    ArchivoSupuestos archivo{directorio, "RiesgoEm.nom", kDiseno.longitud()};

    riesgo_embarazo::RegistroRiesgo caso;
    caso.NombreSupuesto.asigna("Ejemplo: contrato de 900 horas al año");
    caso.Nombre.asigna("Inés Pardo Gil");
    caso.Situacion = 1;
    caso.fAlta = FechaDMA(12, 1, 2004);
    caso.f1 = FechaDMA(7, 3, 2005);
    caso.f2 = FechaDMA(31, 7, 2005);
    caso.D12 = 900;
    caso.B12 = 2025;
    archivo.agrega(kDiseno.escribe(caso));
}
