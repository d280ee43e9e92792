#include <gtest/gtest.h>

#include "foundations/values/fallos.h"
#include "pensions/incapacidad/incapacidad_base.h"
#include "pensions/supuestos_incapacidad.h"

namespace orvemo::incapacidad {
namespace {

using namespace pruebas;

struct Historia {
    const char* titulo;
    void (*cambia)(RegistroIncapacidad&);  ///< from the person of 50
    bool derecho;
    std::string conclusion;
};

const std::string kComun = "Enfermedad Común.\r\n";
const std::string kNoLaboral = "Accidente no laboral.\r\n";
const std::string kProfesional = "Accidente de trabajo o enfermedad profesional.\r\n";

const Historia kTotales[] = {
    {"a quarter of 30 years is 90 months, a fifth of them recent; up to 55 the increase waits",
     [](RegistroIncapacidad&) {}, true,
     solicita("50 años", kTotalPor + kComun) + hanCotizado("5630 días (15 años y 5 meses)") +
         "cumpliendo el periodo mínimo de 90 meses establecido.\r\n" + quinta("También cumple", "18") +
         baseDe("1.000,00") + vitalicia("550,00") + k14Pagas +
         "Tiene derecho a un incremento de 20% (200,00 €) cuando cumpla 55 años.\r\n" + kComplemento +
         indemnizacion("84", "550", "antes del 14-jun-2008")},
    {"out of the social security there is no pension by common illness",
     [](RegistroIncapacidad& caso) { caso.InvaAltaSS = 0; }, false,
     solicita("50 años", kTotalPor + kComun) +
         "Debe estar AFILIADO y EN ALTA o SITUACION ASIMILADA A ALTA \r\n en la Seguridad Social.\r\n" +
         kSinPension},
    {"at 25 half the days since 16 are asked for, 1643: 103 hours make 30 days, one too few",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1980");
         cotiza(caso, "01-01-2001", "31-05-2005");
         caso.HorasTP = 103;
     },
     false,
     solicita("25 años", kTotalPor + kComun) + hanCotizado("1642 días (4 años y 5 meses)") +
         "por lo que NO CUMPLE el periodo mínimo de 54 meses establecido.\r\n" + kSinPension},
    {"at 27 five years are asked for",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1978");
         cotiza(caso, "01-01-2001", "31-05-2005");
     },
     false,
     solicita("27 años", kTotalPor + kComun) + hanCotizado("1612 días (4 años y 4 meses)") +
         "por lo que NO CUMPLE el periodo mínimo de 5 años establecido.\r\n" + kSinPension},
    {"a long career that ended in 1990 lacks the recent fifth",
     [](RegistroIncapacidad& caso) { cotiza(caso, "01-01-1975", "31-12-1990"); }, false,
     solicita("50 años", kTotalPor + kComun) + hanCotizado("5844 días (16 años)") +
         "cumpliendo el periodo mínimo de 90 meses establecido.\r\n" + quinta("Pero NO CUMPLE", "18") +
         kSinPension},
    {"an accident at 59 asks for nothing; the self-employed may take 40 times the base instead",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1946");
         clasifica(caso, Grado::Total, Causa::AccidenteNoLaboral, Regimen::Autonomos);
         caso.InvaAltaSS = 0;
         caso.InvaUltimaBase = 28000;
     },
     true,
     solicita("59 años", kTotalPor + kNoLaboral) + kSinPeriodo + baseDe("1.000,00") + vitalicia("550,00") +
         k14Pagas +
         "Tiene derecho a un incremento de 20% de la base reguladora (200,00 €) \r\n"
         "si no puede ejercer otro trabajo o no puede conseguirlo.\r\n"
         "Este incremento quedará en suspenso mientras obtenga empleo.\r\n" +
         indemnizacion("40", "1.000,00", "antes del 14-jun-2008")},
    {"at 66 retirement is told of, the least pension holds and nothing takes its place",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1939");
         clasifica(caso, Grado::Total, Causa::Profesional, Regimen::EmpleadosHogar);
         caso.InvaAltaSS = 0;
         caso.InvaUltimaBase = 7200;
         caso.InvaRecargo = 1;
     },
     true,
     solicita("66 años", kTotalPor + kProfesional) + kSeAsumeAlta +
         "Si ha cotizado más de 15 años y 2 de ellos están comprendidos dentro de los \r\n"
         "últimos 15 años, entonces DEBE optar a la pensión de jubilación.\r\n" +
         kSinPeriodo + baseDe("600,00") +
         "La pensión que le corresponde (330,00 €) es inferior al mínimo para su edad, por lo que se toma "
         "este valor.\r\n" +
         vitalicia("438,71") + k12Pagas + kRecargo},
    {"at 60 with a spouse the least pension is 489,72",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1945");
         clasifica(caso, Grado::Total, Causa::Profesional, Regimen::EmpleadosHogar);
         caso.InvaConyuge = 1;
         caso.InvaUltimaBase = 10680;  // 890 a month, 489,50 of pension
     },
     true,
     solicita("60 años", kTotalPor + kProfesional) + kSinPeriodo + baseDe("890,00") +
         "La pensión que le corresponde (489,50 €) es inferior al mínimo para su edad, por lo que se toma "
         "este valor.\r\n" +
         vitalicia("489,72") + k12Pagas},
    {"at 21, in the agrarian scheme, the lump sum waits and there is no increase at 55",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1984");
         clasifica(caso, Grado::Total, Causa::Profesional, Regimen::Agrario);
         caso.InvaUltimaBase = 54000;
     },
     true,
     solicita("21 años", kTotalPor + kProfesional) + kSinPeriodo + baseDe("4.500,00") +
         "Le corresponde la PENSIÓN VITALICIA de 2.159,12 € mensuales,\r\nmáximo para su caso \r\n" +
         k12Pagas + kComplemento + indemnizacion("84", "2159,12", "cuando cumpla 21 años")},
};

const Historia kAbsolutas[] = {
    {"at 25, one hour more makes the 1643rd day: 62996,40 over 1,1666 x 54",
     [](RegistroIncapacidad& caso) {
         nace(caso, "15-06-1980");
         clasifica(caso, Grado::Absoluta, Causa::EnfermedadComun);
         cotiza(caso, "01-01-2001", "31-05-2005");
         caso.HorasTP = 104;
         caso.InvaSumaBases = 62996.40;
     },
     true,
     solicita("25 años", kAbsolutaPor + kComun) + hanCotizado("1643 días (4 años y 6 meses)") +
         "cumpliendo el periodo mínimo de 54 meses establecido.\r\n" + baseDe("1.000,00") +
         vitalicia("1.000,00") + k14Pagas},
    {"out of the social security, 5479 days reach 15 years; 96 bases, the last 24 without their cents",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Absoluta, Causa::AccidenteNoLaboral, Regimen::Agrario);
         cotiza(caso, "01-01-1990", "31-12-2004");
         caso.InvaAltaSS = 0;
         caso.InvaBasesDesglosadas = 1;
         caso.InvaBase.fill(1234.56);
     },
     true,
     solicita("50 años", kAbsolutaPor + kNoLaboral) + hanCotizado("5479 días (15 años)") +
         "cumpliendo el periodo mínimo de 15 años establecido.\r\n"
         "También cumple el requisito de haber cotizado al menos 3 años\r\n" +
         kRecienteSinAlta + baseDe("1.058,07") + vitalicia("1.058,07") + k14Pagas +
         "Los efectos económicos se producirán desde el momento de la solicitud\r\n"},
    {"a day less does not",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Absoluta, Causa::EnfermedadComun);
         cotiza(caso, "02-01-1990", "31-12-2004");
         caso.InvaAltaSS = 0;
     },
     false,
     solicita("50 años", kAbsolutaPor + kComun) + hanCotizado("5478 días (15 años)") +
         "por lo que NO CUMPLE el periodo mínimo de 15 años establecido.\r\n" + kSinPension},
    {"nor do 15 years that ended in 1990",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Absoluta, Causa::EnfermedadComun);
         cotiza(caso, "01-01-1975", "31-12-1990");
         caso.InvaAltaSS = 0;
     },
     false,
     solicita("50 años", kAbsolutaPor + kComun) + hanCotizado("5844 días (16 años)") +
         "cumpliendo el periodo mínimo de 15 años establecido.\r\n"
         "Pero NO CUMPLE el requisito de haber cotizado un mínimo de 3 años \r\n" +
         kRecienteSinAlta + kSinPension},
};

const std::string kSiTuviera =
    "La pensión obtenida se incrementaría en 50% si tuviera que remunerar a un asistente.\r\n";
const std::string kAsistente =
    "La pensión obtenida se incrementa en 50% por tener que remunerar a un asistente.\r\n";

void accidenteGrave(RegistroIncapacidad& caso) {
    clasifica(caso, Grado::GranInvalidez, Causa::Profesional);
}

const Historia kGrandesInvalideces[] = {
    {"the least pension keeps its half cent, and so does its half for who is cared for",
     [](RegistroIncapacidad& caso) {
         accidenteGrave(caso);
         caso.InvaConyuge = 1;
         caso.InvaPersona = 1;
         caso.InvaRecargo = 1;
         caso.InvaUltimaBase = 8400;
     },
     true,
     solicita("50 años", "Gran Invalidez derivada de " + kProfesional) + kSinPeriodo + baseDe("700,00") +
         "La pensión que le corresponde (700,00 €) es inferior al mínimo, por lo que\r\n"
         "se toma éste valor (786,015)\r\n" +
         kAsistente + vitalicia("1.179,03") + k12Pagas + kRecargo},
    {"alone, 658,065 is the least",
     [](RegistroIncapacidad& caso) {
         accidenteGrave(caso);
         caso.InvaUltimaBase = 7896.72;
     },
     true,
     solicita("50 años", "Gran Invalidez derivada de " + kProfesional) + kSinPeriodo + baseDe("658,06") +
         "La pensión que le corresponde (658,06 €) es inferior al mínimo, por lo que\r\n"
         "se toma éste valor (658,065)\r\n" +
         kSiTuviera + vitalicia("658,07") + k12Pagas},
    {"a capped pension that grows is no longer told as the highest",
     [](RegistroIncapacidad& caso) {
         accidenteGrave(caso);
         caso.InvaAltaSS = 0;
         caso.InvaPersona = 1;
         caso.InvaUltimaBase = 120000;
     },
     true,
     solicita("50 años", "Gran Invalidez derivada de " + kProfesional) + kSeAsumeAlta + kSinPeriodo +
         baseDe("10.000,00") + kAsistente + vitalicia("3.238,68") + k12Pagas},
};

const std::string kSinSuponerPension =
    "La incapacidad parcial NO SUPONE DERECHO A PENSION, sino a una \r\nprestación de tipo asistencial.\r\n";
const std::string k1800Dias =
    "Ha cotizado 1800 días en los 10 años anteriores al hecho causante \r\nde la incapacidad.\r\n";

const Historia kParciales[] = {
    {"the self-employed are covered for accidents at work alone",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Parcial, Causa::AccidenteNoLaboral, Regimen::Autonomos);
     },
     false,
     solicita("50 años", kParcialPor + kNoLaboral) +
         "La incapacidad permanente parcial derivada de enfermedad común o accidente \r\n"
         "no laboral no es objeto de protección en el régimen especial de autónomos.\r\n" +
         kSinPrestacion},
    {"1800 recent days are not more than 1800",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Parcial, Causa::EnfermedadComun);
         cotiza(caso, "27-06-2000", "31-05-2005");
     },
     false,
     solicita("50 años", kParcialPor + kComun) + kSinSuponerPension + k1800Dias +
         "Luego NO CUMPLE el periodo mínimo de 1800 días exigido." + kSinPrestacion},
    {"but they are the 60 months of the domestic scheme",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Parcial, Causa::EnfermedadComun, Regimen::EmpleadosHogar);
         cotiza(caso, "27-06-2000", "31-05-2005");
         caso.InvaUltimaBase = 30.5;
         caso.InvaRecargo = 1;
     },
     true,
     solicita("50 años", kParcialPor + kComun) + kSinSuponerPension +
         "Cumple el periodo mínimo de 60 meses cotizados.\r\n"
         "Le corresponde una PRESTACION equivalente a 24 mensualidades \r\n"
         " de Base Reguladora utilizada para determinar la prestación\r\n"
         " económica derivada de IT, cuyo importe es de 915,00 €.\r\n\r\n"
         "La PRESTACION TOTAL es de 21.960,00 €.\r\n"
         "También puede solicitar un complemento de 75% del subsidio para recuperación.\r\n"
         "Puede solicitar recargo de 30/50% por haber sido provocada por maquinaria \r\n"
         "sin dispositivos de precaución reglamentarios.\r\n"},
    {"an accident at work doesn't make up for the alta here",
     [](RegistroIncapacidad& caso) {
         clasifica(caso, Grado::Parcial, Causa::Profesional, Regimen::Autonomos);
         caso.InvaAltaSS = 0;
     },
     false,
     solicita("50 años", kParcialPor + kProfesional) + kSinSuponerPension +
         "Debe estar AFILIADO y EN ALTA o SITUACION ASIMILADA A ALTA \r\nen la Seguridad Social.\r\n" +
         kSinPrestacion},
};

void cuenta(std::span<const Historia> historias) {
    for (const Historia& historia : historias) {
        RegistroIncapacidad caso = enfermoDe50();
        historia.cambia(caso);
        Dictamen dictamen;
        dictamen.linea("de antes");
        InvaCalcula(caso, tablasPlanas(100), dictamen);
        EXPECT_EQ(dictamen.Conclusion(), historia.conclusion) << historia.titulo;
        EXPECT_EQ(dictamen.ConDerecho, historia.derecho) << historia.titulo;
    }
}

TEST(Incapacidad, PartialIsALumpSum) {
    cuenta(kParciales);
}

TEST(Incapacidad, TotalIsForTheTrade) {
    cuenta(kTotales);
}

TEST(Incapacidad, AbsoluteIsForAnyWork) {
    cuenta(kAbsolutas);
}

TEST(Incapacidad, GreatNeedsCare) {
    cuenta(kGrandesInvalideces);
}

TEST(Incapacidad, AnAverageOverNoMonthsIsADivisionByZero) {
    RegistroIncapacidad caso = enfermoDe50();
    nace(caso, "15-03-1989");
    Dictamen dictamen;
    EXPECT_THROW(InvaCalcula(caso, tablasPlanas(100), dictamen), DivisionPorCero);
    EXPECT_TRUE(dictamen.Conclusion().ends_with("el periodo mínimo de 0 meses establecido.\r\n"));
}

TEST(BaseDeIncapacidad, CountsBackFromTheLastContributionOfTheGeneralScheme) {
    const Fecha dictamen = LeeFecha("15-06-2005");
    const auto desde = [&](Regimen regimen, const std::string& ultimo) {
        return FechaReferencia(regimen, dictamen, std::vector<std::string>{"01-02-1999", ultimo, ""});
    };
    EXPECT_EQ(desde(Regimen::General, "31-05-2005"), LeeFecha("31-05-2005")) << "and not the day after";
    EXPECT_EQ(desde(Regimen::General, "17-03-2005"), LeeFecha("17-03-2005")) << "90 days";
    EXPECT_EQ(desde(Regimen::General, "16-03-2005"), dictamen) << "91 days";
    EXPECT_EQ(desde(Regimen::Agrario, "31-05-2005"), dictamen);
}

TEST(BaseDeIncapacidad, AsksForTheMonthsThatTheDaysMake) {
    const auto meses = [](auto cambia) {
        RegistroIncapacidad caso = enfermoDe50();
        cambia(caso);
        return InvaMinimoBases(Expediente{caso});
    };
    EXPECT_EQ(meses([](auto&) {}), 91) << "2739 days over 30, though the calculation averages 90";
    EXPECT_EQ(meses([](auto& caso) { nace(caso, "15-06-1980"); }), 54) << "at 25";
    EXPECT_EQ(meses([](auto& caso) { nace(caso, "15-06-1979"); }), 60) << "at 26, five years at least";
    EXPECT_EQ(meses([](auto& caso) { caso.InvaAltaSS = 0; }), 96) << "180, of which 96 count";
    EXPECT_EQ(meses([](auto& caso) { clasifica(caso, Grado::Total, Causa::AccidenteNoLaboral); }), 0);
}

TEST(RegistroIncapacidad, LiesInItsBytes) {
    RegistroIncapacidad caso = enfermoDe50();
    caso.HorasTP10 = 258;
    const std::string bytes = kDiseno.escribe(caso);
    EXPECT_EQ(bytes.size(), 1411U);
    EXPECT_EQ(bytes.substr(177, 4), std::string("\1\2\0\0", 4)) << "grade, cause, scheme, spouse";
    EXPECT_EQ(bytes.substr(192, 10), "01-01-1990");
    EXPECT_EQ(bytes.substr(1405, 4), std::string("\2\1\0\0", 4));
}

}  // namespace
}  // namespace orvemo::incapacidad
