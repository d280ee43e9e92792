#include "pensions/jubilacion_base.h"

#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "pensions/casos_jubilacion.h"

namespace orvemo::jubilacion {
namespace {

using pruebas::casoTipo;
using pruebas::ponFechas;
using pruebas::ponPeriodo;
using pruebas::tablasPlanas;

TEST(FechaReferencia, FollowsTheLastContributionOfTheGeneralScheme) {
    struct Caso {
        const char* historia;
        Regimen regimen;
        UltimosDias dias;
        const char* referencia;
    };
    // Retirement on 15-06-2005.
    const Caso casos[] = {
        {"no period", Regimen::General, {}, "15-06-2005"},
        {"within the month", Regimen::General, {"12-06-2005"}, "12-06-2005"},
        {"the end of a month gives the first of the next", Regimen::General, {"31-05-2005"}, "01-06-2005"},
        {"the latest counts, wherever it stands",
         Regimen::General,
         {"20-04-2005", "", "31-12-2004"},
         "20-04-2005"},
        {"90 days before", Regimen::General, {"17-03-2005"}, "17-03-2005"},
        {"91 days before", Regimen::General, {"16-03-2005"}, "15-06-2005"},
        {"90 days after", Regimen::General, {"13-09-2005"}, "13-09-2005"},
        {"91 days after", Regimen::General, {"14-09-2005"}, "15-06-2005"},
        {"a date that can't be read is a very old one", Regimen::General, {"ayer"}, "15-06-2005"},
        {"other schemes count from the retirement", Regimen::Agrario, {"31-05-2005"}, "15-06-2005"},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.historia);
        EXPECT_EQ(FechaReferencia(caso.regimen, LeeFecha("15-06-2005"), caso.dias),
                  LeeFecha(caso.referencia));
    }
    EXPECT_EQ(FechaReferencia(Regimen::General, LeeFecha("15-01-2005"), {"31-12-2004"}),
              LeeFecha("31-12-2004"))
        << "January's number isn't greater than December's";
}

TEST(FechaReferencia, ALastDayCountsWithoutItsFirst) {
    RegistroJubilacion caso = casoTipo();
    ponPeriodo(caso, 1, "01-01-1970", "31-03-2005");
    ponPeriodo(caso, 5, "", "31-05-2005");
    EXPECT_EQ(FechaReferencia(caso), LeeFecha("01-06-2005"));
}

TEST(BaseReguladora, DividesTheSumByTheFourteenths) {
    RegistroJubilacion caso = casoTipo();
    EXPECT_EQ(baseReguladora(caso, tablasPlanas(0)).importe, 1000);
    caso.JubiSumaBases = 1001;
    EXPECT_EQ(baseReguladora(caso, tablasPlanas(0)).importe, 4.77) << "4,7667";
    ponFechas(caso, "15-06-1935", "15-06-1998");
    EXPECT_EQ(baseReguladora(caso, tablasPlanas(0)).importe, 7.15) << "1001 / 140";
}

/// A case whose 180 bases are all the same, counted from 01-06-2005: month 1 is May 2005, month 25 May 2003.
RegistroJubilacion casoConBases(double base, Regimen regimen = Regimen::General) {
    RegistroJubilacion caso = casoTipo();
    caso.JubiRegimen = static_cast<std::uint8_t>(static_cast<int>(regimen) - 1);
    caso.JubiBasesDesglosadas = 1;
    caso.JubiBase.fill(base);
    return caso;
}

struct SupuestoBase {
    const char* historia;
    double base;
    Regimen regimen;
    double ultima;  // base of month 1
    double mes25;   // base of month 25
    double esperada;
};

TEST(BaseReguladora, AddsTheMonthsUpAsTheyAreRead) {
    const SupuestoBase casos[] = {
        {"whole euros: 180 x 1000 / 210", 1000, Regimen::General, 1000, 1000, 857.14},
        {"cents are lost in the first 24: (24 x 1234 + 156 x 1234,56) / 210", 1234.56, Regimen::General,
         1234.56, 1234.56, 1058.13},
        {"a gap in month 1 takes the minimum base: (179 x 1000 + 572,70) / 210", 1000, Regimen::General, 0,
         1000, 855.11},
        {"half a euro in month 1 is no gap and counts nothing: 179 x 1000 / 210", 1000, Regimen::General, 0.5,
         1000, 852.38},
        {"half a euro in month 25 counts: (179 x 1000 + 0,50) / 210", 1000, Regimen::General, 1000, 0.5,
         852.38},
        {"a gap in month 25 takes the minimum over the index, 526,50 / 100 = 5,27", 1000, Regimen::General,
         1000, 0, 852.41},
        {"the self-employed fill no gaps", 1000, Regimen::Autonomos, 0, 0, 847.62},
        {"nor does the agrarian scheme", 1000, Regimen::Agrario, 0, 0, 847.62},
        {"nor the domestic one", 1000, Regimen::EmpleadosHogar, 0, 0, 847.62},
        {"the partial pension does: (178 x 1000 + 572,70 + 5,27) / 210", 1000, Regimen::Parcial, 0, 0,
         850.37},
    };
    for (const SupuestoBase& s : casos) {
        SCOPED_TRACE(s.historia);
        RegistroJubilacion caso = casoConBases(s.base, s.regimen);
        caso.JubiBase[0] = s.ultima;
        caso.JubiBase[24] = s.mes25;
        const BaseReguladora base = baseReguladora(caso, tablasPlanas(100));
        EXPECT_EQ(base.importe, s.esperada);
        EXPECT_FALSE(base.IPCProyectado);
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
    const pensiones::TablasPensiones tablas{ipc, pensiones::CargaBasesMinimas()};
    // The retirement falls in June 2005, so that the months of the self-employed are the same: 3100 / 210.
    EXPECT_EQ(baseReguladora(caso, tablas).importe, 14.76);
}

TEST(BaseReguladora, ProjectsFromTheFirstMonthOf2005On) {
    RegistroJubilacion caso = casoConBases(1000, Regimen::Autonomos);
    ponFechas(caso, "15-06-1940", "15-01-2007");
    EXPECT_FALSE(baseReguladora(caso, tablasPlanas(100)).IPCProyectado) << "month 25 is December 2004";
    ponFechas(caso, "15-06-1940", "15-02-2007");
    EXPECT_TRUE(baseReguladora(caso, tablasPlanas(100)).IPCProyectado) << "month 25 is January 2005";
}

TEST(BaseReguladora, AMonthWithoutIndexIsADivisionByZero) {
    EXPECT_THROW(static_cast<void>(baseReguladora(casoConBases(1000), tablasPlanas(0))), DivisionPorCero);
    EXPECT_THROW(static_cast<void>(baseReguladora(casoConBases(0, Regimen::Autonomos), tablasPlanas(0))),
                 DivisionPorCero)
        << "0 over 0 too";
    RegistroJubilacion antiguo = casoConBases(1000, Regimen::Autonomos);
    ponFechas(antiguo, "15-06-1925", "15-06-1990");
    EXPECT_THROW(static_cast<void>(baseReguladora(antiguo, tablasPlanas(100))), DivisionPorCero)
        << "its first months lie before 1984";
}

}  // namespace
}  // namespace orvemo::jubilacion
