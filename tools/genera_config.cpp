// Writes the "config.nom" that ships into the current directory: the options that open something are active,
// the others are absent, and all keep their default places.
#include <array>
#include <cstdio>
#include <exception>

#include "catalogue/catalogo.h"
#include "foundations/values/almacen.h"
#include "shell/config_nom.h"
#include "shell/pantallas.h"

namespace {

using namespace orvemo;

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
    registro.Orden.asigna("");
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
