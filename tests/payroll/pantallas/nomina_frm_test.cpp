// The payroll's screen: the road among its panels, its rows and what it keeps.
#include <functional>
#include <random>

#include "apoyo/vista_falsa.h"
#include "foundations/values/fallos.h"
#include "payroll/pantallas/nomina_abierta.h"
#include "payroll/recibo/recibo.h"
#include "tax/rirpf_frm.h"

namespace orvemo::pruebas {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(Nomina, WhatIsEnteredChoosesTheRoad) {
    struct Camino {
        const char* titulo;
        std::function<void()> entra;
        std::vector<int> paneles;
        bool conTC13 = false;  ///< a third panel of figures for the forms
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
        {"partial unemployment", [&] { pon("NomiDesempleo", "0,5"); }, {1, 3}, true},
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
        for (const char* boton : {"NomiSig3", "NomiSig4", "NomiSig5"}) pulsa(boton);
        EXPECT_EQ(frm.PantallaActual(), camino.conTC13 ? 6 : 5);
        for (const char* boton : {"NomiAnt6", "NomiAnt5", "NomiAnt4", "NomiAnt3"}) pulsa(boton);
        EXPECT_EQ(frm.PantallaActual(), 0);
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
    EXPECT_EQ(frm.actual(), &frm.campo("NomiConcepto", 4));
    frm.pulsa(frm.campo("NomiInciAyuda", 1));
    EXPECT_EQ(frm.Subtitulo(), "Lista de incidencias");
    pulsa("NomiIncidenciasVuelve");
    EXPECT_EQ(texto("NomiIncidencia", 1), "");
    EXPECT_EQ(frm.PantallaActual(), 0);
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

TEST_F(Nomina, OnlyAPercentageThatWasWorkedOutComesBack) {
    VistaFalsa vista;
    frm.ponVista(&vista);
    std::vector<std::string> abiertas;
    vista.alAbrir = [&](Formulario& otra) { abiertas.push_back(otra.Caption()); };
    pon("NomiIRPFExtra", "7");
    pulsa("BotonIRPF");
    pulsa("BotonLiquidos");
    EXPECT_THAT(abiertas, ElementsAre("Retenciones del Trabajo Personal a cuenta del IRPF",
                                      "Conversión de Salarios Líquidos en Brutos"));
    EXPECT_EQ(texto("NomiIRPFExtra"), "7");
    vista.alAbrir = [](Formulario& otra) {
        auto& irpf = dynamic_cast<RetIrpfFrm&>(otra);
        irpf.escribe(irpf.AnioNacimiento, "1965");
        irpf.escribe(irpf.Retribuciones, "24000");
        irpf.escribe(irpf.Gastos, "1524");
        irpf.concluye();
    };
    pulsa("BotonIRPF");
    // 24000 - 1524 less 2400 and 3400: 612 + 2399.04 + 28 % of 2600 are 15.579 % of the pay.
    EXPECT_EQ(texto("NomiIRPFExtra"), "15,57");
    EXPECT_EQ(frm.actual(), &frm.campo("BotonIRPF"));
}

/// What the user is told when the payroll opens over that file; nothing when it opens.
std::string alAbrir(EntornoFalso& mundo) {
    try {
        NominaFrm frm{mundo.entorno};
        frm.Inicia();
    } catch (const Fallo& fallo) {
        return fallo.what();
    }
    return {};
}

TEST_F(Nomina, AListThatCannotBeUsedIsNamed) {
    std::string azar(2000, ' ');
    std::mt19937 dado{2005};
    for (char& c : azar) c = static_cast<char>(dado() & 0xFF);
    struct Caso {
        const char *fichero, *contenido, *motivo;
    };
    const Caso casos[] = {
        {"CONTRATO.NOM", nullptr, "(no existe)"},
        {"CONTRATO.NOM", azar.c_str(), "(no es un texto)"},
        {"CONTRATO.NOM", "*#100 Indefinido#0\n100#100#100##B#S#5#256", "en la línea 2 (el número 256"},
        {"CONTRATO.NOM", "", "(está vacío)"},
        {"EPIG.NOM", nullptr, "(no existe)"},
        {"EPIG.NOM", azar.c_str(), "(no es un texto)"},
        {"EPIG.NOM", "", "(está vacío)"},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.motivo);
        const auto buenos = mundo.almacen.ficheros;
        mundo.almacen[caso.fichero] = caso.contenido == nullptr ? "" : caso.contenido;
        if (caso.contenido == nullptr) mundo.almacen.elimina(caso.fichero);
        EXPECT_THAT(alAbrir(mundo), testing::AllOf(HasSubstr(caso.fichero), HasSubstr(caso.motivo)));
        mundo.almacen.ficheros = buenos;
    }
    mundo.almacen["opciones.nom"] = azar;
    EXPECT_EQ(alAbrir(mundo), "") << "whatever the company's data are";
    mundo.almacen["opciones.nom"] = "Talleres Norte, S.L.";
    EXPECT_EQ(alAbrir(mundo), "");
}

TEST_F(Nomina, APrinterOrADiskThatFailsLosesNothing) {
    pon("NomiNombre", "Elena Ríos");
    pon("NomiConcepto", "01");
    pon("NomiImporte", "1000");
    pulsa("NomiBotonPrint");
    pon("DatosEmpresa", "Σ Talleres");
    mundo.almacen.soloLectura = true;
    mundo.impresora.fallaAlTerminar = true;
    pulsa("ImpresionImprime");
    mundo.impresora.fallaAlTerminar = false;
    pulsa("ImpresionImprime");
    const char* sinGrabar =
        "Error: No se ha podido completar la operación: el fichero \"opciones.nom\" no se puede usar (no se "
        "puede escribir).";
    EXPECT_THAT(mundo.mensajes.dichos,
                ElementsAre(sinGrabar, "Error: No se ha podido imprimir: la impresora no responde.",
                            "Informa: Impresión terminada", sinGrabar, "Informa: Impresión terminada"));
    EXPECT_THAT(mundo.impresora.lineas, testing::Contains(HasSubstr("? Talleres")))
        << "there is no Σ in Windows-1252";
    EXPECT_EQ(texto("DatosEmpresa") + " " + texto("PagaSalarial"), "Σ Talleres 1.000,00");
}

}  // namespace
}  // namespace orvemo::pruebas
