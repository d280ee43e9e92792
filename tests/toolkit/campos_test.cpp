// What each kind of field does with keys, pastes, clicks and the wheel.
#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QListWidget>
#include <QWheelEvent>

#include "formulario_de_prueba.h"
#include "ventana.h"

namespace orvemo::pruebas {
namespace {

class CamposTest : public ::testing::Test {
  protected:
    QLineEdit& entraEn(const char* nombre) {
        v.clic(nombre);
        return v.widget<QLineEdit>(nombre);
    }
    void pega(const std::string& texto) {
        QApplication::clipboard()->setText(aQt(texto));
        v.tecla(Qt::Key_V, Qt::ControlModifier);
    }

    MundoDeVentanas mundo;
    Ventana<FormularioDePrueba> v{mundo.entorno, mundo.falso.almacen};
};

TEST_F(CamposTest, TypedTextsGoThroughTheFilterAndSoDoPastedOnesThatAreNoNumbers) {
    struct {
        const char *cuento, *campo, *texto, *queda;
    } const casos[] = {
        {"a whole number drops what is no digit", "Edad", "1x2.3", "123"},
        {"an amount turns the point into the comma, once", "Suma", "1.234,50", "1,23450"},
        {"a minus stands only in an empty text", "Suma", "5-3", "53"},
        {"letters become capitals, Spanish ones too", "Clave", "año ç ü", "AÑO Ç Ü"},
        {"a text is cut at its length", "Nombre", "María Güell Ñúñez", "María Güel"},
        {"a free text keeps everything", "Nombre", "a€<&>\"'", "a€<&>\"'"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.cuento);
        QLineEdit& linea = entraEn(caso.campo);
        linea.selectAll();
        v.tecla(Qt::Key_Delete);
        escribe(caso.texto);
        EXPECT_EQ(deQt(linea.text()), caso.queda) << "typed";
        EXPECT_EQ(v.pantalla.campo(caso.campo).texto(), caso.queda);
        linea.selectAll();
        v.tecla(Qt::Key_Delete);
        v.pantalla.Edad.ponTexto("30");
        v.pantalla.Suma.ponTexto("0");
        if (linea.alignment().testFlag(Qt::AlignRight)) continue;
        pega(caso.texto);
        EXPECT_EQ(deQt(linea.text()), caso.queda) << "pasted";
        EXPECT_EQ(v.pantalla.campo(caso.campo).texto(), caso.queda);
    }
}

TEST_F(CamposTest, APastedNumberIsUnderstoodAndWhatIsNoneIsNotTaken) {
    const struct {
        const char *campo, *habia, *pegado, *queda;
    } casos[] = {
        {"Suma", "5", "1.545,50 €", "1545,50"},
        {"Suma", "1", "1.545", "1545"},
        {"Suma", "0", "1 234 567,8", "1234567,8"},
        {"Suma", "0", "-1,545.50", "-1545,50"},
        {"Suma", "0", "12.5", "12,5"},
        {"Suma", "7,5", "1.23.4", "7,5"},
        {"Suma", "7,5", "mil euros", "7,5"},
        {"Edad", "9", "1.545", "1545"},
        {"Edad", "9", "12,5", "9"},
        {"Edad", "9", "x1", "9"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.pegado);
        v.pantalla.campo(caso.campo).ponTexto(caso.habia);
        entraEn(caso.campo).selectAll();
        pega(caso.pegado);
        EXPECT_EQ(v.pantalla.campo(caso.campo).texto(), caso.queda);
        EXPECT_EQ(deQt(v.widget<QLineEdit>(caso.campo).text()), caso.queda);
        v.pantalla.Edad.ponTexto("30");
        v.pantalla.Suma.ponTexto("0");
    }
    QLineEdit& edad = entraEn("Edad");
    edad.selectAll();
    escribe("99");
    v.tecla(Qt::Key_Left);
    pega(" 12 ");
    EXPECT_EQ(deQt(edad.text()), "9129") << "in the middle";
    EXPECT_EQ(edad.cursorPosition(), 3);
    v.tecla(Qt::Key_Backspace);
    EXPECT_EQ(v.pantalla.Edad.texto(), "919");
    v.pantalla.Edad.ponTexto("30");
}

TEST_F(CamposTest, ADictatedOrComposedLetterIsFiltered) {
    entraEn("Clave");
    QInputMethodEvent compuesta;
    compuesta.setCommitString(QStringLiteral("á"));
    QApplication::sendEvent(QApplication::focusWidget(), &compuesta);
    EXPECT_EQ(v.pantalla.Clave.texto(), "Á");
}

TEST_F(CamposTest, TheDecimalKeyOfTheNumericPadIsAComma) {
    entraEn("Suma");
    v.tecla(Qt::Key_Delete);
    escribe("12");
    escribe(".", Qt::KeypadModifier);
    escribe("5");
    EXPECT_EQ(v.pantalla.Suma.texto(), "12,5");
}

TEST_F(CamposTest, EnteringAFieldSelectsItAllAndOnlyTheSecondClickPlacesTheCaret) {
    v.pantalla.Clave.ponTexto("ABCD");
    v.pantalla.Suma.ponTexto("0");
    QLineEdit& linea = entraEn("Clave");
    EXPECT_EQ(deQt(linea.selectedText()), "ABCD");
    EXPECT_EQ(linea.cursorPosition(), 0);
    v.clic("Clave");
    EXPECT_FALSE(linea.hasSelectedText());
    v.tecla(Qt::Key_Backtab);
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(deQt(linea.selectedText()), "ABCD");
}

TEST_F(CamposTest, AnAmountShowsItsPatternOnlyWithoutTheFocus) {
    v.pantalla.Suma.ponTexto("1234,5");
    auto& linea = v.widget<QLineEdit>("Suma");
    EXPECT_EQ(deQt(linea.text()), "1.234,50");
    entraEn("Suma");
    EXPECT_EQ(deQt(linea.text()), "1234,5");
    v.pantalla.Suma.ponTexto("2000");
    EXPECT_EQ(deQt(linea.text()), "2000") << "set by the program meanwhile";
    EXPECT_EQ(deQt(linea.selectedText()), "2000");
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(deQt(linea.text()), "2.000,00");
    EXPECT_EQ(v.pantalla.Suma.texto(), "2000");
}

TEST_F(CamposTest, UndoTakesBackWhatWasTyped) {
    entraEn("Nombre");
    escribe("Ana");
    v.tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(v.pantalla.Nombre.texto(), "");
}

// --- Dates

QCalendarWidget* calendario() {
    QWidget* desplegado = QApplication::activePopupWidget();
    return desplegado == nullptr ? nullptr : desplegado->findChild<QCalendarWidget*>();
}

TEST_F(CamposTest, ADateIsPickedInASpanishCalendarThatIsNoLeaveOfTheField) {
    QLineEdit& fecha = entraEn("Fecha");
    EXPECT_EQ(deQt(fecha.text()), "15-06-2005");
    v.tecla(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(calendario(), nullptr);
    EXPECT_EQ(calendario()->selectedDate(), QDate(2005, 6, 15));
    EXPECT_EQ(calendario()->firstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(calendario()->locale().language(), QLocale::Spanish);
    EXPECT_EQ(v.pantalla.actual(), &v.pantalla.Fecha_);
    emit calendario()->activated(QDate(2004, 12, 3));
    v.asienta();
    EXPECT_EQ(calendario(), nullptr);
    EXPECT_EQ(v.foco() + " " + v.seleccion(), "Fecha 03-12-2004");
    EXPECT_EQ(v.pantalla.fechas, std::vector<std::string>{"03-12-2004"});
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(v.pantalla.fechas.size(), 1U) << "not told again on leaving";
}

TEST_F(CamposTest, EscapeClosesTheCalendarAndLeavesTheDate) {
    entraEn("Fecha");
    v.tecla(Qt::Key_F4);
    ASSERT_NE(calendario(), nullptr);
    QTest::keyClick(calendario(), Qt::Key_Escape);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    v.asienta();
    EXPECT_EQ(v.pantalla.Fecha_.texto(), "15-06-2005");
    EXPECT_TRUE(v.vista.isVisible());
}

TEST_F(CamposTest, ATypedDateIsTidiedOnLeavingAndAPickerIsNotLeftWithABadOne) {
    struct {
        const char *campo, *escrito, *queda;
        std::size_t cajas;
    } const casos[] = {
        {"Fecha", "7/1/1999", "07-01-1999", 0},   {"Escrita", "7-1-99", "07-01-1999", 0},
        {"Escrita", "", "15-06-2005", 1},         {"Escrita", "mañana", "15-06-2005", 1},
        {"Fecha", "31-02-2005", "31-02-2005", 1},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.escrito);
        v.pantalla.Escrita.ponTexto("01-01-2005");
        entraEn(caso.campo).selectAll();
        mundo.usuario.leido.clear();
        v.tecla(Qt::Key_Delete);
        escribe(caso.escrito);
        v.tecla(Qt::Key_Tab);
        EXPECT_EQ(deQt(v.widget<QLineEdit>(caso.campo).text()), caso.queda);
        EXPECT_EQ(mundo.usuario.leido.size(), caso.cajas);
    }
}

TEST_F(CamposTest, AnAmountThatTheFocusOnlyTouchedShowsItsPattern) {
    v.pantalla.Suma.ponTexto("0");
    entraEn("Edad");
    escribe("200");
    v.tecla(Qt::Key_Tab);
    EXPECT_EQ(v.foco(), "Edad") << "refused";
    EXPECT_EQ(deQt(v.widget<QLineEdit>("Suma").text()), "0,00");
}

TEST_F(CamposTest, WhatIsChosenAmongWholeLinesIsToldLikeAList) {
    auto botones = v.widget("Situacion").findChildren<QAbstractButton*>();
    ASSERT_EQ(botones.size(), 3);
    EXPECT_TRUE(botones[0]->isChecked());
    botones[2]->click();
    v.asienta();
    EXPECT_EQ(v.pantalla.Situacion.indice(), 2);
    EXPECT_EQ(QApplication::focusWidget(), botones[2]);
    v.tecla(Qt::Key_Up);
    EXPECT_EQ(v.pantalla.Situacion.indice(), 1);
    v.pantalla.Situacion.ponIndice(0);
    EXPECT_TRUE(botones[0]->isChecked());
    EXPECT_FALSE(botones[1]->isChecked());
}

// --- Lists and boxes

void ruedaSobre(QWidget& widget) {
    QWheelEvent rueda{QPointF{5, 5},
                      widget.mapToGlobal(QPointF{5, 5}),
                      {},
                      QPoint{0, -120},
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false};
    QApplication::sendEvent(&widget, &rueda);
}

TEST_F(CamposTest, TheWheelTurnsAListOnlyWithTheFocus) {
    auto& lista = v.widget<QComboBox>("Regimen");
    ruedaSobre(lista);
    EXPECT_EQ(v.pantalla.Regimen.indice(), 0);
    lista.setFocus();
    v.asienta();
    ruedaSobre(lista);
    EXPECT_EQ(v.pantalla.Regimen.indice(), 1);
}

TEST_F(CamposTest, AListIsChosenFromByItsFirstLettersAndRefilledByTheProgram) {
    auto& lista = v.widget<QComboBox>("Regimen");
    lista.setFocus();
    v.asienta();
    QTest::keyClicks(&lista, "agr");
    EXPECT_EQ(v.pantalla.Regimen.texto(), "Agrario");
    v.pantalla.Regimen.ponOpciones({"Enfermedad", "Accidente"});
    EXPECT_EQ(lista.count(), 2);
    EXPECT_EQ(deQt(lista.currentText()), "Accidente") << "the index, lowered to the last entry";
}

TEST_F(CamposTest, AListBoxTellsChoosingFromEntering) {
    auto& lista = v.widget<QListWidget>("Hijos");
    lista.setFocus();
    v.asienta();
    v.tecla(Qt::Key_Down);
    EXPECT_EQ(v.pantalla.Hijos.texto(), "Blas");
    EXPECT_EQ(v.pantalla.doblesPulsaciones, 0);
    v.tecla(Qt::Key_Return);
    EXPECT_EQ(v.pantalla.doblesPulsaciones, 1);
    const QPoint tercera = lista.visualItemRect(lista.item(2)).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, tercera);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, tercera);
    EXPECT_EQ(v.pantalla.Hijos.texto(), "Cruz");
    EXPECT_EQ(v.pantalla.doblesPulsaciones, 2);
}

}  // namespace
}  // namespace orvemo::pruebas
