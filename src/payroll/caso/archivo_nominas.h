#pragma once

#include <optional>

#include "cases/archivo_supuestos.h"
#include "foundations/values/almacen.h"
#include "payroll/caso/nomina_registro.h"

namespace orvemo::nomina {

inline constexpr const char* kFicheroNominas = "nominas.nom";

/// The payslips kept in "nominas.nom". Whatever can't be opened, read or written throws FicheroInaccesible.
class ArchivoNominas {
  public:
    explicit ArchivoNominas(Almacen& almacen);

    [[nodiscard]] RegistroNomina LeeCaso(int Numero) const;

    /// Writes over that record; with 0, over the first in use of the same `Nombre`. Gives its number; nothing
    /// is written, and nullopt given, when there is none.
    std::optional<int> GrabaCaso(int Numero, const RegistroNomina& Registro);

    /// Writes into the first free slot, or at the end, and gives its number.
    int AltaCaso(const RegistroNomina& Registro);

  private:
    ArchivoSupuestos archivo_;
};

}  // namespace orvemo::nomina
