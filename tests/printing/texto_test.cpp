#include "papel.h"

namespace orvemo {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

using TextoTest = pruebas::Papel;

std::string repite(std::string_view pieza, int veces) {
    std::string texto;
    for (int i = 0; i < veces; ++i) texto += pieza;
    return texto;
}

struct Caso {
    std::string titulo;
    std::string texto;
    std::vector<std::string>
        dibujo;  ///< what reaches the paper from X 1, Y 6, at 0.2 a character, 0.22 in bold
};

const Caso kMarcas[] = {
    {"plain text", "Edad: 40", {"Texto 1,6 Arial 12 «Edad: 40»"}},
    {"nothing", "", {}},
    {"only blanks", "    ", {}},
    {"blanks at the end go, at the start stay", "  a  ", {"Texto 1,6 Arial 12 «  a»"}},
    {"a name in bold",
     "Nombre:$NMaría$n",
     {"Texto 1,6 Arial 12 «Nombre:»", "Texto 2.4,6 Arial 12 N «María»"}},
    {"bold and underline", "$N$SCONCLUSIONES$n$s", {"Texto 1,6 Arial 12 NS «CONCLUSIONES»"}},
    {"underline, then plain", "$SNo$s tiene", {"Texto 1,6 Arial 12 S «No»", "Texto 1.4,6 Arial 12 « tiene»"}},
    {"small letters open and capitals close just as well",
     "$na$Nb$sc$Sd",
     {"Texto 1,6 Arial 12 N «a»", "Texto 1.22,6 Arial 12 «b»", "Texto 1.42,6 Arial 12 S «c»",
      "Texto 1.62,6 Arial 12 «d»"}},
    {"the same mark twice is none", "$N$Na", {"Texto 1,6 Arial 12 «a»"}},
    {"two dollars are one",
     "a$$b",
     {"Texto 1,6 Arial 12 «a»", "Texto 1.2,6 Arial 12 «$»", "Texto 1.4,6 Arial 12 «b»"}},
    {"three dollars are two", "$$$", {"Texto 1,6 Arial 12 «$»", "Texto 1.2,6 Arial 12 «$»"}},
    {"a lone dollar at the end", "5 $", {"Texto 1,6 Arial 12 «5 »", "Texto 1.4,6 Arial 12 «$»"}},
    {"a dollar before a blank that is cut", "$ ", {"Texto 1,6 Arial 12 «$»"}},
    {"any other letter stays text", "$x", {"Texto 1,6 Arial 12 «$»", "Texto 1.2,6 Arial 12 «x»"}},
};

TEST_F(TextoTest, MarksTurnIntoFragments) {
    for (const Caso& caso : kMarcas) {
        SCOPED_TRACE(caso.titulo);
        empiezaCuerpo();
        rutinas.ImprimeTexto(caso.texto, 1.0F, 0.5F);
        EXPECT_THAT(papel.dibujo(), ElementsAreArray(caso.dibujo));
        EXPECT_EQ(papel.CurrentX(), 0.0F);
        EXPECT_EQ(papel.CurrentY(), 6.5F);
    }
}

TEST_F(TextoTest, AMarkLeftOpenEndsWithItsLine) {
    empiezaCuerpo();
    rutinas.ImprimeTexto("$N$Sabierto", 1.0F, 0.5F);
    rutinas.ImprimeTexto("siguiente", 1.0F, 0.5F);
    EXPECT_THAT(papel.dibujo(),
                ElementsAre("Texto 1,6 Arial 12 NS «abierto»", "Texto 1,6.5 Arial 12 «siguiente»"));
}

TEST_F(TextoTest, BoldOfTheFontHoldsForOneLineAndComesBackWithTheNextHeader) {
    empiezaCuerpo();
    rutinas.PonFuente("Arial", 12, "NS");
    rutinas.ImprimeTexto("a$Nb", 1.0F, 0.5F);
    rutinas.ImprimeTexto("c", 1.0F, 0.5F);
    EXPECT_THAT(papel.dibujo(), ElementsAre("Texto 1,6 Arial 12 NS «a»", "Texto 1.22,6 Arial 12 S «b»",
                                            "Texto 1,6.5 Arial 12 «c»"));
    rutinas.ImprimeCabecera();
    papel.operaciones.clear();
    rutinas.ImprimeTexto("d", 1.0F, 0.5F);
    EXPECT_THAT(papel.dibujo(), ElementsAre("Texto 1,4.5 Arial 12 NS «d»"));
}

// --- Cuts

TEST_F(TextoTest, TheFitIsMeasuredCharacterByCharacter) {
    empiezaCuerpo();
    const auto ancho = [&](int caracteres) { return papel.TextWidth(repite("x", caracteres)); };
    struct {
        std::string_view titulo, texto;
        double ancho;
        std::string_view cabe;
    } const casos[] = {
        {"all of it, to the hair", "ñandúes", ancho(7), "ñandúes"},
        {"a character less and a bit", "ñandúes", ancho(6) + 0.1, "ñandúe"},
        {"a cut at the hair loses the last one", "ñandúes", ancho(6), "ñandú"},
        {"characters, not bytes", "ñññññ", ancho(2) + 0.1, "ññ"},
        {"euros are three bytes", "€€€", ancho(1) + 0.1, "€"},
        {"just one, to the hair", "ñandú", ancho(1), ""},
        {"no width", "ñandú", 0, ""},
        {"nothing in less", "", -3, ""},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(rutinas.TextoQueCabe(caso.texto, caso.ancho), caso.cabe) << caso.titulo;
    }
}

// From X 1 there are 19.998 cm to the edge: 99 characters of 0.2, 90 of 0.22, 119 of 0.1667.
TEST_F(TextoTest, ALongLineIsCutAtTheRightEdgeInItsOwnFont) {
    struct {
        std::string titulo, texto;
        int tamano;
        std::string linea;
    } const casos[] = {
        {"plain", repite("á", 150), 12, repite("á", 99)},
        {"bold", "$N" + repite("á", 150), 12, repite("á", 90)},
        {"smaller", repite("á", 150), 10, repite("á", 119)},
        {"one that just fits", repite("á", 99), 12, repite("á", 99)},
    };
    for (const auto& caso : casos) {
        empiezaCuerpo();
        rutinas.PonFuente({}, caso.tamano);
        rutinas.ImprimeTexto(caso.texto, 1.0F, 0.5F);
        EXPECT_THAT(papel.lineas(), ElementsAre(caso.linea)) << caso.titulo;
    }
}

TEST_F(TextoTest, WhatFollowsAMarkGoesOnWhereTheCutEnded) {
    empiezaCuerpo();
    // From X 1.2: 89 bold characters of 0.22 end at 20.78; in the 0.218 cm left one plain character fits.
    rutinas.ImprimeTexto("$N" + repite("x", 100) + "$nyz$$", 1.2F, 0.5F);
    EXPECT_THAT(papel.dibujo(), ElementsAre("Texto 1.2,6 Arial 12 N «" + repite("x", 89) + "»",
                                            "Texto 20.78,6 Arial 12 «y»", "Texto 20.98,6 Arial 12 «$»"));
}

// --- Fragments

TEST_F(TextoTest, AFragmentEndsAsManyLinesAsTold) {
    struct {
        int saltos;
        std::vector<std::string> dibujo;
    } const casos[] = {
        {0, {"Texto 1,6 Arial 12 «ab»"}},
        {1, {"Texto 1,6 Arial 12 «ab» fin"}},
        {3, {"Texto 1,6 Arial 12 «ab» fin", "Texto 0,6.5 Arial 12 «» fin", "Texto 0,7 Arial 12 «» fin"}},
        {-1, {"Texto 1,6 Arial 12 «ab» fin"}},
    };
    for (const auto& caso : casos) {
        empiezaCuerpo();
        rutinas.ImprimeTrozo("ab", caso.saltos);
        EXPECT_THAT(papel.dibujo(), ElementsAreArray(caso.dibujo)) << caso.saltos;
    }
    empiezaCuerpo();
    rutinas.ImprimeTrozo("ab");
    EXPECT_THAT(papel.dibujo(), ElementsAre("Texto 1,6 Arial 12 «ab» fin"));
}

TEST_F(TextoTest, AFragmentPastTheBodyStartsAPage) {
    empiezaCuerpo();
    rutinas.PonPosicion(3.0F, 25.8F);
    rutinas.ImprimeTrozo("ab", 0);
    EXPECT_EQ(papel.paginas(), 2);
    EXPECT_EQ(papel.dibujo().back(), "Texto 0,4.5 Arial 12 «ab»");
}

// --- Drawing without the engine

TEST_F(TextoTest, ALineIsDrawnUnlessAnErrorIsFlagged) {
    TrazaLinea(papel, 2.2, 4.8, 17.6, 4.8);
    TrazaLinea(papel, 2.2, 9.5, 17.6, 9.5, true);
    EXPECT_THAT(papel.dibujo(), ElementsAre("Linea 2.2,4.8 17.6,4.8"));
}

TEST_F(TextoTest, ALeaderFillsByMeasure) {
    papel.Font({.nombre = "Arial", .tamano = 12});
    struct {
        std::string_view titulo, texto, relleno;
        double ancho;
        std::string_view lleno;
    } const casos[] = {
        {"dots up to the width", " CIF ", ".", 1.1, "CIF..."},
        {"no dot when it is as wide already", "CIF", ".", papel.TextWidth("CIF"), "CIF"},
        {"a filler of two may stand out", "CIF", ". ", 0.7, "CIF. "},
        {"nothing to begin with", "", "·", 0.5, "···"},
        {"a wider text stays", "Domicilio", ".", 1, "Domicilio"},
        {"a filler without width fills nothing", " CIF", "", 5, "CIF"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(RellenaAncho(papel, caso.texto, caso.relleno, caso.ancho), caso.lleno) << caso.titulo;
    }
}

}  // namespace
}  // namespace orvemo
