#include "pensions/jubilacion/jubilacion_base.h"

#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "pensions/casos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using pruebas::casoTipo;
using pruebas::ponFechas;
using pruebas::ponPeriodo;
using pruebas::ponRegimen;
using pruebas::tablasPlanas;

TEST(FechaReferencia, FollowsTheLastContributionOfTheGeneralScheme) {
    struct Caso {
        const char* historia;
        std::array<std::string, kFilasPeriodos> dias;
        const char* referencia;
        const char* jubilacion = "15-06-2005";
        Regimen regimen = Regimen::General;
    };
    const Caso casos[] = {
        {"no period", {}, "15-06-2005"},
        {"within the month", {"12-06-2005"}, "12-06-2005"},
        {"the end of a month gives the first of the next", {"31-05-2005"}, "01-06-2005"},
        {"January's number isn't greater than December's", {"31-12-2004"}, "31-12-2004", "15-01-2005"},
        {"the latest counts, wherever it stands", {"20-04-2005", "", "31-12-2004"}, "20-04-2005"},
        {"90 days before", {"17-03-2005"}, "17-03-2005"},
        {"91 days before", {"16-03-2005"}, "15-06-2005"},
        {"90 days after", {"13-09-2005"}, "13-09-2005"},
        {"91 days after", {"14-09-2005"}, "15-06-2005"},
        {"a date that can't be read is a very old one", {"ayer"}, "15-06-2005"},
        {"other schemes count from the retirement",
         {"31-05-2005"},
         "15-06-2005",
         "15-06-2005",
         Regimen::Agrario},
    };
    for (const Caso& caso : casos) {
        EXPECT_EQ(FechaReferencia(caso.regimen, LeeFecha(caso.jubilacion), caso.dias),
                  LeeFecha(caso.referencia))
            << caso.historia;
    }
    RegistroJubilacion caso = casoTipo();
    ponPeriodo(caso, 1, "01-01-1970", "31-03-2005");
    ponPeriodo(caso, 5, "", "31-05-2005");
    EXPECT_EQ(FechaReferencia(caso), LeeFecha("01-06-2005")) << "a last day without its first";
}

TEST(BaseReguladora, DividesTheSumByTheFourteenths) {
    RegistroJubilacion caso = casoTipo();
    caso.JubiSumaBases = 1001;
    EXPECT_EQ(baseReguladora(caso, tablasPlanas(0)).importe, 4.77) << "1001 / 210";
    ponFechas(caso, "15-06-1935", "15-06-1998");
    EXPECT_EQ(baseReguladora(caso, tablasPlanas(0)).importe, 7.15) << "1001 / 140";
}

/// A case whose 180 bases are all the same, counted from 01-06-2005: month 1 is May 2005, month 25 May 2003.
RegistroJubilacion casoConBases(double base, Regimen regimen = Regimen::General) {
    RegistroJubilacion caso = casoTipo();
    ponRegimen(caso, regimen);
    caso.JubiBasesDesglosadas = 1;
    caso.JubiBase.fill(base);
    return caso;
}

TEST(BaseReguladora, AddsTheMonthsUpAsTheyAreRead) {
    struct Caso {
        const char* historia;
        double esperada;
        double mes1, mes24, mes25;
        double base = 1000;  // of the other months
        Regimen regimen = Regimen::General;
    };
    const Caso casos[] = {
        {"cents are lost in the first 24: (24 x 1234 + 156 x 1234,56) / 210", 1058.13, 1234.56, 1234.56,
         1234.56, 1234.56},
        {"a gap in month 1 takes the minimum base: (179 x 1000 + 572,70) / 210", 855.11, 0, 1000, 1000},
        {"half a euro in months 1 and 24 is no gap and counts nothing: 178 x 1000 / 210", 847.62, 0.5, 0.5,
         1000},
        {"half a euro in month 25 counts: (179 x 1000 + 0,50) / 210", 852.38, 1000, 1000, 0.5},
        {"a gap in month 25 takes the minimum over the index, 526,50 / 100 = 5,27", 852.41, 1000, 1000, 0},
        {"the self-employed fill no gaps", 847.62, 0, 1000, 0, 1000, Regimen::Autonomos},
        {"nor does the agrarian scheme", 847.62, 0, 1000, 0, 1000, Regimen::Agrario},
        {"nor the domestic one", 847.62, 0, 1000, 0, 1000, Regimen::EmpleadosHogar},
        {"the partial pension does: (178 x 1000 + 572,70 + 5,27) / 210", 850.37, 0, 1000, 0, 1000,
         Regimen::Parcial},
    };
    for (const Caso& c : casos) {
        RegistroJubilacion caso = casoConBases(c.base, c.regimen);
        caso.JubiBase[0] = c.mes1;
        caso.JubiBase[23] = c.mes24;
        caso.JubiBase[24] = c.mes25;
        EXPECT_EQ(baseReguladora(caso, tablasPlanas(100)).importe, c.esperada) << c.historia;
    }
}

TEST(BaseReguladora, BringsTheEarlierMonthsToMonth25) {
    RegistroJubilacion caso = casoConBases(0, Regimen::Autonomos);
    caso.JubiBase[0] = 1000;   // May 2005, as it is
    caso.JubiBase[24] = 1000;  // May 2003, to itself
    caso.JubiBase[36] = 1000;  // May 2002, 110 / 100
    pensiones::TablaIPC ipc;
    for (auto& anio : ipc) anio.fill(110);
    ipc[2002 - 1984].fill(100);
    EXPECT_EQ(baseReguladora(caso, {ipc, pensiones::CargaBasesMinimas()}).importe, 14.76) << "3100 / 210";
}

TEST(BaseReguladora, ProjectsFromTheFirstMonthOf2005On) {
    RegistroJubilacion caso = casoConBases(1000, Regimen::Autonomos);
    ponFechas(caso, "15-06-1940", "15-01-2007");
    EXPECT_FALSE(baseReguladora(caso, tablasPlanas(100)).IPCProyectado) << "month 25 is December 2004";
    ponFechas(caso, "15-06-1940", "15-02-2007");
    EXPECT_TRUE(baseReguladora(caso, tablasPlanas(100)).IPCProyectado) << "month 25 is January 2005";
}

TEST(BaseReguladora, AMonthWithoutIndexIsADivisionByZero) {
    const auto base = [](const RegistroJubilacion& caso, double indice) {
        static_cast<void>(baseReguladora(caso, tablasPlanas(indice)));
    };
    EXPECT_THROW(base(casoConBases(1000), 0), DivisionPorCero);
    EXPECT_THROW(base(casoConBases(0, Regimen::Autonomos), 0), DivisionPorCero) << "0 over 0 too";
    RegistroJubilacion antiguo = casoConBases(1000, Regimen::Autonomos);
    ponFechas(antiguo, "15-06-1925", "15-06-1990");
    EXPECT_THROW(base(antiguo, 100), DivisionPorCero) << "its first months lie before 1984";
}

}  // namespace
}  // namespace orvemo::jubilacion
