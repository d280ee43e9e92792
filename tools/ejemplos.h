#pragma once

#include "foundations/values/almacen.h"

/// Writes "jubila.nom".
void ejemplosJubilacion(orvemo::Almacen& directorio);
