#include "catalogue/catalogo.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "apoyo/entorno_falso.h"
#include "shell/menu.h"

namespace orvemo::pruebas {
namespace {

TEST(Catalogo, CadaCalculadoraTieneSuNombreSuOpcionYSuFichero) {
    EntornoFalso mundo;
    std::set<std::string_view> claves, ficheros;
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        SCOPED_TRACE(entrada.clave);
        EXPECT_TRUE(claves.insert(entrada.clave).second);
        EXPECT_EQ(std::ranges::count(kOpciones, entrada.pantalla, &DefOpcion::pantalla), 1);
        EXPECT_FALSE(entrada.abre(mundo.entorno)->Titulo().empty());
        if (entrada.registro.abre == nullptr) continue;
        const auto calculadora = entrada.registro.abre(mundo.entorno);
        EXPECT_TRUE(ficheros.insert(entrada.registro.fichero).second);
        EXPECT_EQ(calculadora->fichero(), entrada.registro.fichero);
        EXPECT_EQ(calculadora->longitudRegistro(), entrada.registro.longitud);
        EXPECT_TRUE(entrada.ejemplos.empty() || entrada.ejemplos.ends_with(entrada.registro.fichero));
    }
}

}  // namespace
}  // namespace orvemo::pruebas
