#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/json.h"
#include "foundations/values/textos.h"
#include "payroll/caso/calcula_nomina.h"
#include "payroll/caso/json_estado.h"
#include "payroll/pantallas/nomina_frm.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/recibo/recibo.h"

namespace orvemo {

using namespace nomina;

namespace {

/// Lines that the receipt has room for.
constexpr int kLineasSalariales = 8;
constexpr int kLineasNoSalariales = 4;
constexpr int kAnchoImporte = 12;
constexpr int kAnchoCuota = 16;  // with that of partial unemployment
constexpr int kAnchoPorcentaje = 5;
constexpr int kAnchoLinea = 33;

constexpr std::string_view kAyudaExtras =
    "La parte proporcional de pagas extra y las vacaciones no disfrutadas entran en un recibo a parte desde "
    "el "
    "1-1-2000";

std::string importe(double euros) {
    return FormatoNumero(euros, "##,###,###,##0.00");
}

std::string tipo(double porcentaje) {
    return FormatoNumero(porcentaje, "##0.00");
}

/// A quota with its partial unemployment, if any.
struct Doble {
    double normal, parcial;
};

/// "283,00" or, with partial unemployment, "141,50+133,28".
std::string cuota(const Doble& cuota, bool parcial) {
    return importe(cuota.normal) + (parcial ? "+" + importe(cuota.parcial) : "");
}

/// "(28,30%) Base: 1.000,00" or "(28,30%+26,66%)   Bases: 500,00 + 500,00".
std::string detalle(const Doble& tipos, const Doble& bases, bool parcial) {
    if (!parcial) return "(" + tipo(tipos.normal) + "%) Base: " + importe(bases.normal);
    return "(" + tipo(tipos.normal) + "%+" + tipo(tipos.parcial) + "%)   Bases: " + importe(bases.normal) +
           " + " + importe(bases.parcial);
}

}  // namespace

// --- Declaration

void NominaFrm::declaraRecibo() {
    ponPanel(kRecibo, {.denso = true});
    declaraLineas({.nombre = "Salariales", .titulo = "1. Percepciones salariales"}, "PagaSal", "PagaSalarial",
                  kLineasSalariales);
    declaraLineas({.nombre = "NoSalariales", .titulo = "2. Percepciones no salariales", .alLado = true},
                  "PagaNoSal", "PagaNoSalarial", kLineasNoSalariales);
    declaraCotizacion();
    declaraTotales();
    Grupo& aparte = nuevoGrupo({.nombre = "ReciboAparte", .pantalla = kRecibo});
    cifra("Extras", "P.P.Vacaciones  (*)", aparte, 0, kAnchoImporte);
    cifraAlLado("Extras", "P.P.Extras  (*)", aparte, 1, kAnchoImporte);
    DefCampo ayuda = interrogacion("AyudaExtras", "Qué va en un recibo aparte",
                                   [this](Campo&) { mensajes().Informa(kAyudaExtras); });
    ayuda.rotulo = "(*)";
    ayuda.pantalla = kRecibo;
    ayuda.grupo = &aparte;
    botonesDe(kRecibo, "NomiAnt3", "NomiSig3");
    nuevo(std::move(ayuda));
}

void NominaFrm::declaraLineas(DefGrupo def, const char* texto, const char* euros, int sitio) {
    def.pantalla = kRecibo;
    def.disposicion = Disposicion::Tabla;
    def.columnas = 2;
    Grupo& g = nuevoGrupo(std::move(def));
    for (int i = 0; i < sitio; ++i) {
        cifra(texto, "", g, i, kAnchoLinea);
        cifra(euros, "", g, i, kAnchoImporte);
    }
}

/// Under each quota, its rates and bases.
void NominaFrm::declaraCotizacion() {
    Grupo& g = nuevoGrupo({.nombre = "Cotizacion", .titulo = "Cotización", .pantalla = kRecibo});
    const auto conDetalle = [&](const char* cuota, const char* rotulo, const char* detalle) {
        cifra(cuota, rotulo, g, 0, kAnchoCuota);
        nuevo({.nombre = detalle, .clase = Clase::Etiqueta, .pantalla = kRecibo, .grupo = &g});
    };
    conDetalle("PagaCC", "Contingencias comunes", "PagaDetalleCC");
    conDetalle("PagaDes", "Desempleo", "PagaDetalleDes");
    conDetalle("PagaFP", "Formación profesional", "PagaDetalleFP");
    cifra("PagaHEE", "H. extra fuerza mayor", g, 0, kAnchoCuota);
    cifra("PagaHNE", "Otras horas extra", g, 0, kAnchoCuota);
}

void NominaFrm::declaraTotales() {
    Grupo& g = nuevoGrupo({.nombre = "Totales", .titulo = "Totales", .pantalla = kRecibo, .alLado = true});
    const auto total = [&](const char* nombre, const char* rotulo) {
        cifra(nombre, rotulo, g, 0, kAnchoImporte);
    };
    total("PagaTotalDevengado", "A. TOTAL DEVENGADO");
    total("PagaSS", "1. Seguridad Social");
    total("PagaIRPF", "2. IRPF");
    cifraAlLado("PagaRetencionIRPF", "", g, 0, kAnchoPorcentaje);
    total("PagaAnticipos", "3. Anticipos");
    total("PagaEspecie", "4. Productos en especie");
    total("PagaIRPFEspecie", "5. Retención en especie");
    total("PagaTotalADeducir", "B. TOTAL A DEDUCIR");
    total("PagaLiquido", "LÍQUIDO (A-B)");
}

void NominaFrm::declaraFormularios() {
    const auto panel = [this](int pantalla, const char* titulo,
                              std::initializer_list<std::pair<const char*, const char*>> filas) {
        Grupo& g = nuevoGrupo({.nombre = "Panel" + std::to_string(pantalla),
                               .titulo = titulo,
                               .pantalla = pantalla,
                               .disposicion = Disposicion::Columnas,
                               .columnas = 2});
        for (const auto& [nombre, rotulo] : filas) cifra(nombre, rotulo, g);
    };
    panel(kTC2, "TC2-TC2/1 ABREVIADO",
          {{"TC2Dias", "DIAS ALTA"},
           {"TC2Grupo", "GRUPO COT."},
           {"TC2Contrato", "CL CONTRATO"},
           {"TC2Horas", "Nº HORAS"},
           {"TC2Epigrafe", "EPIGRAFE AT/EP"},
           {"TC2DiasIT", "NºDIAS IT"},
           {"TC2DiasMat", "Nº DIAS MAT"},
           {"TC2EpigrafeBaja", "EPIGRAFE DE AT Y EP EN SITUACION DE I.T. MAT"},
           {"TC2BaseBaja", "BASES DE AT y EP DURANTE LA SITUACION DE I.T/MATERNIDAD"},
           {"TC2Situaciones", "SITUACIONES ESPECIALES DEL TRABAJADOR"}});
    botonesDe(kTC2, "NomiAnt4", "NomiSig4");
    panel(kTC1, "Cuotas",
          {{"TC1BaseCC", "Base de contingencias comunes"},
           {"TC1CC", "Cuota de contingencias comunes"},
           {"TC1HEFM", "Horas extra por fuerza mayor"},
           {"TC1HEResto", "Otras horas extra"},
           {"TC1BaseAT", "Base de accidentes"},
           {"TC1IT", "I.T."},
           {"TC1IMS", "I.M.S."},
           {"TC1Desempleo", "Desempleo"},
           {"TC1Fogasa", "FOGASA"},
           {"TC1FP", "Formación profesional"},
           {"TC1Bonificacion", "Bonificaciones"},
           {"TC1Reduccion", "Reducciones"}});
    botonesDe(kTC1, "NomiAnt5", "NomiSig5");
    panel(kTC13, "Cuotas de desempleo parcial",
          {{"TC13BaseCC", "Base de contingencias comunes"},
           {"TC13CC", "Cuota de contingencias comunes"},
           {"TC13IT", "I.T."},
           {"TC13IMS", "I.M.S."},
           {"TC13BaseParo", "Base de desempleo, FOGASA y F.P."},
           {"TC13Desempleo", "Desempleo"},
           {"TC13Fogasa", "FOGASA"},
           {"TC13FP", "Formación profesional"}});
    botonesDe(kTC13, "NomiAnt6", {});
}

// --- Results

void NominaFrm::calculaYMuestra() {
    const std::string_view aviso = nomina::CalculaSupuesto(caso_, tablas_, estado_);
    if (!aviso.empty()) mensajes().ComunicaError(aviso);
    MuestraRecibo();
    MuestraTC2();
    MuestraTC1();
    MuestraTC13();
    MuestraPantalla(kRecibo);
}

void NominaFrm::concluye() {
    calculaYMuestra();
}

void NominaFrm::pon(std::string_view nombre, double euros, int indice) {
    campo(nombre, indice).ponTexto(FormatoImporte(euros));
}

void NominaFrm::ponLineas(const std::vector<LineaRecibo>& lineas, const char* texto, const char* euros,
                          int sitio) {
    for (int i = 0; i < sitio; ++i) {
        const bool hay = i < static_cast<int>(lineas.size());
        const LineaRecibo linea = hay ? lineas[static_cast<std::size_t>(i)] : LineaRecibo{};
        campo(texto, i).ponTexto(linea.texto);
        pon(euros, linea.importe, i);
        campo(texto, i).ponVisible(hay);
        campo(euros, i).ponVisible(hay);
    }
}

void NominaFrm::MuestraRecibo() {
    const Recibo recibo = PreparaRecibo(estado_, caso_);
    ponLineas(recibo.salariales, "PagaSal", "PagaSalarial", kLineasSalariales);
    ponLineas(recibo.noSalariales, "PagaNoSal", "PagaNoSalarial", kLineasNoSalariales);
    pon("PagaTotalDevengado", recibo.TotalDevengado);
    MuestraAportaciones();
    pon("PagaIRPF", recibo.IRPF);
    campo("PagaRetencionIRPF").ponTexto("(" + FormatoNumero(estado_.devengos.TipoIRPF, "##0") + "%)");
    const bool enExceso = recibo.VacacionesEnExceso > 0;
    campo("PagaAnticipos").ponRotulo(enExceso ? "3. Vacaciones disfrutadas" : "3. Anticipos");
    pon("PagaAnticipos", enExceso ? recibo.VacacionesEnExceso : estado_.devengos.Anticipos);
    pon("PagaEspecie", estado_.devengos.PagoEspecie);
    pon("PagaIRPFEspecie", estado_.devengos.IngresoCuentaEspecie);
    pon("PagaTotalADeducir", recibo.TotalADeducir);
    pon("PagaLiquido", recibo.Liquido);
    pon("Extras", estado_.finiquito.PPVacaciones, 0);
    pon("Extras", estado_.devengos.PPExtras, 1);
}

void NominaFrm::MuestraAportaciones() {
    const CuotasCC& cc = estado_.cuotasCC;
    const CuotasParo& p = estado_.cuotasParo;
    const Bases& b = estado_.bases;
    const bool parcial = estado_.entradas.hayDesempleoParcial();
    const Doble baseParo{b.BaseParo, b.BaseParcial};
    campo("PagaCC").ponTexto(cuota({cc.TotalCC, cc.TotalCCParcial}, parcial));
    campo("PagaDetalleCC")
        .ponTexto(detalle({cc.TipoCCTotal, cc.TipoCCTotalParcial}, {cc.BaseReciboCC, cc.BaseReciboCCParcial},
                          parcial));
    campo("PagaDes").ponTexto(
        cuota({p.CuotaParo + p.EmpresaParo, p.CuotaParoParcial + p.EmpresaParoParcial}, parcial));
    campo("PagaDetalleDes").ponTexto(detalle({p.TipoParoTotal, p.TipoParoTotalParcial}, baseParo, parcial));
    campo("PagaFP").ponTexto(
        cuota({p.CuotaFP + p.EmpresaFP, p.CuotaFPParcial + p.EmpresaFPParcial}, parcial));
    campo("PagaDetalleFP").ponTexto(detalle({p.TipoFPTotal, p.TipoFPTotalParcial}, baseParo, parcial));
    pon("PagaHEE", estado_.cuotasHorasExtra.CuotaHEFM);
    pon("PagaHNE", estado_.cuotasHorasExtra.CuotaHEResto);
    pon("PagaSS", estado_.totales.TotalSS);
}

void NominaFrm::MuestraTC2() {
    const Entradas& e = estado_.entradas;
    const Dias& d = estado_.dias;
    const auto siHay = [](int dias) { return dias == 0 ? std::string{} : TextoPlano(dias); };
    campo("TC2Dias").ponTexto(TextoPlano(d.DiasCotizados));
    campo("TC2Grupo").ponTexto(TextoPlano(e.Grupo));
    campo("TC2Contrato").ponTexto(e.CodigoContrato);
    campo("TC2Horas").ponTexto(e.ModoContrato == "H" ? TextoPlano(e.ParcialHoras) : "8");
    campo("TC2Epigrafe").ponTexto(e.Epigrafe);
    campo("TC2DiasIT").ponTexto(siHay(d.DiasBaja));
    campo("TC2DiasMat").ponTexto(siHay(d.DiasMat));
    campo("TC2EpigrafeBaja").ponTexto(d.DiasBaja + d.DiasMat > 0 ? "126" : "");
    pon("TC2BaseBaja", estado_.bases.BaseParo);
    campo("TC2Situaciones").ponTexto(std::string{Recorta(SituacionesEspeciales(estado_, caso_))});
}

void NominaFrm::MuestraTC1() {
    const CuotasParo& p = estado_.cuotasParo;
    const CuotasHorasExtra& h = estado_.cuotasHorasExtra;
    pon("TC1BaseCC", estado_.cuotasCC.BaseReciboCC);
    pon("TC1CC", estado_.cuotasCC.TotalCC);
    pon("TC1HEFM", h.CuotaHEFM + h.EmpresaHEFM);
    pon("TC1HEResto", h.CuotaHEResto + h.EmpresaHEResto);
    pon("TC1BaseAT", estado_.bases.BaseAT);
    pon("TC1IT", estado_.cuotasAT.ColumnaIT);
    pon("TC1IMS", estado_.cuotasAT.ColumnaIMS);
    pon("TC1Desempleo", p.CuotaParo + p.EmpresaParo);
    pon("TC1Fogasa", p.CuotaFogasa + p.EmpresaFogasa);
    pon("TC1FP", p.CuotaFP + p.EmpresaFP);
    pon("TC1Bonificacion", estado_.bonificaciones.Bonificacion);
    pon("TC1Reduccion", estado_.bonificaciones.Reduccion);
}

void NominaFrm::MuestraTC13() {
    const CuotasParo& p = estado_.cuotasParo;
    pon("TC13BaseCC", estado_.cuotasCC.BaseReciboCCParcial);
    pon("TC13CC", estado_.cuotasCC.TotalCCParcial);
    pon("TC13IT", estado_.cuotasAT.ATEPParcialIT);
    pon("TC13IMS", estado_.cuotasAT.ATEPParcialIMS);
    pon("TC13BaseParo", estado_.bases.BaseParcial);
    pon("TC13Desempleo", p.CuotaParoParcial + p.EmpresaParoParcial);
    pon("TC13Fogasa", p.CuotaFogasaParcial + p.EmpresaFogasaParcial);
    pon("TC13FP", p.CuotaFPParcial + p.EmpresaFPParcial);
}

void NominaFrm::agregaResultados(std::string& json) const {
    AgregaEstado(json, estado_);
}

std::string NominaFrm::textoResultados() const {
    return TextoRecibo(estado_, caso_);
}

}  // namespace orvemo
