#include <gmock/gmock.h>

#include <set>

#include "shell/apoyo_shell.h"

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

}  // namespace
}  // namespace orvemo::pruebas
