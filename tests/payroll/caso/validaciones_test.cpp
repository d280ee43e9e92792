// What the fields of the payroll refuse, with the words they do it in.
#include <gmock/gmock.h>

#include "payroll/validaciones/adicionales.h"
#include "payroll/validaciones/fechas_nomina.h"
#include "payroll/validaciones/rangos.h"

namespace orvemo::nomina {
namespace {

using testing::ElementsAre;

std::string numero(const char* campo, const char* texto) {
    return CompruebaNumero(RangoDe(campo), texto);
}

TEST(Validaciones, EachNumberAtItsLimits) {
    const std::string kNumero = "El número no es correcto. Debe introducir un número entre ";
    const std::string kImporte = "El importe no es correcto. Debe introducir un número entre ";
    struct Caso {
        const char *campo, *bien, *mal;
        std::string mensaje;
    };
    const Caso casos[] = {
        {"NomiEdad", "17", "16", kNumero + "17 y 99"},
        {"NomiEdad", "99", "99,5", kNumero + "17 y 99"},
        {"NomiNumPagas", "99", "100", kNumero + "0 y 99"},
        {"NomiPagaExtra", "99999", "-1", kNumero + "0 y 99999"},
        {"NomiIRPFExtra", "100", "100,01", kNumero + "0 y 100"},
        {"NomiDesempleo", "1", "1,1", kNumero + "0 y 1"},
        {"NomiPluriempleo", "100", "101", kNumero + "0 y 1"},
        {"NomiFMaxInd", "", "100", kNumero + "0 y 99"},
        {"NomiFDiasVac", "99", "100",
         "El número de días de vacaciones disfrutadas no es correcto. Debe introducir un número entre 0 y "
         "99"},
        {"NomiBaseCCAnt", "10000", "10000,1", kNumero + "0 y 10,000"},
        {"NomiHEAñoAnt", "10000", "10001", kImporte + "0 y 10,000"},
        {"NomiHorasDiarias", "24", "24,5", kImporte + "0 y 24"},
        {"NomiDias12", "365", "366", "El valor no es correcto. Debe introducir un número entre 0 y 365"},
        {"NomiBase12", "50000", "50001", kImporte + "0 y 50000"},
        {"NomiParcialHoras", "999", "1000", "El número de horas no es válido: debe estar entre 0 y 999"},
        {"NomiParcialDias", "31", "32", "El número de días no es válido: debe estar entre 0 y 31"},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(numero(c.campo, c.bien), "") << c.campo;
        EXPECT_EQ(numero(c.campo, c.mal), c.mensaje) << c.campo;
    }
    EXPECT_NE(numero("NomiEdad", std::string(400, '9').c_str()), "");
    EXPECT_EQ(CompruebaImporte("52", 52) + CompruebaPromedio("9999,99") + CompruebaDiasAnt("90", 3), "");
    EXPECT_EQ(CompruebaImporte("52,2", 52), kNumero + "0 y 52");
    EXPECT_EQ(CompruebaImporte("-1", 99999999), kNumero + "0 y 99.999.999");
    EXPECT_EQ(CompruebaPromedio("10000"),
              "El promedio de las bases de los últimos 6 meses debe ser inferior a 10,000 euros");
    const std::string dias =
        "El número de días cotizados en el mes anterior no es correcto. Debe introducir un número entre 0 y ";
    EXPECT_EQ(CompruebaDiasAnt("91", 1), dias + "31");
    EXPECT_EQ(CompruebaDiasAnt("91", 3), dias + "29");
    for (const char* letra : {"", "D", "M", "A", "X"}) EXPECT_EQ(CompruebaPeriodo(letra), "");
    EXPECT_TRUE(
        CompruebaPeriodo("E").starts_with("Debe responder (M)ensual (D)iario, (X) Por día cotizado ó (A)"));
    EXPECT_EQ(AvisoExtras(true, std::vector<std::string>{"300", "0"}), "");
    EXPECT_EQ(AvisoExtras(false, std::vector<std::string>{"1200"}), "");
    EXPECT_NE(AvisoExtras(true, std::vector<std::string>{"0", "300,01"}), "");
}

/// What is said, and after "->" what the field takes.
std::string dice(const Revision& r) {
    return r.mensaje + (r.propuesta ? "->" + *r.propuesta : "");
}

TEST(Validaciones, EachDateInItsOrder) {
    const std::string kMala = "La fecha no es correcta. El formato válido es día-mes-año";
    const std::string kBlanco = "La fecha no puede quedar en blanco.";
    const std::string kSinInicio = "La fecha inicial no se ha indicado";
    EXPECT_EQ(dice(CompruebaCese("x", "01-01-2005", 1)),
              "La fecha de cese no es correcta. El formato válido es día-mes-año");
    EXPECT_EQ(dice(CompruebaCese("", "01-01-2005", 1)) + dice(CompruebaCese("31-01-2005", "31-01-2005", 1)),
              "");
    EXPECT_EQ(dice(CompruebaCese("31-12-2004", "01-01-2005", 1)), "La fecha de cese debe ser del año 2005");
    EXPECT_EQ(dice(CompruebaCese("01-02-2005", "01-01-2005", 1)),
              "La fecha de cese, si existe, debe ser del mes de la nómina a calcular.");
    EXPECT_EQ(dice(CompruebaCese("09-01-2005", "10-01-2005", 1)),
              "La fecha de cese no puede ser anterior a la de ingreso");
    EXPECT_EQ(dice(CompruebaFechaAlta("30-2-2005")), kMala + "->01-01-2005");
    EXPECT_EQ(dice(CompruebaFechaAlta(" ")), kBlanco + "->01-01-2005");
    EXPECT_EQ(dice(CompruebaFechaIniExtra("x")),
              "La fecha de inicio del período para paga extraordinaria no es correcta. El formato válido es "
              "día-mes-año->01-01-2005");
    EXPECT_EQ(dice(CompruebaFechaFinExtra("", "")), kSinInicio);
    EXPECT_EQ(dice(CompruebaFechaFinExtra("", "31-08-2005")), "->28-02-2006");
    EXPECT_EQ(
        dice(CompruebaFechaFinExtra("x", "01-01-2005")),
        "La fecha de finalización del período de paga extraordinaria no es correcta. El formato válido es "
        "día-mes-año->01-07-2005");
    EXPECT_EQ(dice(CompruebaFechaFinExtra("31-12-2004", "01-01-2005")),
              "La fecha de finalización no puede ser anterior a la de inicio.->01-07-2005");
    EXPECT_EQ(dice(CompruebaFechaPeriodo1("x")) + dice(CompruebaFechaPeriodo1("")), kMala + kBlanco);
    EXPECT_EQ(dice(CompruebaFechaPeriodo2("01-01-2005", "")), kSinInicio);
    EXPECT_EQ(dice(CompruebaFechaPeriodo2("01-01-2005", "01-01-2005")),
              "La fecha debe ser posterior a 01-01-2005");
    EXPECT_EQ(dice(CompruebaFechaPeriodo2("02-01-2005", "01-01-2005")), "");
}

TEST(Validaciones, TheDaysOfAnIncidence) {
    const auto primero = [](const char* codigo, const char* dia1, const char* dia2, int mes) {
        const RevisionDia1 r = CompruebaDiaInci1(codigo, dia1, dia2, mes);
        return dice(r.dia1) + (r.dia2 ? "=>" + *r.dia2 : "");
    };
    EXPECT_EQ(primero("1", "", "", 1), "Debe indicar el día del mes en el que comienza la incidencia");
    EXPECT_EQ(primero("", "", "", 1), "");
    EXPECT_EQ(primero("1", "31", "", 4), "El día de inicio de la incidencia no es válido.");
    EXPECT_EQ(primero("1", "29", "", 2), "=>29") << "February has 29 days here";
    EXPECT_EQ(primero("1", "10", "5", 1), "=>10");
    EXPECT_EQ(primero("1", "10", "10", 1), "");
    EXPECT_EQ(dice(CompruebaDiaInci2("1", "10", "", 1)),
              "Debe indicar el día del mes en el que finaliza la incidencia");
    EXPECT_EQ(dice(CompruebaDiaInci2("1", "10", "300", 1)),
              "El día de finalización de la incidencia no es válido.");
    EXPECT_EQ(
        dice(CompruebaDiaInci2("1", "10", "5", 1)),
        "El final de la incidencia no puede ser anterior al comienzo. Se ajusta el día de finalización.->10");
}

TEST(Validaciones, TheSecondScreenTellsAllThatIsWrongInOrder) {
    std::vector<std::string> dichos;
    for (const AvisoCampo& a : CompruebaAdicionales({.hayExtra = true,
                               .hayBaja = true,
                               .hayParcial = true,
                               .Mes = 5,
                               .FechaExtra1 = "x",
                               .FechaExtra2 = "31-12-2004",
                               .DiasAnt = "91",
                               .BaseCCAnt = "10001",
                               .BaseATEPAnt = "10001",
                               .HEAnt = "10001",
                               .HEAnioAnt = "10001",
                               .Promedio6Meses = "10001"}))
        dichos.push_back(a.campo + ": " + a.mensaje + (a.propuesta ? "->" + *a.propuesta : ""));
    EXPECT_THAT(
        dichos,
        ElementsAre(
            "NomiFechaExtra1: La fecha del periodo requerido para paga extra no es válida.->01-01-2005",
            "NomiFechaExtra2: La fecha de inicio del periodo para paga extra debe ser anterior a la fecha de "
            "finalización del periodo.->01-07-2005",
            "NomiDiasAnt: El número de días cotizados en el mes anterior no es correcto. Debe introducir un "
            "número "
            "entre 0 y 30",
            "NomiBaseCCAnt: La base del mes anterior debe ser inferior a 10,000 euros",
            "NomiBaseATEPAnt: La base del mes anterior debe ser inferior a 10,000 euros",
            "NomiHEAnt: El importe de las horas extra del mes anterior debe ser inferior a 10,000 euros",
            "NomiHEAñoAnt: El importe de las horas extra del año anterior debe ser inferior a 10,000 euros",
            "NomiPromedio6Meses: El promedio de las bases de los últimos 6 meses debe ser inferior a 10,000 "
            "euros"));
    EXPECT_TRUE(CompruebaAdicionales({.Promedio6Meses = "99999"}).empty());
    EXPECT_EQ(CompruebaDatosCese(""), "");
    EXPECT_EQ(CompruebaDatosCese("31-02-2005"), "La fecha de cese en la empresa no es válida.");
}

}  // namespace
}  // namespace orvemo::nomina
