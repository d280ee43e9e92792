// How the fields of a panel are laid out and built.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGroupBox>
#include <QScrollArea>

#include "benefits/desempleo/desemp_frm.h"
#include "formulario_de_prueba.h"
#include "foundations/values/fallos.h"
#include "shell/config_frm.h"
#include "toolkit/medidas.h"
#include "ventana.h"

namespace orvemo::pruebas {
namespace {

/// Two panels of monthly bases and a table of periods, as the pensions have them.
class FormularioDeBases final : public Formulario {
  public:
    static constexpr int kLineas = 196;

    explicit FormularioDeBases(Entorno& entorno)
        : Formulario{entorno},
          Periodos{nuevoGrupo({.nombre = "Periodos",
                               .titulo = "Periodos",
                               .disposicion = Disposicion::Tabla,
                               .columnas = 2,
                               .encabezados = {"Desde", "Hasta"}})},
          Bases{nuevoGrupo({.nombre = "Bases",
                            .titulo = "Bases",
                            .pantalla = 1,
                            .disposicion = Disposicion::Columnas,
                            .columnas = 3})} {
        ponNumPantallas(3);
        nuevo({.nombre = "Nombre", .rotulo = "Nombre & apellidos:"});
        nuevo({.nombre = "Empresa", .rotulo = "Empresa:", .mismaLinea = true});
        for (int i = 1; i <= 3; ++i) {
            nuevo({.nombre = "Desde", .indice = i, .clase = Clase::FechaEscrita, .grupo = &Periodos});
            nuevo({.nombre = "Hasta", .indice = i, .clase = Clase::FechaEscrita, .grupo = &Periodos});
        }
        for (int i = 1; i <= kLineas; ++i) {
            nuevo({.nombre = "Base",
                   .indice = i,
                   .rotulo = "01. may-05",
                   .pantalla = 1,
                   .grupo = &Bases,
                   .contenido = Contenido::Decimal});
        }
        nuevo({.nombre = "Nota", .rotulo = "Nota", .clase = Clase::Etiqueta, .pantalla = 2});
    }
    void Inicia() override { muestra(0); }
    using Formulario::enfoca;
    using Formulario::muestra;

    Grupo& Periodos;
    Grupo& Bases;
};

class PanelesTest : public ::testing::Test {
  protected:
    MundoDeVentanas mundo;
};

TEST_F(PanelesTest, APanelIsBuiltWhenItFirstShows) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    EXPECT_TRUE(v.vista.construida(0));
    EXPECT_FALSE(v.vista.construida(1));
    EXPECT_EQ(v.vista.findChild<QLineEdit*>(QStringLiteral("Base1")), nullptr);
    v.pantalla.muestra(1);
    EXPECT_TRUE(v.vista.construida(1));
    EXPECT_FALSE(v.vista.construida(2));
    EXPECT_TRUE(v.widget("Base196").isVisibleTo(&v.vista));
}

TEST_F(PanelesTest, ColumnsRunDownOneAfterTheOtherAndTablesAcross) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    const auto sitio = [&](const char* nombre) { return v.widget(nombre).mapTo(&v.vista, QPoint{}); };
    EXPECT_EQ(sitio("Desde1").y(), sitio("Hasta1").y());
    EXPECT_EQ(sitio("Desde1").x(), sitio("Desde2").x());
    EXPECT_LT(sitio("Desde1").x(), sitio("Hasta1").x());
    EXPECT_EQ(sitio("Nombre").y(), sitio("Empresa").y()) << "on the same row";
    v.pantalla.muestra(1);
    QTest::qWait(1);
    EXPECT_EQ(sitio("Base1").x(), sitio("Base66").x()) << "66 to a column";
    EXPECT_EQ(sitio("Base67").y(), sitio("Base1").y());
    EXPECT_LT(sitio("Base66").x(), sitio("Base67").x());
}

TEST_F(PanelesTest, TabGoesThroughTheFieldsThenTheFootThenTheBarAndScrollsToThem) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    v.pantalla.muestra(1);
    v.pantalla.enfoca(v.pantalla.campo("Base", 1));
    for (int i = 2; i <= FormularioDeBases::kLineas; ++i) {
        v.tecla(Qt::Key_Tab);
        ASSERT_EQ(v.foco(), "Base" + std::to_string(i));
    }
    const QWidget& ultima = v.widget("Base196");
    EXPECT_EQ(ultima.visibleRegion().boundingRect(), ultima.rect()) << "scrolled into view";

    Ventana<FormularioDePrueba> w{mundo.entorno, mundo.falso.almacen};
    std::vector<std::string> visitados;
    w.pantalla.Edad.ponTexto("1");
    w.pantalla.Suma.ponTexto("1");
    w.pantalla.Escrita.ponTexto("01-01-2005");
    for (int i = 0; i < 14; ++i, w.tecla(Qt::Key_Tab)) visitados.push_back(w.foco());
    EXPECT_THAT(visitados,
                ::testing::ElementsAre("Nombre", "Edad", "Suma", "Clave", "Fecha", "Escrita", "Regimen", "",
                                       "Parcial", "Hijos", "Siguiente", "BotonNuevo", "BotonGraba", "Nombre"))
        << "Horas is hidden";
}

TEST_F(PanelesTest, UpAndDownGoThroughTheRowsOfATable) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    v.pantalla.enfoca(v.pantalla.campo("Hasta", 2));
    v.tecla(Qt::Key_Down);
    EXPECT_EQ(v.foco(), "Hasta3");
    v.tecla(Qt::Key_Down);
    EXPECT_EQ(v.foco(), "Hasta3") << "the last row";
    v.tecla(Qt::Key_Up);
    v.tecla(Qt::Key_Up);
    EXPECT_EQ(v.foco(), "Hasta1");
}

TEST_F(PanelesTest, EnterPressesAButtonAndKeysGiveTheFocusBack) {
    Ventana<FormularioDePrueba> v{mundo.entorno, mundo.falso.almacen};
    v.widget("BotonGraba").setFocus();
    v.asienta();
    v.tecla(Qt::Key_Return);
    EXPECT_EQ(v.pantalla.grabados, 1);
    v.clic("Clave");
    v.tecla(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(v.pantalla.grabados, 2);
    EXPECT_EQ(v.foco(), "Clave");
}

TEST_F(PanelesTest, ARowThatAppearsMovesNoColumn) {
    Ventana<FormularioDePrueba> v{mundo.entorno, mundo.falso.almacen};
    const int columna = v.widget("Nombre").mapTo(&v.vista, QPoint{}).x();
    const int abajo = v.widget("Hijos").mapTo(&v.vista, QPoint{}).y();
    EXPECT_FALSE(v.widget("Horas").isVisible());
    v.pantalla.Parcial.ponMarcado(true);
    QTest::qWait(1);
    EXPECT_TRUE(v.widget("Horas").isVisible());
    EXPECT_GT(v.widget("Hijos").mapTo(&v.vista, QPoint{}).y(), abajo);
    EXPECT_EQ(v.widget("Nombre").mapTo(&v.vista, QPoint{}).x(), columna);
}

TEST_F(PanelesTest, AHiddenGroupGivesItsRoomAndItsTitleChanges) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    auto& marco = v.widget<QGroupBox>("Periodos");
    EXPECT_TRUE(marco.isVisible());
    v.pantalla.Periodos.ponVisible(false);
    EXPECT_FALSE(marco.isVisible());
    v.pantalla.Periodos.ponTitulo("Otros periodos");
    EXPECT_EQ(deQt(marco.title()), "Otros periodos");
}

TEST_F(PanelesTest, AFieldMovesToAnotherPanelWithItsFocus) {
    Ventana<FormularioDeBases> v{mundo.entorno, mundo.falso.almacen};
    v.pantalla.muestra(1);
    for (int i = 101; i <= FormularioDeBases::kLineas; ++i) v.pantalla.campo("Base", i).ponPantalla(2);
    v.pantalla.muestra(2);
    v.pantalla.enfoca(v.pantalla.campo("Base", 150));
    QTest::qWait(1);
    EXPECT_EQ(v.foco(), "Base150");
    EXPECT_TRUE(v.widget("Base150").isVisible());
    escribe("7");
    EXPECT_EQ(v.pantalla.campo("Base", 150).texto(), "7");
    v.pantalla.muestra(1);
    QTest::qWait(1);
    EXPECT_TRUE(v.widget("Base100").isVisible());
    v.pantalla.campo("Base", 100).ponTexto("55");
    EXPECT_EQ(deQt(v.widget<QLineEdit>("Base100").text()), "55");
}

TEST_F(PanelesTest, EveryWidgetThatTakesTheFocusHasANameForTheBlind) {
    const auto revisa = [](const QWidget& ventana) {
        for (const QWidget* widget : ventana.findChildren<QWidget*>()) {
            if (dynamic_cast<const Control*>(widget) == nullptr || widget->focusPolicy() == Qt::NoFocus)
                continue;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << deQt(widget->objectName());
        }
    };
    Ventana<FormularioDeBases> bases{mundo.entorno, mundo.falso.almacen};
    revisa(bases.vista);
    EXPECT_EQ(deQt(bases.widget("Desde2").accessibleName()), "Desde 2");
    EXPECT_EQ(deQt(bases.widget("Nombre").accessibleName()), "Nombre & apellidos:");
    Ventana<DesempFrm> desempleo{mundo.entorno, mundo.falso.almacen};
    revisa(desempleo.vista);
    EXPECT_EQ(deQt(desempleo.widget("BotonCarga").accessibleName()), "Cargar supuesto");
    EXPECT_EQ(deQt(desempleo.widget("BotonCarga").toolTip()), "Cargar supuesto (Ctrl+O)");
    Ventana<ConfigFrm> configuracion{mundo.entorno, mundo.falso.almacen};
    revisa(configuracion.vista);
}

TEST_F(PanelesTest, LabelsAreBuddiesOfTheirFields) {
    Ventana<DesempFrm> v{mundo.entorno, mundo.falso.almacen};
    int rotulos = 0;
    for (const QLabel* rotulo : v.vista.findChildren<QLabel*>()) {
        if (rotulo->buddy() == nullptr) continue;
        ++rotulos;
        const auto* control = dynamic_cast<const Control*>(rotulo->buddy());
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(deQt(rotulo->text()), control->campo().rotulo());
    }
    EXPECT_EQ(rotulos, 8) << "the check box bears its own";
}

TEST_F(PanelesTest, TheVerdictIsAWordAndNotOnlyAColour) {
    Ventana<FormularioDePrueba> v{mundo.entorno, mundo.falso.almacen};
    v.clic("BotonNuevo");
    v.pantalla.Edad.ponTexto("1");
    v.clic("Siguiente");
    EXPECT_TRUE(v.widget("Ok").isVisible());
    EXPECT_EQ(deQt(v.widget<QLabel>("Ok").text()), "Resultado favorable");
    v.pantalla.Ok.ponVisible(false);
    v.pantalla.Mal.ponVisible(true);
    EXPECT_FALSE(v.widget("Ok").isVisible());
    EXPECT_EQ(deQt(v.widget("Mal").accessibleName()), "Resultado desfavorable");
    v.pantalla.Mal.ponRotulo("Con fallos");
    EXPECT_EQ(deQt(v.widget<QLabel>("Mal").text()), "Con fallos");
}

TEST_F(PanelesTest, NothingIsCutAndNothingScrollsOnTheUnemploymentScreen) {
    Ventana<DesempFrm> v{mundo.entorno, mundo.falso.almacen};
    v.pantalla.Parcial.ponMarcado(true);
    QTest::qWait(1);
    for (const auto* pagina : v.vista.findChildren<QScrollArea*>()) {
        if (!pagina->isVisible() || pagina->widget() == nullptr || pagina->parentWidget() == &v.vista)
            continue;
        EXPECT_LE(pagina->widget()->minimumSizeHint().width(), pagina->viewport()->width());
        EXPECT_LE(pagina->widget()->minimumSizeHint().height(), pagina->viewport()->height());
    }
}

TEST_F(PanelesTest, LettersTwiceAsLargeScrollInsteadOfBeingCut) {
    const QFont antes = QApplication::font();
    QFont grande = antes;
    grande.setPointSizeF(antes.pointSizeF() * 2);
    QApplication::setFont(grande);
    Ventana<DesempFrm> v{mundo.entorno, mundo.falso.almacen};
    for (const char* campo : {"Edad", "Fecha", "fIni", "Suma", "Dias", "Hijos", "Parcial"}) {
        v.pantalla.Edad.ponTexto("40");
        v.tecla(Qt::Key_Tab);
        const QWidget& widget = v.widget(campo);
        EXPECT_EQ(v.foco(), campo);
        EXPECT_GE(widget.height(), widget.fontMetrics().height());
        EXPECT_GE(widget.height(), widget.minimumSizeHint().height());
        EXPECT_FALSE(widget.visibleRegion().isEmpty()) << "scrolled into view: " << campo;
    }
    QApplication::setFont(antes);
}

TEST_F(PanelesTest, TheScaleFitsTheScreenAndTheLetters) {
    struct {
        QSize pantalla;
        double ampliacion, escala;
    } const casos[] = {
        {{640, 480}, 1, 440 / 460.0},  {{640, 200}, 1, 0.7},   {{1024, 768}, 1, 1.5},
        {{1366, 728}, 1, 688 / 460.0}, {{1920, 1040}, 1, 1.5}, {{1920, 1040}, 1.4, 2.1},
        {{800, 600}, 2, 800 / 660.0},
    };
    for (const auto& caso : casos) {
        EXPECT_NEAR(escalaPara(caso.pantalla, caso.ampliacion), caso.escala, 0.001) << caso.pantalla.width();
    }
}

TEST_F(PanelesTest, AMissingLogoIsToldWithItsName) {
    mundo.falso.almacen.ficheros.erase("logo.bmp");
    FormularioDePrueba pantalla{mundo.entorno};
    EXPECT_THROW(VistaFormulario(pantalla, mundo.falso.almacen), FicheroInaccesible);
    mundo.falso.almacen["logo.bmp"] = "this is no picture";
    EXPECT_THROW(VistaFormulario(pantalla, mundo.falso.almacen), FicheroInaccesible);
}

}  // namespace
}  // namespace orvemo::pruebas
