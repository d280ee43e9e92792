#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "apoyo_casos.h"

namespace orvemo {
namespace {

using pruebas::lineas;

const std::vector<EntradaSupuesto> kEnOrden{
    {9, ""},             // names never written come first
    {4, "12 meses"},     // figures before letters
    {8, "3ª edad"},      //
    {1, "Álamo"},        //
    {2, "alba"},         //
    {12, "Alba Núñez"},  // a name before those that it begins
    {3, "ana"},          // equals but for case and accents: in the order of their bytes
    {7, "ana"},          // equals: in the order of their records
    {5, "Ánade"},        //
    {11, "cañada"},      //
    {10, "caoba"},       // ñ before o
    {6, "Cazalla"},      //
    {13, "Nzinga"},      //
    {14, "ñandú"},       // ñ after all of n
    {15, "Ñu"},          //
    {16, "Oca"},         //
    {20, "\u0152uvre"},  // Œ as OE
    {17, "Štefan"},      //
    {18, "Stein"},       //
    {19, "Yáñez"},       //
    {21, "Ÿves"},        //
    {22, "Zúñiga"},      //
};

TEST(OrdenAlfabetico, IsTheSpanishOneHoweverTheCasesLie) {
    std::mt19937 azar{2005};
    for (int vez = 0; vez < 50; ++vez) {
        auto lista = kEnOrden;
        std::shuffle(lista.begin(), lista.end(), azar);
        ASSERT_EQ(lineas(OrdenaAlfabeticamente(lista)), lineas(kEnOrden));
    }
}

}  // namespace
}  // namespace orvemo
