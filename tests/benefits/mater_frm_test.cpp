#include "benefits/mater_frm.h"

#include "pantalla_de_baja.h"

namespace orvemo {
namespace {

using pruebas::dobleEn;
using pruebas::enteroEn;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar };

class MaterFrmTest : public pruebas::PantallaDeBaja<MaterFrm> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "f1", "f2", "jtpcnd"});
    }
    /// Sixteen weeks from 6 June 2005, 40 euros a day.
    void rellenaDescanso() {
        escribe(frm.Nombre, "Begoña Ruiz");
        rellena(frm.fAlta, "01-02-2000");
        rellena(frm.f1, "06-06-2005");
        rellena(frm.f2, "25-09-2005");
        frm.elige(frm.DM, 1);
        rellena(frm.Bccant, "1200");
    }
};

TEST_F(MaterFrmTest, OpensCleanOnItsDefaults) {
    EXPECT_EQ(frm.Titulo(), "PRESTACION POR MATERNIDAD");
    EXPECT_EQ(frm.Caption(), "Prestación por maternidad");
    EXPECT_EQ(frm.Subtitulo(), "Datos del solicitante");
    EXPECT_EQ(frm.fichero(), "Mater.nom");
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2, &frm.ftp})
        EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_EQ(frm.D12.texto(), "913");
    EXPECT_EQ(frm.ptp.texto(), "60");
    EXPECT_FALSE(frm.jtpcnd.marcado());
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM"));
    ASSERT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.Subtitulo(), "CONCLUSIONES SOBRE INDEMNIZACION POR MATERNIDAD");
}

TEST_F(MaterFrmTest, EachSchemeAsksForItsOwnData) {
    struct {
        int Situacion;
        std::vector<std::string> opcionales;
    } const filas[] = {
        {kTiempoParcial, {"B12", "D12"}}, {kAutonomos, {"Bccant"}},       {kAgrario, {"Bccant"}},
        {kEmpleadosHogar, {"Bccant"}},    {kOrdinario, {"Bccant", "DM"}},
    };
    for (const auto& fila : filas) {
        frm.elige(frm.Situacion, fila.Situacion);
        EXPECT_THAT(opcionales(), ElementsAreArray(fila.opcionales)) << fila.Situacion;
    }
    frm.elige(frm.Situacion, kTiempoParcial);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM")) << "a new case";
}

TEST_F(MaterFrmTest, TheReducedWorkingDayShowsWhenItsBoxIsPressed) {
    frm.marca(frm.jtpcnd, true);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "ftp", "ptp"));
    frm.pulsa(frm.BotonNuevo);
    EXPECT_FALSE(frm.jtpcnd.marcado());
    EXPECT_TRUE(frm.ptp.visible()) << "the mark went while the program itself was setting fields";
    frm.marca(frm.jtpcnd, true);
    frm.marca(frm.jtpcnd, false);
    EXPECT_FALSE(frm.ptp.visible());
}

TEST_F(MaterFrmTest, TheTypedDatesAreTestedInTheirOrder) {
    struct {
        Campo& campo;
        const char* mensaje;
    } const filas[] = {
        {frm.f2, "Error: La fecha de final del descanso no es correcta"},
        {frm.f1, "Error: La fecha de inicio del descanso no es correcta"},
        {frm.fAlta, "Error: La fecha de alta no es correcta"},
    };
    // Each one made wrong is told before those that were wrong already.
    for (const auto& fila : filas) {
        mundo.mensajes.dichos.clear();
        rellena(fila.campo, "31-02-2005");
        EXPECT_THAT(mundo.mensajes.dichos, IsEmpty()) << "nothing is checked on leaving";
        EXPECT_TRUE(frm.pulsa(frm.Siguiente));
        EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(fila.mensaje));
        EXPECT_EQ(frm.actual(), &fila.campo);
        EXPECT_EQ(frm.PantallaActual(), 0);
    }
    rellena(frm.fAlta, "1/2/00");
    rellena(frm.f1, "6-6-05");
    rellena(frm.f2, "");
    mundo.mensajes.dichos.clear();
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(filas[0].mensaje)) << "a blank date is no date";
    rellena(frm.f2, "25/9/2005");
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.PantallaActual(), 1);
    EXPECT_EQ(frm.f2.texto(), "25-09-2005");
}

TEST_F(MaterFrmTest, ABadDateIsSavedAsFarAsTheFieldsBeforeIt) {
    rellenaDescanso();
    rellena(frm.f2, "mañana");
    const std::string& bytes = graba("A medias");
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
    ASSERT_EQ(bytes.size(), 260U);
    EXPECT_EQ(dobleEn(bytes, 173), 38509) << "06-06-2005";
    EXPECT_EQ(dobleEn(bytes, 181), 0);
    EXPECT_EQ(dobleEn(bytes, 189), 0);
}

TEST_F(MaterFrmTest, ACaseLiesInTheFileByteByByte) {
    rellenaDescanso();
    rellena(frm.Bccant, "1234,56");
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "7300,25");
    rellena(frm.D12, "1000");
    frm.marca(frm.jtpcnd, true);
    rellena(frm.ftp, "18-07-2005");
    rellena(frm.ptp, "40");
    const std::string& bytes = graba("Caso 1");
    ASSERT_EQ(bytes.size(), 260U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 13),
              "Bego\xF1"
              "a Ruiz  ");
    EXPECT_EQ(enteroEn(bytes, 161), kTiempoParcial);
    EXPECT_EQ(dobleEn(bytes, 165), 36557) << "01-02-2000";
    EXPECT_EQ(dobleEn(bytes, 173), 38509) << "06-06-2005";
    EXPECT_EQ(dobleEn(bytes, 181), 38620) << "25-09-2005";
    EXPECT_EQ(dobleEn(bytes, 189), 1234.56);
    EXPECT_EQ(enteroEn(bytes, 197), 1);
    EXPECT_EQ(dobleEn(bytes, 201), 7300.25);
    EXPECT_EQ(enteroEn(bytes, 209), 1000);
    EXPECT_EQ(enteroEn(bytes, 213), 0);
    EXPECT_EQ(bytes[217], '\1');
    EXPECT_EQ(dobleEn(bytes, 218), 38551) << "18-07-2005";
    EXPECT_EQ(enteroEn(bytes, 226), 40);
    EXPECT_EQ(bytes.substr(230), std::string(30, '\0'));
}

TEST_F(MaterFrmTest, ASavedCaseComesBackWithItsView) {
    rellenaDescanso();
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "7300,5");
    frm.marca(frm.jtpcnd, true);
    graba("Caso 1");
    frm.marca(frm.jtpcnd, false);
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(frm.NombreActual(), "Caso 1");
    EXPECT_EQ(frm.f2.texto(), "25-09-2005");
    EXPECT_EQ(frm.Bccant.texto(), "1200,00");
    EXPECT_EQ(frm.B12.texto(), "7300,50");
    EXPECT_EQ(frm.D12.texto(), "913");
    EXPECT_THAT(opcionales(), ElementsAre("B12", "D12", "ftp", "ptp"));
}

TEST_F(MaterFrmTest, TheCalculationLooksAtTheBoxOnTheScreen) {
    rellenaDescanso();
    frm.marca(frm.jtpcnd, true);
    rellena(frm.ftp, "18-07-2005");
    EXPECT_THAT(concluye(),
                testing::EndsWith("Base Reguladora reducida para la segunda prestación:16,00 €\r\n"
                                  "Días durante los cuales recibirá esta prestación:175\r\n"
                                  "El importe de la prestación para este segundo período es de "
                                  "2.800,00 €\r\n"));
    EXPECT_TRUE(frm.Ok.visible());
}

TEST_F(MaterFrmTest, TheWholeWorkingDayDoneStopsTheCalculation) {
    rellenaDescanso();
    frm.marca(frm.jtpcnd, true);
    rellena(frm.ptp, "100");
    EXPECT_THAT(concluye(),
                testing::EndsWith("El importe de la prestación para este período es de 360,00 €\r\n"));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre(testing::StartsWith("Error: No se ha podido completar la operación: ")));
    EXPECT_TRUE(frm.Mal.visible());
    EXPECT_FALSE(frm.ConDerecho());
}

// --- The report ---

TEST_F(MaterFrmTest, TheReportOfAnEmployeeHasNoHeadingOverItsConclusions) {
    rellenaDescanso();
    rellena(frm.Bccant, "1240,5");
    concluye();
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(
        mundo.impresora.lineas,
        ElementsAre("DESCANSO POR MATERNIDAD", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R.General (contrato ordinario)",
                    "Fecha de alta en la Seguridad Social: 01-feb-2000",
                    "Fecha de inicio del descanso: 06-jun-2005", "Fecha de final del descanso: 25-sep-2005",
                    "Base de cotización por Contingencias Comunes, en el mes anterior",
                    "al inicio del descanso: 1.240,50 €", "Tipo de cotización: Mensual",
                    "La interesada desea solicitar una prestación por maternidad.",
                    "La trabajadora debe justificar un mínimo de 180 días de cotización,",
                    "dentro de los últimos 5 años.", "Base Reguladora para la prestación:41,35 €",
                    "El número de días a subsidiar es de 112",
                    "El importe de la prestación es de 4.631,20 €"));
}

TEST_F(MaterFrmTest, TheReportOfAPartTimeContract) {
    rellenaDescanso();
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena(frm.B12, "7300,5");
    rellena(frm.D12, "1826");
    ASSERT_TRUE(frm.pulsa(frm.BotonPrint));
    EXPECT_THAT(
        mundo.impresora.lineas,
        ElementsAre("DESCANSO POR MATERNIDAD", "Nombre:Begoña Ruiz",
                    "Régimen de la Seguridad Social: R.General (contrato tiempo parcial)",
                    "Fecha de alta en la Seguridad Social: 01-feb-2000",
                    "Fecha de inicio del descanso: 06-jun-2005", "Fecha de final del descanso: 25-sep-2005",
                    "Suma de cotización de los 12 últimos meses: 7.300,50 €",
                    "Horas cotizadas en el último año: 1826"))
        << "printed before there were conclusions";
}

}  // namespace
}  // namespace orvemo
