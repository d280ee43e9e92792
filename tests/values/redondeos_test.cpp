#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/octeto.h"

namespace orvemo {
namespace {

constexpr double kInfinito = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(RedondeaPar, SendsHalvesToTheEvenNeighbour) {
    struct {
        double valor;
        std::int32_t esperado;
    } const casos[] = {{2.5, 2}, {3.5, 4},  {-2.5, -2}, {-3.5, -4}, {0.5, 0},
                       {1.5, 2}, {2.49, 2}, {2.51, 3},  {-0.4, 0},  {2147483647.4, 2147483647},
                       {38, 38}};
    for (const auto& caso : casos) EXPECT_EQ(caso.esperado, RedondeaPar(caso.valor)) << caso.valor;
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), RedondeaPar(-2147483648.5));
}

TEST(RedondeaPar, RaisesWhatItsIntegerCannotHold) {
    for (const double valor : {2147483647.5, -2147483649.0, 1e300, kInfinito, -kInfinito, kNaN}) {
        EXPECT_THROW((void)RedondeaPar(valor), DesbordeNumerico) << valor;
        EXPECT_THROW((void)Suelo(valor), DesbordeNumerico) << valor;
    }
    EXPECT_EQ(32767, RedondeaPar16(32767.4));
    EXPECT_EQ(-32768, RedondeaPar16(-32768.5));
    EXPECT_THROW((void)RedondeaPar16(32767.5), DesbordeNumerico);
    EXPECT_THROW((void)RedondeaPar16(-32769), DesbordeNumerico);
    EXPECT_EQ(255, RedondeaPar8(255.4));
    EXPECT_EQ(0, RedondeaPar8(-0.5));
    EXPECT_THROW((void)RedondeaPar8(255.5), DesbordeNumerico);
    EXPECT_THROW((void)RedondeaPar8(-0.6), DesbordeNumerico);
}

// A leave of 31 days in a month of 30 left 255 days worked.
TEST(Octeto, CountsDaysAndRaisesWhereTheyRunOut) {
    Octeto trabajados{30};
    const Octeto baja{31};
    EXPECT_THROW((void)(trabajados - baja), DesbordeNumerico);
    EXPECT_THROW(trabajados -= baja, DesbordeNumerico);
    EXPECT_EQ(trabajados, 30) << "a failed sum leaves the counter as it was";
    EXPECT_EQ(trabajados - 31, -1) << "with a plain number it is a plain number";
    trabajados += 225;
    EXPECT_EQ(trabajados, 255);
    EXPECT_THROW(++trabajados, DesbordeNumerico);
    EXPECT_THROW((void)(trabajados + Octeto{1}), DesbordeNumerico);
    EXPECT_THROW(trabajados = 256, DesbordeNumerico);
    EXPECT_EQ(baja + Octeto{1}, 32);
}

TEST(Redondea, NudgesFirstAndThenRoundsToEven) {
    struct {
        const char* titulo;
        double valor;
        int decimales;
        double esperado;
    } const casos[] = {
        {"binary just below a half cent", 1.005, 2, 1.01},
        {"the nudge breaks an exact tie upwards", 0.125, 2, 0.13},
        {"a negative tie goes upwards too", -0.125, 2, -0.12},
        {"no decimals", 2.5, 0, 3},
        {"a tie so large that the nudge is lost, down to even", 1000000000.5, 0, 1000000000},
        {"a tie so large that the nudge is lost, up to even", 1000000001.5, 0, 1000000002},
        {"four decimals", 0.33335, 4, 0.3334},
        {"the last amount with cents", 21474836.47, 2, 21474836.47},
        {"the first one", -21474836.48, 2, -21474836.48},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.esperado, Redondeado(caso.valor, caso.decimales)) << caso.titulo;
    }
}

TEST(Redondea, LeavesTheNudgeInTheVariableEachTime) {
    double importe = 1.005;
    EXPECT_EQ(1.01, Redondea(importe, 2));
    EXPECT_EQ(1.005 + 0.00000001, importe);
    (void)Redondea(importe, 2);
    EXPECT_EQ(1.005 + 0.00000001 + 0.00000001, importe);
}

TEST(Redondea, RaisesBeyond32Bits) {
    EXPECT_THROW((void)Redondeado(21474836.48, 2), DesbordeNumerico);
    EXPECT_THROW((void)Redondeado(2147483648, 0), DesbordeNumerico);
    EXPECT_THROW((void)Redondeado(kNaN, 2), DesbordeNumerico);
}

TEST(Suelo, IsTheIntegerPartByFloor) {
    struct {
        double valor;
        std::int32_t suelo;
        double techo;
    } const casos[] = {{2.7, 2, 3}, {-2.3, -3, -2}, {-2.7, -3, -2}, {2.3, 2, 3}, {2.5, 2, 3},
                       {3.5, 3, 4}, {3, 3, 3},      {-3, -3, -3},   {0, 0, 0},   {364.99, 364, 365}};
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.suelo, Suelo(caso.valor)) << caso.valor;
        EXPECT_EQ(caso.techo, Techo(caso.valor)) << caso.valor;
    }
    EXPECT_THROW((void)Suelo(-2147483648.3), DesbordeNumerico) << "its floor is one below the last integer";
}

TEST(Divide, GivesZeroOverZeroWhileCocienteRaises) {
    EXPECT_EQ(0.25, Divide(1, 4));
    EXPECT_EQ(0, Divide(1, 0));
    EXPECT_EQ(0, Divide(0, 0));
    EXPECT_EQ(0.25, Cociente(1, 4));
    EXPECT_THROW((void)Cociente(1, 0), DivisionPorCero);
    EXPECT_THROW((void)Cociente(0, 0), DivisionPorCero);
    EXPECT_THROW((void)Divide(1e308, 1e-10), DesbordeNumerico) << "a quotient never becomes infinity";
    EXPECT_THROW((void)Cociente(1e308, 1e-10), DesbordeNumerico);
}

TEST(MayorMenor, GiveTheSecondOnATie) {
    EXPECT_EQ(4, Mayor(3, 4));
    EXPECT_EQ(3, Menor(3, 4));
    EXPECT_TRUE(std::signbit(Mayor(0.0, -0.0)));
    EXPECT_TRUE(std::signbit(Menor(0.0, -0.0)));
}

TEST(EntreLimites, IncludesBothEnds) {
    EXPECT_TRUE(EntreLimites(1, 1, 99));
    EXPECT_TRUE(EntreLimites(99, 1, 99));
    EXPECT_FALSE(EntreLimites(0, 1, 99));
    EXPECT_FALSE(EntreLimites(100, 1, 99));
    EXPECT_FALSE(EntreLimites(kNaN, 1.0, 99.0));
}

TEST(PesetasAEuros, UsesTheFixedRateToTheCent) {
    EXPECT_EQ(1000, PesetasAEuros(166386));
    EXPECT_EQ(601.01, PesetasAEuros(100000));
    EXPECT_EQ(0.01, PesetasAEuros(1));
    EXPECT_EQ(-6.01, PesetasAEuros(-1000));
}

}  // namespace
}  // namespace orvemo
