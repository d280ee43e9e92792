#include "pensions/muerte/muerte.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "pensions/muerte/muerte_base.h"

namespace orvemo::muerte {
namespace {

/// Somebody in alta in the general scheme who died of an accident at work on 15-06-2005: no period is asked
/// for, and a yearly salary of 12000 gives a base of 1000. Nobody survives.
RegistroMuerte accidentado() {
    RegistroMuerte caso;
    caso.MuerteFechaMuerte = LeeFecha("15-06-2005");
    caso.MuerteFechaPension = LeeFecha("15-06-2005");
    caso.MuerteCausa = 3;
    caso.MuerteEdadViuda = 99;
    caso.MuerteUltimaBase = 12000;
    return caso;
}

void muere(RegistroMuerte& caso, int situacion, int causa) {
    caso.MuerteSituacion = static_cast<std::uint8_t>(situacion - 1);
    caso.MuerteCausa = static_cast<std::uint8_t>(causa - 1);
}

void cotiza(RegistroMuerte& caso, const char* desde, const char* hasta) {
    caso.MuertePerDesde[0].asigna(desde);
    caso.MuertePerHasta[0].asigna(hasta);
}

std::string base(const std::string& euros) {
    return "La base reguladora es de " + euros + " €.\r\n";
}
std::string basePension(const std::string& euros) {
    return "La base reguladora será la de la pensión, es decir " + euros +
           " €, \r\ncon las mejoras y revalorizaciones habidas desde que se causó la \r\n"
           "pensión del fallecido.\r\n";
}
std::string viuda(const std::string& pension) {
    return "El(La) viudo(a) tiene derecho a una pensión vitalicia de " + pension;
}
std::string huerfano(const std::string& pension, const std::string& pagas) {
    return "Cada huérfano tiene derecho a una pensión de " + pension +
           "\r\nhasta que cumplalos 18 años, (o el máximo que corresponda en circunstancias "
           "excepcionales,\r\n"
           "según nota aclaratoria de la pantalla de parámetros del supuesto.)\r\n"
           "o vitalicia si es declarado inválido absoluto, repartidas en " +
           pagas + "\r\n";
}
const std::string kNupcias =
    "Si el beneficiario, antes de cumplir los 60 años, contrae nuevas nupcias, \r\n"
    "la pensión se sustituye por una cantidad igual al importe de 24 mensualidades \r\nde la pensión.\r\n";
const std::string kVariosConyuges =
    "Esta pensión se pagará completa al último cónyuge del causante.\r\n"
    "Al haber varios ex-cónyuges se les pagará la parte proporcional de su periodo\r\n"
    "de convivencia respecto al tiempo transcurrido desde su matrimonio, restando \r\n"
    "esta cantidad a la pensión del último cónyuge.\r\n";
const std::string kTantoAlzado = "Los huérfanos tienen derecho además a una indemnización a tanto alzado\r\n";
const std::string kAuxilio =
    "Corresponde además un subsidio o pago único de 30,05 €, en \r\nconcepto de Auxilio por Defunción.\r\n";

struct Historia {
    const char* titulo;
    void (*cambia)(RegistroMuerte&);  ///< from the accident at work
    std::string conclusion;
    bool derecho = true;
};

const Historia kConViuda[] = {
    {"an accident at work: widow of 59 with two orphans, each of them also a lump sum",
     [](RegistroMuerte& caso) {
         caso.MuerteDejaViuda = 1;
         caso.MuerteEdadViuda = 59;
         caso.MuerteHijos = 2;
     },
     base("1.000,00") + viuda("520,00 € , repartidas en 12 pagas.\r\n") +
         "Tiene derecho además a una indemnización a tanto alzado de 6.000,00 € (por una sola vez).\r\n" +
         kNupcias + huerfano("200,00 €", "12 pagas.") + kTantoAlzado +
         "1000 € cada uno (por una sola vez).\r\n" + kAuxilio},
    {"an illness with 500 days contributed: the sum of bases loses its cents; what is left is for the rest",
     [](RegistroMuerte& caso) {
         muere(caso, 1, 1);
         cotiza(caso, "01-01-2004", "15-05-2005");
         caso.MuerteUltimaBase = 14013.99;
         caso.MuerteDejaViuda = 1;
         caso.MuerteEdadViuda = 30;
         caso.MuerteFamiliares = 1;
         caso.MuerteFami2 = 1;
     },
     "Cumple el periodo mínimo de 500 días cotizados dentro de los últimos 5 años\r\n" + base("500,46") +
         viuda("326,20 € , repartidas en 14 pagas.\r\n") + kNupcias +
         "Cada familiar tiene derecho a una pensión de 132,62 €, "
         "Cada familiar con derecho a subsidio percibirá un máximo de 12 mensualidades\r\nde 132,62 €.\r\n" +
         kAuxilio},
    {"a pension of 1994 has grown 41,37 %; a widow of 66 who keeps a family gets the least; former spouses",
     [](RegistroMuerte& caso) {
         muere(caso, 3, 1);
         caso.MuerteFechaPension = LeeFecha("01-03-1994");
         caso.MuerteUltimaBase = 600.55;
         caso.MuerteDejaViuda = 1;
         caso.MuerteEdadViuda = 66;
         caso.MuerteHayCargas = 1;
         caso.MuerteVariosConyuges = 1;
         caso.MuerteHijos = 1;
     },
     basePension("600,55") +
         viuda("438,71 €  (Incrementada en un 41,37%), repartidas en tantas pagas como la pensión.\r\n") +
         kVariosConyuges + kNupcias +
         huerfano("132,62 € (Incrementada en un 41,37%)", "tantas pagas como la pensión.") + kAuxilio +
         "NOTA: El factor de mejora desde 1994 es, en este caso, de 1,41\r\n"},
    {"the highest pension, of a pension granted in the same year: the factor of 1 is told",
     [](RegistroMuerte& caso) {
         muere(caso, 2, 2);
         caso.MuerteUltimaBase = 5000;
         caso.MuerteDejaViuda = 1;
     },
     basePension("5.000,00") +
         viuda("2.159,12 € , pensión máxima en 2005, repartidas en tantas pagas como la pensión.\r\n") +
         "Tiene derecho además a una indemnización a tanto alzado de 30.000,00 € (por una sola vez).\r\n" +
         kNupcias + kAuxilio + "NOTA: El factor de mejora desde 2005 es, en este caso, de 1\r\n"},
    {"a pension granted before 1990 has no factor, so that it falls by a hundred per cent",
     [](RegistroMuerte& caso) {
         muere(caso, 5, 1);
         caso.MuerteFechaPension = LeeFecha("31-12-1989");
         caso.MuerteUltimaBase = 900;
         caso.MuerteDejaViuda = 1;
         caso.MuerteEdadViuda = 64;
     },
     basePension("900,00") +
         viuda("468,00 €  (Incrementada en un -100,%), repartidas en tantas pagas como la pensión.\r\n") +
         kNupcias + kAuxilio},
    {"lack of safety devices, part-time work: the salary in 14 payments and no lump sum for the widow",
     [](RegistroMuerte& caso) {
         muere(caso, 10, 5);
         caso.MuerteDejaViuda = 1;
         caso.MuerteEdadViuda = 60;
         caso.MuerteUltimaBase = 7200;
     },
     base("600,00") +
         "Tiene derecho a un incremento de 30/50% sobre la base reguladora,\r\n"
         "por falta de medidas de seguridad en la empresa.\r\n" +
         viuda("408,78 € , repartidas en 14 pagas.\r\n") + kNupcias + kAuxilio},
};

const Historia kSinViuda[] = {
    {"two orphans share what would be the widow's: 200 + 260",
     [](RegistroMuerte& caso) { caso.MuerteHijos = 2; },
     base("1.000,00") + huerfano("460,00 €", "12 pagas.") + kTantoAlzado +
         "4000 € cada uno (por una sola vez).\r\n" + kAuxilio},
    {"three share all that is left: 200 + 400 / 3, and 3000 each; a relative beside them gets the rest",
     [](RegistroMuerte& caso) {
         caso.MuerteHijos = 3;
         caso.MuerteFamiliares = 2;
     },
     base("1.000,00") + huerfano("333,33 €", "12 pagas.") + kTantoAlzado +
         "3000 € cada uno (por una sola vez).\r\n"
         "Cada familiar tiene derecho a una pensión de 132,62 €, " +
         kAuxilio},
    {"six share the base and get at least 326,20 / 6 + 132,62; their lump sum is told with all its figures",
     [](RegistroMuerte& caso) {
         muere(caso, 7, 4);
         caso.MuerteHijos = 6;
         caso.MuerteUltimaBase = 28001;
     },
     base("1.000,04") + huerfano("186,99 €", "14 pagas.") + kTantoAlzado +
         "2000,08 € cada uno (por una sola vez).\r\n" + kAuxilio},
    {"with the unemployed the orphan stands behind a widow who is not there, and has no lump sum",
     [](RegistroMuerte& caso) {
         muere(caso, 9, 2);
         caso.MuerteHijos = 1;
         caso.MuerteHayCargas = 1;
     },
     base("1.000,00") + huerfano("200,00 €", "12 pagas.") + kAuxilio},
    {"a relative alone gets at least 326,20, and 341,42 from 65 on",
     [](RegistroMuerte& caso) {
         muere(caso, 6, 3);
         caso.MuerteFamiliares = 1;
         caso.MuerteUltimaBase = 8400;
     },
     base("300,00") +
         "Si tiene 65 años cumplidos, el familiar tiene derecho a una pensión de 341,42 €.\r\n"
         "En los demás casos, el familiar tiene derecho a una pensión de 326,20 €, repartidas en 14 "
         "pagas..\r\n" +
         kAuxilio +
         "\r\nNOTA: En este régimen tiene que acreditar que está al corriente de pago de\r\n"
         "las cuotas de la Seguridad Social.\r\n"},
    {"two relatives alone share 193,58 on top of it, and their line runs on",
     [](RegistroMuerte& caso) {
         muere(caso, 4, 1);
         caso.MuerteFechaPension = LeeFecha("01-03-2004");
         caso.MuerteFamiliares = 2;
         caso.MuerteUltimaBase = 800;
     },
     basePension("800,00") +
         "Cada familiar tiene derecho a una pensión de 422,99 €  (Incrementada en un 2,%) repartidas en "
         "tantas pagas como la pensión.." +
         kAuxilio + "NOTA: El factor de mejora desde 2004 es, en este caso, de 1,02\r\n"},
};

const std::string kSin500 =
    "No cumple el periodo mínimo de 500 días cotizados en los últimos 5 años.\r\n"
    "NO TIENE DERECHO A PENSION\r\n";

const Historia kPorPeriodos[] = {
    {"499 days of the last five years are too few",
     [](RegistroMuerte& caso) {
         muere(caso, 7, 1);
         cotiza(caso, "01-01-2004", "14-05-2005");
     },
     kSin500, false},
    {"no period at all", [](RegistroMuerte& caso) { muere(caso, 9, 1); }, kSin500, false},
    {"who worked no hours looks back ten years and finds nothing",
     [](RegistroMuerte& caso) {
         muere(caso, 10, 1);
         cotiza(caso, "01-01-1990", "31-05-2005");
     },
     "No cumple el periodo mínimo de 500 días cotizados en los últimos 3650 días.\r\n"
     "NO TIENE DERECHO A PENSION\r\n",
     false},
    {"1826 hours are the whole year: 500 days x 365,2 / 365",
     [](RegistroMuerte& caso) {
         muere(caso, 10, 1);
         cotiza(caso, "01-01-2004", "15-05-2005");
         caso.HorasTP = 1826;
         caso.MuerteUltimaBase = 28000;
     },
     "Cumple el periodo mínimo de 500 días cotizados dentro de los últimos 1825 días.\r\n" +
         base("1.000,00") + kAuxilio},
    {"out of the social security, 5475 days are fifteen years",
     [](RegistroMuerte& caso) {
         muere(caso, 8, 3);
         cotiza(caso, "01-01-1990", "28-12-2004");
         caso.MuerteUltimaBase = 28000;
     },
     "Cumple el periodo mínimo de 15 años cotizados.\r\n" + base("1.000,00") + kAuxilio},
    {"5474 are not",
     [](RegistroMuerte& caso) {
         muere(caso, 8, 3);
         cotiza(caso, "01-01-1990", "27-12-2004");
     },
     "No cumple el periodo mínimo de 15 años cotizados necesario.\r\nNO TIENE DERECHO A PENSION", false},
};

void cuenta(std::span<const Historia> historias) {
    for (const Historia& historia : historias) {
        RegistroMuerte caso = accidentado();
        historia.cambia(caso);
        Dictamen dictamen;
        dictamen.linea("de antes");
        MuerteCalcula(caso, dictamen);
        EXPECT_EQ(dictamen.Conclusion(), historia.conclusion) << historia.titulo;
        EXPECT_EQ(dictamen.ConDerecho, historia.derecho) << historia.titulo;
    }
}

TEST(Muerte, LeavesAWidow) {
    cuenta(kConViuda);
}

TEST(Muerte, LeavesNoWidow) {
    cuenta(kSinViuda);
}

TEST(Muerte, AsksForPeriods) {
    cuenta(kPorPeriodos);
}

TEST(Muerte, ABaseBeyondMeasureKeepsTheLinesSoFar) {
    RegistroMuerte caso = accidentado();
    muere(caso, 2, 1);
    caso.MuerteUltimaBase = 1e12;
    Dictamen dictamen;
    EXPECT_THROW(MuerteCalcula(caso, dictamen), DesbordeNumerico);
    EXPECT_EQ(dictamen.Conclusion(), basePension("1.000.000.000.000,00"));
}

TEST(RegistroMuerte, LiesInItsBytes) {
    RegistroMuerte caso = accidentado();
    muere(caso, 10, 5);
    cotiza(caso, "01-01-1990", "31-12-2004");
    caso.MuerteFami2 = 7;
    caso.HorasTP = 258;
    const std::string bytes = kDiseno.escribe(caso);
    EXPECT_EQ(bytes.size(), 863U);
    EXPECT_EQ(bytes.substr(177, 9), std::string("\4\11\0\0\143\0\0\0\7", 9));
    EXPECT_EQ(bytes.substr(194, 10), "01-01-1990");
    EXPECT_EQ(bytes.substr(434, 4), std::string("\2\1\0\0", 4));
}

}  // namespace
}  // namespace orvemo::muerte
