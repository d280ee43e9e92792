#include "lote/opciones_lote.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/catalogo.h"

namespace orvemo::lote {
namespace {

Opciones lee(std::vector<std::string> argumentos) {
    argumentos.insert(argumentos.begin(), "orvemo-lote");
    return leeOpciones(argumentos, CalculadorasDelPrograma());
}

TEST(OpcionesLote, ReadsAWholeCommandLine) {
    const Opciones o = lee({"desempleo", "casos.nom", "--registro", "3", "--hoy", "2005-06-15", "--datos",
                            "/d", "--pdf", "/p", "--json"});
    EXPECT_EQ(o.calculadora, "desempleo");
    EXPECT_EQ(o.fichero, "casos.nom");
    EXPECT_EQ(o.registro, 3);
    EXPECT_EQ(o.hoy, FechaDMA(15, 6, 2005));
    EXPECT_EQ(o.datos, "/d");
    EXPECT_EQ(o.pdf, "/p");
    EXPECT_TRUE(o.json);
    EXPECT_EQ(o.mandato, Mandato::Calcula);
    EXPECT_EQ(lee({"exporta", "desempleo", "casos.nom"}).mandato, Mandato::Exporta);
    EXPECT_EQ(lee({"importa", "desempleo", "casos.nom"}).fichero, "casos.nom");
}

TEST(OpcionesLote, RefusesWhatItCannotUse) {
    const std::vector<std::vector<std::string>> lineas{
        {},
        {"desempleo"},
        {"desempleo", "a.nom", "b.nom"},
        {"exporta", "desempleo"},
        {"desempleo", "a.nom", "--registro", "0"},
        {"desempleo", "a.nom", "--registro", "uno"},
        {"desempleo", "a.nom", "--hoy", "2005-02-30"},
        {"desempleo", "a.nom", "--hoy", "15-06-2005"},
        {"desempleo", "a.nom", "--hoy", "2005-06-15x"},
        {"desempleo", "a.nom", "--hoy", "0050-06-15"},
        {"desempleo", "a.nom", "--desconocida"},
        {"desempleo", "a.nom", "--pdf"},
    };
    for (const auto& linea : lineas) EXPECT_THROW(lee(linea), ArgumentoInservible) << linea.size();
}

TEST(OpcionesLote, AFileNameKeepsItsBytesUtf8OrNot) {
    for (const std::string nombre : {"a\\b.nom", "mu\xF1oz.nom", "muñoz.nom"}) {
        EXPECT_EQ(lee({"desempleo", nombre}).fichero, nombre);
    }
}

TEST(OpcionesLote, HelpIsNoError) {
    EXPECT_THROW(lee({"--ayuda"}), PideAyuda);
}

TEST(OpcionesLote, TheListIsForScripts) {
    std::string lista;
    try {
        lee({"--lista"});
    } catch (const PideAyuda& texto) {
        lista = texto.what();
    }
    EXPECT_NE(lista.find("\nit ILT.nom ejemplos/ILT.nom\n"), std::string::npos) << lista;
}

}  // namespace
}  // namespace orvemo::lote
