#include "genera_tarifas/filas.h"

#include "foundations/values/ajustes.h"
#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"

namespace orvemo::tarifas {

namespace {

using capital::FicheroTarifa;
using capital::TopeHijo;

constexpr AjustesRegionales kConPunto{.marcaDecimal = '.', .marcaMiles = ','};

std::string aLaDerecha(std::string texto, int ancho) {
    const auto sitio = static_cast<std::size_t>(ancho);
    if (texto.size() < sitio) texto.insert(0, sitio - texto.size(), ' ');
    return texto;
}

std::string valor(double renta) {
    const double capital = renta * kPagosDeLaBase * (1 + kRecargo);
    const std::string texto = FormatoNumero(capital, "0.0000", kConPunto);
    if (texto.size() >= capital::kAnchoValor) throw DesbordeNumerico{capital};
    return aLaDerecha(texto, capital::kAnchoValor);
}

/// The whole file; `renta(edad, columna)` gives what each value is for, the columns counted from 1.
template <typename Renta>
std::string contenido(const FicheroTarifa& fichero, Renta renta) {
    std::string filas;
    for (int edad = fichero.primeraEdad; edad <= fichero.ultimaEdad; ++edad) {
        filas += aLaDerecha(std::to_string(edad), fichero.clave);
        for (int columna = 1; columna <= fichero.columnas; ++columna) filas += valor(renta(edad, columna));
        filas += kFinDeLinea;
    }
    return filas;
}

TopeHijo topeDe(int columna) {
    return columna == columnaDe(TopeHijo::Veintiuno) ? TopeHijo::Veintiuno : TopeHijo::Veintitres;
}

}  // namespace

std::vector<std::pair<std::string, std::string>> Ficheros(const Rentas& rentas) {
    std::vector<std::pair<std::string, std::string>> ficheros;
    const auto agrega = [&](const FicheroTarifa& fichero, auto renta) {
        ficheros.emplace_back(fichero.nombre, contenido(fichero, renta));
    };
    agrega(capital::kTarif1, [&](int x, int) { return rentas.Tarifa1(x); });
    agrega(capital::kTarif2, [&](int x, int) { return rentas.Tarifa2(x); });
    agrega(capital::kTarif3, [&](int x, int columna) { return rentas.Tarifa3(x, columna - 1); });
    agrega(capital::kTarif4, [&](int x, int columna) { return rentas.Tarifa4(x, topeDe(columna)); });
    agrega(capital::kTarif5, [&](int x, int columna) { return rentas.Tarifa5(x, columna); });
    agrega(capital::kTarif6, [&](int x, int columna) { return rentas.Tarifa6(x, columna - 1); });
    agrega(capital::kTarif7, [&](int x, int columna) { return rentas.Tarifa7(x, columna - 1); });
    for (const FicheroTarifa& fichero : capital::kTarif8) {
        const int primera = fichero.primeraEdad;
        agrega(fichero, [&](int x, int columna) { return rentas.Tarifa8(x, primera + columna - 1); });
    }
    agrega(capital::kTarif9, [&](int x, int columna) { return rentas.Tarifa9(x, topeDe(columna)); });
    return ficheros;
}

}  // namespace orvemo::tarifas
