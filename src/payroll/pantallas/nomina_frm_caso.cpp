#include <algorithm>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
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

/// Without its lists no case can be filled in.
void exigeFilas(std::string_view fichero, const auto& filas) {
    if (filas.empty()) throw FicheroMalFormado{std::string{fichero}, 0, "está vacío"};
}

// Numbers as all the payroll reads them, by `ValComa`: what is none counts 0. Written plain.
constexpr Via<double> kDoble{[](std::string_view texto) { return ValComa(texto); },
                             [](double valor) { return TextoPlano(valor); }};
constexpr Via<float> kSimple{[](std::string_view texto) { return static_cast<float>(ValComa(texto)); },
                             [](float valor) { return TextoPlano(valor); }};
constexpr Via<std::int32_t> kEntero{[](std::string_view texto) { return RedondeaPar(ValComa(texto)); },
                                    vias::escribeEntero};
constexpr Via<std::int16_t> kEntero16{[](std::string_view texto) { return RedondeaPar16(ValComa(texto)); },
                                      [](std::int16_t valor) { return TextoPlano(valor); }};
constexpr Via<std::uint8_t> kOcteto{[](std::string_view texto) { return RedondeaPar8(ValComa(texto)); },
                                    [](std::uint8_t valor) { return TextoPlano(valor); }};

}  // namespace

// --- Set-up

void NominaFrm::Inicia() {
    tablas_.contratos = Contratos{entorno().almacen.leeTodo(kFicheroContratos)};
    tablas_.epigrafes = Epigrafes{entorno().almacen.leeTodo(kFicheroEpigrafes)};
    exigeFilas(kFicheroContratos, tablas_.contratos.grupos());
    exigeFilas(kFicheroEpigrafes, tablas_.epigrafes.filas());
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
    ajustaFilas();
    cargaOpciones();
    caso_ = {};
    estado_ = {};
}

// --- Fields and record, both ways

/// The fields of that name, in the order of their rows.
std::vector<Campo*> NominaFrm::serie(std::string_view nombre) {
    std::vector<Campo*> filas;
    for (Campo& campo : campos()) {
        if (campo.def().nombre == nombre) filas.push_back(&campo);
    }
    return filas;
}

/// The name typed when saving is not kept: the record takes that of the worker.
void NominaFrm::enlazaContrato() {
    using R = RegistroNomina;
    enlaza(
        [this](R& r) {
            r.Nombre.asigna(Recorta(campo("NomiNombre").texto()));
            r.Descripcion = r.Nombre;
        },
        [this](const R& r) { campo("NomiNombre").ponTexto(r.Nombre.utf8()); });
    enlaza([this](R& r) { r.Epigrafe.asigna(PrimerosCaracteres(campo("NomiEpigrafe").texto(), 3)); },
           [this](const R& r) {
               const int entrada = BuscaEnLista(tablas_.epigrafes.lista(), r.Epigrafe.utf8());
               campo("NomiEpigrafe").ponIndice(entrada);
           });
    enlaza([this](R& r) { r.CodigoContrato.asigna(CodigoContrato()); },
           [this](const R& r) { cargaContrato(r.CodigoContrato.utf8SinRecortar()); });
    enlaza(campo("NomiMes"), &R::Mes);
    enlaza(campo("NomiFechaAlta"), &R::FechaInicio);
    enlaza(campo("NomiFechaBaja"), &R::FechaCese);
    enlaza(campo("NomiTipoPaga"), &R::TipoPaga);
    enlaza(campo("NomiCategoria"), &R::Categoria);
    enlaza(campo("NomiDesempleo"), &R::Desempleo);
    enlaza(campo("NomiPluriempleo"), &R::Pluriempleo);
    enlaza(campo("NomiEdad"), &R::Edad, kOcteto);
    enlaza(campo("NomiIRPFExtra"), &R::IRPFExtra, kSimple);
    enlaces().agregaSerie(serie("NomiNumPagas"), &R::NumPagas, kOcteto);
    enlaces().agregaSerie(serie("NomiPagaExtra"), &R::PagaExtra, kDoble);
}

void NominaFrm::enlazaFilas() {
    using R = RegistroNomina;
    enlaces().agregaSerie(serie("NomiConcepto"), &R::CodigoConcepto);
    enlaces().agregaSerie(serie("NomiImporte"), &R::ImporteConcepto, kDoble);
    enlaces().agregaSerie(serie("NomiPeriod"), &R::UnidadConcepto);
    enlaces().agregaSerie(serie("NomiIncidencia"), &R::CodigoIncidencia);
    enlaces().agregaSerie(serie("NomiFechaInci1"), &R::DiaInicioInci, kOcteto);
    enlaces().agregaSerie(serie("NomiFechaInci2"), &R::DiaFinInci, kOcteto);
}

void NominaFrm::enlazaAdicionales() {
    using R = RegistroNomina;
    enlaza(campo("NomiFechaExtra1"), &R::FechaExtra1);
    enlaza(campo("NomiFechaExtra2"), &R::FechaExtra2);
    enlaza(campo("NomiParcialDias"), &R::ParcialDias, kOcteto);
    enlaza(campo("NomiParcialHoras"), &R::ParcialHoras, kEntero);
    enlaza(campo("NomiPromedio6Meses"), &R::Promedio6Meses, kDoble);
    enlaza(campo("NomiBaseCCAnt"), &R::BaseCCAnt, kDoble);
    enlaza(campo("NomiBaseATEPAnt"), &R::BaseATEPAnt, kDoble);
    enlaza(campo("NomiHEAnt"), &R::HEAnt, kEntero);
    enlaza(campo("NomiHEAñoAnt"), &R::HEAnioAnt, kEntero);
    enlaza(campo("NomiDiasAnt"), &R::DiasAnt, kOcteto);
    enlaza(campo("NomiDiasSemana"), &R::DiasSemana);
    enlaza(campo("NomiHorasDiarias"), &R::HorasDiarias, kDoble);
    enlaza(campo("NomiDias12"), &R::Dias12, kDoble);
    enlaza(campo("NomiBase12"), &R::Base12, kDoble);
}

void NominaFrm::enlazaFiniquito() {
    using R = RegistroNomina;
    enlaza(campo("NomiFTipoDes"), &R::TipoDes);
    enlazaCasilla(campo("NomiFExtincion"), &R::FExtincion);
    enlazaCasilla(campo("NomiFPreaviso"), &R::FPreaviso);
    enlaza(campo("NomiFDiasInd"), &R::DiasInd, kEntero);
    enlaza(campo("NomiFDiasCom"), &R::DiasCom, kEntero16);
    enlaza(campo("NomiFMaxInd"), &R::MaxInd, kEntero);
    enlaza(campo("NomiFVac1"), &R::FVac1);
    enlaza(campo("NomiFVac2"), &R::FVac2);
    enlaza(campo("NomiFImpVac"), &R::ImpVac, kEntero);
    enlaza(campo("NomiFDiasVac"), &R::DiasVac, kOcteto);
    enlaces().agregaSerie(serie("NomiFConcepto"), &R::FConcepto);
    enlaces().agregaSerie(serie("NomiFFec1"), &R::FFec1);
    enlaces().agregaSerie(serie("NomiFFec2"), &R::FFec2);
    enlaces().agregaSerie(serie("NomiFImporte"), &R::FImporte, kDoble);
    enlaza(campo("NomiNIF"), &R::NIF);
    enlaza(campo("NomiNumMatricula"), &R::NumMatricula);
    enlaza(campo("NomiCuentaSS"), &R::CuentaSS);
    enlaza(campo("NomiGrupoProfesional"), &R::GrupoProfesional);
}

/// -1 when it is marked.
void NominaFrm::enlazaCasilla(Campo& casilla, std::int16_t RegistroNomina::*miembro) {
    enlaza([&casilla, miembro](RegistroNomina& r) { r.*miembro = casilla.marcado() ? -1 : 0; },
           [&casilla, miembro](const RegistroNomina& r) { casilla.ponMarcado(r.*miembro != 0); });
}

void NominaFrm::cargaCampos() {
    const MientrasCarga mientras{Cargando};
    CalculadoraDe::cargaCampos();
    ajustaFilas();
}

/// What the rows show besides what they hold.
void NominaFrm::ajustaFilas() {
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
