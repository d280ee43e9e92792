#include "foundations/values/formatos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundations/values/numeros.h"

namespace orvemo {
namespace {

TEST(FormatoNumero, ShowsDigitsAndMarksByThePattern) {
    struct {
        const char* titulo;
        double valor;
        const char* patron;
        const char* esperado;
    } const casos[] = {
        {"thousands and cents", 1234.5, "##,###,##0.00", "1.234,50"},
        {"more digits than the pattern has", 123456789.5, "#,##0.00", "123.456.789,50"},
        {"exactly three digits carry no mark", 123, "###,##0", "123"},
        {"a zero before the comma", 0.5, "#0.00", "0,50"},
        {"no zero before the comma", 0.5, "###.##", ",5"},
        {"decimals only if significant", 2.25, "###.##", "2,25"},
        {"the mark stays without decimals", 2, "###.##", "2,"},
        {"nothing significant", 0, "###,###,###", ""},
        {"zeros on the left", 7, "000", "007"},
        {"a # to the right of a 0 shows its digit", 5, "0#", "05"},
        {"a # to the left of a 0 among decimals too", 1.5, "0.#0", "1,50"},
        {"thousands marks among zeros on the left", 7, "0,000", "0.007"},
        {"text around the digits", 4.7, " (##0.00%) ", " (4,70%) "},
        {"the minus stands before the digits", -4.7, " (##0.00%) ", " (-4,70%) "},
        {"minus with thousands", -1234.5, "###,##0.00", "-1.234,50"},
        {"no digits in the pattern", 1234.5, "N", "N"},
        {"empty pattern", 1234.5, "", ""},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(caso.esperado, FormatoNumero(caso.valor, caso.patron)) << caso.titulo;
}

TEST(FormatoNumero, RoundsHalfAwayOnTheDecimalText) {
    struct {
        const char* titulo;
        double valor;
        const char* patron;
        const char* esperado;
    } const casos[] = {
        {"binary below the half", 1010.765, "##,###,##0.00", "1.010,77"},
        {"binary below the half, negative", -2.675, "0.00", "-2,68"},
        {"half of a whole number", 2.5, "0", "3"},
        {"half of a cent", 0.005, "0.00", "0,01"},
        {"just under half a cent", 0.00499, "0.00", "0,00"},
        {"nines carry over the comma", 999.995, "###,##0.00", "1.000,00"},
        {"nines carry within", 1.995, "0.00", "2,00"},
        {"rounding leaves zeros out", 1.9996, "0.###", "2,"},
        {"beyond the 15th digit", 0.1 + 0.2, "0.####################", "0,3"},
        {"no minus on a zero", -0.001, "###,##0.00", "0,00"},
        {"nor on a negative zero", -0.0, "0.00", "0,00"},
        {"a cent below zero keeps it", -0.005, "0.00", "-0,01"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(caso.esperado, FormatoNumero(caso.valor, caso.patron)) << caso.titulo;
}

TEST(FormatoNumero, StandsTheExtremes) {
    EXPECT_EQ("1" + std::string(300, '0'), FormatoNumero(1e300, "#0"));
    EXPECT_EQ("0,00", FormatoNumero(std::numeric_limits<double>::denorm_min(), "0.00"));
    EXPECT_EQ("", FormatoNumero(std::numeric_limits<double>::quiet_NaN(), "0.00")) << "from a damaged record";
    EXPECT_EQ("", FormatoNumero(-std::numeric_limits<double>::infinity(), "0.00"));
    EXPECT_EQ("", TextoPlano(std::numeric_limits<double>::quiet_NaN()));
}

TEST(FormatoNumero, TakesTheMarksFromTheSettings) {
    const AjustesRegionales ingleses{.marcaDecimal = '.', .marcaMiles = ','};
    EXPECT_EQ("1,234.50", FormatoNumero(1234.5, "##,###,##0.00", ingleses));
    EXPECT_EQ("1010.765", TextoPlano(1010.765, ingleses));
}

TEST(TextoPlano, HasFifteenDigitsAndNoExponent) {
    struct {
        double valor;
        const char* esperado;
    } const casos[] = {{38, "38"},
                       {1010.765, "1010,765"},
                       {-0.5, "-0,5"},
                       {0, "0"},
                       {-0.0, "0"},
                       {100, "100"},
                       {0.1 + 0.2, "0,3"},
                       {1.0 / 3, "0,333333333333333"},
                       {2.0 / 3, "0,666666666666667"},
                       {1e-10, "0,0000000001"},
                       {1e20, "100000000000000000000"},
                       {123456789012345678.0, "123456789012346000"}};
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, TextoPlano(caso.valor));
}

TEST(TextoPlano, HasSevenDigitsOfASinglePrecisionNumber) {
    EXPECT_EQ("12,35", TextoPlano(12.35F));
    EXPECT_EQ("0,3333333", TextoPlano(1.0F / 3));
    EXPECT_EQ("1234568", TextoPlano(1234567.875F));
    EXPECT_EQ("-2", TextoPlano(-2.0F));
    EXPECT_EQ("", TextoPlano(std::numeric_limits<float>::infinity()));
}

TEST(Valor, GivesItsText) {
    EXPECT_EQ("", Valor{}.texto());
    EXPECT_EQ("", Valor{Nulo{}}.texto());
    EXPECT_EQ("-38", Valor{-38}.texto());
    EXPECT_EQ("12,5", Valor{12.5}.texto());
    EXPECT_EQ(" Ñuño ", Valor{" Ñuño "}.texto());
    EXPECT_EQ("05-09-2004", Valor{FechaDMA(5, 9, 2004)}.texto());
    EXPECT_EQ("Verdadero", Valor{true}.texto());
    EXPECT_EQ("Falso", Valor{false}.texto());
}

TEST(FormatoFecha, WritesDayMonthAndYearByThePattern) {
    struct {
        const char* patron;
        const char* esperado;
    } const casos[] = {
        {"dd-mm-yyyy", "05-09-2004"}, {"dd-MM-yyyy", "05-09-2004"}, {"dd-mmm-yyyy", "05-sep-2004"},
        {"mmm-yy", "sep-04"},         {"mmm/yyyy", "sep/2004"},     {"Mmmm", "septiembre"},
        {"dddd, d", "domingo, 5"},    {"d/m/yy", "5/9/04"},         {"", ""}};
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.esperado, FormatoFecha(FechaDMA(5, 9, 2004), caso.patron)) << caso.patron;
    }
    EXPECT_EQ("01-01-0100", FormatoFecha(FechaDMA(1, 1, 100), "dd-mm-yyyy"));
    EXPECT_EQ("miércoles 28", FormatoFecha(FechaDMA(28, 2, 2007), "dddd d"));
}

TEST(FormatoImporte, PrintsNothingForZeroAndForNoNumber) {
    struct {
        const char* titulo;
        Valor valor;
        const char* esperado;
    } const casos[] = {
        {"amount", 1234567.5, "1.234.567,50"},
        {"text of an amount", "1234,5", "1.234,50"},
        {"zero", 0, ""},
        {"text of zero", "0,00", ""},
        {"empty text", "", ""},
        {"letters", "programa", ""},
        {"never assigned", Valor{}, ""},
        {"null", Nulo{}, ""},
        {"less than half a cent is not zero", 0.001, "0,00"},
    };
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, FormatoImporte(caso.valor)) << caso.titulo;
}

TEST(FormateaCampo, ChecksByTypeAndRewritesDates) {
    struct {
        const char* titulo;
        Valor valor;
        const char* tipo;
        bool valido;
        const char* queda;
    } const casos[] = {
        {"date", "1/2/04", "D", true, "01-02-2004"},          {"blank date", "  ", "D", true, "  "},
        {"bad date", "31-02-2004", "D", false, "31-02-2004"}, {"blank number", "", "N", true, ""},
        {"bad number", "doce", "N", false, "doce"},           {"another type", "doce", "A", true, "doce"},
    };
    for (const auto& caso : casos) {
        Valor valor = caso.valor;
        EXPECT_EQ(caso.valido, FormateaCampo(valor, caso.tipo)) << caso.titulo;
        EXPECT_EQ(caso.queda, valor.texto()) << caso.titulo;
    }
    Valor nulos{std::string(10, '\0')};
    EXPECT_TRUE(FormateaCampo(nulos, "D")) << "a field never written";
}

}  // namespace
}  // namespace orvemo
