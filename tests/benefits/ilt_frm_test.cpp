#include "ilt_pantalla.h"

namespace orvemo {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

TEST_F(ILTFrmTest, OpensCleanOnItsDefaults) {
    EXPECT_EQ(frm.Titulo(), "INCAPACIDAD TEMPORAL");
    EXPECT_EQ(frm.Caption(), "Incapacidad Temporal");
    EXPECT_EQ(frm.Subtitulo(), "Datos del solicitante");
    EXPECT_EQ(frm.fichero(), "ILT.nom");
    EXPECT_EQ(frm.actual(), &frm.Nombre);
    EXPECT_EQ(frm.Situacion.texto(), "R. general (contrato ordinario)");
    EXPECT_THAT(frm.TBaja.opciones(),
                ElementsAre("Enfermedad Común", "Accidente No Laboral", "Accidente Laboral"));
    EXPECT_EQ(frm.DM.texto(), "Diaria");
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2}) EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_EQ(frm.DSem.texto(), "LMXJVSD");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra")) << "she joined this very month";
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE INDEMNIZACION POR INCAPACIDAD TEMPORAL");
}

// --- What each case asks for ---

TEST_F(ILTFrmTest, EachSchemeAndCauseAsksForItsOwnData) {
    elMesDeAltaQuedaAtras();
    struct {
        const char* historia;
        int Situacion, TBaja;
        std::vector<std::string> opcionales;
    } const filas[] = {
        {"employee, illness", kOrdinario, kEnfermedad, {"DM", "Bccant", "Prev"}},
        {"employee, accident outside work", kOrdinario, kAccidente, {"DM", "Bccant", "Prev"}},
        {"employee, work accident", kOrdinario, kAccidenteLaboral, {"DM", "Batant", "He", "He12"}},
        {"part time, illness", kTiempoParcial, kEnfermedad, {"DM", "B12", "D12", "HorasAno", "DSem"}},
        {"part time, work accident",
         kTiempoParcial,
         kAccidenteLaboral,
         {"DM", "B12", "D12", "HorasAno", "DSem"}},
        {"training, which leaves the kind of contribution as it was", kFormacion, kAccidenteLaboral, {"DM"}},
        {"self-employed, illness", kAutonomos, kEnfermedad, {"Bccant", "Prev"}},
        {"farm worker, accident", kAgrario, kAccidente, {"Bccant", "Prev"}},
        {"domestic employee, illness", kEmpleadosHogar, kEnfermedad, {"Bccant", "Prev"}},
        {"training again, the kind of contribution hidden before it", kFormacion, kEnfermedad, {}},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.historia);
        frm.elige(frm.Situacion, fila.Situacion);
        frm.elige(frm.TBaja, fila.TBaja);
        EXPECT_THAT(opcionales(), ElementsAreArray(fila.opcionales));
    }
}

TEST_F(ILTFrmTest, TheMonthOfJoiningAsksForTheSalaryOfEmployeesAlone) {
    frm.elige(frm.TBaja, kAccidenteLaboral);
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra"));
    rellena(frm.f1, "01-07-2005");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Batant", "He", "He12"));
    rellena(frm.fAlta, "31-07-2005");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra"));
    rellena(frm.fAlta, "31-07-2004");
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Batant", "He", "He12")) << "the same month of another year";
    frm.eligeFecha(frm.fAlta, FechaDMA(2, 7, 2005));
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra")) << "picked in the calendar";
    frm.elige(frm.Situacion, kAutonomos);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "Prev"));
}

TEST_F(ILTFrmTest, TheBaseOfSpecialSchemesHasAnotherCaption) {
    elMesDeAltaQuedaAtras();
    const std::string comun = "Base de cotización por C. Comunes, en el mes anterior al de la baja:";
    const std::string unica = "Base de cotización en el mes anterior al de la baja:";
    EXPECT_EQ(frm.Bccant.rotulo(), comun);
    for (const int s : {kAutonomos, kAgrario, kEmpleadosHogar}) {
        frm.elige(frm.Situacion, s);
        EXPECT_EQ(frm.Bccant.rotulo(), unica);
    }
    frm.elige(frm.Situacion, kOrdinario);
    EXPECT_EQ(frm.Bccant.rotulo(), comun);
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
}

TEST_F(ILTFrmTest, ANewCaseComesBackToItsFirstView) {
    elMesDeAltaQuedaAtras();
    frm.elige(frm.Situacion, kAutonomos);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_EQ(frm.TBaja.opciones().size(), 3U);
    EXPECT_THAT(opcionales(), ElementsAre("DM", "Bact", "Extra", "IExtra"));
}

// --- Overtime ---

TEST_F(ILTFrmTest, OvertimeIsRewrittenOnLeavingAndStoredInWholeEuros) {
    elMesDeAltaQuedaAtras();
    frm.elige(frm.TBaja, kAccidenteLaboral);
    struct {
        const char *escrito, *queda;
        std::int32_t guardado;
    } const filas[] = {
        {"1234,56", "1.234,56", 1235},
        {"1234", "1.234,00", 1234},
        {"0", "0,00", 0},
        {"2,5", "2,50", 2},
        {"99999999", "99.999.999,00", 99999999},
        {"", "0,00", 0},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.escrito);
        rellena(frm.He, fila.escrito);
        EXPECT_EQ(frm.He.texto(), fila.queda);
        ASSERT_TRUE(frm.foco(frm.He));
        ASSERT_TRUE(frm.foco(frm.Nombre)) << "judged as 1.234 the second time";
        EXPECT_EQ(frm.He.texto(), fila.queda);
        ASSERT_TRUE(frm.DatosTomaPantalla());
        EXPECT_EQ(frm.caso().He, fila.guardado);
    }
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(ILTFrmTest, OvertimeOutOfRangeTakesTheFocusBack) {
    elMesDeAltaQuedaAtras();
    frm.elige(frm.TBaja, kAccidenteLaboral);
    for (const char* malo : {"100000000", "-1"}) {
        mundo.mensajes.dichos.clear();
        escribe(frm.He, malo);
        EXPECT_FALSE(frm.foco(frm.Nombre));
        EXPECT_EQ(frm.actual(), &frm.He);
        EXPECT_EQ(frm.He.texto(), malo);
        EXPECT_THAT(
            mundo.mensajes.dichos,
            ElementsAre("Error: El número no es correcto. Debe introducir un número entre 0 y 99,999,999"));
        frm.escribe(frm.He, "0");
    }
}

}  // namespace
}  // namespace orvemo
