#include "benefits/maternidad/mater_frm.h"

#include "apoyo/pantalla_abierta.h"

namespace orvemo {
namespace {

using pruebas::doblesEn;
using pruebas::enterosEn;
using testing::ElementsAre;
using testing::ElementsAreArray;

enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar };

class MaterFrmTest : public pruebas::PantallaAbierta<MaterFrm> {
  protected:
    std::vector<std::string> opcionales() const {
        return aLaVista({"Nombre", "Situacion", "fAlta", "f1", "f2", "jtpcnd"});
    }
    /// Sixteen weeks from 6 June 2005, by the month.
    void rellenaDescanso() {
        rellena({{&frm.Nombre, "Begoña Ruiz"}, {&frm.Bccant, "1240,50"}});
        rellena({{&frm.fAlta, "01-02-2000"}, {&frm.f1, "06-06-2005"}, {&frm.f2, "25-09-2005"}});
        frm.elige(frm.DM, 1);
    }
};

TEST_F(MaterFrmTest, OpensCleanOnItsDefaults) {
    for (const Campo* fecha : {&frm.fAlta, &frm.f1, &frm.f2, &frm.ftp})
        EXPECT_EQ(fecha->texto(), "15-06-2005");
    EXPECT_EQ(frm.D12.texto(), "913");
    EXPECT_EQ(frm.ptp.texto(), "60");
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM"));
    EXPECT_THAT(cabecera(),
                ElementsAre("PRESTACION POR MATERNIDAD", "Prestación por maternidad", "Mater.nom",
                            "Datos del solicitante", "CONCLUSIONES SOBRE INDEMNIZACION POR MATERNIDAD"));
}

TEST_F(MaterFrmTest, EachSchemeAsksForItsOwnData) {
    const struct {
        int Situacion;
        std::vector<std::string> opcionales;
    } filas[] = {
        {kTiempoParcial, {"B12", "D12"}}, {kAutonomos, {"Bccant"}},       {kAgrario, {"Bccant"}},
        {kEmpleadosHogar, {"Bccant"}},    {kOrdinario, {"Bccant", "DM"}},
    };
    for (const auto& fila : filas) {
        frm.elige(frm.Situacion, fila.Situacion);
        EXPECT_THAT(opcionales(), ElementsAreArray(fila.opcionales)) << fila.Situacion;
    }
    frm.elige(frm.Situacion, kTiempoParcial);
    frm.marca(frm.jtpcnd, true);
    EXPECT_THAT(opcionales(), ElementsAre("B12", "D12", "ftp", "ptp"));
    EXPECT_THAT(limites(), ElementsAre("B12 0 y 999999", "D12 0 y 999999", "ptp 0 y 100"));
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    EXPECT_FALSE(frm.jtpcnd.marcado());
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM", "ftp", "ptp"))
        << "the mark went while the program itself was setting fields";
    EXPECT_THAT(limites(), ElementsAre("Bccant 0 y 999999", "ptp 0 y 100"));
    frm.marca(frm.jtpcnd, true);
    frm.marca(frm.jtpcnd, false);
    EXPECT_THAT(opcionales(), ElementsAre("Bccant", "DM"));
}

TEST_F(MaterFrmTest, TheTypedDatesAreTestedInTheirOrder) {
    for (const char* mala : {"31-02-2005", ""}) {
        compruebaFechas({{&frm.fAlta, "Error: La fecha de alta no es correcta"},
                         {&frm.f1, "Error: La fecha de inicio del descanso no es correcta"},
                         {&frm.f2, "Error: La fecha de final del descanso no es correcta"}},
                        mala);
    }
    EXPECT_TRUE(frm.pulsa(frm.Siguiente));
    EXPECT_EQ(frm.PantallaActual(), 1);
    EXPECT_EQ(frm.f2.texto(), "25-09-2005");
}

TEST_F(MaterFrmTest, ACaseLiesInTheFileByteByByteAndComesBack) {
    rellenaDescanso();
    frm.elige(frm.Situacion, kTiempoParcial);
    frm.marca(frm.jtpcnd, true);
    rellena({{&frm.B12, "7300,25"}, {&frm.D12, "1000"}, {&frm.ftp, "18-07-2005"}, {&frm.ptp, "40"}});
    const std::string bytes = vaYVuelve("Caso 1");
    ASSERT_EQ(bytes.size(), 260U);
    EXPECT_EQ(bytes.substr(0, 9), " Caso 1  ");
    EXPECT_EQ(bytes.substr(81, 12),
              "Bego\xF1"
              "a Ruiz ");
    EXPECT_THAT(enterosEn(bytes, {161, 197, 209, 213, 226}), ElementsAre(kTiempoParcial, 1, 1000, 0, 40));
    EXPECT_THAT(doblesEn(bytes, {165, 173, 181, 189, 201, 218}),
                ElementsAre(36557, 38509, 38620, 1240.5, 7300.25, 38551))
        << "01-02-2000, 06-06-2005, 25-09-2005 and 18-07-2005 among them";
    EXPECT_EQ(bytes[217], '\1');
    EXPECT_EQ(bytes.substr(230), std::string(30, '\0'));
}

TEST_F(MaterFrmTest, TheCalculationLooksAtTheBoxOnTheScreen) {
    rellenaDescanso();
    frm.marca(frm.jtpcnd, true);
    rellena({{&frm.ftp, "18-07-2005"}, {&frm.ptp, "100"}});
    EXPECT_THAT(concluye(),
                testing::EndsWith("El importe de la prestación para este período es de 1.736,70 €\r\n"));
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre(testing::StartsWith("Error: No se ha podido completar la operación: ")))
        << "the whole working day done divides by nothing";
    EXPECT_TRUE(frm.Mal.visible());
    EXPECT_FALSE(frm.ConDerecho());
}

TEST_F(MaterFrmTest, TheReportHasNoHeadingOverItsConclusions) {
    rellenaDescanso();
    concluye();
    EXPECT_THAT(
        imprime(),
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
    ASSERT_TRUE(frm.pulsa(frm.BotonNuevo));
    frm.elige(frm.Situacion, kTiempoParcial);
    rellena({{&frm.B12, "7300,5"}, {&frm.D12, "1826"}});
    const auto& lineas = imprime();
    EXPECT_THAT(std::vector(lineas.begin() + 6, lineas.begin() + 9),
                ElementsAre("Suma de cotización de los 12 últimos meses: 7.300,50 €",
                            "Horas cotizadas en el último año: 1826",
                            "La interesada desea solicitar una prestación por maternidad."))
        << "part time; the conclusions of the case before stand until the next ones";
}

}  // namespace
}  // namespace orvemo
