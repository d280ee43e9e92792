#include "foundations/values/teclas.h"

#include <gtest/gtest.h>

#include "foundations/values/textos.h"

namespace orvemo {
namespace {

constexpr char32_t kTragada = 0;

TEST(TeclaDigito, LetsDigitsAndControlKeysPass) {
    for (char32_t codigo = 0; codigo < 300; ++codigo) {
        const bool pasa = codigo <= 31 || (codigo >= 48 && codigo <= 57);
        EXPECT_EQ(pasa ? codigo : kTragada, TeclaDigito(codigo)) << static_cast<int>(codigo);
    }
}

TEST(TeclaNumero, HasOneCommaAndALeadingMinus) {
    struct {
        const char* titulo;
        char32_t codigo;
        const char* texto;
        char32_t esperado;
    } const casos[] = {
        {"digit", U'7', "12,5", U'7'},
        {"backspace", 8, "12,5", 8},
        {"the last control key", 31, "", 31},
        {"comma", U',', "12", U','},
        {"a point becomes a comma", U'.', "12", U','},
        {"a second comma", U',', "12,5", kTragada},
        {"a point after a comma", U'.', "12,5", kTragada},
        {"minus in an empty field", U'-', "", U'-'},
        {"minus after a digit", U'-', "1", kTragada},
        {"minus over a selected text, which still counts", U'-', "-", kTragada},
        {"blank", U' ', "", kTragada},
        {"letter", U'a', "", kTragada},
        {"plus", U'+', "", kTragada},
        {"euro sign", U'€', "12", kTragada},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(caso.esperado, TeclaNumero(caso.codigo, caso.texto)) << caso.titulo;
}

TEST(TeclaMayuscula, RaisesTheLettersOfWindows1252) {
    const struct {
        const char* pequenas;
        const char* grandes;
    } casos[] = {
        {"abcxyz", "ABCXYZ"},
        {"áéíóúüñç", "ÁÉÍÓÚÜÑÇ"},
        {"àèìòùâêîôûäëïöãõåæøðýþ", "ÀÈÌÒÙÂÊÎÔÛÄËÏÖÃÕÅÆØÐÝÞ"},
        {"šœžÿ", "ŠŒŽŸ"},
        {"ABCÑ012 -,.÷ßªºµ×€@[`{", "ABCÑ012 -,.÷ßªºµ×€@[`{"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.grandes, FiltraTexto(TeclaMayuscula, caso.pequenas));
    }
    EXPECT_EQ(U'\t', TeclaMayuscula(U'\t'));
}

TEST(FiltraTexto, GoesCharacterByCharacterAsIfTyped) {
    struct {
        const char* titulo;
        FiltroTecla filtro;
        std::string texto;
        std::string esperado;
    } const casos[] = {
        {"an amount with thousands marks", TeclaNumero, "1.234,50", "1,23450"},
        {"a date", TeclaDigito, "15-03-1950", "15031950"},
        {"words around a number", TeclaNumero, "son -12 euros", "-12"},
        {"several lines", TeclaDigito, "12\r\n\t34", "1234"},
        {"NULs", TeclaMayuscula, std::string("a\0b", 3), "AB"},
        {"accents", TeclaMayuscula, "peña, 2º", "PEÑA, 2º"},
        {"broken UTF-8", TeclaNumero, "1\xC3", "1"},
        {"a long paste", TeclaDigito, std::string(10000, '7') + "a", std::string(10000, '7')},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(caso.esperado, FiltraTexto(caso.filtro, caso.texto)) << caso.titulo;
}

}  // namespace
}  // namespace orvemo
