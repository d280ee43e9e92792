#include "cases/dialogos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apoyo/mensajes_falsos.h"
#include "apoyo_casos.h"

namespace orvemo {
namespace {

using pruebas::borrado;
using pruebas::kLongitud;
using pruebas::lineas;
using pruebas::registro;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSobreescribir = "Confirma: ¿Desea sobreescribir el antigüo supuesto?";
constexpr const char* kBorrar = "Confirma: ¿Borrar el supuesto?";
constexpr const char* kEjemplo =
    "Error: No pueden borrarse ni  sobreescribirse los supuestos entregados como ejemplo";

/// Both dialogs over "muerte.nom", whose records 1 and 2 are examples.
class DialogosTest : public testing::Test {
  protected:
    void conCasos(std::initializer_list<const char*> nombres) {
        for (const char* nombre : nombres) archivo.agrega(registro(nombre));
    }
    void respondeSi() { mensajes.respuestas.push_back(true); }

    pruebas::AlmacenMemoria almacen;
    pruebas::MensajesFalsos mensajes;
    ArchivoSupuestos archivo{almacen, "muerte.nom", kLongitud};
    GrabaSupuesto graba{almacen, mensajes, "Muerte.nom", kLongitud, 3};
    CargaSupuesto carga{almacen, mensajes, "muerte.nom", kLongitud, 3};
};

TEST_F(DialogosTest, AnEmptyFileHasNothingToLoadAndAFirstSaveIsNew) {
    carga.Inicia();
    EXPECT_THAT(carga.ListaSupuestos(), IsEmpty());
    carga.selecciona(0);
    carga.BotonCargar();
    EXPECT_FALSE(carga.oculto());
    EXPECT_EQ(carga.Registro(), 0);

    graba.Inicia("  Ana ");
    EXPECT_EQ(graba.Nombre(), "Ana");
    graba.BotonGrabar();
    EXPECT_TRUE(graba.oculto());
    EXPECT_EQ(graba.Registro(), 9999);
    EXPECT_THAT(mensajes.dichos, IsEmpty());
}

TEST_F(DialogosTest, SavingComparesTheNamesAsTheyStandInTheFile) {
    const std::string ochenta(80, 'n');
    conCasos({"uno", "dos", "  Ana  ", "Łódź", "Núñez", "Ana"});
    archivo.agrega(registro(ochenta));
    archivo.borra(1);
    struct Caso {
        const char* titulo;
        std::string nombre;
        int registro;  ///< offered to be overwritten; 9999 when it is a new name
    };
    const Caso kCasos[] = {
        {"a new name", "Eva", 9999},
        {"the first of two equal names", "Ana", 3},
        {"padded with blanks", "   Ana ", 3},
        {"in another case", "ana", 9999},
        {"without its accent", "Nunez", 9999},
        {"accents and all", "Núñez", 5},
        {"an erased name", "uno", 9999},
        {"over an example: not protected here", "dos", 2},
        {"what the file can't hold meets itself", "Łódź", 4},
        {"and what is stored as the same", "?ódź", 4},
        {"as long as it can be", ochenta, 7},
        {"too long: cut to what is stored", ochenta + " y más", 7},
        {"the end that a NUL hides", std::string{"Ana\0x", 5}, 3},
    };
    for (const Caso& caso : kCasos) {
        GrabaSupuesto dialogo{almacen, mensajes, "Muerte.nom", kLongitud, 3};
        mensajes.dichos.clear();
        mensajes.respuestas = {true};
        dialogo.Inicia("");
        dialogo.ponNombre(caso.nombre);
        dialogo.BotonGrabar();
        EXPECT_TRUE(dialogo.oculto()) << caso.titulo;
        EXPECT_EQ(dialogo.Registro(), caso.registro) << caso.titulo;
        EXPECT_EQ(mensajes.dichos.size(), caso.registro == 9999 ? 0U : 1U) << caso.titulo;
    }
}

TEST_F(DialogosTest, ABlankNameIsRefused) {
    for (const std::string& nombre : {std::string{}, std::string(5, ' '), std::string(3, '\0')}) {
        graba.Inicia("Ana");
        graba.ponNombre(nombre);
        EXPECT_FALSE(graba.puedeGrabar());
        mensajes.dichos.clear();
        graba.BotonGrabar();
        EXPECT_THAT(mensajes.dichos, ElementsAre("Error: El nombre del supuesto no puede estar en blanco."));
        EXPECT_FALSE(graba.oculto());
        EXPECT_EQ(graba.Registro(), 0);
    }
    graba.ponNombre(" a");
    EXPECT_TRUE(graba.puedeGrabar());
}

TEST_F(DialogosTest, ARefusedOverwriteLeavesTheRecordSetTillCancelled) {
    conCasos({"uno", "Ana"});
    graba.Inicia("Ana");
    graba.BotonGrabar();
    EXPECT_THAT(mensajes.dichos, ElementsAre(kSobreescribir));
    EXPECT_FALSE(graba.oculto());
    EXPECT_EQ(graba.Registro(), 2);

    GrabaSupuesto cerrado = graba;
    cerrado.cierra();
    EXPECT_TRUE(cerrado.oculto());
    EXPECT_EQ(cerrado.Registro(), 2) << "closing the window doesn't reset it";
    graba.BotonCancelar();
    EXPECT_TRUE(graba.oculto());
    EXPECT_EQ(graba.Registro(), 0);
}

TEST_F(DialogosTest, SelectingACaseCopiesItsNameAndLoadingGivesItsRecord) {
    conCasos({"uno", "ñu", "Álamo"});
    graba.Inicia("Ana");
    EXPECT_THAT(lineas(graba.ListaSupuestos()), ElementsAre("3 Álamo", "2 ñu", "1 uno"));
    EXPECT_EQ(graba.seleccion(), -1);
    graba.selecciona(1);
    EXPECT_EQ(graba.Nombre(), "ñu");
    graba.selecciona(3);
    EXPECT_EQ(graba.seleccion(), -1);
    EXPECT_EQ(graba.Nombre(), "ñu");

    carga.Inicia();
    carga.selecciona(0);
    carga.BotonCargar();
    EXPECT_TRUE(carga.oculto());
    EXPECT_EQ(carga.Registro(), 3);
    carga.BotonCancelar();
    EXPECT_EQ(carga.Registro(), 0);
}

TEST_F(DialogosTest, ExamplesAreProtectedWhereCasesAreSavedAloneAndUnlessVestaIsThere) {
    struct Caso {
        const char* titulo;
        bool alGrabar;
        bool vesta;
        int entrada;  ///< "caso 1" to "caso 3" are entries 0 to 2
        std::vector<std::string> dichos;
        std::vector<std::string> quedan;
    };
    const Caso kCasos[] = {
        {"an example, saving", true, false, 1, {kEjemplo}, {"1 caso 1", "2 caso 2", "3 caso 3"}},
        {"the first that is none", true, false, 2, {kBorrar}, {"1 caso 1", "2 caso 2"}},
        {"an example with the marker", true, true, 1, {kBorrar}, {"1 caso 1", "3 caso 3"}},
        {"an example, loading", false, false, 0, {kBorrar}, {"2 caso 2", "3 caso 3"}},
        {"nothing selected, saving", true, false, -1, {}, {"1 caso 1", "2 caso 2", "3 caso 3"}},
        {"nothing selected, loading", false, false, -1, {}, {"1 caso 1", "2 caso 2", "3 caso 3"}},
    };
    for (const Caso& caso : kCasos) {
        almacen.ficheros.clear();
        conCasos({"caso 1", "caso 2", "caso 3"});
        if (caso.vesta) almacen["vesta"];
        mensajes.dichos.clear();
        mensajes.respuestas = {true};
        DialogoSupuestos& dialogo = caso.alGrabar ? static_cast<DialogoSupuestos&>(graba) : carga;
        dialogo.CargaLista();
        dialogo.selecciona(caso.entrada);
        dialogo.BotonBorrar();
        EXPECT_EQ(mensajes.dichos, caso.dichos) << caso.titulo;
        EXPECT_EQ(lineas(dialogo.ListaSupuestos()), caso.quedan) << caso.titulo;
        EXPECT_EQ(lineas(archivo.lista()), caso.quedan) << caso.titulo;
        EXPECT_FALSE(dialogo.oculto()) << caso.titulo;
    }
}

TEST_F(DialogosTest, ErasingIsAskedAndANoErasesNothing) {
    conCasos({"uno"});
    carga.Inicia();
    carga.selecciona(0);
    carga.BotonBorrar();
    EXPECT_THAT(mensajes.dichos, ElementsAre(kBorrar));
    EXPECT_EQ(almacen["muerte.nom"], registro("uno"));
    EXPECT_EQ(carga.seleccion(), 0);
    respondeSi();
    carga.BotonBorrar();
    EXPECT_EQ(almacen["muerte.nom"], borrado(registro("uno")));
    EXPECT_EQ(carga.seleccion(), -1);
}

TEST_F(DialogosTest, ANameOfNulsIsAnEmptyLineThatCanBeErased) {
    conCasos({"uno"});
    almacen["muerte.nom"] += std::string(kLongitud, '\0');
    carga.Inicia();
    EXPECT_THAT(lineas(carga.ListaSupuestos()), ElementsAre("2 ", "1 uno"));
    carga.selecciona(0);
    respondeSi();
    carga.BotonBorrar();
    EXPECT_THAT(lineas(carga.ListaSupuestos()), ElementsAre("1 uno"));
}

TEST_F(DialogosTest, AFailedErasureIsToldAndTheDialogStays) {
    conCasos({"uno", "dos"});
    carga.Inicia();
    carga.selecciona(0);
    almacen.averia = {.bytes = 300};  // the journal has gone through
    respondeSi();
    carga.BotonBorrar();
    EXPECT_THAT(mensajes.dichos,
                ElementsAre(kBorrar,
                            "Error: No se ha podido completar la operación: el fichero "
                            "\"muerte.nom\" no se puede usar (el disco está lleno o no admite más "
                            "datos; lo que había queda como estaba)."));
    EXPECT_FALSE(carga.oculto());
    EXPECT_THAT(lineas(carga.ListaSupuestos()), ElementsAre("2 dos", "1 uno"));
    carga.BotonCargar();
    EXPECT_EQ(carga.Registro(), 2) << "still selected, still there";
}

TEST_F(DialogosTest, AFileThatCannotBeListedStopsTheDialogBeforeItShows) {
    conCasos({"uno"});
    almacen.lecturas = 0;
    EXPECT_THROW(graba.Inicia("Ana"), FicheroInaccesible);
    EXPECT_THROW(carga.Inicia(), FicheroInaccesible);
    almacen.lecturas = 100;
    almacen["muerte.nom"].assign(33000 * kLongitud, ' ');
    EXPECT_THROW(graba.Inicia("Ana"), DemasiadosSupuestos);
    EXPECT_THROW(carga.Inicia(), DemasiadosSupuestos);
}

}  // namespace
}  // namespace orvemo
