#pragma once

#include <string>

#include "foundations/values/fechas.h"
#include "payroll/caso/estado_nomina.h"
#include "payroll/caso/nomina_registro.h"
#include "payroll/caso/opciones_impresion.h"
#include "printing/destino_impresion.h"

namespace orvemo::nomina {

/// What the printed forms tell.
struct DatosFormularios {
    const EstadoNomina& estado;
    const RegistroNomina& registro;
    const OpcionesImpresion& empresa;
    std::string Trabajador{};  ///< name of the worker
    Fecha hoy{};               ///< date on the receipt
};

/// Prints the official receipt of salaries on a page and ends the document. Throws FalloImpresion.
void ImprimeReciboSalarios(DestinoImpresion& destino, const DatosFormularios& datos);

/// Prints the "TC2-TC2/1 ABREVIADO" on a page and ends the document. Throws FalloImpresion.
void ImprimeTC2(DestinoImpresion& destino, const DatosFormularios& datos);

}  // namespace orvemo::nomina
