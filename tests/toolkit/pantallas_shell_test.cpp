#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <set>

#include "apoyo/entorno_falso.h"
#include "shell/config_frm.h"
#include "shell/fondo_frm.h"
#include "shell/presenta_frm.h"
#include "toolkit/instalacion.h"
#include "toolkit/textos_qt.h"
#include "toolkit/vista_formulario.h"

namespace orvemo::pruebas {
namespace {

/// A screen of the shell over the data that ship, in its window.
template <typename Pantalla>
class Ventana {
  public:
    Ventana() : almacen_{ORVEMO_DATOS} {
        instalaEstilo(*qobject_cast<QApplication*>(QApplication::instance()));
        pantalla.Inicia();
        vista = std::make_unique<VistaFormulario>(pantalla, almacen_);
        vista->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(vista.get()));
    }

    void tecla(Qt::Key codigo, Qt::KeyboardModifiers mandos = {}) {
        QTest::keyClick(QApplication::focusWidget(), codigo, mandos);
        QTest::qWait(1);
    }
    /// What the Tab key visits from here until it comes back.
    std::set<QWidget*> vuelta() {
        std::set<QWidget*> visitados;
        while (visitados.insert(QApplication::focusWidget()).second) tecla(Qt::Key_Tab);
        return visitados;
    }
    /// Goes on with the Tab key as far as the widget of this name.
    void ve(const char* nombre) {
        for (int i = 0; i < 100 && QApplication::focusWidget()->objectName() != QLatin1String{nombre}; ++i) {
            tecla(Qt::Key_Tab);
        }
        ASSERT_EQ(deQt(QApplication::focusWidget()->objectName()), nombre);
    }

  private:
    EntornoFalso falso_;
    DirectorioAplicacion almacen_;
    Entorno entorno_{falso_.mensajes,  falso_.reloj,   almacen_,
                     falso_.impresora, falso_.rutinas, falso_.valores};

  public:
    Pantalla pantalla{entorno_};
    std::unique_ptr<VistaFormulario> vista;
};

template <typename Pantalla>
void todoSeAlcanzaYTieneNombre() {
    Ventana<Pantalla> ventana;
    const std::set<QWidget*> visitados = ventana.vuelta();
    for (const Campo& campo : ventana.pantalla.campos()) {
        if (!campo.enfocable()) continue;
        auto* widget = ventana.vista->template findChild<QWidget*>(nombreDe(campo));
        ASSERT_NE(widget, nullptr) << campo.def().nombre;
        EXPECT_TRUE(visitados.contains(widget)) << campo.def().nombre << campo.def().indice;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << campo.def().nombre << campo.def().indice;
    }
}

TEST(PantallasShell, ElTabuladorLlegaATodoYTodoTieneNombre) {
    todoSeAlcanzaYTieneNombre<PresentaFrm>();
    todoSeAlcanzaYTieneNombre<FondoFrm>();
    todoSeAlcanzaYTieneNombre<ConfigFrm>();
}

template <typename Pantalla>
void cabeSinDesplazarse() {
    Ventana<Pantalla> ventana;
    for (const QScrollArea* pagina : ventana.vista->template findChildren<QScrollArea*>()) {
        EXPECT_EQ(pagina->verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(pagina->horizontalScrollBar()->maximum(), 0);
    }
}

TEST(PantallasShell, LasImagenesSeEncogenParaQueTodoSeVea) {
    cabeSinDesplazarse<PresentaFrm>();
    cabeSinDesplazarse<FondoFrm>();
}

TEST(PantallasShell, LaInformacionSeLeeConElTeclado) {
    Ventana<PresentaFrm> ventana;
    ventana.ve("PresenOpciones3");
    ventana.tecla(Qt::Key_Space);
    EXPECT_EQ(ventana.pantalla.PresenPan.texto(), "presen3.bmp");
    ventana.ve("PresentaBotonExit");
    ventana.tecla(Qt::Key_Space);
    EXPECT_FALSE(ventana.vista->isVisible());
}

TEST(PantallasShell, ElCatalogoSeRecorreConElTeclado) {
    Ventana<FondoFrm> ventana;
    ventana.ve("FondoCap4");
    ventana.tecla(Qt::Key_Space);
    EXPECT_EQ(ventana.pantalla.FondoImg.texto(), "fondo4.bmp");
    const std::string primero = ventana.pantalla.FondoTxt.texto();
    ventana.ve("FondoLista");
    ventana.tecla(Qt::Key_Down);
    EXPECT_EQ(ventana.pantalla.FondoLista.indice(), 1);
    EXPECT_NE(ventana.pantalla.FondoTxt.texto(), primero);
}

}  // namespace
}  // namespace orvemo::pruebas
