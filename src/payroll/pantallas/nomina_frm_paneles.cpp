#include <algorithm>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/conceptos/conceptos.h"
#include "payroll/finiquito/causas.h"
#include "payroll/pantallas/nomina_frm.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/validaciones/rangos.h"

namespace orvemo {

using namespace nomina;

namespace {

constexpr int kUltimoGrupoMensual = 7;
constexpr std::size_t kAnchoCodigoContrato = 4;
constexpr std::string_view kBajas = "123";
constexpr std::string_view kMaternidad = "3";

}  // namespace

// --- What stands on the screen

NominaFrm::FilaConcepto NominaFrm::concepto(int i) {
    return {campo("NomiConcepto", i), campo("NomiTextoConcepto", i), campo("NomiImporte", i),
            campo("NomiPeriod", i)};
}

NominaFrm::FilaIncidencia NominaFrm::incidencia(int i) {
    return {campo("NomiIncidencia", i), campo("NomiTextoIncidencia", i), campo("NomiFechaInci1", i),
            campo("NomiFechaInci2", i)};
}

int NominaFrm::mes() {
    return campo("NomiMes").indice() + 1;
}

bool NominaFrm::cobraPorDias() {
    return campo("NomiCategoria").indice() + 1 > kUltimoGrupoMensual;
}

std::int32_t NominaFrm::IndiceContrato() {
    return static_cast<std::int32_t>(campo("NomiContrato").dato());
}

std::string NominaFrm::CodigoContrato() {
    return std::string{PrimerosCaracteres(campo("NomiContrato").texto(), kAnchoCodigoContrato)};
}

bool NominaFrm::hayIncidencia(std::string_view codigos) {
    const auto esUna = [&](int i) {
        const std::string& codigo = incidencia(i).codigo.texto();
        return !EsVacio(codigo) && codigos.find(codigo) != std::string_view::npos;
    };
    return esUna(0) || esUna(1);
}

bool NominaFrm::hayPeriodo(std::string_view letra) {
    for (int i = 0; i < kConceptos; ++i) {
        if (concepto(i).periodo.texto() == letra) return true;
    }
    return false;
}

bool NominaFrm::hayDesempleoParcial() {
    const std::string& texto = campo("NomiDesempleo").texto();
    return EsNumero(texto) && NumeroDe(texto) != 0 && NumeroDe(texto) < 1;
}

// --- Checks

void NominaFrm::aplica(Campo& campo, const Revision& revision) {
    if (revision.propuesta) campo.ponTexto(*revision.propuesta);
    rechaza(campo, revision.mensaje);
}

void NominaFrm::dejaConcepto(FilaConcepto fila) {
    const auto [indice, Periodicidad] = BuscaConcepto(fila.codigo.texto());
    if (indice < 0) {
        fila.codigo.ponTexto("");
        rechaza(fila.codigo, "Código de concepto no válido. Pulse ? para ver lista");
    }
    fila.texto.ponTexto(TextoDeLista(fila.codigo.texto(), listaConceptos_));
    fila.periodo.ponActivo(Periodicidad == ' ');
    if (indice > 0) return proponePeriodo(fila, Periodicidad);
    fila.importe.ponTexto("");
    fila.periodo.ponTexto("");
}

void NominaFrm::proponePeriodo(FilaConcepto fila, char Periodicidad) {
    const std::string& letra = fila.periodo.texto();
    if (Periodicidad != ' ') {
        fila.periodo.ponTexto({Periodicidad});
    } else if (letra != "D" && letra != "M") {
        fila.periodo.ponTexto(cobraPorDias() ? "D" : "M");
    }
}

void NominaFrm::compruebaImporte(FilaConcepto fila) {
    const ConceptoNomina* concepto = ConceptoDe(fila.codigo.texto());
    const std::int32_t Limite = concepto == nullptr ? RedondeaPar(kSinLimite) : concepto->Limite();
    rechaza(fila.importe, CompruebaImporte(fila.importe.texto(), Limite));
}

void NominaFrm::dejaIncidencia(FilaIncidencia fila) {
    if (IndiceIncidencia(fila.codigo.texto(), listaIncidencias_) < 0) {
        rechaza(fila.codigo, "Código de incidencia no válido. Pulse ? para ver lista");
    }
    fila.texto.ponTexto(TextoIncidencia(fila.codigo.texto(), listaIncidencias_));
    if (!EsVacio(fila.codigo.texto())) return;
    fila.dia1.ponTexto("");
    fila.dia2.ponTexto("");
}

void NominaFrm::compruebaDia1(FilaIncidencia fila) {
    const RevisionDia1 revision =
        CompruebaDiaInci1(fila.codigo.texto(), fila.dia1.texto(), fila.dia2.texto(), mes());
    if (revision.dia2) fila.dia2.ponTexto(*revision.dia2);
    aplica(fila.dia1, revision.dia1);
}

// --- Reactions

void NominaFrm::muestraAyuda(int pantalla, Campo& destino) {
    destinoAyuda_ = &destino;
    MuestraPantalla(pantalla);
}

void NominaFrm::copiaCodigo(Campo& lista, std::size_t ancho) {
    if (destinoAyuda_ != nullptr)
        destinoAyuda_->ponTexto(std::string{PrimerosCaracteres(lista.texto(), ancho)});
    cierraAyuda();
}

void NominaFrm::cierraAyuda() {
    MuestraPantalla(kContrato);
    if (destinoAyuda_ != nullptr) enfoca(*destinoAyuda_);
}

void NominaFrm::cambiaGrupoContrato() {
    std::vector<std::string> textos;
    std::vector<std::int64_t> filas;
    for (const ItemContrato& item : tablas_.contratos.delGrupo(campo("TipoContrato").texto())) {
        textos.push_back(item.texto);
        filas.push_back(item.indice);
    }
    campo("NomiContrato").ponVisible(textos.size() > 1);
    campo("NomiContrato").rellena(std::move(textos), std::move(filas), 0);
    ajustaCamposContrato();
}

void NominaFrm::ajustaCamposContrato() {
    const bool deFormacion = Entradas{.CodigoContrato = CodigoContrato()}.tieneCuotasFijas();
    for (const char* nombre : {"NomiEpigrafe", "NomiCategoria", "NomiDesempleo", "NomiPluriempleo"}) {
        campo(nombre).ponVisible(!deFormacion);
    }
}

void NominaFrm::avisaExtras() {
    const std::vector<std::string> pagas{campo("NomiPagaExtra").texto(), campo("NomiPagaExtra", 1).texto()};
    const std::string_view aviso = AvisoExtras(cobraPorDias(), pagas);
    if (!aviso.empty()) mensajes().Informa(aviso);
}

void NominaFrm::rotulaPagas() {
    for (const int fila : {0, 1})
        campo("NomiPagaExtra", fila)
            .ponRotulo(cobraPorDias() ? "pagas de (Diarias)" : "pagas de (Mensuales)");
}

void NominaFrm::cambiaCategoria() {
    rotulaPagas();
    avisaExtras();
}

void NominaFrm::proponeCese() {
    const PropuestaCese propuesta = PropuestaDeCese(campo("NomiFTipoDes").indice());
    campo("NomiFDiasInd").ponTexto(TextoPlano(propuesta.DiasInd));
    campo("NomiFDiasCom").ponTexto(TextoPlano(propuesta.DiasCom));
    campo("NomiFMaxInd").ponTexto(TextoPlano(propuesta.MaxInd));
}

// --- Road among the panels

bool NominaFrm::NecesitaExtra() {
    return hayPeriodo("E") || campo("NomiTipoPaga").indice() == 1;
}

bool NominaFrm::NecesitaBaja() {
    return hayIncidencia(kBajas);
}

bool NominaFrm::NecesitaParcial() {
    return hayDesempleoParcial();
}

bool NominaFrm::NecesitaModo() {
    const std::int32_t indice = IndiceContrato();
    return indice > 0 && tablas_.contratos.fila(indice).Modo != " ";
}

bool NominaFrm::NecesitaFiniquito() {
    return !EsVacio(campo("NomiFechaBaja").texto());
}

bool NominaFrm::necesitaAdicionales() {
    return NecesitaExtra() || NecesitaBaja() || NecesitaParcial() || NecesitaModo();
}

void NominaFrm::preparaAdicionales() {
    const std::int32_t indice = IndiceContrato();
    const std::string Modo = indice > 0 ? tablas_.contratos.fila(indice).Modo : " ";
    grupoExtra_->ponVisible(NecesitaExtra());
    grupoBaja_->ponVisible(NecesitaBaja());
    campo("NomiPromedio6Meses").ponVisible(NecesitaParcial());
    campo("NomiSig5").ponVisible(NecesitaParcial());
    campo("NomiParcialDias").ponVisible(Modo == "D");
    campo("NomiParcialHoras").ponVisible(Modo == "H");
    AjustaCaptions();
}

void NominaFrm::AjustaCaptions() {
    const bool parcial = EsContratoParcial(CodigoContrato());
    campo("NomiBaseCCAnt")
        .ponRotulo(parcial ? "-> Base contingencias comunes de 3 meses anteriores al inicio de la baja:"
                           : "-> Base de contingencias comunes del mes anterior al inicio de la baja:");
    campo("NomiBaseATEPAnt")
        .ponRotulo(parcial ? "-> Base contingencias profesionales de 3 meses anteriores a la baja:"
                           : "-> Base de contingencias profesionales del mes anterior al inicio de la baja:");
    campo("NomiDiasAnt")
        .ponRotulo(parcial ? "-> Nº de días cotizados en los 3 meses anteriores al de inicio de la baja:"
                           : "-> Nº de días cotizados en el mes anterior al de inicio de la baja:");
    campo("NomiDiasSemana").ponVisible(parcial);
    campo("NomiHorasDiarias").ponVisible(parcial);
    campo("NomiDias12").ponVisible(parcial && hayIncidencia(kMaternidad));
    campo("NomiBase12").ponVisible(parcial && hayIncidencia(kMaternidad));
}

void NominaFrm::dejaContrato() {
    Campo& baja = campo("NomiFechaBaja");
    if (rechaza(baja, CompruebaDatosCese(baja.texto()))) return;
    preparaAdicionales();
    if (necesitaAdicionales()) return MuestraPantalla(kAdicionales);
    calculaOFiniquito();
}

void NominaFrm::dejaAdicionales() {
    if (CompruebaAdicionales()) calculaOFiniquito();
}

void NominaFrm::calculaOFiniquito() {
    if (NecesitaFiniquito()) return MuestraPantalla(kFiniquito);
    CalculaSupuesto();
}

void NominaFrm::vuelveDelFiniquito() {
    MuestraPantalla(necesitaAdicionales() ? kAdicionales : kContrato);
}

bool NominaFrm::CompruebaAdicionales() {
    const auto de = [this](std::string_view nombre) { return campo(nombre).texto(); };
    const auto avisos = nomina::CompruebaAdicionales({.hayExtra = hayPeriodo("E"),
                                                      .hayBaja = NecesitaBaja(),
                                                      .hayParcial = NecesitaParcial(),
                                                      .Mes = mes(),
                                                      .FechaExtra1 = de("NomiFechaExtra1"),
                                                      .FechaExtra2 = de("NomiFechaExtra2"),
                                                      .DiasAnt = de("NomiDiasAnt"),
                                                      .BaseCCAnt = de("NomiBaseCCAnt"),
                                                      .BaseATEPAnt = de("NomiBaseATEPAnt"),
                                                      .HEAnt = de("NomiHEAnt"),
                                                      .HEAnioAnt = de("NomiHEAñoAnt"),
                                                      .Promedio6Meses = de("NomiPromedio6Meses")});
    for (const AvisoCampo& aviso : avisos) aplica(campo(aviso.campo), {aviso.mensaje, aviso.propuesta});
    return avisos.empty();
}

void NominaFrm::CalculaSupuesto() {
    if (DatosTomaPantalla()) return calculaYMuestra();
    MuestraPantalla(kRecibo);
}

}  // namespace orvemo
