// The main window: cover, menu, opening and leaving.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "formulario_de_prueba.h"
#include "shell/config_nom.h"
#include "shell/programa.h"
#include "toolkit/boton_logo.h"
#include "toolkit/boton_opcion.h"
#include "toolkit/medidas.h"
#include "toolkit/portada.h"
#include "toolkit/vista_menu.h"
#include "ventana.h"

namespace orvemo::pruebas {
namespace {

using namespace std::chrono_literals;

class MenuTest : public ::testing::Test {
  protected:
    MenuTest() {
        std::array<RegistroConfig, kRegistrosConfig> registros;
        registros.front().Texto.asigna("Programa de prueba");
        for (std::size_t i = 1; i < registros.size(); ++i) registros[i].ponActiva(true);
        EscribeConfig(mundo.falso.almacen, registros);
        for (Abridor& abridor : pantallas) {
            abridor = [](Entorno& entorno) { return std::make_unique<FormularioDePrueba>(entorno); };
        }
    }

    /// Starts the program without its cover.
    void empieza() {
        programa = std::make_unique<Programa>(mundo.entorno, pantallas, sinPortada);
        programa->Inicia();
        vista.muestra(*programa);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
    }
    BotonOpcion& opcion(int indice) {
        return *vista.findChild<BotonOpcion*>(QStringLiteral("Opcion%1").arg(indice));
    }
    /// Index of the option that has the focus, -1 for none.
    static int foco() {
        const auto* boton = dynamic_cast<const BotonOpcion*>(QApplication::focusWidget());
        return boton == nullptr ? -1 : boton->indice();
    }
    static void tecla(Qt::Key codigo) { QTest::keyClick(QApplication::focusWidget(), codigo); }
    /// Does something in the screen that is about to open, and closes it.
    void cuandoAbra(const std::function<void(VistaFormulario&)>& hace) {
        QTimer::singleShot(20, &vista, [this, hace] {
            auto* abierta = dynamic_cast<VistaFormulario*>(QApplication::activeModalWidget());
            ASSERT_NE(abierta, nullptr);
            ++abiertas;
            hace(*abierta);
            abierta->close();
        });
    }

    /// The window's own answers, but for the cover, which takes a second.
    struct SinPortada final : VistaPrograma {
        explicit SinPortada(VistaMenu& menu) : vista{menu} {}
        void muestraPortada(const std::string&, std::chrono::milliseconds) override {}
        void cargaMenuFoto(const std::string& foto) override { vista.cargaMenuFoto(foto); }
        Imagen cargaLogoOrvemo(const std::string& foto) override { return vista.cargaLogoOrvemo(foto); }
        void centraMenu() override { vista.centraMenu(); }
        void ponCaption(const std::string& caption) override { vista.ponCaption(caption); }
        void cursorEspera(bool espera) override { vista.cursorEspera(espera); }
        void muestraModal(Formulario& pantalla, bool sobre) override { vista.muestraModal(pantalla, sobre); }
        void descarga() override { vista.descarga(); }
        VistaMenu& vista;
    };

    MundoDeVentanas mundo;
    Pantallas pantallas;
    VistaMenu vista{mundo.falso.almacen};
    SinPortada sinPortada{vista};
    std::unique_ptr<Programa> programa;
    int abiertas = 0;
};

TEST_F(MenuTest, TheSixteenOptionsStandInTwoColumnsAtTheirTwips) {
    empieza();
    EXPECT_EQ(deQt(vista.windowTitle()), "Programa de prueba");
    struct {
        int indice, left, top;
        const char* rotulo;
    } const casos[] = {{0, 135, 1305, "Jubilación"},
                       {4, 135, 3645, "Prestaciones Familiares no ContrIbutivas"},
                       {14, 135, 5400, "Riesgo Embarazo"},
                       {7, 7380, 1305, "Incapacidad Temporal"},
                       {15, 7380, 5400, "&Fin del Programa"}};
    for (const auto& caso : casos) {
        const BotonOpcion& boton = opcion(caso.indice);
        EXPECT_EQ(boton.geometry(), QRect(px(caso.left), px(caso.top), px(2000), px(500))) << caso.rotulo;
        EXPECT_EQ(deQt(boton.text()), caso.rotulo);
        EXPECT_TRUE(boton.isVisible());
    }
}

TEST_F(MenuTest, TheMenuStaysInTheMiddleOfTheWindow) {
    empieza();
    for (const QSize talla : {QSize{790, 700}, QSize{800, 795}}) {
        vista.resize(talla);
        QTest::qWait(1);
        const QWidget* menu = opcion(0).parentWidget();
        const QPoint centro = menu->mapTo(&vista, menu->rect().center());
        EXPECT_NEAR(centro.x(), vista.rect().center().x(), 1);
        EXPECT_NEAR(centro.y(), vista.rect().center().y(), 1);
    }
}

TEST_F(MenuTest, ArrowsAndTabWalkThroughTheVisibleOptions) {
    std::array<RegistroConfig, kRegistrosConfig> registros;
    for (const int indice : {0, 5, 7, 9}) {
        registros[static_cast<std::size_t>(registroDeOpcion(indice)) - 1].ponActiva(true);
    }
    EscribeConfig(mundo.falso.almacen, registros);
    empieza();
    EXPECT_EQ(foco(), 0);
    struct {
        Qt::Key tecla;
        int llega;
    } const pasos[] = {
        {Qt::Key_Up, 0},    {Qt::Key_Down, 5}, {Qt::Key_Down, 5}, {Qt::Key_Right, 13}, {Qt::Key_Up, 9},
        {Qt::Key_Right, 9}, {Qt::Key_Up, 7},   {Qt::Key_Left, 0}, {Qt::Key_Tab, 5},    {Qt::Key_Tab, 7},
        {Qt::Key_Tab, 9},   {Qt::Key_Tab, 13}, {Qt::Key_Tab, 15}, {Qt::Key_Tab, 0},    {Qt::Key_Backtab, 15},
    };
    for (const auto& paso : pasos) {
        tecla(paso.tecla);
        EXPECT_EQ(foco(), paso.llega) << "after step " << &paso - pasos;
    }
}

TEST_F(MenuTest, AnOptionOpensItsScreenExactlyOverTheMenu) {
    empieza();
    for (const Qt::Key codigo : {Qt::Key_Return, Qt::Key_Space}) {
        opcion(5).setFocus();
        cuandoAbra([&](VistaFormulario& abierta) {
            EXPECT_EQ(abierta.pos(), vista.pos());
            EXPECT_EQ(abierta.size(), vista.size());
        });
        tecla(codigo);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
        EXPECT_EQ(foco(), 5) << "the menu goes on where it was left";
    }
    EXPECT_EQ(abiertas, 2);
}

TEST_F(MenuTest, TheLogoIsReachedByTabOnlyWhileItsMarkerFileIsThere) {
    empieza();
    auto& logo = *vista.findChild<BotonLogo*>();
    EXPECT_EQ(logo.focusPolicy(), Qt::NoFocus);
    logo.click();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    mundo.falso.almacen["nodo.cue"];
    cuandoAbra([](VistaFormulario& abierta) {
        EXPECT_EQ(deQt(abierta.windowTitle()), "CONFIGURACION DEL PROGRAMA");
    });
    logo.click();
    EXPECT_EQ(abiertas, 1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
    EXPECT_EQ(logo.focusPolicy(), Qt::TabFocus) << "seen on coming back to the menu";
}

TEST_F(MenuTest, LeavingAsksByTheOptionAndNotByTheTitleBar) {
    empieza();
    mundo.usuario.respuestas = {"No", "Sí"};
    opcion(15).click();
    EXPECT_TRUE(vista.isVisible());
    EXPECT_FALSE(mundo.falso.valores.FinPrograma);
    opcion(15).click();
    EXPECT_FALSE(vista.isVisible());
    EXPECT_TRUE(mundo.falso.valores.FinPrograma);
    EXPECT_THAT(mundo.usuario.leido, ::testing::ElementsAre("Confirmación: ¿Desea abandonar el programa?",
                                                            "Confirmación: ¿Desea abandonar el programa?"));
    mundo.falso.valores.FinPrograma = false;
    vista.show();
    vista.close();
    EXPECT_TRUE(mundo.falso.valores.FinPrograma);
    EXPECT_EQ(mundo.usuario.leido.size(), 2U);
}

TEST_F(MenuTest, NothingButItsTimeEndsTheCover) {
    QTimer::singleShot(20, [] {
        QWidget* portada = QApplication::activeModalWidget();
        ASSERT_NE(portada, nullptr);
        EXPECT_EQ(deQt(portada->objectName()), "Survey");
        QTest::keyClick(portada, Qt::Key_Escape);
        QTest::keyClick(portada, Qt::Key_Return);
        QTest::mouseClick(portada, Qt::LeftButton);
        portada->close();
        EXPECT_TRUE(portada->isVisible());
    });
    QElapsedTimer reloj;
    reloj.start();
    vista.muestraPortada("portada.bmp", 150ms);
    EXPECT_GE(reloj.elapsed(), 149);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace orvemo::pruebas
