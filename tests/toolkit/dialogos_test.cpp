// The windows that save and load cases.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QListWidget>

#include "toolkit/vista_dialogos.h"
#include "ventana.h"

namespace orvemo::pruebas {
namespace {

constexpr std::size_t kLongitud = 297;

/// A file with three cases and a user before the window of one of the dialogs.
struct DialogosTest : ::testing::Test {
    DialogosTest() {
        for (const char* nombre : {"Pérez", "Álvarez", "Núñez"}) {
            std::string caso(kLongitud, ' ');
            const std::string escrito = A1252(nombre);
            caso.replace(1, escrito.size(), escrito);
            mundo.falso.almacen["desemp.nom"] += caso;
        }
    }

    template <typename Vista, typename Dialogo>
    void abre(Dialogo& dialogo) {
        auto nueva = std::make_unique<Vista>(dialogo, nullptr);
        vista = std::move(nueva);
        vista->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(vista.get()));
    }
    QListWidget& lista() { return *vista->findChild<QListWidget*>(QStringLiteral("ListaSupuestos")); }
    QAbstractButton& boton(const char* nombre) {
        return *vista->findChild<QAbstractButton*>(QLatin1String{nombre});
    }
    std::vector<std::string> entradas() {
        std::vector<std::string> textos;
        for (int i = 0; i < lista().count(); ++i) textos.push_back(deQt(lista().item(i)->text()));
        return textos;
    }
    void tecla(Qt::Key codigo) {
        QTest::keyClick(vista->focusWidget(), codigo);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !vista->isVisible() || vista->isActiveWindow(); }));
    }
    void clicEn(int fila, bool doble = false) {
        const QPoint sitio = lista().visualItemRect(lista().item(fila)).center();
        QTest::mouseClick(lista().viewport(), Qt::LeftButton, {}, sitio);
        if (doble) QTest::mouseDClick(lista().viewport(), Qt::LeftButton, {}, sitio);
    }

    MundoDeVentanas mundo;
    CargaSupuesto carga{mundo.falso.almacen, mundo.mensajes, "desemp.nom", kLongitud, 1};
    GrabaSupuesto graba{mundo.falso.almacen, mundo.mensajes, "desemp.nom", kLongitud, 1};
    std::unique_ptr<QDialog> vista;
};

TEST_F(DialogosTest, LoadingByKeyboardByButtonAndByDoubleClick) {
    struct {
        const char* cuento;
        void (*elige)(DialogosTest&);
        int registro;
    } const casos[] = {
        {"Enter on the first, which comes chosen", [](DialogosTest& t) { t.tecla(Qt::Key_Return); }, 2},
        {"down and Enter", [](DialogosTest& t) { t.tecla(Qt::Key_Down), t.tecla(Qt::Key_Return); }, 3},
        {"a click and the button", [](DialogosTest& t) { t.clicEn(2), t.boton("BotonCargar").click(); }, 1},
        {"a double click", [](DialogosTest& t) { t.clicEn(0, true); }, 2},
        {"Escape", [](DialogosTest& t) { t.tecla(Qt::Key_Down), t.tecla(Qt::Key_Escape); }, 0},
        {"the button that cancels", [](DialogosTest& t) { t.clicEn(0), t.boton("BotonCancelar").click(); },
         0},
        {"the title bar", [](DialogosTest& t) { t.clicEn(0), t.vista->close(); }, 0},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.cuento);
        CargaSupuesto dialogo{mundo.falso.almacen, mundo.mensajes, "desemp.nom", kLongitud, 1};
        dialogo.Inicia();
        abre<VistaCargaSupuesto>(dialogo);
        EXPECT_THAT(entradas(), ::testing::ElementsAre("Álvarez", "Núñez", "Pérez"));
        caso.elige(*this);
        EXPECT_FALSE(vista->isVisible());
        EXPECT_EQ(dialogo.Registro(), caso.registro);
        vista.reset();
    }
}

TEST_F(DialogosTest, WithoutACaseThereIsNothingToLoadOrErase) {
    mundo.falso.almacen.ficheros.erase("desemp.nom");
    carga.Inicia();
    abre<VistaCargaSupuesto>(carga);
    tecla(Qt::Key_Return);
    EXPECT_TRUE(vista->isVisible());
    EXPECT_FALSE(boton("BotonCargar").isEnabled());
    EXPECT_FALSE(boton("BotonBorrar").isEnabled());
    boton("BotonCancelar").setFocus();
    tecla(Qt::Key_Return);
    EXPECT_FALSE(vista->isVisible()) << "Enter presses the button that has the focus";
    vista.reset();
}

TEST_F(DialogosTest, TheDeleteKeyErasesAfterAsking) {
    carga.Inicia();
    abre<VistaCargaSupuesto>(carga);
    mundo.usuario.respuestas = {"No", "Sí"};
    tecla(Qt::Key_Delete);
    EXPECT_EQ(lista().count(), 3);
    tecla(Qt::Key_Delete);
    EXPECT_THAT(entradas(), ::testing::ElementsAre("Núñez", "Pérez"));
    EXPECT_THAT(mundo.usuario.leido, ::testing::Each("Confirmación: ¿Borrar el supuesto?"));
    EXPECT_TRUE(lista().selectedItems().isEmpty());
    EXPECT_FALSE(boton("BotonCargar").isEnabled());
    vista.reset();
}

TEST_F(DialogosTest, AClickOnTheListCopiesTheNameAndGoesOnInIt) {
    graba.Inicia(" Gómez ");
    abre<VistaGrabaSupuesto>(graba);
    auto& nombre = *vista->findChild<QLineEdit*>(QStringLiteral("Nombre"));
    EXPECT_EQ(deQt(nombre.selectedText()), "Gómez");
    QTest::keyClick(&nombre, Qt::Key_Tab);
    EXPECT_EQ(deQt(nombre.text()), "Gómez") << "passing by the list copies nothing";
    tecla(Qt::Key_Down);
    EXPECT_EQ(deQt(nombre.text()), "Álvarez");
    EXPECT_TRUE(lista().hasFocus()) << "the arrows stay on the list";
    clicEn(1);
    EXPECT_EQ(deQt(nombre.text()), "Núñez");
    EXPECT_TRUE(nombre.hasFocus());
    nombre.setText(QStringLiteral("otro"));
    clicEn(1);
    EXPECT_EQ(deQt(nombre.text()), "Núñez") << "copied again though already chosen";
    vista.reset();
}

TEST_F(DialogosTest, TheButtonThatSavesNeedsAName) {
    graba.Inicia("");
    abre<VistaGrabaSupuesto>(graba);
    auto& nombre = *vista->findChild<QLineEdit*>(QStringLiteral("Nombre"));
    EXPECT_FALSE(boton("BotonGrabar").isEnabled());
    escribe("   ");
    EXPECT_FALSE(boton("BotonGrabar").isEnabled());
    escribe("Gómez");
    EXPECT_TRUE(boton("BotonGrabar").isEnabled());
    nombre.setText(QString(200, QLatin1Char('x')));
    EXPECT_EQ(nombre.text().size(), 80);
    nombre.setText(QStringLiteral("Gómez"));
    tecla(Qt::Key_Return);
    EXPECT_FALSE(vista->isVisible());
    EXPECT_EQ(graba.Registro(), kRegistroNuevo);
    vista.reset();
}

TEST_F(DialogosTest, ARefusedOverwriteIsUndoneByCancellingButNotByTheTitleBar) {
    struct {
        const char* cuento;
        void (*sale)(DialogosTest&);
        int registro;
    } const casos[] = {
        {"the button", [](DialogosTest& t) { t.boton("BotonCancelar").click(); }, 0},
        {"Escape", [](DialogosTest& t) { t.tecla(Qt::Key_Escape); }, 0},
        {"the title bar", [](DialogosTest& t) { t.vista->close(); }, 3},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.cuento);
        GrabaSupuesto dialogo{mundo.falso.almacen, mundo.mensajes, "desemp.nom", kLongitud, 1};
        dialogo.Inicia("Núñez");
        abre<VistaGrabaSupuesto>(dialogo);
        mundo.usuario.respuestas = {"No"};
        boton("BotonGrabar").click();
        EXPECT_EQ(mundo.usuario.leido.back(), "Confirmación: ¿Desea sobreescribir el antigüo supuesto?");
        EXPECT_TRUE(vista->isVisible());
        caso.sale(*this);
        EXPECT_FALSE(vista->isVisible());
        EXPECT_EQ(dialogo.Registro(), caso.registro);
        vista.reset();
    }
}

TEST_F(DialogosTest, TheTipsAreTheToldOnes) {
    graba.Inicia("");
    abre<VistaGrabaSupuesto>(graba);
    EXPECT_EQ(deQt(boton("BotonGrabar").toolTip()), "Confirma grabación");
    EXPECT_EQ(deQt(boton("BotonCancelar").toolTip()), "Cancela grabación");
    EXPECT_EQ(deQt(boton("BotonBorrar").toolTip()), "Borra supuesto seleccionado");
    carga.Inicia();
    abre<VistaCargaSupuesto>(carga);
    EXPECT_EQ(deQt(boton("BotonCargar").toolTip()), "Carga el supuesto ");
    EXPECT_EQ(deQt(boton("BotonCancelar").toolTip()), "Cancela lectura");
    EXPECT_EQ(deQt(boton("BotonBorrar").toolTip()), "Borra el supuesto");
    vista.reset();
}

// --- Message boxes

TEST_F(DialogosTest, BoxesHaveTheirTitlesAndYesIsPreselected) {
    mundo.mensajes.Informa("Impresión terminada");
    mundo.mensajes.ComunicaError("Con <b>letras</b> & signos");
    EXPECT_TRUE(mundo.mensajes.Confirma("¿Sigue?"));
    mundo.usuario.respuestas = {"No"};
    EXPECT_FALSE(mundo.mensajes.Confirma("¿Y ahora?"));
    mundo.usuario.cierraCajas = true;
    EXPECT_FALSE(mundo.mensajes.Confirma("¿Cerrada?")) << "Escape is No";
    EXPECT_THAT(
        mundo.usuario.leido,
        ::testing::ElementsAre("Mensaje informativo: Impresión terminada",
                               "Comunicación de error: Con <b>letras</b> & signos", "Confirmación: ¿Sigue?",
                               "Confirmación: ¿Y ahora?", "Confirmación: ¿Cerrada?"));
}

}  // namespace
}  // namespace orvemo::pruebas
