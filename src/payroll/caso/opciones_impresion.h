#pragma once

#include "cases/registro.h"
#include "foundations/values/almacen.h"

namespace orvemo::nomina {

inline constexpr std::string_view kFicheroOpciones = "opciones.nom";

/// The company that the printed forms tell, as it lies in "opciones.nom".
struct OpcionesImpresion {
    Texto<40> DatosEmpresa;
    Texto<40> DatosDomicilio;
    Texto<11> DatosCif;
    Texto<14> DatosCuentaSS;
};

inline constexpr Diseno kDisenoOpciones{105, Tramo{0, "DatosEmpresa", &OpcionesImpresion::DatosEmpresa},
                                        Tramo{40, "DatosDomicilio", &OpcionesImpresion::DatosDomicilio},
                                        Tramo{80, "DatosCif", &OpcionesImpresion::DatosCif},
                                        Tramo{91, "DatosCuentaSS", &OpcionesImpresion::DatosCuentaSS}};

/// Record 1 of the file, which is created empty if absent; what it lacks reads as blank. Throws
/// FicheroInaccesible.
[[nodiscard]] OpcionesImpresion LeeOpciones(Almacen& almacen);

/// Writes record 1; a failure leaves the file as it was. Throws FicheroInaccesible.
void GrabaOpciones(Almacen& almacen, const OpcionesImpresion& opciones);

}  // namespace orvemo::nomina
