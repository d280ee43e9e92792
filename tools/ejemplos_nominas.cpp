#include "cases/archivo_supuestos.h"
#include "ejemplos.h"
#include "payroll/caso/archivo_nominas.h"

using namespace orvemo;
using nomina::RegistroNomina;

namespace {

enum Mes : std::uint8_t { Mayo = 4, Junio = 5, Septiembre = 8, Octubre = 9, Noviembre = 10 };

/// A worker of a group, with what the screen proposes for a new case.
RegistroNomina trabajador(std::string_view nombre, Mes mes, int grupo, std::string_view contrato) {
    RegistroNomina r;
    r.Nombre.asigna(nombre);
    r.Descripcion = r.Nombre;
    r.Mes = mes;
    r.FechaInicio.asigna("01-03-2001");
    r.Categoria = static_cast<std::uint8_t>(grupo - 1);
    r.Epigrafe.asigna("113");
    r.Edad = 34;
    r.CodigoContrato.asigna(contrato);
    r.FechaExtra1.asigna("01-01-2005");
    r.FechaExtra2.asigna("30-06-2005");
    r.DiasSemana.asigna("LMWJVSD");
    r.HorasDiarias = 6;
    r.FVac1.asigna("01-01-2005");
    r.FVac2.asigna("31-12-2005");
    const char* pagas[] = {"P.P. Verano", "P.P. Navidad", "P.P. Beneficios", "P.P. Otros conceptos"};
    for (std::size_t i = 0; i < nomina::kExtrasFin; ++i) {
        r.FConcepto[i].asigna(pagas[i]);
        r.FFec1[i].asigna("01-01-2005");
        r.FFec2[i].asigna("31-12-2005");
    }
    return r;
}

void concepto(RegistroNomina& r, std::size_t fila, std::string_view codigo, double importe,
              std::string_view periodo) {
    r.CodigoConcepto[fila].asigna(codigo);
    r.ImporteConcepto[fila] = importe;
    r.UnidadConcepto[fila].asigna(periodo);
}

void incidencia(RegistroNomina& r, std::string_view codigo, std::uint8_t desde, std::uint8_t hasta) {
    r.CodigoIncidencia[0].asigna(codigo);
    r.DiaInicioInci[0] = desde;
    r.DiaFinInci[0] = hasta;
}

void pagas(RegistroNomina& r, std::uint8_t cuantas, double importe) {
    r.NumPagas[0] = cuantas;
    r.PagaExtra[0] = importe;
}

void mesAnterior(RegistroNomina& r, double base, std::uint8_t dias) {
    r.BaseCCAnt = base;
    r.BaseATEPAnt = base;
    r.DiasAnt = dias;
}

RegistroNomina mesCorriente() {
    RegistroNomina r = trabajador("Rosa Vidal Peña", Mayo, 5, "100");
    concepto(r, 0, "01", 1150, "M");
    concepto(r, 1, "02", 60, "M");
    concepto(r, 2, "83", 45, "M");
    pagas(r, 2, 1150);
    r.IRPFExtra = 9.5F;
    return r;
}

/// Paid by the day: two extra pays of thirty days each.
RegistroNomina oficialPorDias() {
    RegistroNomina r = trabajador("Manuel Otero Gil", Junio, 9, "100");
    concepto(r, 0, "01", 36.4, "D");
    concepto(r, 1, "50", 2.15, "D");
    r.NumPagas = {30, 30};
    r.PagaExtra = {36.4, 36.4, 0};
    r.IRPFExtra = 7;
    return r;
}

RegistroNomina bajaPorEnfermedad() {
    RegistroNomina r = trabajador("Teresa Campos Rey", Octubre, 7, "100");
    concepto(r, 0, "01", 980, "M");
    incidencia(r, "1", 3, 24);
    mesAnterior(r, 1143.33, 30);
    pagas(r, 2, 980);
    r.IRPFExtra = 4;
    return r;
}

RegistroNomina maternidad() {
    RegistroNomina r = trabajador("Isabel Nieto Sanz", Noviembre, 3, "100");
    concepto(r, 0, "01", 1420, "M");
    concepto(r, 1, "02", 85.2, "M");
    incidencia(r, "3", 10, 30);
    mesAnterior(r, 1741.87, 30);
    pagas(r, 2, 1420);
    r.IRPFExtra = 11;
    return r;
}

RegistroNomina mediaJornada() {
    RegistroNomina r = trabajador("Julia Marín Soler", Mayo, 7, "200");
    concepto(r, 0, "01", 490, "M");
    r.ParcialHoras = 84;
    r.HorasDiarias = 4;
    r.DiasSemana.asigna("LMWJV");
    pagas(r, 2, 490);
    r.IRPFExtra = 2;
    return r;
}

RegistroNomina aprendiz() {
    RegistroNomina r = trabajador("Iván Prieto Luna", Junio, 9, "421A");
    r.FechaInicio.asigna("10-01-2005");
    r.Edad = 19;
    concepto(r, 0, "01", 513, "M");
    r.IRPFExtra = 2;
    return r;
}

RegistroNomina regulacionDeEmpleo() {
    RegistroNomina r = trabajador("Andrés Calvo Pons", Noviembre, 4, "100");
    concepto(r, 0, "01", 1300, "M");
    pagas(r, 2, 1300);
    r.Desempleo.asigna("0,5");
    r.Promedio6Meses = 1516.67;
    r.IRPFExtra = 8;
    return r;
}

RegistroNomina despido() {
    RegistroNomina r = trabajador("Gloria Rivas Mas", Septiembre, 6, "100");
    concepto(r, 0, "01", 1080, "M");
    pagas(r, 2, 1080);
    r.FechaCese.asigna("20-09-2005");
    r.FExtincion = r.FPreaviso = -1;
    r.DiasInd = 45;
    r.MaxInd = 42;
    r.ImpVac = 1260;
    r.DiasVac = 15;
    r.FFec1[0].asigna("01-07-2005");
    r.FFec2[0].asigna("30-06-2006");
    r.FImporte[0] = r.FImporte[1] = 1080;
    r.IRPFExtra = 6.5F;
    return r;
}

}  // namespace

void ejemplosNominas(Almacen& directorio) {
    nomina::ArchivoNominas archivo{directorio};
    for (const RegistroNomina& caso : {mesCorriente(), oficialPorDias(), bajaPorEnfermedad(), maternidad(),
                                       mediaJornada(), aprendiz(), regulacionDeEmpleo(), despido()}) {
        archivo.AltaCaso(caso);
    }
}
