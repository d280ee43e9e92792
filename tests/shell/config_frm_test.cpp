#include "shell/config_frm.h"

#include <gmock/gmock.h>

#include "shell/apoyo_shell.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConfigFrmPrueba : public testing::Test {
  protected:
    std::string opcion(int i) {
        const Campo& obra = frm.campo("Obra", i);
        return std::string{frm.campo("Opciones", i).marcado() ? "[x] " : "[ ] "} +
               frm.campo("Opciones", i).rotulo() + " |" + frm.campo("Orden", i).texto() + "|" +
               (obra.visible() ? obra.texto() : "(oculta)");
    }
    void genera() { ASSERT_TRUE(frm.pulsa(frm.BotonCDROM)); }

    EntornoFalso mundo;
    ConfigFrm frm{mundo.entorno};
};

TEST_F(ConfigFrmPrueba, LeeElFicheroEnSusControles) {
    mundo.almacen["config.nom"] = fichero("  PENSIONES 2005", {{0, {-1, "", "3"}},
                                                               {1, {0, "  En la obra 1\xBA ", " 9"}},
                                                               {7, {1, "Queda oculta", "12"}},
                                                               {13, {-1}}});
    frm.Inicia();

    EXPECT_EQ(frm.Titulo(), "CONFIGURACION DEL PROGRAMA");
    EXPECT_EQ(frm.TituloPrograma.texto(), "  PENSIONES 2005");
    std::vector<std::string> opciones;
    for (int i = 0; i < 15; ++i) opciones.push_back(opcion(i));
    EXPECT_THAT(opciones, ElementsAre("[x] Jubilación |3 |(oculta)",                   //
                                      "[ ] Incapacidad Permanente | 9|En la obra 1º",  //
                                      "[ ] Muerte y Supervivencia |  |",               //
                                      "[ ] Pensión No Contributiva |  |",              //
                                      "[ ] Protección Familiar |  |",                  //
                                      "[ ] Desempleo |  |",                            //
                                      "[ ] Maternidad |  |",                           //
                                      "[x] Incapacidad Termporal |12|(oculta)",        //
                                      "[ ] Capitalización de Pensiones |  |",          //
                                      "[ ] Nóminas |  |",                              //
                                      "[ ] Conversión Líquidos/Brutos |  |",           //
                                      "[ ] Retenciones de IRPF |  |",                  //
                                      "[ ] Fondo Bibliográfico |  |",                  //
                                      "[x] Pensiones Futuras |  |(oculta)",            //
                                      "[ ] Riesgo embarazo |  |"));
}

TEST_F(ConfigFrmPrueba, SinFicheroTodoEstaEnBlancoYElFicheroSeCreaVacio) {
    frm.Inicia();
    EXPECT_EQ(frm.TituloPrograma.texto(), "");
    for (int i = 0; i < 15; ++i) EXPECT_FALSE(frm.campo("Opciones", i).marcado());
    EXPECT_EQ(opcion(14), "[ ] Riesgo embarazo ||");
    EXPECT_TRUE(mundo.almacen.existe("config.nom"));
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(ConfigFrmPrueba, EscribeLosDieciseisRegistros) {
    mundo.almacen["config.nom"] = fichero("Antes", {{0, {-1, "Con texto", "4"}}, {14, {-1, "", "7"}}});
    frm.Inicia();
    frm.escribe(frm.TituloPrograma, "Después, más");
    frm.escribe(frm.campo("Obra", 2), "Se pierde");
    frm.marca(frm.campo("Opciones", 2), true);
    EXPECT_EQ(opcion(2), "[x] Muerte y Supervivencia |  |(oculta)");
    frm.marca(frm.campo("Opciones", 14), false);
    EXPECT_EQ(opcion(14), "[ ] Riesgo embarazo |7 |");
    frm.escribe(frm.campo("Orden", 2), " 5");
    frm.escribe(frm.campo("Orden", 3), "123");
    frm.escribe(frm.campo("Obra", 3), "Vea la obra nº 2");
    genera();

    // Record 1 keeps the mark and the order that stood in the buffer: those of the last record read.
    std::string esperado = registroConfig(999, -1, "Despu\xE9s, m\xE1s", "7");
    for (std::uint32_t i = 0; i < 15; ++i) {
        const bool activa = i == 0 || i == 2;
        const std::string orden[15] = {"4", "", "5", "12", "", "", "", "", "", "", "", "", "", "", "7"};
        esperado += registroConfig(i, activa ? -1 : 0, i == 3 ? "Vea la obra n\xBA 2" : "", orden[i]);
    }
    EXPECT_EQ(mundo.almacen["config.nom"], esperado);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty()) << "neither question nor message";
    EXPECT_FALSE(frm.oculto());
}

TEST_F(ConfigFrmPrueba, LoQueNoCabeNoEntra) {
    frm.Inicia();
    frm.escribe(frm.TituloPrograma, std::string(10000, 'a'));
    frm.escribe(frm.campo("Orden", 0), "10000");
    frm.escribe(frm.campo("Obra", 0), std::string(300, 'o'));
    EXPECT_EQ(frm.TituloPrograma.texto().size(), 248U);
    EXPECT_EQ(frm.campo("Orden", 0).texto(), "10");
    EXPECT_EQ(frm.campo("Obra", 0).texto().size(), 248U);
}

TEST_F(ConfigFrmPrueba, SiNoSePuedeEscribirLoDiceYDejaElFicheroComoEstaba) {
    const std::string antes = fichero("Antes", {{0, {-1}}});
    mundo.almacen["config.nom"] = antes;
    frm.Inicia();
    mundo.almacen.soloLectura = true;
    genera();
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre(
            "Error: No se ha podido completar la operación: el fichero \"config.nom\" no se puede usar "
            "(no se puede escribir)."));

    mundo.almacen.soloLectura = false;
    mundo.almacen.sitio = 4095;
    genera();
    EXPECT_EQ(mundo.mensajes.dichos.size(), 2U);
    EXPECT_EQ(mundo.almacen["config.nom"], antes);
}

TEST_F(ConfigFrmPrueba, BotonExitEsconde) {
    frm.Inicia();
    frm.pulsa(frm.BotonExit);
    EXPECT_TRUE(frm.oculto());
}

}  // namespace
}  // namespace orvemo::pruebas
