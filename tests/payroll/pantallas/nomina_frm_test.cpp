// The payroll's screen: the road among its panels, its rows and what it keeps.
#include "payroll/pantallas/nomina_frm.h"

#include <gmock/gmock.h>

#include <functional>

#include "apoyo/entorno_falso.h"
#include "foundations/values/fallos.h"
#include "payroll/recibo/recibo.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Nomina : public testing::Test {
  protected:
    Nomina() {
        mundo.almacen["CONTRATO.NOM"] =
            "*#100 Indefinido#0\n100#100 Indefinido#100###NNN\n*#300 Discontinuo#0\n300#300 Por d\xED"
            "as#300#D\n"
            "*#421 Formaci\xF3n#0\n421A#421A Aprendiz#421\n421B#421B Otro#421\n*#502 Eventual#2\n502#502 "
            "Eventual#502#H\n";
        mundo.almacen["EPIG.NOM"] = "102#1#1#Representantes\n113#0,45#0,54#Oficina\n";
        frm.Inicia();
    }

    void pon(const char* campo, const char* texto, int indice = 0) {
        Campo& c = frm.campo(campo, indice);
        ASSERT_TRUE(frm.foco(c)) << campo;
        frm.escribe(c, texto);
    }
    void elige(const char* campo, int entrada) { frm.elige(frm.campo(campo), entrada); }
    std::string texto(const char* campo, int indice = 0) { return frm.campo(campo, indice).texto(); }
    bool visible(const char* campo) { return frm.campo(campo).visible(); }

    /// The panels that the user sees from the first to the receipt.
    std::vector<int> recorrido() {
        std::vector<int> paneles;
        const char* botones[] = {"NomiSig0", "NomiSig1", "NomiSig2"};
        while (frm.PantallaActual() < 3 && paneles.size() < 4) {
            frm.pulsa(frm.campo(botones[frm.PantallaActual()]));
            paneles.push_back(frm.PantallaActual());
        }
        return paneles;
    }

    EntornoFalso mundo;
    NominaFrm frm{mundo.entorno};
};

TEST_F(Nomina, WhatIsEnteredChoosesTheRoad) {
    struct Camino {
        const char* titulo;
        std::function<void()> entra;
        std::vector<int> paneles;
    };
    const Camino caminos[] = {
        {"a plain month", [] {}, {3}},
        {"an extra pay", [&] { elige("NomiTipoPaga", 1); }, {1, 3}},
        {"a pay among the concepts", [&] { pon("NomiConcepto", "PE"); }, {1, 3}},
        {"sick leave",
         [&] {
             pon("NomiIncidencia", "1");
             pon("NomiFechaInci1", "3");
         },
         {1, 3}},
        {"unpaid leave",
         [&] {
             pon("NomiIncidencia", "4");
             pon("NomiFechaInci1", "3");
         },
         {3}},
        {"partial unemployment", [&] { pon("NomiDesempleo", "0,5"); }, {1, 3}},
        {"none, though it says 1", [&] { pon("NomiDesempleo", "1"); }, {3}},
        {"a contract by days", [&] { elige("TipoContrato", 1); }, {1, 3}},
        {"someone who leaves", [&] { pon("NomiFechaBaja", "20-01-2005"); }, {2, 3}},
        {"someone who leaves ill",
         [&] {
             pon("NomiIncidencia", "1");
             pon("NomiFechaInci1", "3");
             pon("NomiFechaBaja", "20-01-2005");
         },
         {1, 2, 3}},
    };
    for (const Camino& camino : caminos) {
        SCOPED_TRACE(camino.titulo);
        frm.pulsa(frm.BotonNuevo);
        camino.entra();
        EXPECT_EQ(recorrido(), camino.paneles);
    }
}

TEST_F(Nomina, ARowOfConceptsFollowsItsCode) {
    pon("NomiConcepto", "01");
    pon("NomiImporte", "1000");
    EXPECT_EQ(texto("NomiTextoConcepto") + " " + texto("NomiPeriod"), "Salario Base M");
    pon("NomiConcepto", "HE", 1);
    pon("NomiConcepto", "8A", 2);
    EXPECT_EQ(texto("NomiPeriod", 1), "A");
    EXPECT_FALSE(frm.campo("NomiPeriod", 1).activo());
    pon("NomiConcepto", "ZZ", 3);
    EXPECT_FALSE(frm.foco(frm.campo("NomiEdad")));
    EXPECT_EQ(texto("NomiConcepto", 3), "");
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre("Error: Código de concepto no válido. Pulse ? para ver lista"));
    pon("NomiConcepto", "");
    EXPECT_TRUE(frm.foco(frm.campo("NomiEdad")));
    EXPECT_EQ(texto("NomiTextoConcepto") + texto("NomiImporte") + texto("NomiPeriod"), "");
    frm.pulsa(frm.campo("NomiConceptoAyuda", 4));
    elige("NomiConceptos", 1);
    frm.doblePulsa(frm.campo("NomiConceptos"));
    EXPECT_EQ(texto("NomiConcepto", 4), "02");
    EXPECT_FALSE(visible("NomiConceptos"));
}

TEST_F(Nomina, TheContractDecidesWhatIsAsked) {
    EXPECT_FALSE(visible("NomiContrato"));
    EXPECT_EQ(texto("NomiEpigrafe"), "113-Oficina");
    elige("TipoContrato", 2);
    EXPECT_TRUE(visible("NomiContrato"));
    EXPECT_FALSE(visible("NomiEpigrafe") || visible("NomiCategoria") || visible("NomiDesempleo"));
    elige("NomiContrato", 1);
    EXPECT_TRUE(visible("NomiEpigrafe"));
    elige("TipoContrato", 3);
    pon("NomiIncidencia", "3");
    pon("NomiFechaInci1", "3");
    frm.pulsa(frm.campo("NomiSig0"));
    EXPECT_TRUE(visible("NomiParcialHoras") && visible("NomiHorasDiarias") && visible("NomiDias12"));
    EXPECT_FALSE(visible("NomiParcialDias") || visible("NomiPromedio6Meses"));
    EXPECT_EQ(frm.campo("NomiDiasAnt").rotulo(),
              "-> Nº de días cotizados en los 3 meses anteriores al de inicio de la baja:");
}

TEST_F(Nomina, AMonthIsKeptAndComesBackWithTheSameReceipt) {
    pon("NomiNombre", "Elena Ríos");
    pon("NomiConcepto", "01");
    pon("NomiImporte", "1234,56");
    pon("NomiPagaExtra", "1200");
    pon("NomiIRPFExtra", "12,35");
    pon("NomiIncidencia", "1");
    pon("NomiFechaInci1", "3");
    elige("NomiMes", 5);
    frm.pulsa(frm.campo("NomiSig0"));
    pon("NomiBaseCCAnt", "1300");
    frm.pulsa(frm.campo("NomiSig1"));
    EXPECT_EQ(frm.Subtitulo(), "Recibo de nóminas del trabajador");
    const std::string recibo = nomina::TextoRecibo(frm.Estado(), frm.caso());
    // 29 days of 1234.56 / 30 and no benefit on the first three of leave; one pay of 1200 on the way.
    EXPECT_EQ(texto("PagaSalarial"), "1.193,41");
    EXPECT_EQ(texto("PagaTotalDevengado"), "1.193,41");
    EXPECT_EQ(texto("PagaIRPF"), "147,39");
    EXPECT_EQ(texto("PagaRetencionIRPF"), "(12%)");
    frm.DatosAppendRegistro();
    const std::string bytes = mundo.almacen["nominas.nom"];
    frm.pulsa(frm.BotonNuevo);
    EXPECT_EQ(texto("NomiNombre") + texto("NomiConcepto") + texto("NomiTextoConcepto"), "");
    frm.DatosCargaRegistro(1);
    EXPECT_EQ(texto("NomiNombre") + "|" + texto("NomiImporte") + "|" + texto("NomiIRPFExtra"),
              "Elena Ríos|1234,56|12,35");
    frm.concluye();
    EXPECT_EQ(nomina::TextoRecibo(frm.Estado(), frm.caso()), recibo);
    frm.DatosTomaPantalla();
    frm.DatosGrabaRegistro(1);
    EXPECT_EQ(mundo.almacen["nominas.nom"], bytes);
    EXPECT_THAT(mundo.mensajes.dichos, IsEmpty());
}

TEST_F(Nomina, AFailureIsToldAndTheReceiptStillShows) {
    pon("NomiIncidencia", "4");
    pon("NomiFechaInci1", "1");
    pon("NomiFechaInci2", "31");
    pon("NomiIncidencia", "5", 1);
    pon("NomiFechaInci1", "2", 1);
    EXPECT_EQ(recorrido(), std::vector{3});
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Error: Algún dato no es correcto. Revise el supuesto"));
}

TEST_F(Nomina, ItPrintsTheFormAskedForAndRemembersTheCompany) {
    pon("NomiNombre", "Elena Ríos");
    pon("NomiConcepto", "01");
    pon("NomiImporte", "1000");
    frm.pulsa(frm.BotonPrint);
    EXPECT_EQ(texto("NomiTrabajador"), "Elena Ríos");
    pon("DatosEmpresa", "Talleres Norte, S.L.");
    frm.pulsa(frm.campo("ImpresionImprime"));
    EXPECT_THAT(mundo.mensajes.dichos, ElementsAre("Informa: Impresión terminada"));
    EXPECT_TRUE(mundo.almacen["opciones.nom"].starts_with("Talleres Norte, S.L. "));
    NominaFrm otra{mundo.entorno};
    otra.Inicia();
    EXPECT_EQ(otra.campo("DatosEmpresa").texto(), "Talleres Norte, S.L.");
}

TEST_F(Nomina, WithoutItsListsItDoesNotOpen) {
    mundo.almacen.ficheros.erase("epig.nom");
    NominaFrm otra{mundo.entorno};
    EXPECT_THROW(otra.Inicia(), Fallo);
}

}  // namespace
}  // namespace orvemo::pruebas
