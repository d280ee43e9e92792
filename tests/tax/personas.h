#pragma once

#include <utility>

#include "tax/datos_retencion.h"

namespace orvemo::irpf::pruebas {

constexpr std::uint8_t kGeneral = 0, kCorto = 1, kEspecial = 2;  // `TipoContrato`

/// Someone born in 1965, alone or in any other situation (3), with that pay.
inline DatosRetencion trabajador(double Retribuciones, std::uint8_t TipoContrato = kGeneral) {
    DatosRetencion datos;
    datos.AnioNacimiento = 1965;
    datos.SituacionFamiliar = 3;
    datos.Retribuciones = Retribuciones;
    datos.TipoContrato = TipoContrato;
    return datos;
}

/// The same, changed as told.
template <typename Cambio>
DatosRetencion con(DatosRetencion datos, Cambio cambio) {
    cambio(datos);
    return datos;
}

inline Hijo hijo(std::int16_t Nacimiento, std::uint8_t ComputoHijo = 1, std::int32_t Adopcion = 0,
                 std::uint8_t Discapacidad = 0) {
    return {1, Nacimiento, ComputoHijo, Adopcion, Discapacidad};
}

inline Ascendiente ascendiente(std::int16_t Nacimiento, std::uint8_t Convivencia = 1,
                               std::uint8_t Discapacidad = 0) {
    return {1, Nacimiento, Convivencia, Discapacidad, {}};
}

}  // namespace orvemo::irpf::pruebas
