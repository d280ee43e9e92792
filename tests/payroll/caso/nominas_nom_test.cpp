// Payslips and the company's data in their files, byte by byte.
#include <gmock/gmock.h>

#include "apoyo/almacen_memoria.h"
#include "foundations/values/fallos.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/caso/opciones_impresion.h"

namespace orvemo::nomina {
namespace {

using pruebas::AlmacenMemoria;

RegistroNomina deNombre(std::string_view nombre) {
    RegistroNomina r;
    r.Nombre.asigna(nombre);
    return r;
}

TEST(NominasNom, FieldsLieWhereTheyAlwaysDid) {
    RegistroNomina r = deNombre("Ana");
    r.Mes = 11;
    r.NumPagas = {2, 3};
    r.CodigoConcepto[5].asigna("HE");
    r.ParcialHoras = -2;
    r.DiasInd = 45;
    r.IRPFExtra = 12.5F;
    r.ImporteConcepto[0] = 1000;
    r.DiasSemana.asigna("LMWJV");
    const std::string bytes = kDiseno.escribe(r);
    EXPECT_EQ(bytes.size(), 1046U);
    EXPECT_EQ(bytes.substr(1, 4), "Ana ");
    EXPECT_EQ(bytes.substr(161, 1), "\x0B");
    EXPECT_EQ(bytes.substr(190, 2), "\x02\x03");
    EXPECT_EQ(bytes.substr(227, 2), "HE");
    EXPECT_EQ(bytes.substr(292, 4), "\xFE\xFF\xFF\xFF");
    EXPECT_EQ(bytes.substr(658, 4), (std::string{"\x2D\0\0\0", 4}));
    EXPECT_EQ(bytes.substr(740, 4), (std::string{"\0\0\x48\x41", 4}));
    EXPECT_EQ(bytes.substr(748, 8), (std::string{"\0\0\0\0\0\x40\x8F\x40", 8}));
    EXPECT_EQ(bytes.substr(852, 7), "LMWJV  ");
}

TEST(OpcionesNom, TheCompanyIsKeptAndAFailureLeavesWhatWas) {
    AlmacenMemoria almacen;
    EXPECT_EQ(LeeOpciones(almacen).DatosEmpresa.utf8(), "");
    OpcionesImpresion opciones;
    opciones.DatosEmpresa.asigna("Talleres Ñ, S.L.");
    opciones.DatosCif.asigna("B12345678901 y más");
    opciones.DatosCuentaSS.asigna("28/1234567/89");
    almacen["opciones.nom"] = std::string(105, 'x') + "resto";
    GrabaOpciones(almacen, opciones);
    const std::string bytes = almacen["opciones.nom"];
    EXPECT_EQ(bytes.substr(0, 17), "Talleres \xD1, S.L. ");
    EXPECT_EQ(bytes.substr(80), "B123456789028/1234567/89 resto");
    EXPECT_EQ(LeeOpciones(almacen).DatosEmpresa.utf8(), "Talleres Ñ, S.L.");
    almacen.soloLectura = true;
    EXPECT_THROW(GrabaOpciones(almacen, {}), FicheroInaccesible);
    EXPECT_EQ(almacen["opciones.nom"], bytes);
}

TEST(CalculaSupuesto, WhatCannotBeIsToldAndTheRestStays) {
    const TablasNomina tablas{Contratos{"100#100 Indefinido#100"}, Epigrafes{}};
    EstadoNomina estado;
    RegistroNomina r = deNombre("Ana");
    r.Mes = 255;
    EXPECT_EQ(CalculaSupuesto(r, tablas, estado), kErrorEnLosDatos);
    r.Mes = 0;
    EXPECT_EQ(CalculaSupuesto(r, tablas, estado), kDatoIncorrecto) << "no such contract";
    r.CodigoContrato.asigna("100");
    EXPECT_EQ(CalculaSupuesto(r, tablas, estado), kDatoIncorrecto) << "no start";
    r.FechaInicio.asigna("01-01-2005");
    EXPECT_EQ(CalculaSupuesto(r, tablas, estado), "");
    EXPECT_EQ(estado.entradas.CoefPluriempleo, 1);
    for (const auto& [mes, dia] : {std::pair{0, 31}, {1, 28}, {2, 31}, {3, 30}, {11, 31}}) {
        r.Mes = static_cast<std::uint8_t>(mes);
        EXPECT_EQ(CalculaSupuesto(r, tablas, estado), "");
        EXPECT_EQ(estado.entradas.FinMes, FechaDMA(dia, mes + 1, 2005));
    }
    r.Pluriempleo.asigna("12.5");
    r.DiaInicioInci[0] = 5;
    r.DiaFinInci[0] = 2;
    r.CodigoIncidencia[0].asigna("4");
    EXPECT_EQ(CalculaSupuesto(r, tablas, estado), kDatoIncorrecto);
    EXPECT_EQ(estado.entradas.CoefPluriempleo, 1.25) << "what was read before stays";
}

}  // namespace
}  // namespace orvemo::nomina
