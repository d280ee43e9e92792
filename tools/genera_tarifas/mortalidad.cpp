#include "genera_tarifas/mortalidad.h"

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::tarifas {

namespace {

constexpr const char* kFichero = "mortalidad.csv";

/// The columns in use of one row, as texts.
struct Fila {
    std::string edad, qx, qxIncapacidad, qxViudedad;
};

Fila leeFila(std::string linea) {
    Fila fila;
    fila.edad = CortaCampo(linea, ",");
    fila.qx = CortaCampo(linea, ",");
    static_cast<void>(CortaCampo(linea, ","));  // lx
    static_cast<void>(CortaCampo(linea, ","));  // qx_jubilacion
    fila.qxIncapacidad = CortaCampo(linea, ",");
    fila.qxViudedad = CortaCampo(linea, ",");
    return fila;
}

double probabilidad(const std::string& texto, int edad) {
    const double q = LeeNumero(texto);
    const bool posible = !texto.empty() && q > 0 && q <= 1;
    const bool acaba = edad < kUltimaEdad || q == 1;
    if (posible && acaba) return q;
    throw FicheroMalFormado{kFichero, edad + 2, '"' + texto + "\" no es una probabilidad"};
}

}  // namespace

Mortalidad LeeMortalidad(std::string csv) {
    static_cast<void>(CortaCampo(csv, "\n"));  // names of the columns
    TablaMortalidad::Probabilidades vidas{}, hijos{}, invalidos{};
    for (int edad = 0; edad <= kUltimaEdad; ++edad) {
        const Fila fila = leeFila(CortaCampo(csv, "\n"));
        if (fila.edad != std::to_string(edad)) {
            throw FicheroMalFormado{kFichero, edad + 2, "no es la edad que sigue"};
        }
        const auto i = static_cast<std::size_t>(edad);
        hijos[i] = probabilidad(fila.qx, edad);
        vidas[i] = edad < kPrimeraEdadViudedad ? hijos[i] : probabilidad(fila.qxViudedad, edad);
        invalidos[i] = edad < kPrimeraEdadIncapacidad ? hijos[i] : probabilidad(fila.qxIncapacidad, edad);
    }
    return {TablaMortalidad{vidas}, TablaMortalidad{hijos}, TablaMortalidad{invalidos}};
}

}  // namespace orvemo::tarifas
