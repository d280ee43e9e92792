#include "foundations/frame/formulario.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFueraDeRango =
    "Error: El número no es correcto. Debe introducir un número entre 1 y 99";
constexpr const char* kFechaMala = "Error: La fecha no es correcta. Debe ser de tipo dd-mm-aaaa";

/// A screen with one field of each kind that has a rule of its own.
class FormularioDePrueba final : public Formulario {
  public:
    explicit FormularioDePrueba(Entorno& entorno)
        : Formulario{entorno},
          edad{nuevo({.nombre = "edad",
                      .defecto = "0",
                      .contenido = Contenido::Entero,
                      .alSalir = rango("1", "99"),
                      .alEscribir = [this](Campo&) { ++escrituras; }})},
          horas{nuevo({.nombre = "horas", .defecto = "0", .alSalir = rango("1", "99")})},
          suma{nuevo({.nombre = "suma", .contenido = Contenido::Decimal, .formato = "##,###,##0.00"})},
          letras{nuevo({.nombre = "letras", .filtro = TeclaMayuscula})},
          fecha{nuevo({.nombre = "fecha",
                       .clase = Clase::FechaEscrita,
                       .defecto = "01-02-2005",
                       .alSalir = fechaCorrecta(),
                       .alCambiar = [this](Campo&) { ++cambios; }})},
          selector{nuevo({.nombre = "selector",
                          .clase = Clase::FechaSelector,
                          .alCambiar = [this](Campo&) { ++cambios; }})},
          marca_{nuevo(
              {.nombre = "marca", .clase = Clase::Casilla, .alCambiar = [this](Campo&) { ++cambios; }})},
          lista{nuevo({.nombre = "lista",
                       .clase = Clase::Lista,
                       .opciones = {"a", "b", "c"},
                       .alCambiar = [this](Campo&) { ++cambios; }})},
          otra{nuevo({.nombre = "otra", .pantalla = 1})},
          sigue{nuevo({.nombre = "sigue", .clase = Clase::Boton, .pantalla = kPie, .alPulsar = accion()})},
          sale{nuevo({.nombre = "sale",
                      .clase = Clase::Boton,
                      .pantalla = kBarra,
                      .alPulsar = accion(),
                      .sinComprobacion = true})} {
        ponNumPantallas(2);
    }

    void Inicia() override {}
    using Formulario::Cargando;
    using Formulario::muestra;

  private:
    Reaccion accion() {
        return [this](Campo&) { ++pulsaciones; };
    }

  public:
    int escrituras = 0, cambios = 0, pulsaciones = 0;
    Campo &edad, &horas, &suma, &letras, &fecha, &selector, &marca_, &lista, &otra, &sigue, &sale;
};

class FormularioTest : public testing::Test {
  protected:
    FormularioTest() { frm.ponVista(&vista); }

    pruebas::EntornoFalso mundo;
    pruebas::VistaFalsa vista;
    FormularioDePrueba frm{mundo.entorno};
};

TEST_F(FormularioTest, ABadFieldSpeaksOnceHoweverItIsLeft) {
    const struct {
        const char* historia;
        void (*sale)(FormularioDePrueba&);
    } salidas[] = {
        {"Tab or click to a good field", [](FormularioDePrueba& f) { f.foco(f.suma); }},
        {"click on another bad field: its own check keeps silent",
         [](FormularioDePrueba& f) { f.foco(f.horas); }},
        {"a button, or its mnemonic", [](FormularioDePrueba& f) { f.pulsa(f.sigue); }},
    };
    for (const auto& salida : salidas) {
        SCOPED_TRACE(salida.historia);
        ASSERT_TRUE(frm.foco(frm.edad));
        mundo.mensajes.dichos.clear();
        vista.enfocados.clear();
        salida.sale(frm);
        EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kFueraDeRango));
        EXPECT_THAT(vista.enfocados, ElementsAre("edad"));
        EXPECT_EQ(frm.actual(), &frm.edad);
        EXPECT_EQ(frm.pulsaciones, 0);
    }
}

TEST_F(FormularioTest, ButtonsThatThrowTheCaseAwayHoldNobody) {
    frm.foco(frm.edad);
    EXPECT_TRUE(frm.foco(frm.sale));
    EXPECT_TRUE(frm.pulsa(frm.sale));
    EXPECT_EQ(frm.pulsaciones, 1);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    EXPECT_FALSE(frm.foco(frm.suma)) << "merely passing by such a button does not dodge the check";
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kFueraDeRango));
}

TEST_F(FormularioTest, AFieldHiddenOrOnAnotherPanelIsNeitherCheckedNorFocused) {
    frm.foco(frm.edad);
    frm.edad.ponVisible(false);
    EXPECT_TRUE(frm.foco(frm.suma));
    frm.edad.ponVisible(true);
    frm.foco(frm.edad);
    frm.muestra(1);
    EXPECT_TRUE(frm.foco(frm.otra));
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(FormularioTest, ATypedDateIsRewrittenOrReplacedByToday) {
    frm.foco(frm.fecha);
    frm.escribe(frm.fecha, "7/1/99");
    EXPECT_TRUE(frm.foco(frm.suma));
    EXPECT_EQ(frm.fecha.texto(), "07-01-1999");
    frm.foco(frm.fecha);
    frm.escribe(frm.fecha, "31-02-2005");
    EXPECT_FALSE(frm.foco(frm.suma));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kFechaMala));
    EXPECT_EQ(frm.fecha.texto(), "15-06-2005");
    EXPECT_EQ(frm.actual(), &frm.fecha);
    EXPECT_EQ(frm.cambios, 1) << "the first date; today is told once it's left standing";
    EXPECT_TRUE(frm.foco(frm.suma));
    EXPECT_EQ(frm.cambios, 2);
}

TEST_F(FormularioTest, APickerIsLeftWithADateOnlyAndTellsOfAnother) {
    frm.foco(frm.selector);
    EXPECT_TRUE(frm.foco(frm.suma));
    EXPECT_EQ(frm.cambios, 0) << "passing through changes nothing";
    frm.foco(frm.selector);
    frm.escribe(frm.selector, "1-1-04");
    frm.foco(frm.suma);
    EXPECT_EQ(frm.selector.texto(), "01-01-2004");
    EXPECT_EQ(frm.cambios, 1);
    frm.foco(frm.selector);
    frm.escribe(frm.selector, "mañana");
    EXPECT_FALSE(frm.foco(frm.suma));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: La fecha no es correcta. El formato válido es día-mes-año"));
    EXPECT_EQ(frm.selector.texto(), "mañana") << "to be mended where it stands";
    EXPECT_EQ(frm.cambios, 1);
    frm.eligeFecha(frm.selector, FechaDMA(3, 3, 2005));
    EXPECT_EQ(frm.selector.texto(), "03-03-2005");
    EXPECT_EQ(frm.cambios, 2);
}

TEST_F(FormularioTest, ADateMayBeTypedInOneGoOrWithPoints) {
    for (const char* escrita : {"31121993", "311293", "31.12.1993", "31/12/93"}) {
        frm.foco(frm.fecha);
        frm.escribe(frm.fecha, escrita);
        EXPECT_TRUE(frm.foco(frm.suma)) << escrita;
        EXPECT_EQ(frm.fecha.texto(), "31-12-1993") << escrita;
    }
}

TEST_F(FormularioTest, WhatIsPastedGoesThroughTheKeyFilter) {
    frm.escribe(frm.edad, "programa 12");
    EXPECT_EQ(frm.edad.texto(), "12");
    frm.escribe(frm.suma, "1.234,50");
    EXPECT_EQ(frm.suma.texto(), "1,23450") << "as typing it would";
    frm.suma.ponTexto("1.234,00");
    frm.escribe(frm.suma, "1.234,005");
    EXPECT_EQ(frm.suma.texto(), "1.234,005") << "what the program set stays as it was";
    frm.escribe(frm.edad, std::string(10000, '7') + '\0');
    EXPECT_EQ(frm.edad.texto().size(), 10000U);
    frm.letras.ponTexto("1ª é");
    frm.escribe(frm.letras, "1ª è");
    EXPECT_EQ(frm.letras.texto(), "1ª È") << "letters that share a byte are told apart whole";
    frm.escribe(frm.letras, "1ê È");
    EXPECT_EQ(frm.letras.texto(), "1Ê È");
}

TEST_F(FormularioTest, AnAmountHasAFaceWithoutTheFocus) {
    frm.suma.ponTexto("1234,5");
    EXPECT_EQ(frm.suma.presentacion(), "1.234,50");
    frm.suma.ponTexto("");
    EXPECT_EQ(frm.suma.presentacion(), "");
}

TEST_F(FormularioTest, ReactionsAreOffWhileTheProgramLoads) {
    frm.Cargando = true;
    frm.marca_.ponMarcado(true);
    frm.lista.ponIndice(2);
    EXPECT_EQ(frm.cambios, 0);
    frm.Cargando = false;
    frm.marca_.ponMarcado(false);
    frm.lista.ponIndice(0);
    EXPECT_EQ(frm.cambios, 2);
}

TEST_F(FormularioTest, ARefilledListKeepsItsIndexLoweredToTheLast) {
    frm.lista.ponIndice(2);
    frm.lista.ponOpciones({"x", "y"});
    EXPECT_EQ(frm.lista.indice(), 1);
    EXPECT_EQ(frm.lista.texto(), "y");
    frm.lista.ponIndice(77);
    EXPECT_EQ(frm.lista.indice(), 1);
    frm.lista.ponIndice(-20);
    EXPECT_EQ(frm.lista.indice(), 0);
}

}  // namespace
}  // namespace orvemo
