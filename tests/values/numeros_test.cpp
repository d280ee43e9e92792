#include "foundations/values/numeros.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundations/values/fallos.h"

namespace orvemo {
namespace {

TEST(LeeNumero, TakesTheLongestPrefixWithAPoint) {
    struct {
        const char* titulo;
        const char* texto;
        double esperado;
    } const casos[] = {
        {"point as decimal mark", "12.5", 12.5},
        {"a comma ends the number", "12,5", 12},
        {"thousands marks are points", "1.679,10", 1.679},
        {"a second point ends the number", "1.2.3", 1.2},
        {"nothing", "", 0},
        {"letters behind the digits", "85 puntos", 85},
        {"blanks anywhere", " - 1 2\t3 . 5 ", -123.5},
        {"two signs", "--7", 0},
        {"sign alone", "-", 0},
        {"point alone", ".", 0},
        {"no digit before the point", "-.5", -0.5},
        {"no digit behind the point", "5.", 5},
        {"exponent", "12e2", 1200},
        {"exponent with D", "12D+2", 1200},
        {"negative exponent with blanks", "12 E - 2", 0.12},
        {"exponent without digits", "12e", 12},
        {"exponent with only its sign", "12e+", 12},
        {"exponent without number", "e5", 0},
        {"hexadecimal", "0x10", 0},
        {"nan is a word", "nan", 0},
        {"infinity with sign is a word", "-infinity", 0},
        {"too small for a double", "1e-999", 0},
        {"too small, with a long exponent", "1e-99999999999999999999", 0},
        {"zero with a huge exponent", "0e99999999999999999999", 0},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, LeeNumero(caso.texto)) << caso.titulo;
}

TEST(LeeNumero, NeverGivesInfinity) {
    const std::string largo(400, '9');
    const std::string cerosYExponente = "0." + std::string(400, '0') + "1e+800";
    for (const std::string& texto : {std::string{"1e999"}, std::string{"-1e999"}, largo, cerosYExponente,
                                     std::string{"1e99999999999999999999"}}) {
        EXPECT_THROW((void)LeeNumero(texto), DesbordeNumerico) << texto;
    }
    EXPECT_EQ(1, LeeNumero("0." + std::string(400, '0') + "1e401")) << "a long number of ordinary size";
    EXPECT_EQ(0, LeeNumero("0." + std::string(400, '0') + "1e+1")) << "tiny in spite of its exponent";
}

TEST(LeeNumeroRegional, ReadsTheSpanishMarks) {
    struct {
        const char* titulo;
        const char* texto;
        double esperado;
    } const casos[] = {
        {"comma", "1679,10", 1679.1},
        {"comma and thousands mark", "1.679,10", 1679.1},
        {"thousands mark alone", "12.345", 12345},
        {"a point is never a decimal mark", "12.5", 125},
        {"misplaced thousands marks", "1.2.34.", 1234},
        {"blanks at both ends", "  38 ", 38},
        {"plus", "+3,5", 3.5},
        {"no digit before the comma", ",5", 0.5},
        {"no digit behind the comma", "5,", 5},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.esperado, LeeNumeroRegional(caso.texto)) << caso.titulo;
        EXPECT_TRUE(EsNumero(caso.texto)) << caso.titulo;
        EXPECT_EQ(caso.esperado, DobleDe(caso.texto)) << caso.titulo;
    }
}

TEST(LeeNumeroRegional, RefusesTheRestAndDobleDeMakesItZero) {
    const std::string demasiadoLargo(400, '9');
    const std::string nulos(4, '\0');
    struct {
        const char* titulo;
        std::string texto;
    } const casos[] = {
        {"nothing", ""},
        {"blanks", "   "},
        {"letters", "programa"},
        {"letters behind the digits", "85 puntos"},
        {"two commas", "1,2,3"},
        {"thousands mark behind the comma", "1,234.5"},
        {"thousands mark before the digits", ".5"},
        {"sign alone", "-"},
        {"sign behind", "3-"},
        {"two signs", "-+3"},
        {"blank within", "1 000"},
        {"exponent", "1e5"},
        {"too large for a double", demasiadoLargo},
        {"hexadecimal", "0x10"},
        {"inf is a word", "-inf"},
        {"NULs of a field never written", nulos},
    };
    for (const auto& caso : casos) {
        EXPECT_THROW((void)LeeNumeroRegional(caso.texto), TextoIlegible) << caso.titulo;
        EXPECT_FALSE(EsNumero(caso.texto)) << caso.titulo;
        EXPECT_EQ(0, DobleDe(caso.texto)) << caso.titulo;
        EXPECT_EQ(0, EnteroDe(caso.texto)) << caso.titulo;
        EXPECT_EQ(0, NumeroDe(caso.texto)) << caso.titulo;
        EXPECT_EQ(0, LimiteDe(caso.texto)) << caso.titulo;
    }
}

TEST(LeeNumeroRegional, ObeysOtherSettings) {
    const AjustesRegionales ingleses{.marcaDecimal = '.', .marcaMiles = ','};
    EXPECT_EQ(1679.1, LeeNumeroRegional("1,679.10", ingleses));
    EXPECT_THROW((void)LeeNumeroRegional("1.679,10", ingleses), TextoIlegible);
}

TEST(ComaAPunto, ChangesTheFirstCommaOnly) {
    EXPECT_EQ("1.679.10", ComaAPunto("1.679,10"));
    EXPECT_EQ("1.2,3", ComaAPunto("1,2,3"));
    EXPECT_EQ("38", ComaAPunto("38"));
    EXPECT_EQ(1679.1, ValComa("1679,10"));
    EXPECT_EQ(1.679, ValComa("1.679,10")) << "no thousands mark may be there";
}

TEST(EnteroDe, RoundsHalvesToEvenAndSwallowsEveryFailure) {
    struct {
        const char* titulo;
        Valor valor;
        std::int32_t esperado;
    } const casos[] = {
        {"half to even, down", "2,5", 2},
        {"half to even, up", "3,5", 4},
        {"a number", 2.5, 2},
        {"thousands mark", "1.000", 1000},
        {"never assigned", Valor{}, 0},
        {"null", Nulo{}, 0},
        {"truth value", true, 0},
        {"date", kFechaIlegible, 0},
        {"text out of range", "2147483648", 0},
        {"number out of range", 1e10, 0},
        {"whole number out of range", std::int64_t{1} << 40, 0},
        {"no number at all", std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, EnteroDe(caso.valor)) << caso.titulo;
    EXPECT_EQ(2, LeeEnteroRegional("2,5"));
    EXPECT_THROW((void)LeeEnteroRegional("2147483647,5"), DesbordeNumerico);
    EXPECT_THROW((void)LeeEnteroRegional("dos"), TextoIlegible);
}

TEST(LimiteDe, NarrowsToSinglePrecision) {
    EXPECT_EQ(1234567.875, LimiteDe("1.234.567,89"));
    EXPECT_EQ(1234567.875, LimiteDe(1234567.89));
    EXPECT_EQ(2.5, LimiteDe(" 2,5 "));
    EXPECT_EQ(0, LimiteDe(Nulo{}));
    EXPECT_THROW((void)LimiteDe(std::string(40, '9')), DesbordeNumerico);
}

}  // namespace
}  // namespace orvemo
