#pragma once

#include "foundations/values/almacen.h"

/// Writes "jubila.nom".
void ejemplosJubilacion(orvemo::Almacen& directorio);

/// Writes "ILT.nom".
void ejemplosIncapacidadTemporal(orvemo::Almacen& directorio);

/// Writes "Mater.nom".
void ejemplosMaternidad(orvemo::Almacen& directorio);

/// Writes "RiesgoEm.nom".
void ejemplosRiesgoEmbarazo(orvemo::Almacen& directorio);

/// Writes "RIRPF.nom".
void ejemplosIrpf(orvemo::Almacen& directorio);

/// Writes "nominas.nom".
void ejemplosNominas(orvemo::Almacen& directorio);

/// Writes "Capit.nom".
void ejemplosCapital(orvemo::Almacen& directorio);

/// Writes "invalid.nom".
void ejemplosIncapacidad(orvemo::Almacen& directorio);

/// Writes "muerte.nom".
void ejemplosMuerte(orvemo::Almacen& directorio);
