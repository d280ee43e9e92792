#include <gmock/gmock.h>

#include "shell/apoyo_shell.h"
#include "shell/fondo_frm.h"
#include "shell/pantallas.h"
#include "shell/presenta_frm.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoSePuede = "Error: No se ha podido completar la operación: ";

/// A directory with all that both screens need.
struct MundoConDatos : EntornoFalso {
    MundoConDatos() {
        ponFotos(almacen);
        for (int i = 1; i <= 3; ++i) almacen["presen" + std::to_string(i) + ".bmp"] = "BM";
        for (int i = 1; i <= 8; ++i) almacen["fondo" + std::to_string(i) + ".bmp"] = "BM";
        almacen["bibl.txt"] =
            "#A:1@Jubilaci\xF3n\r\n#A:3@Desempleo\r\n#A:8@N\xF3minas\r\n"
            "#1 Uno\r\nResumen de uno\r\nen dos l\xEDneas\r\n"
            "#3 Otro\r\nDe desempleo\r\n"
            "#1 Dos\r\nResumen de dos\r\n"
            "#FIN\r\n";
    }
};

class Presenta : public testing::Test {
  protected:
    MundoConDatos mundo;
    PresentaFrm frm{mundo.entorno};
};

TEST_F(Presenta, MuestraLaFotoDeCadaOpcion) {
    frm.Inicia();
    EXPECT_EQ(frm.Caption(), "Información del programa");
    EXPECT_EQ(frm.LogoOrvemo.texto(), "logo.bmp");
    EXPECT_EQ(frm.PresenPan.texto(), "presen1.bmp");

    std::vector<std::string> fotos;
    for (int i = 1; i <= 3; ++i) {
        frm.pulsa(frm.campo("PresenOpciones", i));
        fotos.push_back(frm.campo("PresenOpciones", i).rotulo() + ": " + frm.PresenPan.texto());
    }
    EXPECT_THAT(fotos, ElementsAre("Programa: presen1.bmp", "Nota del autor: presen2.bmp",
                                   "Direcciones de interés: presen3.bmp"));
    frm.pulsa(frm.PresentaBotonExit);
    EXPECT_TRUE(frm.oculto());
}

TEST_F(Presenta, UnaFotoQueFaltaSeDiceYQuedaLaAnterior) {
    frm.Inicia();
    mundo.almacen.ficheros.erase("presen3.bmp");
    frm.pulsa(frm.campo("PresenOpciones", 2));
    frm.pulsa(frm.campo("PresenOpciones", 3));
    EXPECT_EQ(frm.PresenPan.texto(), "presen2.bmp");
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre(kNoSePuede + std::string{"el fichero \"presen3.bmp\" no se puede usar (no existe)."}));
    EXPECT_FALSE(frm.oculto());
}

class Fondo : public testing::Test {
  protected:
    MundoConDatos mundo;
    std::string capitulos() {
        std::string texto;
        for (int i = 1; i <= 8; ++i) {
            const Campo& boton = frm.campo("FondoCap", i);
            if (boton.visible()) texto += std::to_string(i) + "=" + boton.rotulo() + " ";
        }
        return texto;
    }
    void pulsaCapitulo(int i) { ASSERT_TRUE(frm.pulsa(frm.campo("FondoCap", i))); }

    FondoFrm frm{mundo.entorno};
};

TEST_F(Fondo, EmpiezaEnElPrimerCapitulo) {
    frm.Inicia();
    EXPECT_EQ(frm.Titulo(), "FONDO EDITORIAL ORVEMO");
    EXPECT_EQ(frm.Caption(), "Fondo Editorial Orvemo");
    EXPECT_EQ(capitulos(), "1=Jubilación 3=Desempleo 8=Nóminas ");
    EXPECT_EQ(frm.LogoOrvemo.texto(), "logo.bmp");
    EXPECT_EQ(frm.FondoImg.texto(), "fondo1.bmp");
    EXPECT_THAT(frm.FondoLista.opciones(), ElementsAre("Uno", "Dos"));
    EXPECT_EQ(frm.FondoLista.texto(), "Uno");
    EXPECT_EQ(frm.FondoTxt.texto(), "Resumen de uno\r\nen dos líneas\r\n");
}

TEST_F(Fondo, ElResumenSigueAlLibroYElLibroAlCapitulo) {
    frm.Inicia();
    frm.elige(frm.FondoLista, 1);
    EXPECT_EQ(frm.FondoTxt.texto(), "Resumen de dos\r\n");

    pulsaCapitulo(3);
    EXPECT_EQ(frm.FondoImg.texto(), "fondo3.bmp");
    EXPECT_THAT(frm.FondoLista.opciones(), ElementsAre("Otro"));
    EXPECT_EQ(frm.FondoTxt.texto(), "De desempleo\r\n");

    pulsaCapitulo(1);
    EXPECT_EQ(frm.FondoTxt.texto(), "Resumen de uno\r\nen dos líneas\r\n");
    frm.pulsa(frm.FondoBotonExit);
    EXPECT_TRUE(frm.oculto());
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(Fondo, UnCapituloSinLibrosDiceSuLineaYDejaLaListaVacia) {
    frm.Inicia();
    pulsaCapitulo(8);
    EXPECT_EQ(mundo.mensajes.dichos.at(0),
              kNoSePuede + std::string{"el fichero \"bibl.txt\" no es correcto en la línea 3 (el capítulo "
                                       "8 no tiene ningún libro)."});
    EXPECT_EQ(frm.FondoImg.texto(), "fondo8.bmp");
    EXPECT_THAT(frm.FondoLista.opciones(), IsEmpty());
    EXPECT_EQ(frm.FondoTxt.texto(), "");
    mundo.almacen.ficheros.erase("fondo3.bmp");
    pulsaCapitulo(3);
    EXPECT_EQ(frm.FondoImg.texto(), "fondo8.bmp");
}

TEST(Informacion, LoQueImpideAbrirlasSeDiceDesdeElMenu) {
    constexpr int kFondo = 12;
    constexpr int kInformacion = 13;
    const char* kSinFichero = nullptr;
    struct Caso {
        int opcion;
        const char* fichero;
        const char* contenido;
        std::string dicho;
    };
    const std::string malo = "el fichero \"bibl.txt\" no es correcto";
    const Caso casos[] = {
        {kInformacion, "logo.bmp", kSinFichero, "el fichero \"logo.bmp\" no se puede usar (no existe)"},
        {kInformacion, "presen1.bmp", kSinFichero, "el fichero \"presen1.bmp\" no se puede usar (no existe)"},
        {kFondo, "fondo1.bmp", kSinFichero, "el fichero \"fondo1.bmp\" no se puede usar (no existe)"},
        {kFondo, "bibl.txt", kSinFichero, "el fichero \"bibl.txt\" no se puede usar (no existe)"},
        {kFondo, "bibl.txt", "", malo + " (el capítulo 1 no tiene ningún libro)"},
        {kFondo, "bibl.txt", "\n#A:1@Uno\n#2 Dos\n#FIN",
         malo + " en la línea 2 (el capítulo 1 no tiene ningún libro)"},
        {kFondo, "bibl.txt", "#1 Uno\n#dos\n",
         malo + " en la línea 2 (el capítulo del libro no es una cifra)"},
    };
    for (const Caso& caso : casos) {
        MundoConDatos mundo;
        if (caso.contenido == kSinFichero) {
            mundo.almacen.ficheros.erase(caso.fichero);
        } else {
            mundo.almacen[caso.fichero] = caso.contenido;
        }
        VistaProgramaFalsa vista;
        Programa programa{mundo.entorno, PantallasDelMenu({}), vista};
        programa.Opcion(caso.opcion);
        EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(kNoSePuede + caso.dicho + "."));
        EXPECT_THAT(vista.pedidos, IsEmpty()) << caso.dicho;
    }
}

}  // namespace
}  // namespace orvemo::pruebas
