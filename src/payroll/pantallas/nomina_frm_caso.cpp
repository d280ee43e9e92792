#include <algorithm>

#include "foundations/values/textos.h"
#include "payroll/conceptos/conceptos.h"
#include "payroll/pantallas/nomina_frm.h"

namespace orvemo {

using namespace nomina;

namespace {

/// First entry of a list whose first three characters are those of the text; -1 when none has them.
int BuscaEnLista(const std::vector<std::string>& lista, std::string_view texto) {
    const auto clave = [](std::string_view t) { return PrimerosCaracteres(t, 3); };
    const auto item = std::ranges::find_if(lista, [&](const auto& i) { return clave(i) == clave(texto); });
    return item == lista.end() ? -1 : static_cast<int>(item - lista.begin());
}

}  // namespace

// --- Set-up

void NominaFrm::Inicia() {
    tablas_.contratos = Contratos{entorno().almacen.leeTodo(kFicheroContratos)};
    tablas_.epigrafes = Epigrafes{entorno().almacen.leeTodo(kFicheroEpigrafes)};
    {
        const MientrasCarga mientras{Cargando};
        campo("NomiEpigrafe").ponOpciones(tablas_.epigrafes.lista());
        campo("TipoContrato").ponOpciones(tablas_.contratos.grupos());
        cargaOpciones();
    }
    Calculadora::Inicia();
}

void NominaFrm::LimpiaDatos() {
    Calculadora::LimpiaDatos();
    campo("NomiEpigrafe").ponIndice(BuscaEnLista(tablas_.epigrafes.lista(), "113"));
    cambiaGrupoContrato();
    proponeCese();
    rotulaPagas();
    cargaOpciones();
    caso_ = {};
    estado_ = {};
}

// --- Fields and record, both ways

void NominaFrm::enlazaContrato() {
    using R = RegistroNomina;
    const auto enlaza = [this](const char* nombre, auto miembro) {
        enlaces_.push_back(Enlaza(campo(nombre), miembro));
    };
    enlaza("NomiMes", &R::Mes);
    enlaza("NomiFechaAlta", &R::FechaInicio);
    enlaza("NomiFechaBaja", &R::FechaCese);
    enlaza("NomiTipoPaga", &R::TipoPaga);
    enlaza("NomiCategoria", &R::Categoria);
    enlaza("NomiDesempleo", &R::Desempleo);
    enlaza("NomiPluriempleo", &R::Pluriempleo);
    enlaza("NomiEdad", &R::Edad);
    enlaza("NomiIRPFExtra", &R::IRPFExtra);
    for (std::size_t i = 0; i < 2; ++i) {
        enlaces_.push_back(Enlaza(campo("NomiNumPagas", static_cast<int>(i)), &R::NumPagas, i));
        enlaces_.push_back(Enlaza(campo("NomiPagaExtra", static_cast<int>(i)), &R::PagaExtra, i));
    }
}

void NominaFrm::enlazaFilas() {
    using R = RegistroNomina;
    for (std::size_t i = 0; i < kConceptos; ++i) {
        const FilaConcepto fila = concepto(static_cast<int>(i));
        enlaces_.push_back(Enlaza(fila.codigo, &R::CodigoConcepto, i));
        enlaces_.push_back(Enlaza(fila.importe, &R::ImporteConcepto, i));
        enlaces_.push_back(Enlaza(fila.periodo, &R::UnidadConcepto, i));
    }
    for (std::size_t i = 0; i < kIncidencias; ++i) {
        const FilaIncidencia fila = incidencia(static_cast<int>(i));
        enlaces_.push_back(Enlaza(fila.codigo, &R::CodigoIncidencia, i));
        enlaces_.push_back(Enlaza(fila.dia1, &R::DiaInicioInci, i));
        enlaces_.push_back(Enlaza(fila.dia2, &R::DiaFinInci, i));
    }
}

void NominaFrm::enlazaAdicionales() {
    using R = RegistroNomina;
    const auto enlaza = [this](const char* nombre, auto miembro) {
        enlaces_.push_back(Enlaza(campo(nombre), miembro));
    };
    enlaza("NomiFechaExtra1", &R::FechaExtra1);
    enlaza("NomiFechaExtra2", &R::FechaExtra2);
    enlaza("NomiParcialDias", &R::ParcialDias);
    enlaza("NomiParcialHoras", &R::ParcialHoras);
    enlaza("NomiPromedio6Meses", &R::Promedio6Meses);
    enlaza("NomiBaseCCAnt", &R::BaseCCAnt);
    enlaza("NomiBaseATEPAnt", &R::BaseATEPAnt);
    enlaza("NomiHEAnt", &R::HEAnt);
    enlaza("NomiHEAñoAnt", &R::HEAnioAnt);
    enlaza("NomiDiasAnt", &R::DiasAnt);
    enlaza("NomiDiasSemana", &R::DiasSemana);
    enlaza("NomiHorasDiarias", &R::HorasDiarias);
    enlaza("NomiDias12", &R::Dias12);
    enlaza("NomiBase12", &R::Base12);
}

void NominaFrm::enlazaFiniquito() {
    using R = RegistroNomina;
    const auto enlaza = [this](const char* nombre, auto miembro) {
        enlaces_.push_back(Enlaza(campo(nombre), miembro));
    };
    enlaza("NomiFTipoDes", &R::TipoDes);
    enlaza("NomiFExtincion", &R::FExtincion);
    enlaza("NomiFPreaviso", &R::FPreaviso);
    enlaza("NomiFDiasInd", &R::DiasInd);
    enlaza("NomiFDiasCom", &R::DiasCom);
    enlaza("NomiFMaxInd", &R::MaxInd);
    enlaza("NomiFVac1", &R::FVac1);
    enlaza("NomiFVac2", &R::FVac2);
    enlaza("NomiFImpVac", &R::ImpVac);
    enlaza("NomiFDiasVac", &R::DiasVac);
    enlaza("NomiNIF", &R::NIF);
    enlaza("NomiNumMatricula", &R::NumMatricula);
    enlaza("NomiCuentaSS", &R::CuentaSS);
    enlaza("NomiGrupoProfesional", &R::GrupoProfesional);
    for (std::size_t i = 0; i < kExtrasFin; ++i) {
        const int fila = static_cast<int>(i);
        enlaces_.push_back(Enlaza(campo("NomiFConcepto", fila), &R::FConcepto, i));
        enlaces_.push_back(Enlaza(campo("NomiFFec1", fila), &R::FFec1, i));
        enlaces_.push_back(Enlaza(campo("NomiFFec2", fila), &R::FFec2, i));
        enlaces_.push_back(Enlaza(campo("NomiFImporte", fila), &R::FImporte, i));
    }
}

/// `DatosARegistro`. The name typed when saving is not kept: the record takes that of the worker.
void NominaFrm::tomaCampos() {
    caso_.Nombre.asigna(Recorta(campo("NomiNombre").texto()));
    caso_.Descripcion = caso_.Nombre;
    caso_.Epigrafe.asigna(PrimerosCaracteres(campo("NomiEpigrafe").texto(), 3));
    caso_.CodigoContrato.asigna(CodigoContrato());
    for (const Enlace& enlace : enlaces_) enlace.toma(caso_);
}

void NominaFrm::cargaCampos() {
    const MientrasCarga mientras{Cargando};
    campo("NomiNombre").ponTexto(caso_.Nombre.utf8());
    campo("NomiEpigrafe").ponIndice(BuscaEnLista(tablas_.epigrafes.lista(), caso_.Epigrafe.utf8()));
    cargaContrato(caso_.CodigoContrato.utf8SinRecortar());
    for (const Enlace& enlace : enlaces_) enlace.carga(caso_);
    rotulaPagas();
    for (int i = 0; i < kConceptos; ++i) cargaConcepto(concepto(i));
    for (int i = 0; i < kIncidencias; ++i) cargaIncidencia(incidencia(i));
}

void NominaFrm::cargaContrato(const std::string& Codigo) {
    campo("TipoContrato").ponIndice(BuscaEnLista(tablas_.contratos.grupos(), Codigo));
    cambiaGrupoContrato();
    Campo& contrato = campo("NomiContrato");
    const auto esLaFila = [&](std::int64_t fila) {
        return tablas_.contratos.fila(static_cast<std::int32_t>(fila)).Codigo == Codigo;
    };
    const auto fila = std::ranges::find_if(contrato.datos(), esLaFila);
    if (fila != contrato.datos().end()) contrato.ponIndice(static_cast<int>(fila - contrato.datos().begin()));
    ajustaCamposContrato();
}

void NominaFrm::cargaConcepto(FilaConcepto fila) {
    fila.texto.ponTexto(TextoDeLista(fila.codigo.texto(), listaConceptos_));
    fila.periodo.ponActivo(BuscaConcepto(fila.codigo.texto()).Periodicidad == ' ');
    if (EsVacio(fila.codigo.texto()) && fila.importe.texto() == "0") fila.importe.ponTexto("");
}

void NominaFrm::cargaIncidencia(FilaIncidencia fila) {
    fila.texto.ponTexto(TextoIncidencia(fila.codigo.texto(), listaIncidencias_));
    if (!EsVacio(fila.codigo.texto())) return;
    fila.dia1.ponTexto("");
    fila.dia2.ponTexto("");
}

}  // namespace orvemo
