#include "pensions/jubilacion/jubilacion.h"

#include <gtest/gtest.h>

#include <string>

#include "foundations/values/fallos.h"
#include "pensions/casos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using namespace pruebas;

const Fecha kHoy = FechaDMA(15, 6, 2005);

// Month 25 is May 2008, month 42 December 2006: 105000 x 118,5233 / 115,69 = 107571,53. The sum over 210 is
// 1512,25, and at prices of June 2005 1512,25 x 112,69 / 122,69 = 1388,99.
TEST(Jubilacion, TellsAProjectedBaseInEurosOfToday) {
    RegistroJubilacion caso = casoTipo();
    ponFechas(caso, "15-06-1945", "15-06-2010");
    ponPeriodo(caso, 1, "01-01-1970", "31-05-2010");
    ponRegimen(caso, Regimen::Parcial);
    caso.JubiRedJor = 50;
    caso.JubiBasesDesglosadas = 1;
    caso.JubiBase.fill(0.001);  // neither a gap nor an amount
    caso.JubiBase[0] = caso.JubiBase[24] = caso.JubiBase[41] = 105000;
    Dictamen dictamen;
    CalculaJubilacion(caso, tablasPlanas(100), kHoy, dictamen);
    EXPECT_TRUE(dictamen.Conclusion().ends_with(
        "El interesado cumple los periodos mínimos de cotización exigidos.\r\n"
        "La fecha de jubilación EXCEDE ESTE AÑO por lo que se ajustan los\r\n"
        "diferentes valores (Bases, IPC, Etc.) a la inflación anual estimada de 2%\r\n"
        "El periodo cotizado a efectos de cálculo del % a aplicar sobre la base \r\n"
        "reguladora es de 41 años.\r\n"
        "El porcentaje a aplicar sobre la base reguladora es de 100% \r\n"
        "siendo la base reguladora de 1.512,25 € del año en que se jubila,\r\n"
        "equivalentes a 1.388,99 € de hoy (según la hipótesis de inflación).\r\n"
        "Al ser jubilación parcial, se reduce la pensión en un 50% siendo por tanto \r\n"
        "de 694,50 €/mes (con dos pagas extras).\r\n(Importe calculado en € de hoy)\r\n"))
        << dictamen.Conclusion();
}

TEST(Jubilacion, AMonthWithoutIndexStopsItWithTheLinesSoFar) {
    RegistroJubilacion caso = casoTipo();
    caso.JubiBasesDesglosadas = 1;
    Dictamen dictamen;
    EXPECT_THROW(CalculaJubilacion(caso, tablasPlanas(0), kHoy, dictamen), DivisionPorCero);
    EXPECT_FALSE(dictamen.ConDerecho);
    EXPECT_TRUE(dictamen.Conclusion().ends_with("exigidos.\r\n"));
}

}  // namespace
}  // namespace orvemo::jubilacion
