// The case of the temporary incapacity screen in its file, and on paper.
#include "ilt_pantalla.h"

namespace orvemo {
namespace {

using pruebas::dobleEn;
using pruebas::enteroEn;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;

// --- The case ---

TEST_F(ILTFrmTest, ACaseLiesInTheFileByteByByte) {
    elMesDeAltaQuedaAtras();
    escribe(frm.Nombre, " Begoña Ñíguez ");
    rellena(frm.f1, "6/6/05");
    rellena(frm.f2, "25-06-2005");
    frm.elige(frm.DM, 1);
    rellena(frm.Bccant, "1234,56");
    rellena(frm.Prev, "12");
    frm.elige(frm.TBaja, kAccidenteLaboral);
    rellena(frm.Batant, "1300,5");
    rellena(frm.He, "60");
    rellena(frm.He12, "720");
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "3600,25");
    rellena(frm.D12, "90");
    rellena(frm.HorasAno, "913");
    rellena(frm.DSem, "LX");
    const std::string& bytes = graba("Caso 1");
    ASSERT_EQ(bytes.size(), 274U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 15),
              "Bego\xF1"
              "a \xD1\xED"
              "guez  ");
    EXPECT_EQ(enteroEn(bytes, 161), kTiempoParcial);
    EXPECT_EQ(dobleEn(bytes, 165), 36557) << "01-02-2000";
    EXPECT_EQ(dobleEn(bytes, 173), 1234.56);
    EXPECT_EQ(dobleEn(bytes, 181), 1300.5);
    EXPECT_EQ(enteroEn(bytes, 189), 60);
    EXPECT_EQ(enteroEn(bytes, 193), 720);
    EXPECT_EQ(enteroEn(bytes, 197), 1);
    EXPECT_EQ(dobleEn(bytes, 201), 38509) << "06-06-2005";
    EXPECT_EQ(dobleEn(bytes, 209), 38528) << "25-06-2005";
    EXPECT_EQ(enteroEn(bytes, 217), kAccidenteLaboral);
    EXPECT_EQ(dobleEn(bytes, 221), 0);
    EXPECT_EQ(enteroEn(bytes, 229), 0);
    EXPECT_EQ(dobleEn(bytes, 233), 0);
    EXPECT_EQ(enteroEn(bytes, 241), 12);
    EXPECT_EQ(enteroEn(bytes, 245), 90);
    EXPECT_EQ(dobleEn(bytes, 249), 3600.25);
    EXPECT_EQ(enteroEn(bytes, 257), 0);
    EXPECT_EQ(enteroEn(bytes, 261), 913);
    EXPECT_EQ(bytes.substr(265), "LX       ");
}

TEST_F(ILTFrmTest, TheSalaryOfTheMonthOfJoiningLiesInItsPlace) {
    rellena(frm.Bact, "1200,75");
    rellena(frm.Extra, "2");
    rellena(frm.IExtra, "1100,5");
    const std::string& bytes = graba("Caso 2");
    EXPECT_EQ(dobleEn(bytes, 221), 1200.75);
    EXPECT_EQ(enteroEn(bytes, 229), 2);
    EXPECT_EQ(dobleEn(bytes, 233), 1100.5);
}

/// A record that another program wrote, its head and texts in blanks.
std::string registroAjeno(int Situacion, int TBaja) {
    std::string bytes = std::string(161, ' ') + std::string(104, '\0') + "LXV    " + "??";
    const std::int32_t situacion = Situacion;
    const std::int32_t causa = TBaja;
    const double julio = 38540;  // 07-07-2005
    const double base = 1234.5;
    std::memcpy(&bytes[161], &situacion, 4);
    std::memcpy(&bytes[165], &julio, 8);
    std::memcpy(&bytes[173], &base, 8);
    std::memcpy(&bytes[217], &causa, 4);
    std::memcpy(&bytes[241], &causa, 4);
    return bytes;
}

TEST_F(ILTFrmTest, ALoadSetsTheSchemeFirstAndThenTheCause) {
    struct {
        const char* historia;
        int Situacion, TBaja, indice;
        std::vector<std::string> opcionales;
    } const filas[] = {
        {"a farm worker's third cause falls on the second",
         kAgrario,
         kAccidenteLaboral,
         kAccidente,
         {"Bccant", "Prev"}},
        {"an employee's third one stands",
         kOrdinario,
         kAccidenteLaboral,
         kAccidenteLaboral,
         {"DM", "Batant", "He", "He12"}},
        {"a scheme that isn't on the list falls on the last", 77, kEnfermedad, kEnfermedad, {"DM"}},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.historia);
        mundo.almacen["ILT.nom"] = registroAjeno(fila.Situacion, fila.TBaja);
        frm.DatosCargaRegistro(1);
        EXPECT_EQ(frm.TBaja.indice(), fila.indice);
        EXPECT_THAT(opcionales(), ElementsAreArray(fila.opcionales));
    }
    EXPECT_EQ(frm.fAlta.texto(), "07-07-2005");
    EXPECT_EQ(frm.f1.texto(), "30-12-1899");
    EXPECT_EQ(frm.Bccant.texto(), "1234,50");
    EXPECT_EQ(frm.He.texto(), "0");
    EXPECT_EQ(frm.DSem.texto(), "LXV");
}

TEST_F(ILTFrmTest, WhatIsReservedGoesBackAsItCame) {
    mundo.almacen["ILT.nom"] = registroAjeno(kOrdinario, kEnfermedad);
    frm.DatosCargaRegistro(1);
    ASSERT_TRUE(frm.DatosTomaPantalla());
    frm.DatosAppendRegistro();
    EXPECT_EQ(mundo.almacen["ILT.nom"].substr(274 + 272), "??");
}

TEST_F(ILTFrmTest, EarlierDaysOutOfViewAreZeroInTheRecordAfterTheCalculation) {
    elMesDeAltaQuedaAtras();
    rellena(frm.Prev, "25");
    frm.elige(frm.TBaja, kAccidenteLaboral);
    concluye();
    EXPECT_EQ(frm.caso().Prev, 0);
    EXPECT_EQ(frm.Prev.texto(), "25") << "the field keeps them";
}

TEST_F(ILTFrmTest, TheDaysOfTheWeekAreThoseOnTheField) {
    elMesDeAltaQuedaAtras();
    rellena(frm.f1, "06-06-2005");
    rellena(frm.f2, "26-06-2005");
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "3600");
    rellena(frm.D12, "90");
    rellena(frm.DSem, "lunes: L; miércoles: X");
    EXPECT_THAT(concluye(), HasSubstr("Indemnización de 60% (a cargo empresa):3 días, 72,00 €\r\n"
                                      "Indemnización de 60% (a cargo INSS):1 días, 24,00 €\r\n"));
}

// --- The report ---

class InformeILTTest : public ILTFrmTest {
  protected:
    InformeILTTest() {
        escribe(frm.Nombre, "Begoña Ruiz");
        rellena(frm.f1, "06-06-2005");
        rellena(frm.f2, "08-06-2005");
    }
    const std::vector<std::string>& imprime() {
        concluye();
        EXPECT_TRUE(frm.pulsa(frm.BotonPrint));
        return mundo.impresora.lineas;
    }
};

TEST_F(InformeILTTest, AnEmployeesIllness) {
    elMesDeAltaQuedaAtras();
    rellena(frm.Bccant, "1240,5");
    rellena(frm.Prev, "2");
    EXPECT_THAT(
        imprime(),
        ElementsAre("INCAPACIDAD TEMPORAL", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato ordinario)",
                    "Causa de la baja: Enfermedad Común", "Fecha de alta en la Seguridad Social: 01-02-2000",
                    "Tipo de cotización: Diaria", "Periodo de baja por IT: 06-06-2005 AL 08-06-2005",
                    "Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                    "Días pasados en IT en los 6 meses anteriores: 2", "CONCLUSIONES",
                    "El interesado/a desea solicitar una prestación por Incapacidad Temporal.",
                    "El trabajador debe justificar un mínimo de 180 días de cotización,",
                    "dentro de los últimos 5 años.", "Base Reguladora para la prestación:40,02 €/diarios.",
                    "El número de días a subsidiar es de 2",
                    "Indemnización de 60% (a cargo empresa):2 días, 48,02 €",
                    "El importe total de la prestación es de 48,02 €"));
}

TEST_F(InformeILTTest, AWorkAccident) {
    elMesDeAltaQuedaAtras();
    frm.elige(frm.TBaja, kAccidenteLaboral);
    frm.elige(frm.DM, 1);
    rellena(frm.Batant, "1500");
    rellena(frm.He, "60");
    rellena(frm.He12, "720");
    EXPECT_THAT(
        imprime(),
        ElementsAre("INCAPACIDAD TEMPORAL", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato ordinario)",
                    "Causa de la baja: Accidente Laboral", "Fecha de alta en la Seguridad Social: 01-02-2000",
                    "Tipo de cotización: Mensual", "Periodo de baja por IT: 06-06-2005 AL 08-06-2005",
                    "Base de cotización por A.T. y E.P. en el mes anterior al de la baja: 1.500,00 €",
                    "Base de cotización por Horas Extraordinarias: 60,00 €",
                    "Cotización por Horas Extra durante los 12 últimos meses: 720,00 €", "CONCLUSIONES",
                    "El interesado/a desea solicitar una prestación por Incapacidad Temporal.",
                    "El trabajador no debe justificar cotizaciones anteriores.",
                    "Base Reguladora para la prestación:50,00 €/diarios.",
                    "El número de días a subsidiar es de 2", "El importe de la prestación es de 75,00 €",
                    "Está a cargo del empresario el salario íntegro correspondiente al", "día de la baja."));
}

/// The data lines of a report, its conclusions left out.
std::vector<std::string> datos(const std::vector<std::string>& lineas) {
    return {lineas.begin(), std::ranges::find(lineas, "CONCLUSIONES")};
}

TEST_F(InformeILTTest, TheMonthOfJoiningWithItsAmountsAsTyped) {
    rellena(frm.Bact, "1200,5");
    rellena(frm.Extra, "2");
    rellena(frm.IExtra, "1100");
    EXPECT_THAT(
        datos(imprime()),
        ElementsAre("INCAPACIDAD TEMPORAL", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato ordinario)",
                    "Causa de la baja: Enfermedad Común", "Fecha de alta en la Seguridad Social: 15-06-2005",
                    "Tipo de cotización: Diaria", "Periodo de baja por IT: 06-06-2005 AL 08-06-2005",
                    "Salario Base Mensual: 1200,5", "Número de pagas extra: 2",
                    "Importe de las pagas: 1100"));
}

TEST_F(InformeILTTest, APartTimeContract) {
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "3600,5");
    rellena(frm.D12, "90");
    rellena(frm.HorasAno, "1826");
    EXPECT_THAT(
        datos(imprime()),
        ElementsAre("INCAPACIDAD TEMPORAL", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R. general (contrato tiempo parcial)",
                    "Causa de la baja: Enfermedad Común", "Fecha de alta en la Seguridad Social: 15-06-2005",
                    "Tipo de cotización: Diaria", "Periodo de baja por IT: 06-06-2005 AL 08-06-2005",
                    "Suma Bases Cot. 3 últimos meses: 3600,5", "Días efectivamente cotizados: 90",
                    "Total de horas trabajadas al año: 1826", "Días de la semana que trabaja: LMXJVSD"));
}

}  // namespace
}  // namespace orvemo
