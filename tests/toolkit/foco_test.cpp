// Leaving a field whose check fails, in every way in which a user can try.
#include <gtest/gtest.h>

#include "benefits/desempleo/desemp_frm.h"
#include "formulario_de_prueba.h"
#include "ventana.h"

namespace orvemo::pruebas {
namespace {

using VentanaDePrueba = Ventana<FormularioDePrueba>;

struct Salida {
    const char* cuento;
    void (*intenta)(VentanaDePrueba&);
    bool comprueba;          ///< the check runs: with 0 in Edad there is one box and nothing else happens
    const char* meta;        ///< where the focus is in the end with 30 in Edad
    const char* hecho = "";  ///< and what has happened
};

/// What the presses have brought about.
std::string hecho(FormularioDePrueba& pantalla) {
    std::string todo;
    if (pantalla.PantallaActual() == 1) todo += "panel 1";
    if (pantalla.nuevos == 1) todo += "new case";
    if (pantalla.grabados == 1) todo += "saved";
    if (pantalla.Parcial.marcado()) todo += "marked";
    return todo;
}

void pulsaDespacio(QWidget& boton) {
    QTest::mousePress(&boton, Qt::LeftButton);
    QTest::qWait(30);
    QTest::mouseRelease(&boton, Qt::LeftButton);
}

void activaOtraVentana(VentanaDePrueba& ventana) {
    QWidget otra;
    otra.show();
    otra.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&otra));
    QTest::qWait(5);
    otra.hide();
    ventana.vista.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana.vista));
    QTest::qWait(5);
}

const Salida kSalidas[] = {
    {"Tab", [](VentanaDePrueba& v) { v.tecla(Qt::Key_Tab); }, true, "Suma"},
    {"Shift+Tab", [](VentanaDePrueba& v) { v.tecla(Qt::Key_Backtab); }, true, "Nombre"},
    {"a click on another field, bad too", [](VentanaDePrueba& v) { v.clic("Suma"); }, true, "Suma"},
    {"a click on a check box", [](VentanaDePrueba& v) { v.clic("Parcial"); }, true, "Parcial", "marked"},
    {"a click on a drop-down list", [](VentanaDePrueba& v) { v.clic("Regimen"); }, true, "Regimen"},
    {"a click on Siguiente", [](VentanaDePrueba& v) { v.clic("Siguiente"); }, true, "Siguiente", "panel 1"},
    {"a slow click on Siguiente", [](VentanaDePrueba& v) { pulsaDespacio(v.widget("Siguiente")); }, true,
     "Siguiente", "panel 1"},
    {"the keys of Siguiente", [](VentanaDePrueba& v) { v.tecla(Qt::Key_Right, Qt::AltModifier); }, true,
     "Siguiente", "panel 1"},
    {"Siguiente pressed by an aid for the blind",
     [](VentanaDePrueba& v) { v.widget<QAbstractButton>("Siguiente").click(); }, true, "Siguiente",
     "panel 1"},
    {"a check box marked by an aid for the blind",
     [](VentanaDePrueba& v) { v.widget<QAbstractButton>("Parcial").click(); }, true, "Parcial", "marked"},
    {"the button that saves", [](VentanaDePrueba& v) { v.clic("BotonGraba"); }, true, "BotonGraba", "saved"},
    {"the keys that save", [](VentanaDePrueba& v) { v.tecla(Qt::Key_G, Qt::ControlModifier); }, true, "Edad",
     "saved"},
    {"the button that throws all away", [](VentanaDePrueba& v) { v.clic("BotonNuevo"); }, false, "BotonNuevo",
     "new case"},
    {"the keys of that button", [](VentanaDePrueba& v) { v.tecla(Qt::Key_N, Qt::ControlModifier); }, false,
     "Edad", "new case"},
    {"another window and back", activaOtraVentana, false, "Edad"},
};

class SalidasTest : public ::testing::Test {
  protected:
    MundoDeVentanas mundo;
};

TEST_F(SalidasTest, AFieldThatFailsItsCheckIsNotLeft) {
    for (const Salida& salida : kSalidas) {
        SCOPED_TRACE(salida.cuento);
        VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
        v.clic("Edad");
        mundo.usuario.leido.clear();
        salida.intenta(v);
        v.asienta();
        EXPECT_EQ(VentanaDePrueba::foco(), salida.comprueba ? "Edad" : salida.meta);
        EXPECT_EQ(hecho(v.pantalla), salida.comprueba ? "" : salida.hecho);
        EXPECT_FALSE(v.widget<QAbstractButton>("Siguiente").isDown());
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        ASSERT_EQ(mundo.usuario.leido.size(), salida.comprueba ? 1U : 0U);
        if (!salida.comprueba) continue;
        EXPECT_EQ(mundo.usuario.leido.front(),
                  "Comunicación de error: El número no es correcto. Debe introducir un número entre 1 y 99");
        EXPECT_EQ(VentanaDePrueba::seleccion(), "0");
        // And the user isn't told again by staying.
        QTest::qWait(5);
        EXPECT_EQ(mundo.usuario.leido.size(), 1U);
    }
}

TEST_F(SalidasTest, AFieldThatPassesItIsLeftAndTheUseIsNotLost) {
    for (const Salida& salida : kSalidas) {
        SCOPED_TRACE(salida.cuento);
        VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
        v.clic("Edad");
        escribe("30");
        mundo.usuario.leido.clear();
        salida.intenta(v);
        if (QWidget* lista = QApplication::activePopupWidget()) lista->close();
        EXPECT_TRUE(mundo.usuario.leido.empty());
        EXPECT_EQ(VentanaDePrueba::foco(), salida.meta);
        EXPECT_EQ(hecho(v.pantalla), salida.hecho);
    }
}

TEST_F(SalidasTest, TheCalendarOfAnotherDateDoesNotOpenOverABadField) {
    VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
    v.clic("Edad");
    auto* boton = v.widget("Fecha").findChild<QAbstractButton*>();
    ASSERT_NE(boton, nullptr);
    QTest::mouseClick(boton, Qt::LeftButton);
    QTest::qWait(5);
    EXPECT_EQ(mundo.usuario.leido.size(), 1U);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(VentanaDePrueba::foco(), "Edad");
}

TEST_F(SalidasTest, AFieldHiddenWhileItHasTheFocusIsNotChecked) {
    VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
    v.clic("Edad");
    v.pantalla.Edad.ponVisible(false);
    QTest::qWait(10);
    EXPECT_TRUE(mundo.usuario.leido.empty());
    EXPECT_NE(VentanaDePrueba::foco(), "Edad");
}

TEST_F(SalidasTest, TheRestOfAHastyLineOfKeysIsLostWithTheFocus) {
    VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
    v.clic("Edad");
    // Tab and a digit before the queue of events has run: the digit was meant for the field after.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_7);
    QTest::qWait(5);
    EXPECT_EQ(mundo.usuario.leido.size(), 1U);
    EXPECT_EQ(v.pantalla.Edad.texto(), "0");
    EXPECT_EQ(v.pantalla.Suma.texto(), "-1");
}

TEST_F(SalidasTest, ClosingTheWindowChecksNothingAndEscapeClosesNothing) {
    VentanaDePrueba v{mundo.entorno, mundo.falso.almacen};
    v.clic("Edad");
    v.tecla(Qt::Key_Escape);
    v.tecla(Qt::Key_Return);
    EXPECT_TRUE(v.vista.isVisible());
    v.vista.close();
    EXPECT_FALSE(v.vista.isVisible());
    EXPECT_EQ(v.pantalla.cierres, 1);
    EXPECT_TRUE(mundo.usuario.leido.empty());
}

TEST_F(SalidasTest, TheUnemploymentScreenFromARefusedAgeToItsConclusions) {
    Ventana<DesempFrm> v{mundo.entorno, mundo.falso.almacen};
    EXPECT_EQ(v.foco(), "Nombre");
    escribe("Ñoño Güell Ávila");
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(v.seleccion(), "0");
    escribe("1x2 0");
    v.tecla(Qt::Key_Tab);
    ASSERT_EQ(mundo.usuario.leido.size(), 1U) << "120 years";
    EXPECT_EQ(v.foco() + " " + v.seleccion(), "Edad 120");
    escribe("45");
    for (const char* campo : {"Fecha", "fIni", "Suma", "Dias", "Hijos", "Parcial", "Siguiente"}) {
        v.tecla(Qt::Key_Tab);
        EXPECT_EQ(v.foco(), campo);
    }
    v.clic("Parcial");
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(v.foco(), "Horas");
    v.tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(mundo.usuario.leido.size(), 2U) << "no hours";
    escribe("20");
    v.tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(mundo.usuario.leido.size(), 2U);
    EXPECT_EQ(v.pantalla.PantallaActual(), 1);
    EXPECT_EQ(v.foco(), "Conclusion");
    EXPECT_TRUE(v.widget("Mal").isVisible());
    EXPECT_FALSE(v.widget("Ok").isVisible());
    v.tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(v.foco() + " " + v.seleccion(), "Nombre Ñoño Güell Ávila");
}

}  // namespace
}  // namespace orvemo::pruebas
