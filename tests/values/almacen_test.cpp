#include "foundations/values/almacen.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

#include "apoyo/disco.h"
#include "foundations/values/fallos.h"

namespace orvemo {
namespace {

namespace fs = std::filesystem;

using pruebas::DiscoLleno;

class EnDirectorio : public testing::Test {
  protected:
    void pon(const std::string& nombre, std::string_view contenido) const { carpeta.pon(nombre, contenido); }

    pruebas::CarpetaTemporal carpeta;
};

std::string lee(FicheroAleatorio& fichero, std::uint64_t posicion, std::size_t cuantos) {
    std::string bytes(cuantos, '?');
    bytes.resize(fichero.lee(posicion, bytes));
    return bytes;
}

/// What the failure of an operation says, or "" when it doesn't fail.
template <typename Operacion>
std::string fallo(Operacion&& operacion) {
    try {
        operacion();
    } catch (const FicheroInaccesible& inaccesible) {
        return inaccesible.what();
    }
    return {};
}

std::string noSePuedeUsar(const std::string& nombre, const std::string& motivo) {
    return "el fichero \"" + nombre + "\" no se puede usar (" + motivo + ")";
}

TEST_F(EnDirectorio, NamesMatchWithoutRegardToCase) {
    pon("Muerte.nom", "M");
    pon("ILT.nom", "mayusculas");
    pon("ilt.NOM", "mezcla");
    fs::create_directory(carpeta / "Fondos");
    pon("Fondos/Fondo1.BMP", "imagen");
    const DirectorioAplicacion directorio{carpeta};
    struct {
        const char* titulo;
        const char* nombre;
        const char* fichero;
    } const casos[] = {
        {"another case", "MUERTE.NOM", "Muerte.nom"},
        {"the exact name first", "ilt.NOM", "ilt.NOM"},
        {"else the smallest", "ilt.nom", "ILT.nom"},
        {"a backslash before the name", "\\muerte.nom", "Muerte.nom"},
        {"directories too, with either bar", "fondos\\fondo1.bmp", "Fondos/Fondo1.BMP"},
        {"absent: as given", "Nuevo.nom", "Nuevo.nom"},
        {"absent in an absent directory", "otra/Nuevo.nom", "otra/Nuevo.nom"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(carpeta / caso.fichero, directorio.ruta(caso.nombre)) << caso.titulo;
}

TEST_F(EnDirectorio, OnlyOrdinaryFilesExist) {
    pon("vesta", "");
    fs::create_directory(carpeta / "nodo.cue");
    fs::create_symlink(carpeta / "nada", carpeta / "roto");
    const DirectorioAplicacion directorio{carpeta};
    EXPECT_TRUE(directorio.existe("VESTA"));
    EXPECT_FALSE(directorio.existe("nodo.cue"));
    EXPECT_FALSE(directorio.existe("roto"));
    EXPECT_FALSE(directorio.existe("ausente"));
    EXPECT_FALSE(ExisteArchivo(carpeta));
    EXPECT_FALSE(ExisteArchivo("/dev/null"));
    EXPECT_FALSE(ExisteArchivo(carpeta / "vesta" / "dentro"));
}

TEST_F(EnDirectorio, RecordsAreReadAndWrittenAnywhere) {
    DirectorioAplicacion directorio{carpeta};
    {
        const auto fichero = directorio.abre("caso.nom", Acceso::Escritura);
        EXPECT_EQ(4U, fichero->escribe(0, std::string{"abcd"}));
        EXPECT_EQ(4U, fichero->longitud());
        EXPECT_EQ("bc", lee(*fichero, 1, 2));
        EXPECT_EQ(2U, fichero->escribe(1, std::string{"XY"}));
        EXPECT_EQ("aXYd", lee(*fichero, 0, 10)) << "fewer bytes at the end of the file";
        EXPECT_EQ("", lee(*fichero, 50, 10)) << "none beyond it";
        EXPECT_EQ(1U, fichero->escribe(6, std::string{"z"})) << "NULs fill the gap";
        EXPECT_EQ(std::string("aXYd\0\0z", 7), carpeta.contenido("caso.nom")) << "on disk while still open";
        EXPECT_TRUE(fichero->corta(3));
        EXPECT_EQ(3U, fichero->longitud());
    }
    EXPECT_EQ("aXY", directorio.leeTodo("CASO.NOM"));
}

TEST_F(EnDirectorio, OpeningCreatesWhatIsAbsent) {
    DirectorioAplicacion directorio{carpeta};
    EXPECT_EQ(0U, directorio.abre("leido.nom", Acceso::Lectura)->longitud());
    EXPECT_EQ(0U, directorio.abre("escrito.nom", Acceso::Escritura)->longitud());
    EXPECT_EQ((std::vector<std::string>{"escrito.nom", "leido.nom"}), carpeta.ficheros());
    pon("lleno.nom", "abc");
    EXPECT_EQ(3U, directorio.abre("lleno.nom", Acceso::Escritura)->longitud()) << "and empties nothing";
}

TEST_F(EnDirectorio, WhatCannotBeCreatedReadsAsEmptyAndWritingSaysWhy) {
    pon("suelto", "");
    DirectorioAplicacion sinCarpeta{carpeta / "ausente"};
    DirectorioAplicacion sobreFichero{carpeta / "suelto"};
    DirectorioAplicacion directorio{carpeta};
    const std::string nombreLargo(300, 'n');
    struct {
        const char* titulo;
        DirectorioAplicacion& directorio;
        std::string nombre;
        const char* motivo;
    } const casos[] = {
        {"no directory", sinCarpeta, "caso.nom", "no existe"},
        {"a file where the directory should be", sobreFichero, "caso.nom", "su carpeta no existe"},
        {"a name too long for the disk", directorio, nombreLargo, "el nombre es demasiado largo"},
    };
    for (const auto& caso : casos) {
        const auto vacio = caso.directorio.abre(caso.nombre, Acceso::Lectura);
        EXPECT_EQ(0U, vacio->longitud()) << caso.titulo;
        EXPECT_EQ("", lee(*vacio, 0, 10)) << caso.titulo;
        EXPECT_EQ(0U, vacio->escribe(0, std::string{"x"})) << caso.titulo;
        EXPECT_FALSE(vacio->corta(0)) << caso.titulo;
        const std::string esperado = FicheroInaccesible{caso.nombre, caso.motivo}.what();
        EXPECT_EQ(esperado, fallo([&] { (void)caso.directorio.abre(caso.nombre, Acceso::Escritura); }));
        EXPECT_EQ(esperado, fallo([&] { (void)caso.directorio.leeTodo(caso.nombre); })) << caso.titulo;
        EXPECT_EQ(esperado, fallo([&] { caso.directorio.sustituye(caso.nombre, "x"); })) << caso.titulo;
    }
}

// A pipe in the place of a file was waited for without end.
TEST_F(EnDirectorio, WhatIsNoFileIsRefusedAndSaysWhatItIs) {
    fs::create_directory(carpeta / "carpeta.nom");
    ASSERT_EQ(0, mkfifo((carpeta / "fifo.nom").c_str(), 0600));
    fs::create_symlink("/dev/zero", carpeta / "cero.nom");
    fs::create_symlink("bucle.nom", carpeta / "bucle.nom");
    const std::vector<std::string> antes = carpeta.ficheros();
    DirectorioAplicacion directorio{carpeta};
    struct {
        const char* nombre;
        const char* motivo;
    } const casos[] = {{"carpeta.nom", "es una carpeta"},
                       {"fifo.nom", "es una tubería"},
                       {"cero.nom", "es un dispositivo"},
                       {"bucle.nom", "sus enlaces dan vueltas sin fin"}};
    for (const auto& [nombre, motivo] : casos) {
        const std::string esperado = noSePuedeUsar(nombre, motivo);
        EXPECT_EQ(esperado, fallo([&] { (void)directorio.abre(nombre, Acceso::Lectura); }));
        EXPECT_EQ(esperado, fallo([&] { (void)directorio.abre(nombre, Acceso::Escritura); }));
        EXPECT_EQ(esperado, fallo([&] { (void)directorio.leeTodo(nombre); }));
        EXPECT_EQ(esperado, fallo([&] { directorio.sustituye(nombre, "x"); }));
        EXPECT_EQ(esperado, fallo([&] { (void)AbreParaLeer(carpeta / nombre); }));
    }
    EXPECT_EQ(antes, carpeta.ficheros());
    ASSERT_EQ(0, mkfifo((carpeta / "config.nom.nuevo").c_str(), 0600));
    EXPECT_EQ(noSePuedeUsar("config.nom", "config.nom.nuevo es una tubería"),
              fallo([&] { directorio.sustituye("config.nom", "x"); }));
}

// An index of 10 GB without a byte in it took all the memory.
TEST_F(EnDirectorio, AFileReadWholeHasABound) {
    pon("ipc.txt", "x");
    fs::resize_file(carpeta / "ipc.txt", std::uintmax_t{10} << 30);
    pon("justo", std::string(kMaximoFicheroTexto, 'x'));
    const DirectorioAplicacion directorio{carpeta};
    EXPECT_EQ(noSePuedeUsar("ipc.txt", "es demasiado grande para lo que debe contener"),
              fallo([&] { (void)directorio.leeTodo("ipc.txt"); }));
    EXPECT_EQ(kMaximoFicheroTexto, directorio.leeTodo("justo").size());
    EXPECT_THROW((void)directorio.leeHasta("justo", kMaximoFicheroTexto - 1), FicheroInaccesible);
}

TEST_F(EnDirectorio, AFileThatCannotBeReadIsNotTakenForEmpty) {
    fs::create_symlink("/proc/self/mem", carpeta / "caso.nom");  // opens, but reading at 0 fails
    DirectorioAplicacion directorio{carpeta};
    const auto fichero = directorio.abre("caso.nom", Acceso::Lectura);
    EXPECT_EQ(noSePuedeUsar("caso.nom", "no se puede leer"), fallo([&] { (void)lee(*fichero, 0, 10); }));
    EXPECT_EQ(noSePuedeUsar("caso.nom", "no se puede leer"),
              fallo([&] { (void)directorio.leeTodo("caso.nom"); }));
}

TEST_F(EnDirectorio, AFullDiskShowsInTheBytesWritten) {
    DirectorioAplicacion directorio{carpeta};
    const std::string registro = "0123456789";
    for (std::size_t caben = 0; caben <= registro.size(); ++caben) {
        const auto fichero = directorio.abre("caso" + std::to_string(caben), Acceso::Escritura);
        const DiscoLleno disco{caben};
        EXPECT_EQ(caben, fichero->escribe(0, registro));
        EXPECT_EQ(caben, fichero->longitud());
    }
}

TEST_F(EnDirectorio, AReplacementIsWholeOrDoesNotHappen) {
    pon("Config.nom", "lo de antes");
    DirectorioAplicacion directorio{carpeta};
    const std::string nuevo = "0123456789abcdef";
    for (std::size_t caben = 0; caben < nuevo.size(); ++caben) {
        const DiscoLleno disco{caben};
        EXPECT_EQ(noSePuedeUsar("Config.nom", "no cabe en el disco"),
                  fallo([&] { directorio.sustituye("config.nom", nuevo); }));
        EXPECT_EQ("lo de antes", carpeta.contenido("Config.nom")) << caben;
        EXPECT_EQ((std::vector<std::string>{"Config.nom"}), carpeta.ficheros()) << caben;
    }
    directorio.sustituye("config.nom", nuevo);
    directorio.sustituye("otro.nom", "");
    EXPECT_EQ(nuevo, carpeta.contenido("Config.nom"));
    EXPECT_EQ((std::vector<std::string>{"Config.nom", "otro.nom"}), carpeta.ficheros());
}

TEST_F(EnDirectorio, AReplacementKeepsLinksAndPermissions) {
    fs::create_directory(carpeta / "datos");
    pon("datos/config.nom", "antes");
    fs::permissions(carpeta / "datos/config.nom", fs::perms::owner_all | fs::perms::others_read);
    fs::create_symlink("datos/config.nom", carpeta / "config.nom");
    DirectorioAplicacion{carpeta}.sustituye("config.nom", "despues");
    EXPECT_TRUE(fs::is_symlink(carpeta / "config.nom"));
    EXPECT_EQ("despues", carpeta.contenido("datos/config.nom"));
    EXPECT_EQ(fs::perms::owner_all | fs::perms::others_read,
              fs::status(carpeta / "datos/config.nom").permissions());
}

TEST_F(EnDirectorio, WholeFilesAreReadWhateverTheirSize) {
    DirectorioAplicacion directorio{carpeta};
    for (const std::size_t largo : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
        const std::string bytes(largo, '\xFF');
        pon("datos", bytes);
        EXPECT_EQ(bytes, directorio.leeTodo("datos")) << largo;
    }
}

}  // namespace
}  // namespace orvemo
