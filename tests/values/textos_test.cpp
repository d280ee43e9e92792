#include "foundations/values/textos.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvemo {
namespace {

using namespace std::string_literals;

TEST(EsVacio, CountsBlanksAndFieldsNeverWritten) {
    struct {
        const char* titulo;
        Valor valor;
        bool esperado;
    } const casos[] = {
        {"nothing", "", true},
        {"blanks", "    ", true},
        {"never assigned", Valor{}, true},
        {"null", Nulo{}, true},
        {"NULs, which no trim takes off", "\0\0\0\0"s, true},
        {"a NUL and leftovers", "\0abc"s, true},
        {"text", "a", false},
        {"text and NULs", "a\0\0"s, false},
        {"zero", 0, false},
        {"a date", kFechaIlegible, false},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, EsVacio(caso.valor)) << caso.titulo;
}

TEST(Recorta, TakesBlanksOffBothEnds) {
    EXPECT_EQ("a b", Recorta("  a b "));
    EXPECT_EQ("", Recorta("   "));
    EXPECT_EQ("", Recorta(""));
    EXPECT_EQ("\ta", Recorta("\ta "));
}

/// What the calls give one after another, one more than there are fields.
std::vector<std::string> corta(std::string texto, std::string_view separador, int veces) {
    std::vector<std::string> campos;
    for (int i = 0; i < veces; ++i) campos.push_back(CortaCampo(texto, separador));
    campos.push_back("queda: " + texto);
    return campos;
}

TEST(CortaCampo, ReadsADelimitedLineOneFieldAtATime) {
    using Campos = std::vector<std::string>;
    EXPECT_EQ((Campos{"01", "Minas", "", "queda: "}), corta("01;Minas", ";", 3));
    EXPECT_EQ((Campos{"01", "", "", "queda: "}), corta("01;", ";", 3)) << "a separator at the end";
    EXPECT_EQ((Campos{"", "", "a", "queda: "}), corta(";;a", ";", 3)) << "empty fields";
    EXPECT_EQ((Campos{"", "queda: "}), corta("", ";", 1));
    EXPECT_EQ((Campos{"1", "queda: -2"}), corta("1--2", "--", 1)) << "one character goes, however long";
    EXPECT_EQ((Campos{"10", "queda: más"}), corta("10€más", "€", 1)) << "a separator of several bytes";
}

TEST(Caracteres, AreCountedAndCutAsCodePoints) {
    EXPECT_EQ(9U, CuentaCaracteres("Ñúñez 1 €"));
    EXPECT_EQ("Ñú", PrimerosCaracteres("Ñúñez", 2));
    EXPECT_EQ("Ñú", PrimerosCaracteres("Ñú", 80));
    EXPECT_EQ("", PrimerosCaracteres("Ñú", 0));
    EXPECT_EQ("", PrimerosCaracteres("", 3));
}

TEST(Caracteres, SurviveTheRoundTripThroughUtf8) {
    for (const char32_t caracter : {U'\0', U'a', U'\x7F', U'\x80', U'ñ', U'\x7FF', U'\x800', U'€', U'\xFFFF',
                                    U'\x10000', U'\x10FFFF'}) {
        std::string texto;
        AgregaCaracter(texto, caracter);
        std::size_t pos = 0;
        EXPECT_EQ(caracter, SiguienteCaracter(texto, pos));
        EXPECT_EQ(texto.size(), pos);
    }
}

TEST(Caracteres, BrokenUtf8GivesAReplacementForEachByteThatFitsNowhere) {
    struct {
        const char* titulo;
        std::string texto;
        const char* en1252;
    } const casos[] = {
        {"a continuation alone", "a\x80z", "a?z"},
        {"a first byte at the end", "a\xC3", "a?"},
        {"a first byte before a letter", "\xC3z", "?z"},
        {"three bytes cut short", "\xE2\x82z", "??z"},
        {"written in more bytes than needed", "\xC0\x80", "??"},
        {"three bytes where two are enough", "\xE0\x80\xBF", "???"},
        {"half of a pair of UTF-16", "\xED\xA0\x80", "???"},
        {"beyond the last code point", "\xF4\x90\x80\x80", "????"},
        {"a byte that never appears", "\xFF", "?"},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.en1252, A1252(caso.texto)) << caso.titulo;
}

TEST(Windows1252, KnowsItsOwnCharactersAndAsksForTheRest) {
    struct {
        const char* utf8;
        std::string bytes;
    } const casos[] = {
        {"Peña", "Pe\xF1"s + "a"},   {"€", "\x80"}, {"“Œuvre”…", "\x93\x8Cuvre\x94\x85"}, {"Ÿ", "\x9F"},
        {"ª º ¿", "\xAA \xBA \xBF"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.bytes, A1252(caso.utf8));
        EXPECT_EQ(caso.utf8, De1252(caso.bytes));
    }
    EXPECT_EQ("?ukasz ?", A1252("Łukasz 😀"));
    EXPECT_EQ("?", A1252("\u0080")) << "that byte is the euro's";
}

}  // namespace
}  // namespace orvemo
