// Writes the "config.nom" that ships into the current directory: the options that open something are active,
// the others are absent, and they stand by subjects.
#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <string>

#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "shell/config_nom.h"
#include "shell/pantallas.h"

namespace {

using namespace orvemo;

/// The options from top to bottom, the left column first: pensions, short-term benefits and unemployment;
/// non-contributory benefits, salaries and taxes, the library. The last two places of the right column are
/// fixed.
constexpr std::array kPorMaterias{0, 1, 2, 8, 7, 6, 14, 5, 3, 4, 9, 11, 10, 12};

/// Number of the place of an option; blank for the one that is a switch.
std::string ordenDe(int indice) {
    const auto lugar = std::ranges::find(kPorMaterias, indice);
    return lugar == kPorMaterias.end() ? "" : std::to_string(lugar - kPorMaterias.begin() + 1);
}

constexpr const char* kTitulo = "PENSIONES ORVEMO - Simulador de prestaciones, retenciones y nóminas 2005";

RegistroConfig titulo() {
    RegistroConfig registro;
    registro.Numero = kNumeroTitulo;
    registro.Texto.asigna(kTitulo);
    registro.Orden.asigna("");
    return registro;
}

RegistroConfig opcion(int indice, bool activa) {
    RegistroConfig registro;
    registro.Numero = indice;
    registro.ponActiva(activa);
    registro.Texto.asigna("");
    registro.Orden.asigna(ordenDe(indice));
    return registro;
}

void escribe(Almacen& almacen) {
    const Pantallas pantallas = PantallasDelMenu(CalculadorasDelPrograma());
    std::array<RegistroConfig, kRegistrosConfig> registros{titulo()};
    for (int i = 0; i < kOpcionesConfig; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        const bool activa = i == kOpcionVerBaseActual || pantallas.at(indice) != nullptr;
        registros.at(indice + 1) = opcion(i, activa);
    }
    EscribeConfig(almacen, registros);
}

}  // namespace

int main() {
    try {
        DirectorioAplicacion aqui{"."};
        escribe(aqui);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "genera_config: %s\n", fallo.what());
        return 1;
    }
}
