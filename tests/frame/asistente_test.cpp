#include "foundations/frame/asistente.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apoyo/entorno_falso.h"
#include "apoyo/vista_falsa.h"
#include "foundations/values/numeros.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct RegistroMinimo {
    Texto<1> Estado;
    Texto<80> NombreSupuesto;
    Texto<80> Nombre;
    double divisor = 0;
};
inline constexpr Diseno kMinimo{169, Tramo{0, "Estado", &RegistroMinimo::Estado},
                                Tramo{1, "NombreSupuesto", &RegistroMinimo::NombreSupuesto},
                                Tramo{81, "Nombre", &RegistroMinimo::Nombre},
                                Tramo{161, "divisor", &RegistroMinimo::divisor}};

/// Divides 12 by a number: the smallest calculator that can fail in mid calculation.
class DivideFrm final : public AsistenteDe<RegistroMinimo, kMinimo> {
  public:
    explicit DivideFrm(Entorno& entorno)
        : AsistenteDe{entorno,
                      {.titulo = "DIVISION",
                       .caption = "División",
                       .fichero = "Divide.nom",
                       .primerLibre = 2,
                       .subtitulos = {"Datos", "CONCLUSIONES"}}},
          Nombre{nuevo({.nombre = "Nombre"})},
          divisor{nuevo({.nombre = "divisor", .defecto = "0"})} {}

    void ImprimeInforme(RutinasImpresion& rutinas) override {
        rutinas.ImprimeCabecera(1, "DIVISION");
        rutinas.ImprimeConclusion(textoConclusion());
    }

    bool incompletos = true;

  protected:
    void tomaCampos() override {
        caso_.Nombre.asigna(Nombre.texto());
        caso_.divisor = LeeNumeroRegional(divisor.texto());
    }
    void cargaCampos() override {
        Nombre.ponTexto(caso_.Nombre.utf8());
        if (caso_.divisor < 0) throw DesbordeNumerico{caso_.divisor};
        divisor.ponTexto(std::to_string(static_cast<int>(caso_.divisor)));
    }
    void calcula(Dictamen& dictamen) override {
        dictamen.vacia();
        dictamen.linea("Doce entre lo dado.");
        dictamen.ConDerecho = true;
        dictamen.linea("Son ", RedondeaPar(Cociente(12, caso_.divisor)), ".");
    }
    [[nodiscard]] bool grabaDatosIncompletos() const override { return incompletos; }

  public:
    Campo& Nombre;
    Campo& divisor;
};

class AsistenteTest : public testing::Test {
  protected:
    AsistenteTest() {
        frm.ponVista(&vista);
        frm.Inicia();
    }

    void graba(const std::string& nombre) {
        vista.alGrabar = [nombre](GrabaSupuesto& dialogo) {
            dialogo.ponNombre(nombre);
            dialogo.BotonGrabar();
        };
        frm.pulsa(frm.BotonGraba);
    }

    pruebas::EntornoFalso mundo;
    pruebas::VistaFalsa vista;
    DivideFrm frm{mundo.entorno};
};

TEST_F(AsistenteTest, AFailureInMidCalculationKeepsTheLinesAndShowsMal) {
    frm.pulsa(frm.Siguiente);
    EXPECT_EQ(frm.textoConclusion(), "Doce entre lo dado.\r\n");
    EXPECT_TRUE(frm.Mal.visible());
    EXPECT_EQ(frm.Mal.rotulo(), "Cálculo no terminado");
    EXPECT_FALSE(frm.Ok.visible());
    ASSERT_EQ(mundo.mensajes.dichos.size(), 1U);
    EXPECT_THAT(mundo.mensajes.dichos[0],
                testing::StartsWith("Error: No se ha podido completar la operación: "));
    EXPECT_EQ(frm.PantallaActual(), 1);
}

TEST_F(AsistenteTest, CalculatesAnewAtEveryEntryAndNeverElse) {
    frm.escribe(frm.divisor, "4");
    frm.pulsa(frm.Siguiente);
    EXPECT_EQ(frm.textoConclusion(), "Doce entre lo dado.\r\nSon 3.\r\n");
    frm.pulsa(frm.Anterior);
    frm.escribe(frm.divisor, "6");
    frm.pulsa(frm.BotonNuevo);
    EXPECT_EQ(frm.textoConclusion(), "Doce entre lo dado.\r\nSon 3.\r\n")
        << "stale till the next calculation";
    frm.escribe(frm.divisor, "6");
    frm.pulsa(frm.Siguiente);
    EXPECT_EQ(frm.textoConclusion(), "Doce entre lo dado.\r\nSon 2.\r\n");
}

TEST_F(AsistenteTest, SavesUnderANameOverwritesAfterAYesAndOffersThePersonsName) {
    frm.escribe(frm.Nombre, "Ana");
    frm.escribe(frm.divisor, "4");
    std::string ofrecido;
    vista.alGrabar = [&](GrabaSupuesto& dialogo) {
        ofrecido = dialogo.Nombre();
        dialogo.BotonGrabar();
    };
    frm.pulsa(frm.BotonGraba);
    EXPECT_EQ(ofrecido, "Ana");
    frm.escribe(frm.divisor, "6");
    mundo.mensajes.respuestas = {true};
    graba("Ana");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Confirma: ¿Desea sobreescribir el antigüo supuesto?"));
    EXPECT_EQ(mundo.almacen["divide.nom"].size(), 169U) << "one record still";
    frm.pulsa(frm.BotonNuevo);
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.divisor.texto(), "6");
    EXPECT_EQ(frm.NombreActual(), "Ana");
}

TEST_F(AsistenteTest, DataThatWouldBeLostAreAskedAboutUnlessAButtonThrowsThemAway) {
    const auto preguntas = [this] { return std::exchange(mundo.mensajes.dichos, {}).size(); };
    EXPECT_TRUE(frm.pulsaPorTeclas(frm.BotonNuevo));
    frm.escribe(frm.divisor, "4");
    mundo.mensajes.respuestas = {false, false};
    EXPECT_FALSE(frm.pulsaPorTeclas(frm.BotonNuevo));
    frm.cierra();
    EXPECT_EQ(frm.divisor.texto() + (frm.oculto() ? " gone" : " kept"), "4 kept");
    EXPECT_EQ(preguntas(), 2U);
    graba("Ana");
    EXPECT_EQ(frm.Caption(), "División - Ana");
    EXPECT_TRUE(frm.pulsaPorTeclas(frm.BotonNuevo)) << "saved: nothing to ask about";
    EXPECT_EQ(frm.Caption(), "División");
    frm.escribe(frm.divisor, "6");
    EXPECT_TRUE(frm.pulsa(frm.BotonExit));
    EXPECT_EQ(preguntas(), 0U);
}

TEST_F(AsistenteTest, ARefusedOverwriteWritesAllTheSameIfTheWindowIsClosed) {
    frm.escribe(frm.divisor, "4");
    graba("Ana");
    frm.escribe(frm.divisor, "6");
    vista.alGrabar = [](GrabaSupuesto& dialogo) {
        dialogo.ponNombre("Ana");
        dialogo.BotonGrabar();
        dialogo.cierra();
    };
    frm.pulsa(frm.BotonGraba);
    EXPECT_EQ(mundo.almacen["divide.nom"].size(), 169U);
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.divisor.texto(), "6");
}

TEST_F(AsistenteTest, AFullDiskIsToldAndTheOldCaseStays) {
    frm.escribe(frm.divisor, "4");
    graba("Ana");
    const std::string antes = mundo.almacen["divide.nom"];
    mundo.mensajes.dichos.clear();
    mundo.almacen.sitio = 100;
    graba("Luis");
    ASSERT_EQ(mundo.mensajes.dichos.size(), 1U);
    EXPECT_THAT(mundo.mensajes.dichos[0], testing::HasSubstr("No se ha podido completar la operación"));
    EXPECT_EQ(mundo.almacen["divide.nom"], antes);
}

TEST_F(AsistenteTest, AReadOnlyDirectoryLetsComputeAndSaysWhyItCannotSave) {
    mundo.almacen.soloLectura = true;
    frm.escribe(frm.divisor, "4");
    frm.pulsa(frm.Siguiente);
    EXPECT_TRUE(frm.ConDerecho());
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    graba("Ana");
    ASSERT_EQ(mundo.mensajes.dichos.size(), 1U);
    EXPECT_THAT(mundo.mensajes.dichos[0], testing::HasSubstr("no se puede escribir"));
}

TEST_F(AsistenteTest, DataThatCannotBeReadAreSavedOrNotAsTheCalculatorTells) {
    frm.escribe(frm.divisor, "x");
    frm.incompletos = false;
    graba("Ana");
    EXPECT_FALSE(mundo.almacen.existe("divide.nom") && !mundo.almacen["divide.nom"].empty());
    frm.incompletos = true;
    graba("Ana");
    EXPECT_EQ(mundo.almacen["divide.nom"].size(), 169U);
}

TEST_F(AsistenteTest, ACaseThatCannotBeShownLeavesTheOneOnScreen) {
    RegistroMinimo malo;
    malo.divisor = -1;
    mundo.almacen["divide.nom"] = kMinimo.escribe(malo);
    frm.escribe(frm.Nombre, "Ana");
    frm.escribe(frm.divisor, "4");
    vista.alCargar = [](CargaSupuesto& dialogo) {
        dialogo.selecciona(0);
        dialogo.BotonCargar();
    };
    frm.pulsa(frm.BotonCarga);
    EXPECT_EQ(mundo.mensajes.dichos.size(), 1U);
    EXPECT_EQ(frm.Nombre.texto(), "Ana");
    EXPECT_EQ(frm.divisor.texto(), "4");
    EXPECT_EQ(frm.caso().divisor, 0) << "nor does anything of it reach the case in hand";
}

TEST_F(AsistenteTest, PrintingSaysHowItEnded) {
    mundo.impresora.cancela = true;
    frm.pulsa(frm.BotonPrint);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty()) << "a cancelled dialog prints nothing and says nothing";
    mundo.impresora.cancela = false;
    frm.pulsa(frm.BotonPrint);
    EXPECT_THAT(mundo.impresora.lineas, ElementsAre("DIVISION"));
    mundo.impresora.fallaAlTerminar = true;
    frm.pulsa(frm.BotonPrint);
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Informa: Impresión terminada",
                            "Error: No se ha podido imprimir: la impresora no responde.",
                            "Informa: Impresión terminada"));
}

}  // namespace
}  // namespace orvemo
