#include <gmock/gmock.h>

#include <set>

#include "shell/apoyo_shell.h"
#include "shell/plano_menu.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A screen that tells what becomes of it.
class PantallaQueCuenta final : public Formulario {
  public:
    PantallaQueCuenta(Entorno& mundo, std::vector<std::string>& pedidos, const bool& falla)
        : Formulario{mundo}, pedidos_{pedidos}, falla_{falla} {
        pedidos_.emplace_back("se crea");
        ponTitulos("LA PANTALLA", "");
    }
    ~PantallaQueCuenta() override { pedidos_.emplace_back("se descarga"); }
    void Inicia() override {
        pedidos_.emplace_back("Inicia");
        if (falla_) throw FicheroMalFormado{"ipc.txt", 3, "falta un mes"};
    }

  private:
    std::vector<std::string>& pedidos_;
    const bool& falla_;
};

class ProgramaMenu : public testing::Test {
  protected:
    ProgramaMenu() {
        ponFotos(mundo.almacen);
        Pantallas pantallas;
        for (std::size_t i = 0; i < 15; ++i) {
            if (i == 1) continue;
            pantallas[i] = [this](Entorno& entorno) {
                return std::make_unique<PantallaQueCuenta>(entorno, vista.pedidos, falla);
            };
        }
        programa = std::make_unique<Programa>(mundo.entorno, std::move(pantallas), vista);
        programa->Inicia();
        vista.pedidos.clear();
    }

    void empiezaCon(const std::vector<std::pair<int, Opcion>>& opciones) {
        mundo.almacen["config.nom"] = fichero("x", opciones);
        programa->Inicia();
        vista.pedidos.clear();
    }

    EntornoFalso mundo;
    VistaProgramaFalsa vista;
    bool falla = false;
    std::unique_ptr<Programa> programa;
};

TEST_F(ProgramaMenu, CadaOpcionAbreSuPantallaASuManera) {
    const std::set<int> sinEspera{10, 12, 13};  // net to gross, library, information
    const std::set<int> enSuSitio{12, 13};
    for (int i = 0; i < 15; ++i) {
        if (i == 1) continue;
        vista.pedidos.clear();
        programa->Opcion(i);
        std::vector<std::string> esperado{"se crea", "Inicia"};
        if (!sinEspera.contains(i)) esperado = {"espera", "se crea", "Inicia", "fin de espera"};
        esperado.emplace_back(enSuSitio.contains(i) ? "muestra LA PANTALLA en su sitio"
                                                    : "muestra LA PANTALLA sobre el menú");
        esperado.emplace_back("se descarga");
        EXPECT_EQ(vista.pedidos, esperado) << kOpciones[static_cast<std::size_t>(i)].rotulo;
    }
}

TEST_F(ProgramaMenu, ElTextoDeUnaOpcionSeDiceEnVezDeAbrirla) {
    empiezaCon({{0, {0, "Vea la obra \"Pensiones\""}}, {2, {-1, "Activa y con texto"}}, {3, {-1}}});
    programa->Opcion(0);
    programa->Opcion(2);
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: Vea la obra \"Pensiones\"", "Error: Activa y con texto"));
    EXPECT_THAT(vista.pedidos, IsEmpty());
}

TEST_F(ProgramaMenu, UnaOpcionSinPantallaLoDice) {
    empiezaCon({{1, {-1}}});
    programa->Opcion(1);
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: La opción \"Incapacidad Permanente\" no está disponible en esta versión del "
                    "programa"));
    EXPECT_THAT(vista.pedidos, IsEmpty());
}

TEST_F(ProgramaMenu, UnaPantallaQueFallaAlIniciarseNoSeAbreYElMenuSigue) {
    falla = true;
    programa->Opcion(0);
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: No se ha podido completar la operación: el fichero \"ipc.txt\" no es correcto en "
                    "la línea 3 (falta un mes)."));
    EXPECT_THAT(vista.pedidos, ElementsAre("espera", "se crea", "Inicia", "se descarga", "fin de espera"));
}

TEST_F(ProgramaMenu, ElLogoAbreLaConfiguracionSoloSiNodoCueEstaEnEseMomento) {
    programa->LogoOrvemo();
    EXPECT_THAT(vista.pedidos, IsEmpty());

    mundo.almacen["Nodo.CUE"] = "";
    programa->LogoOrvemo();
    EXPECT_THAT(vista.pedidos,
                ElementsAre("espera", "fin de espera", "muestra CONFIGURACION DEL PROGRAMA en su sitio"));
}

TEST_F(ProgramaMenu, SeSalePreguntandoPorLaOpcionYSinPreguntarPorLaVentana) {
    mundo.mensajes.respuestas = {false, true};
    programa->Opcion(15);
    EXPECT_FALSE(mundo.valores.FinPrograma);
    EXPECT_THAT(vista.pedidos, IsEmpty());

    programa->Opcion(15);
    EXPECT_TRUE(mundo.valores.FinPrograma);
    EXPECT_THAT(vista.pedidos, ElementsAre("descarga"));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Confirma: ¿Desea abandonar el programa?",
                                                   "Confirma: ¿Desea abandonar el programa?"));

    mundo.valores.FinPrograma = false;
    programa->alDescargar();
    EXPECT_TRUE(mundo.valores.FinPrograma);
    EXPECT_EQ(mundo.mensajes.dichos.size(), 2U) << "no question";
}

TEST(Menu, LosPuestosEstanEnDosColumnas) {
    struct Caso {
        int orden, left, top;
    };
    const Caso casos[] = {{1, 135, 1305},   {2, 135, 1890},   {8, 135, 5400},   {9, 7380, 1305},
                          {16, 7380, 5400}, {-3, 135, -1035}, {99, 7380, 53955}};
    for (const Caso& caso : casos) {
        const Puesto puesto = puestoDeOrden(caso.orden);
        EXPECT_EQ(puesto.left(), caso.left) << caso.orden;
        EXPECT_EQ(puesto.top(), caso.top) << caso.orden;
    }
}

// What asks for a place of its own may part a subject or cover another option: then no heading would be true.
TEST_F(ProgramaMenu, LasMateriasSeRotulanDondeElOrdenLasJunta) {
    const struct {
        const char* cuando;
        std::vector<std::pair<int, Opcion>> opciones;
        std::vector<Cabecera> cabeceras;
    } casos[] = {
        {"one of each, a hole between",
         {{0, {-1}}, {5, {-1, "", "3"}}},
         {{Materia::Pensiones, Columna::Izquierda, 855},
          {Materia::Subsidios, Columna::Izquierda, 2245},
          {Materia::Consulta, Columna::Derecha, 4215}}},
        {"a pension below the unemployment", {{0, {-1}}, {5, {-1, "", "3"}}, {1, {-1, "", "4"}}}, {}},
        {"a pension in the other column", {{0, {-1}}, {8, {-1}}}, {}},
        {"one over another", {{0, {-1}}, {1, {-1, "", "1"}}}, {}},
        {"one off the panel", {{0, {-1, "", "-3"}}}, {}},
    };
    for (const auto& caso : casos) {
        empiezaCon(caso.opciones);
        const PlanoMenu plano = planoDelMenu(programa->opciones());
        EXPECT_EQ(plano.cabeceras, caso.cabeceras) << caso.cuando;
        const int esperado =
            caso.cabeceras.empty() ? programa->opciones()[0].puesto.top() : 855 + kAltoCabecera;
        EXPECT_EQ(plano.top[0], esperado) << caso.cuando;
    }
}

}  // namespace
}  // namespace orvemo::pruebas
