#include "benefits/it/ilt_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using pruebas::doblesEn;
using pruebas::enterosEn;
using testing::ElementsAre;
using testing::ElementsAreArray;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar, kFormacion };
enum : int { kEnfermedad, kAccidente, kAccidenteLaboral };

class ILTFrmTest : public pruebas::PantallaAbierta<ILTFrm> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "TBaja", "f1", "f2"});
    }
    void elMesDeAltaQuedaAtras() { rellena(frm.fAlta, "01-02-2000"); }
};

TEST_F(ILTFrmTest, OpensCleanOnItsDefaults) {
    EXPECT_THAT(frm.TBaja.opciones(),
                ElementsAre("Enfermedad Común", "Accidente No Laboral", "Accidente Laboral"));
    EXPECT_EQ(frm.DM.texto(), "Diaria");
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2}) EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_EQ(frm.DSem.texto(), "LMXJVSD");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra")) << "she joined this very month";
    EXPECT_THAT(cabecera(), ElementsAre("INCAPACIDAD TEMPORAL", "Incapacidad Temporal", "ILT.nom",
                                        "Datos del solicitante",
                                        "CONCLUSIONES SOBRE INDEMNIZACION POR INCAPACIDAD TEMPORAL"));
}

TEST_F(ILTFrmTest, NumbersAreHeldToTheirLimits) {
    EXPECT_THAT(limites(), ElementsAre("Bact 0 y 99999999", "Extra 0 y 9", "IExtra 0 y 99999999"));
    elMesDeAltaQuedaAtras();
    EXPECT_THAT(limites(), ElementsAre("Bccant 0 y 99999999", "Prev 0 y 99999999"));
    frm.elige(frm.TBaja, kAccidenteLaboral);
    EXPECT_THAT(limites(), ElementsAre("Batant 0 y 99999999", "He 0 y 99,999,999", "He12 0 y 99999999"));
    frm.elige(frm.Situacion, kTiempoParcial);
    EXPECT_THAT(limites(), ElementsAre("B12 0 y 99999999", "D12 0 y 99999999", "HorasAno 0 y 9999"));
}

TEST_F(ILTFrmTest, EachSchemeAndCauseAsksForItsOwnData) {
    const std::string comun = "Base de cotización por C. Comunes, en el mes anterior al de la baja:";
    const std::string unica = "Base de cotización en el mes anterior al de la baja:";
    const struct {
        const char* historia;
        int Situacion, TBaja;
        const std::string& rotulo;
        std::vector<std::string> opcionales;
    } filas[] = {
        {"employee, illness", kOrdinario, kEnfermedad, comun, {"DM", "Bccant", "Prev"}},
        {"accident outside work", kOrdinario, kAccidente, comun, {"DM", "Bccant", "Prev"}},
        {"work accident", kOrdinario, kAccidenteLaboral, comun, {"DM", "Batant", "He", "He12"}},
        {"part time", kTiempoParcial, kEnfermedad, comun, {"DM", "B12", "D12", "HorasAno", "DSem"}},
        {"training leaves the kind of contribution as it was", kFormacion, kAccidenteLaboral, comun, {"DM"}},
        {"self-employed, illness", kAutonomos, kEnfermedad, unica, {"Bccant", "Prev"}},
        {"farm worker, accident", kAgrario, kAccidente, unica, {"Bccant", "Prev"}},
        {"domestic employee, illness", kEmpleadosHogar, kEnfermedad, unica, {"Bccant", "Prev"}},
        {"training, the kind of contribution hidden before it", kFormacion, kEnfermedad, comun, {}},
    };
    elMesDeAltaQuedaAtras();
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.historia);
        frm.elige(frm.Situacion, fila.Situacion);
        frm.elige(frm.TBaja, fila.TBaja);
        EXPECT_THAT(opcionales(), ElementsAreArray(fila.opcionales));
        EXPECT_EQ(frm.Bccant.rotulo(), fila.rotulo);
    }
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra")) << "a new case";
}

TEST_F(ILTFrmTest, TheMonthOfJoiningAsksForTheSalaryOfEmployeesAlone) {
    frm.elige(frm.TBaja, kAccidenteLaboral);
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra"));
    rellena(frm.f1, "01-07-2005");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Batant", "He", "He12"));
    rellena(frm.fAlta, "31-07-2004");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Batant", "He", "He12")) << "the same month of another year";
    frm.eligeFecha(frm.fAlta, FechaDMA(2, 7, 2005));
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra")) << "picked in the calendar";
    frm.elige(frm.Situacion, kAutonomos);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "Prev"));
}

TEST_F(ILTFrmTest, TheCausesFollowTheSchemeAndKeepTheOneChosen) {
    frm.elige(frm.TBaja, kAccidenteLaboral);
    frm.elige(frm.Situacion, kAutonomos);
    EXPECT_THAT(frm.TBaja.opciones(), ElementsAre("Enfermedad", "Accidente"));
    EXPECT_EQ(frm.TBaja.indice(), kAccidente) << "lowered to the last";
    frm.elige(frm.Situacion, kFormacion);
    EXPECT_THAT(frm.TBaja.opciones(), ElementsAre("Enfermedad Común", "Accidente No Laboral",
                                                  "Accidente Laboral/Enfermedad Profesional"));
    EXPECT_EQ(frm.TBaja.texto(), "Accidente No Laboral");
    frm.elige(frm.Situacion, kAgrario);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_EQ(frm.TBaja.opciones().size(), 3U) << "those of an employee again";
}

TEST_F(ILTFrmTest, OvertimeIsRewrittenOnLeavingAndStoredInWholeEuros) {
    const struct {
        const char *escrito, *queda;
        std::int32_t guardado;
    } filas[] = {{"1234,56", "1.234,56", 1235}, {"0", "0,00", 0}, {"2,5", "2,50", 2}, {"", "0,00", 0}};
    elMesDeAltaQuedaAtras();
    frm.elige(frm.TBaja, kAccidenteLaboral);
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.escrito);
        rellena(frm.He, fila.escrito);
        ASSERT_TRUE(frm.foco(frm.He));
        ASSERT_TRUE(frm.foco(frm.Nombre)) << "judged as 1.234 the second time";
        EXPECT_EQ(frm.He.texto(), fila.queda);
        ASSERT_TRUE(frm.DatosTomaPantalla());
        EXPECT_EQ(frm.caso().He, fila.guardado);
    }
}

TEST_F(ILTFrmTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    rellena({{&frm.Nombre, "Begoña Ñíguez"}, {&frm.f1, "6/6/05"}, {&frm.f2, "25-06-2005"}});
    frm.elige(frm.DM, 1);
    frm.elige(frm.Situacion, kTiempoParcial);
    frm.elige(frm.TBaja, kAccidenteLaboral);
    rellena({{&frm.B12, "3600,25"}, {&frm.D12, "90"}, {&frm.HorasAno, "913"}, {&frm.DSem, "LX"}});
    frm.Bccant.ponTexto("1234,56");
    frm.Batant.ponTexto("1300,50");
    frm.He.ponTexto("60");
    frm.He12.ponTexto("720");
    frm.Prev.ponTexto("12");
    frm.Bact.ponTexto("1200,75");
    frm.Extra.ponTexto("2");
    frm.IExtra.ponTexto("1100,50");
    const std::string bytes = vaYVuelve("Caso 1");
    ASSERT_EQ(bytes.size(), 274U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 14),
              "Bego\xF1"
              "a \xD1\xED"
              "guez ");
    EXPECT_THAT(enterosEn(bytes, {161, 189, 193, 197, 217, 229, 241, 245, 257, 261}),
                ElementsAre(kTiempoParcial, 60, 720, 1, kAccidenteLaboral, 2, 12, 90, 0, 913));
    EXPECT_THAT(doblesEn(bytes, {165, 173, 181, 201, 209, 221, 233, 249}),
                ElementsAre(38518, 1234.56, 1300.5, 38509, 38528, 1200.75, 1100.5, 3600.25))
        << "15-06-2005, 06-06-2005 and 25-06-2005 among them";
    EXPECT_EQ(bytes.substr(265), "LX       ");
}

/// A record that another program wrote, its head and texts in blanks.
std::string registroAjeno(std::int32_t Situacion, std::int32_t TBaja) {
    std::string bytes = std::string(161, ' ') + std::string(104, '\0') + "LXV    " + "??";
    std::memcpy(&bytes[161], &Situacion, sizeof Situacion);
    std::memcpy(&bytes[217], &TBaja, sizeof TBaja);
    return bytes;
}

TEST_F(ILTFrmTest, ALoadSetsTheSchemeFirstAndThenTheCause) {
    const struct {
        const char* historia;
        int Situacion, indice;
    } filas[] = {
        {"a farm worker's third cause falls on the second", kAgrario, kAccidente},
        {"an employee's third one stands", kOrdinario, kAccidenteLaboral},
        {"a scheme that isn't on the list falls on the last", 77, kAccidenteLaboral},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.historia);
        mundo.almacen["ILT.nom"] = registroAjeno(fila.Situacion, kAccidenteLaboral);
        frm.DatosCargaRegistro(1);
        EXPECT_EQ(frm.TBaja.indice(), fila.indice);
        EXPECT_EQ(frm.DSem.texto(), "LXV");
        frm.DatosAppendRegistro();
        EXPECT_EQ(mundo.almacen["ILT.nom"].substr(274 + 272), "??")
            << "what is reserved goes back as it came";
    }
}

TEST_F(ILTFrmTest, TheCalculationLooksAtTheScreen) {
    elMesDeAltaQuedaAtras();
    rellena({{&frm.f1, "06-06-2005"}, {&frm.f2, "26-06-2005"}, {&frm.Prev, "25"}});
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena({{&frm.B12, "3600"}, {&frm.D12, "90"}, {&frm.DSem, "lunes: L; miércoles: X"}});
    EXPECT_THAT(concluye(), testing::HasSubstr("Indemnización de 60% (a cargo empresa):3 días, 72,00 €\r\n"
                                               "Indemnización de 60% (a cargo INSS):1 días, 24,00 €\r\n"))
        << "more days of the week than the record holds";
    EXPECT_EQ(frm.caso().Prev, 0) << "out of view";
    EXPECT_EQ(frm.Prev.texto(), "25") << "the field keeps them";
}

TEST_F(ILTFrmTest, TheReportTellsWhatIsOnView) {
    const std::vector<std::string> persona{
        "INCAPACIDAD TEMPORAL",
        "Nombre:Begoña Ruiz",
        "Régimen de la Seguridad Social: R. general (contrato ordinario)",
        "Causa de la baja: Enfermedad Común",
        "Fecha de alta en la Seguridad Social: 15-06-2005",
        "Tipo de cotización: Diaria",
        "Periodo de baja por IT: 06-06-2005 AL 08-06-2005",
    };
    const auto propias = [&] {
        const auto& lineas = imprime();
        return std::vector<std::string>{lineas.begin() + 7, std::ranges::find(lineas, "CONCLUSIONES")};
    };
    rellena({{&frm.Nombre, "Begoña Ruiz"}, {&frm.f1, "06-06-2005"}, {&frm.f2, "08-06-2005"}});
    rellena({{&frm.Bact, "1200,5"}, {&frm.Extra, "2"}, {&frm.IExtra, "1100"}});
    EXPECT_THAT(propias(), ElementsAre("Salario Base Mensual: 1200,5", "Número de pagas extra: 2",
                                       "Importe de las pagas: 1100"));
    EXPECT_THAT(std::vector(mundo.impresora.lineas.begin(), mundo.impresora.lineas.begin() + 7),
                ElementsAreArray(persona));
    elMesDeAltaQuedaAtras();
    rellena({{&frm.Bccant, "1240,5"}, {&frm.Prev, "2"}});
    EXPECT_THAT(propias(),
                ElementsAre("Base de cotización por C.Comunes en el mes anterior al de la baja: 1.240,50 €",
                            "Días pasados en IT en los 6 meses anteriores: 2"));
    frm.elige(frm.TBaja, kAccidenteLaboral);
    rellena({{&frm.Batant, "1500"}, {&frm.He, "60"}, {&frm.He12, "720"}});
    EXPECT_THAT(propias(),
                ElementsAre("Base de cotización por A.T. y E.P. en el mes anterior al de la baja: 1.500,00 €",
                            "Base de cotización por Horas Extraordinarias: 60,00 €",
                            "Cotización por Horas Extra durante los 12 últimos meses: 720,00 €"));
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena({{&frm.B12, "3600,5"}, {&frm.D12, "90"}, {&frm.HorasAno, "1826"}});
    EXPECT_THAT(
        propias(),
        ElementsAre("Suma Bases Cot. 3 últimos meses: 3600,5", "Días efectivamente cotizados: 90",
                    "Total de horas trabajadas al año: 1826", "Días de la semana que trabaja: LMXJVSD"));
    frm.elige(frm.Situacion, kEmpleadosHogar);
    concluye();
    const auto& lineas = imprime();
    EXPECT_THAT(std::vector(std::ranges::find(lineas, "CONCLUSIONES"), lineas.end()),
                ElementsAre("CONCLUSIONES",
                            "El interesado/a desea solicitar una prestación por Incapacidad Temporal.",
                            "El trabajador no debe justificar cotizaciones anteriores.",
                            "Base Reguladora para la prestación:41,35 €/diarios.",
                            "El número de días a subsidiar es de 0", "La indemnización de 75% es de 0,00 €"));
}

}  // namespace
}  // namespace orvemo
