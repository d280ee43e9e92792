#include <gmock/gmock.h>

#include <filesystem>

#include "catalogue/catalogo.h"
#include "foundations/values/textos.h"
#include "shell/apoyo_shell.h"
#include "shell/fondo_frm.h"
#include "shell/pantallas.h"
#include "shell/plano_menu.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The application directory as it ships, in memory.
class DatosDeFabrica : public testing::Test {
  protected:
    DatosDeFabrica() {
        const DirectorioAplicacion datos{ORVEMO_DATOS};
        for (const auto& entrada : std::filesystem::directory_iterator{ORVEMO_DATOS}) {
            const std::string nombre = entrada.path().filename().string();
            if (datos.existe(nombre)) mundo.almacen[nombre] = datos.leeTodo(nombre);
        }
    }

    EntornoFalso mundo;
    VistaProgramaFalsa vista;
};

TEST_F(DatosDeFabrica, ElMenuTieneLasOpcionesQueSeAbrenYNingunaMas) {
    const Pantallas pantallas = PantallasDelMenu(CalculadorasDelPrograma());
    Programa programa{mundo.entorno, pantallas, vista};
    programa.Inicia();

    EXPECT_EQ(mundo.valores.TituloPrograma,
              "PENSIONES ORVEMO - Simulador de prestaciones, retenciones y nóminas 2005");
    for (int i = 0; i < kOpcionFin; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        const OpcionMenu& opcion = programa.opciones()[indice];
        EXPECT_EQ(opcion.visible, pantallas[indice] != nullptr) << kOpciones[indice].rotulo;
        if (opcion.visible) programa.Opcion(i);
    }
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());

    std::vector<std::string_view> titulos;
    for (const Cabecera& cabecera : planoDelMenu(programa.opciones()).cabeceras)
        titulos.push_back(tituloDe(cabecera.materia));
    EXPECT_THAT(titulos, ElementsAre("Pensiones", "Subsidios y desempleo", "No contributivas",
                                     "Salarios e impuestos", "Consulta"));
}

TEST_F(DatosDeFabrica, CadaCapituloTieneLibrosConResumen) {
    FondoFrm frm{mundo.entorno};
    frm.Inicia();
    for (int i = 1; i <= kNumCapitulos; ++i) {
        frm.pulsa(frm.campo("FondoCap", i));
        EXPECT_THAT(mundo.mensajes.dichos, IsEmpty()) << i;
        for (int libro = 0; libro < static_cast<int>(frm.FondoLista.opciones().size()); ++libro) {
            frm.elige(frm.FondoLista, libro);
            EXPECT_FALSE(Recorta(frm.FondoLista.texto()).empty());
            EXPECT_FALSE(Recorta(frm.FondoTxt.texto()).empty()) << frm.FondoLista.texto();
        }
    }
}

}  // namespace
}  // namespace orvemo::pruebas
