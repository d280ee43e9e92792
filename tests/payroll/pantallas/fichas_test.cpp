// The fields of the payroll, a line each, and what each refuses, with the words it does it in.
#include "payroll/pantallas/nomina_abierta.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Ficha {
    const char *campo, *rotulo, *defecto;
    std::size_t largo = 0;  ///< characters that it takes; 0 for any number of them
};

// In a new case. What has several rows is told by its first.
constexpr Ficha kFichas[] = {
    {"NomiNombre", "Nombre:", "", 80},
    {"NomiEpigrafe", "Epígrafe para A.T. y E.P.", "113-Oficina"},
    {"NomiCategoria", "Grupo de Cotización:", "1. Ingenieros y licenciados              "},
    {"TipoContrato", "Tipo de contrato:", "100 Indefinido"},
    {"NomiContrato", "Sub-Tipo:", "100 Indefinido"},
    {"NomiMes", "Mes Nómina:", " 1. Enero"},
    {"NomiTipoPaga", "Tipo de paga:", "1. Paga normal"},
    {"NomiFechaAlta", "Fecha de Inicio", "01-01-2005"},
    {"NomiFechaBaja", "F. de Cese", ""},
    {"NomiEdad", "Edad:", "25"},
    {"NomiDesempleo", "Coeficiente Desempleo Parcial:", "", 8},
    {"NomiPluriempleo", "% Pluriempleo / Jornada Reducida:", "", 6},
    {"NomiNumPagas", "Pagas extra:", "2"},
    {"NomiPagaExtra", "pagas de (Mensuales)", "0"},
    {"NomiIRPFExtra", "% IRPF:", "0"},
    {"NomiConcepto", "", "", 2},
    {"NomiTextoConcepto", "", ""},
    {"NomiImporte", "", ""},
    {"NomiPeriod", "", "", 1},
    {"NomiIncidencia", "", "", 1},
    {"NomiTextoIncidencia", "", ""},
    {"NomiFechaInci1", "", "", 2},
    {"NomiFechaInci2", "", "", 2},
    {"NomiFechaExtra1", "Del día:", "01-01-2005"},
    {"NomiFechaExtra2", "hasta el día:", "30-06-2005"},
    {"NomiParcialDias", "-> Días trabajados en el mes a liquidar:", "0"},
    {"NomiParcialHoras", "-> Horas trabajadas en el mes a liquidar:", "0"},
    {"NomiPromedio6Meses", "-> Promedio de las bases de contingencias durante los últimos 6 meses:", "0"},
    {"NomiDiasSemana", "Días de la semana trabajados:", "LMWJVSD", 7},
    {"NomiHorasDiarias", "-> Horas diarias del contrato:", "6"},
    {"NomiDias12", "-> Días cotizados en los 12 meses anteriores al inicio del descanso:", "0"},
    {"NomiBase12", "-> Base de contingencias durante los 12 meses anteriores al inicio descanso:", "0"},
    {"NomiFConcepto", "", "P.P. Verano", 40},
    {"DatosEmpresa", "Empresa:", "", 40},
    {"DatosDomicilio", "Domicilio:", "", 40},
    {"DatosCif", "CIF:", "", 11},
    {"DatosCuentaSS", "Cuenta de cotización a la S.S.:", "", 14},
    {"NomiNIF", "NIF:", "", 10},
    {"NomiNumMatricula", "Nº libro de matrícula:", "", 15},
    {"NomiCuentaSS", "Nº de afiliación a la S.S.:", "", 14},
    {"NomiGrupoProfesional", "Categoría o grupo profesional:", "", 30},
};

TEST_F(Nomina, EachFieldIsAsItsCardTells) {
    for (const Ficha& ficha : kFichas) {
        Campo& campo = frm.campo(ficha.campo);
        EXPECT_EQ(campo.rotulo(), ficha.rotulo) << ficha.campo;
        EXPECT_EQ(campo.texto(), ficha.defecto) << ficha.campo;
        if (ficha.largo == 0) continue;
        frm.escribe(campo, std::string(100, '1'));
        EXPECT_EQ(campo.texto(), std::string(ficha.largo, '1')) << ficha.campo;
    }
    const char* pagas[] = {"P.P. Verano", "P.P. Navidad", "P.P. Beneficios", "P.P. Otros conceptos"};
    pulsa("NomiBotonNuevo");
    for (int i = 0; i < 4; ++i) EXPECT_EQ(texto("NomiFConcepto", i), pagas[i]);
    for (const std::string& grupo : frm.campo("NomiCategoria").opciones())
        EXPECT_EQ(CuentaCaracteres(grupo), 41U) << grupo;
}

// --- What a field refuses on being left

struct Comprobacion {
    const char *campo, *texto;
    std::string mensaje{};                ///< none: it stands
    const char* queda = nullptr;          ///< what the field holds then, where it isn't what was typed
    std::vector<const char*> antes = {};  ///< fields and texts filled in before, by turns
};

const std::string kNumero = "El número no es correcto. Debe introducir un número entre ";
const std::string kImporte = "El importe no es correcto. Debe introducir un número entre ";
const std::string kDiasAnt =
    "El número de días cotizados en el mes anterior no es correcto. Debe introducir un número entre 0 y ";
const std::string kPromedio =
    "El promedio de las bases de los últimos 6 meses debe ser inferior a 10,000 euros";
const std::string kMala = "La fecha no es correcta. El formato válido es día-mes-año";
const std::string kBlanco = "La fecha no puede quedar en blanco.";
const std::string kSinInicio = "La fecha inicial no se ha indicado";
const std::string kFinExtra =
    "La fecha de finalización del período de paga extraordinaria no es correcta. El formato válido es "
    "día-mes-año";
const std::string kPeriodo =
    "Debe responder (M)ensual (D)iario, (X) Por día cotizado ó (A) Independiente del número de días "
    "trabajados, según que el concepto sea mensual, por dia trabajado, o independiente del número de días "
    "trabajados, respectivamente";

const Comprobacion kComprobaciones[] = {
    {"NomiEdad", "17"},
    {"NomiEdad", "16", kNumero + "17 y 99"},
    {"NomiEdad", "99,5", kNumero + "17 y 99"},
    {"NomiEdad", "", kNumero + "17 y 99"},
    {"NomiNumPagas", "99"},
    {"NomiNumPagas", "100", kNumero + "0 y 99"},
    {"NomiPagaExtra", "99999"},
    {"NomiPagaExtra", "-1", kNumero + "0 y 99999"},
    {"NomiIRPFExtra", "100"},
    {"NomiIRPFExtra", "100,01", kNumero + "0 y 100"},
    {"NomiDesempleo", "1,0001", kNumero + "0 y 1"},
    {"NomiPluriempleo", "100"},
    {"NomiPluriempleo", "100,1", kNumero + "0 y 1"},
    {"NomiConcepto", "ZZ", "Código de concepto no válido. Pulse ? para ver lista", ""},
    {"NomiImporte", "52", "", nullptr, {"NomiConcepto", "8A"}},
    {"NomiImporte", "52,2", kNumero + "0 y 52", nullptr, {"NomiConcepto", "8A"}},
    {"NomiImporte", "-1", kNumero + "0 y 99.999.999", nullptr, {"NomiConcepto", "01"}},
    {"NomiPeriod", "X", "", nullptr, {"NomiConcepto", "01"}},
    {"NomiPeriod", "E", kPeriodo, nullptr, {"NomiConcepto", "01"}},
    {"NomiIncidencia", "6", "Código de incidencia no válido. Pulse ? para ver lista"},
    {"NomiFechaInci1", "", ""},
    {"NomiFechaInci1",
     "",
     "Debe indicar el día del mes en el que comienza la incidencia",
     nullptr,
     {"NomiIncidencia", "1"}},
    {"NomiFechaInci1",
     "32",
     "El día de inicio de la incidencia no es válido.",
     nullptr,
     {"NomiIncidencia", "1"}},
    {"NomiFechaInci2",
     "",
     "Debe indicar el día del mes en el que finaliza la incidencia",
     nullptr,
     {"NomiIncidencia", "1"}},
    {"NomiFechaInci2",
     "32",
     "El día de finalización de la incidencia no es válido.",
     nullptr,
     {"NomiIncidencia", "1", "NomiFechaInci1", "10"}},
    {"NomiFechaInci2",
     "5",
     "El final de la incidencia no puede ser anterior al comienzo. Se ajusta el día de finalización.",
     "10",
     {"NomiIncidencia", "1", "NomiFechaInci1", "10"}},
    {"NomiFechaBaja", "32-1-2005", "La fecha de cese no es correcta. El formato válido es día-mes-año"},
    {"NomiFechaBaja", ""},
    {"NomiFechaBaja", "31-12-2004", "La fecha de cese debe ser del año 2005"},
    {"NomiFechaBaja", "01-02-2005", "La fecha de cese, si existe, debe ser del mes de la nómina a calcular."},
    {"NomiFechaBaja",
     "09-01-2005",
     "La fecha de cese no puede ser anterior a la de ingreso",
     nullptr,
     {"NomiFechaAlta", "10-01-2005"}},
    {"NomiFechaAlta", "30-2-2005", kMala, "01-01-2005"},
    {"NomiFechaAlta", "", kBlanco, "01-01-2005"},

    {"NomiFechaExtra1", "31-6-2005",
     "La fecha de inicio del período para paga extraordinaria no es correcta. El formato válido es "
     "día-mes-año",
     "01-01-2005"},
    {"NomiFechaExtra2", "", kSinInicio, nullptr, {"NomiFechaExtra1", ""}},
    {"NomiFechaExtra2", "", "", "28-02-2006", {"NomiFechaExtra1", "31-08-2005"}},
    {"NomiFechaExtra2", "31-6-2005", kFinExtra, "01-07-2005"},
    {"NomiFechaExtra2", "31-12-2004", "La fecha de finalización no puede ser anterior a la de inicio.",
     "01-07-2005"},
    {"NomiParcialHoras", "999"},
    {"NomiParcialHoras", "1000", "El número de horas no es válido: debe estar entre 0 y 999"},
    {"NomiPromedio6Meses", "9999,99"},
    {"NomiPromedio6Meses", "10000", kPromedio},
    {"NomiBaseCCAnt", "10000"},
    {"NomiBaseCCAnt", "10000,1", kNumero + "0 y 10,000"},
    {"NomiBaseATEPAnt", "10000,1", kImporte + "0 y 10,000"},
    {"NomiHEAnt", "10001", kImporte + "0 y 10,000"},
    {"NomiHEAñoAnt", "10001", kImporte + "0 y 10,000"},
    {"NomiDiasAnt", "90"},
    {"NomiDiasAnt", "91", kDiasAnt + "31"},
    {"NomiHorasDiarias", "24,5", kImporte + "0 y 24"},
    {"NomiDias12", "366", "El valor no es correcto. Debe introducir un número entre 0 y 365"},
    {"NomiBase12", "50001", kImporte + "0 y 50000"},

    {"NomiFDiasInd", "100", kNumero + "0 y 99"},
    {"NomiFDiasCom", "100", kNumero + "0 y 99"},
    {"NomiFMaxInd", "100", kNumero + "0 y 99"},
    {"NomiFMaxInd", ""},
    {"NomiFDiasVac", "100",
     "El número de días de vacaciones disfrutadas no es correcto. Debe introducir un número entre 0 y 99"},
    {"NomiFVac1", "31-6-2005", kMala},
    {"NomiFVac1", "", kBlanco},
    {"NomiFVac2", "", kBlanco, nullptr, {"NomiFVac1", ""}},
    {"NomiFVac2", "01-02-2005", kSinInicio, nullptr, {"NomiFVac1", ""}},
    {"NomiFFec1", "", kBlanco},
    {"NomiFFec2", "01-01-2005", "La fecha debe ser posterior a 01-01-2005"},
    {"NomiFFec2", "02-01-2005"},
};

class Comprobaciones : public Nomina {
  protected:
    /// A case that asks for all that can be asked, on the panel of the field.
    void preparaTodo(int pantalla) {
        pulsa("NomiBotonNuevo");
        mundo.mensajes.dichos.clear();
        if (pantalla == 0) return;
        elige("TipoContrato", 3);  // by hours
        elige("NomiTipoPaga", 1);
        for (const auto& [campo, valor] : {std::pair{"NomiDesempleo", "0,5"},
                                           {"NomiFechaBaja", "20-01-2005"},
                                           {"NomiIncidencia", "3"},
                                           {"NomiFechaInci1", "3"}})
            pon(campo, valor);
        pulsa("NomiSig0");
        if (pantalla == 2) pulsa("NomiSig1");
        ASSERT_EQ(frm.PantallaActual(), pantalla);
    }

    /// Typed before, without the checks of what lies between.
    void ponAntes(const std::vector<const char*>& antes) {
        for (std::size_t i = 0; i < antes.size(); i += 2) frm.escribe(frm.campo(antes[i]), antes[i + 1]);
    }
};

TEST_F(Comprobaciones, EachFieldRefusesWhatItMust) {
    for (const Comprobacion& c : kComprobaciones) {
        SCOPED_TRACE(std::string{c.campo} + " = " + c.texto);
        Campo& campo = frm.campo(c.campo);
        preparaTodo(campo.pantalla());
        ponAntes(c.antes);
        pon(c.campo, c.texto);
        const bool seVa = frm.foco(frm.campo("NomiBotonGraba"));
        EXPECT_EQ(seVa, c.mensaje.empty());
        if (c.mensaje.empty()) {
            EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
        } else {
            EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: " + c.mensaje));
        }
        EXPECT_EQ(campo.texto(), c.queda == nullptr ? c.texto : c.queda);
    }
}

TEST_F(Comprobaciones, WhatHangsOnTheMonthOrTheContract) {
    elige("NomiMes", 2);
    pon("NomiIncidencia", "1");
    pon("NomiFechaInci1", "10");
    frm.foco(frm.campo("NomiEdad"));
    pon("NomiFechaInci1", "12");
    EXPECT_EQ(texto("NomiFechaInci2"), "10");
    frm.foco(frm.campo("NomiEdad"));
    EXPECT_EQ(texto("NomiFechaInci2"), "12") << "the last day follows a first one beyond it";
    pulsa("NomiSig0");
    pon("NomiDiasAnt", "91");
    EXPECT_FALSE(frm.foco(frm.campo("NomiHEAnt")));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: " + kDiasAnt + "29"));
    pulsa("NomiBotonNuevo");
    elige("TipoContrato", 1);  // by days
    pulsa("NomiSig0");
    pon("NomiParcialDias", "32");
    EXPECT_FALSE(frm.foco(frm.campo("NomiAnt1")));
    EXPECT_EQ(mundo.mensajes.dichos.back(), "Error: El número de días no es válido: debe estar entre 0 y 31");
}

TEST_F(Comprobaciones, AMonthlyPayInADailyGroupIsWarnedOfAndStands) {
    pon("NomiPagaExtra", "1200");
    elige("NomiCategoria", 6);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
    elige("NomiCategoria", 8);
    pon("NomiPagaExtra", "300");
    EXPECT_TRUE(frm.foco(frm.campo("NomiEdad")));
    pon("NomiPagaExtra", "300,01", 1);
    EXPECT_TRUE(frm.foco(frm.campo("NomiEdad")));
    const char* aviso =
        "Informa: El importe que se pide para las pagas es DIARIO. Las cifras parecen mensuales.";
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre(aviso, aviso));
}

TEST_F(Comprobaciones, TheSecondPanelTellsAllThatIsWrongInOrder) {
    preparaTodo(1);
    frm.foco(frm.campo("NomiAnt1"));
    ponAntes({"NomiPeriod", "E", "NomiFechaExtra1", "31-6-2005", "NomiFechaExtra2", "31-12-2004",
              "NomiDiasAnt", "91", "NomiBaseCCAnt", "10001", "NomiBaseATEPAnt", "10001", "NomiHEAnt", "10001",
              "NomiHEAñoAnt", "10001", "NomiPromedio6Meses", "10001"});
    pulsa("NomiSig1");
    EXPECT_THAT(
        mundo.mensajes.dichos,
        ElementsAre("Error: La fecha del periodo requerido para paga extra no es válida.",
                    "Error: La fecha de inicio del periodo para paga extra debe ser anterior a la fecha de "
                    "finalización del periodo.",
                    "Error: " + kDiasAnt + "31",
                    "Error: La base del mes anterior debe ser inferior a 10,000 euros",
                    "Error: La base del mes anterior debe ser inferior a 10,000 euros",
                    "Error: El importe de las horas extra del mes anterior debe ser inferior a 10,000 euros",
                    "Error: El importe de las horas extra del año anterior debe ser inferior a 10,000 euros",
                    "Error: " + kPromedio));
    EXPECT_EQ(texto("NomiFechaExtra1") + " " + texto("NomiFechaExtra2"), "01-01-2005 01-07-2005");
    EXPECT_EQ(frm.PantallaActual(), 1);
    EXPECT_EQ(frm.actual(), &frm.campo("NomiPromedio6Meses"));
}

}  // namespace
}  // namespace orvemo::pruebas
