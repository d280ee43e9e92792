#include <gmock/gmock.h>

#include <filesystem>

#include "apoyo/disco.h"
#include "shell/apoyo_shell.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kInformacionYFin[] = {"Información (derecha 7)", "&Fin del Programa (derecha 8)"};

class ProgramaInicio : public testing::Test {
  protected:
    ProgramaInicio() { ponFotos(mundo.almacen); }

    EntornoFalso mundo;
    VistaProgramaFalsa vista;
    Programa programa{mundo.entorno, {}, vista};
};

TEST_F(ProgramaInicio, DaSusPasosEnOrden) {
    mundo.almacen["config.nom"] = fichero("  PENSIONES 2005 ", {});
    mundo.valores = {"", true, 1, 1, false};
    programa.Inicia();

    EXPECT_THAT(vista.pedidos, ElementsAre("portada portada.bmp, 1000 ms", "foto portada.bmp",
                                           "logo logo.bmp", "menú centrado", "título \"PENSIONES 2005\""));
    EXPECT_EQ(mundo.valores.TituloPrograma, "PENSIONES 2005");
    EXPECT_EQ(mundo.valores.LiquidoAnterior, 915);
    EXPECT_EQ(mundo.valores.PagasAnterior, 2);
    EXPECT_FALSE(mundo.valores.VerBaseActual);
    EXPECT_FALSE(mundo.valores.FinPrograma);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(ProgramaInicio, UnaFotoQueFaltaLoParaEnElPrimerPasoQueLaNecesita) {
    struct Caso {
        const char* foto;
        std::vector<std::string> pasos;
    };
    const Caso casos[] = {
        {"portada.bmp", {}},
        {"logo.bmp", {"portada portada.bmp, 1000 ms", "foto portada.bmp"}},
    };
    for (const Caso& caso : casos) {
        ponFotos(mundo.almacen);
        mundo.almacen.ficheros.erase(caso.foto);
        vista.pedidos.clear();
        try {
            programa.Inicia();
            ADD_FAILURE() << "started without " << caso.foto;
        } catch (const FicheroInaccesible& fallo) {
            EXPECT_EQ(fallo.nombre, caso.foto);
        }
        EXPECT_EQ(vista.pedidos, caso.pasos) << caso.foto;
    }
}

TEST_F(ProgramaInicio, LasOpcionesDelMenuSalenDeConfigNom) {
    struct Caso {
        const char* cuento;
        std::vector<std::pair<int, Opcion>> opciones;
        std::vector<std::string> vistas;  // before "Información" and "&Fin del Programa"
    };
    const Caso casos[] = {
        {"nothing is active: only what is always there", {}, {}},
        {"8 is the left column's last row, 9 the right one's first",
         {{0, {-1, "", "8"}}, {1, {-1, "", "9"}}},
         {"Jubilación (izquierda 8)", "Incapacidad Permanente (derecha 1)"}},
        {"two options may share a place",
         {{3, {-1, "", "2"}}, {4, {-1, "", " 2"}}},
         {"Jubilación e Invalidez no Contributiva (izquierda 2)",
          "Prestaciones Familiares no ContrIbutivas (izquierda 2)"}},
        {"inactive with a text is on view, and moves too",
         {{11, {0, "En la obra", "1"}}},
         {"Retenciones IRPF (izquierda 1)"}},
        {"a place off the panel is a place",
         {{8, {-1, "", "-9"}}, {9, {-1, "", "99"}}},
         {"Capitalización de pensiones (izquierda -9)", "Cálculo de Nóminas (derecha 91)"}},
        {"0, letters and less than half a row are no order",
         {{0, {-1, "", "0"}}, {2, {-1, "", "ab"}}, {3, {-1, "", ",5"}}},
         {"Jubilación (izquierda 1)", "Muerte y Supervivencia (izquierda 3)",
          "Jubilación e Invalidez no Contributiva (izquierda 4)"}},
    };
    for (const Caso& caso : casos) {
        Programa otro{mundo.entorno, {}, vista};
        mundo.almacen["config.nom"] = fichero("x", caso.opciones);
        otro.Inicia();
        std::vector<std::string> esperadas = caso.vistas;
        esperadas.insert(esperadas.end(), std::begin(kInformacionYFin), std::end(kInformacionYFin));
        EXPECT_EQ(aLaVista(otro), esperadas) << caso.cuento;
    }
}

TEST_F(ProgramaInicio, LasOpcionesActivasSinOrdenEstanEnSuPuesto) {
    std::vector<std::pair<int, Opcion>> todas;
    for (int i = 0; i < 15; ++i) todas.push_back({i, {i == 6 ? 256 : -1}});  // any value but 0 is true
    mundo.almacen["config.nom"] = fichero("x", todas);
    programa.Inicia();
    EXPECT_THAT(
        aLaVista(programa),
        ElementsAre("Jubilación (izquierda 1)", "Incapacidad Permanente (izquierda 2)",
                    "Muerte y Supervivencia (izquierda 3)",
                    "Jubilación e Invalidez no Contributiva (izquierda 4)",
                    "Prestaciones Familiares no ContrIbutivas (izquierda 5)", "Desempleo (izquierda 6)",
                    "Maternidad (izquierda 7)", "Incapacidad Temporal (derecha 1)",
                    "Capitalización de pensiones (derecha 2)", "Cálculo de Nóminas (derecha 3)",
                    "Conversión de líquidos en brutos (derecha 4)", "Retenciones IRPF (derecha 5)",
                    "Fondo bibliográfico (derecha 6)", "Información (derecha 7)",
                    "Riesgo Embarazo (izquierda 8)", "&Fin del Programa (derecha 8)"));

    mundo.almacen["config.nom"] = fichero("x", {{11, {0, "   ", "1"}}});
    Programa otro{mundo.entorno, {}, vista};
    otro.Inicia();
    EXPECT_EQ(otro.opciones()[11].puesto, (Puesto{Columna::Derecha, 5})) << "hidden, it keeps its place";
}

TEST_F(ProgramaInicio, ElRegistroQuinceSoloEnciendeVerBaseActualYElUltimoEsRiesgoEmbarazo) {
    mundo.almacen["config.nom"] = fichero("x", {{13, {-1, "No debe verse", "1"}}, {14, {-1, "", "10"}}});
    programa.Inicia();
    EXPECT_TRUE(mundo.valores.VerBaseActual);
    EXPECT_EQ(programa.opciones()[13].texto, "");
    EXPECT_THAT(aLaVista(programa), ElementsAre("Información (derecha 7)", "Riesgo Embarazo (derecha 2)",
                                                "&Fin del Programa (derecha 8)"));

    mundo.almacen["config.nom"] = fichero("x", {{13, {0, "Texto", "1"}}});
    programa.Inicia();
    EXPECT_FALSE(mundo.valores.VerBaseActual);
}

TEST_F(ProgramaInicio, ConfigNomEstropeadoNoImpideEmpezar) {
    const std::string entero = fichero("PENSIONES", {{0, {-1}}, {5, {-1}}, {14, {-1}}});
    const std::vector<std::string> nada{std::begin(kInformacionYFin), std::end(kInformacionYFin)};
    struct Caso {
        std::string contenido;
        std::string titulo;
        std::vector<std::string> vistas;
    };
    const Caso casos[] = {
        {"", "", nada},
        {entero.substr(0, 10), "PENS", nada},
        {entero.substr(0, 6 * 256 + 6),  // behind the mark of option 5
         "PENSIONES",
         {"Jubilación (izquierda 1)", "Desempleo (izquierda 6)", nada[0], nada[1]}},
        {std::string(5000, '\0'), "", nada},
        {entero + std::string(100000, 'x'),
         "PENSIONES",
         {"Jubilación (izquierda 1)", "Desempleo (izquierda 6)", nada[0], "Riesgo Embarazo (izquierda 8)",
          nada[1]}},
    };
    for (const Caso& caso : casos) {
        Programa otro{mundo.entorno, {}, vista};
        mundo.almacen["config.nom"] = caso.contenido;
        otro.Inicia();
        EXPECT_EQ(mundo.valores.TituloPrograma, caso.titulo);
        EXPECT_EQ(aLaVista(otro), caso.vistas) << caso.contenido.size() << " bytes";
    }
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(ProgramaInicio, ConfigNomAusenteSeCreaVacio) {
    programa.Inicia();
    EXPECT_TRUE(mundo.almacen.existe("config.nom"));
    EXPECT_EQ(mundo.almacen["config.nom"], "");
    EXPECT_THAT(aLaVista(programa), ElementsAre(kInformacionYFin[0], kInformacionYFin[1]));
    EXPECT_EQ(vista.pedidos.back(), "título \"\"");
}

TEST_F(ProgramaInicio, UnaLecturaQueFallaDejaLoLeidoHastaAhi) {
    std::vector<std::pair<int, Opcion>> todas;
    for (int i = 0; i < 15; ++i) todas.push_back({i, {-1}});
    mundo.almacen["config.nom"] = fichero("PENSIONES", todas);

    for (int lecturas = -1; lecturas <= 16; ++lecturas) {
        mundo.almacen.lecturas = lecturas;
        mundo.valores = {};
        mundo.valores.VerBaseActual = true;
        Programa otro{mundo.entorno, {}, vista};
        otro.Inicia();

        EXPECT_EQ(mundo.valores.TituloPrograma, lecturas > 0 ? "PENSIONES" : "") << lecturas;
        const bool tituloSinLeer = lecturas <= 0;
        EXPECT_EQ(mundo.valores.VerBaseActual, tituloSinLeer || lecturas > 14)
            << "the title puts the switch out, record 15 may put it on: " << lecturas;
        for (int i = 0; i < 13; ++i) {
            EXPECT_EQ(otro.opciones()[static_cast<std::size_t>(i)].visible, lecturas > i + 1)
                << lecturas << ' ' << i;
        }
        EXPECT_TRUE(otro.opciones()[14].visible) << "nothing but its own record hides it: " << lecturas;
    }
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(ProgramaInicio, LaCarpetaDelProgramaPasaASerLaActual) {
    const CarpetaTemporal carpeta;
    const auto antes = std::filesystem::current_path();
    for (const char* foto : {"Portada.BMP", "logo.bmp"}) carpeta.pon(foto, "BM");
    DirectorioAplicacion almacen{carpeta};
    Entorno entorno{mundo.mensajes, mundo.reloj, almacen, mundo.impresora, mundo.rutinas, mundo.valores};

    Programa{entorno, {}, vista}.Inicia();

    EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), carpeta));
    EXPECT_TRUE(std::filesystem::is_empty(carpeta / "config.nom"));
    std::filesystem::current_path(antes);
}

}  // namespace
}  // namespace orvemo::pruebas
