#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "payroll/conceptos/conceptos.h"
#include "printing/nominas/recibo_piezas.h"

namespace orvemo::nomina {
namespace {

constexpr auto kCuerpo = Letra::Cuerpo;
constexpr auto kNegrita = Letra::CuerpoNegrita;
constexpr auto kRotulo = Letra::Rotulo;
constexpr auto kCabe = Ajuste::Cabe;
constexpr auto kDetras = Ajuste::Detras;

// The line over the second group of earnings leaves a gap for its heading.
// clang-format off
constexpr std::array kTrazos{
    Trazo{ 2.2,  4.8, 17.6,  4.8},
    Trazo{ 2.2,  9.5,  2.5,  9.5},
    Trazo{ 6.5,  9.5, 17.6,  9.5},
    Trazo{ 2.2, 17.6, 17.6, 17.6},
    Trazo{ 2.2, 18.1, 17.6, 18.1},
    Trazo{ 2.2,  4.8,  2.2, 18.1},
    Trazo{17.6,  4.8, 17.6, 18.1},
};

constexpr std::array kTitulo{
    Rotulo{{9.9, 1.2, kNegrita, Ajuste::Centro}, "RECIBO INDIVIDUAL JUSTIFICATIVO DEL PAGO DE SALARIOS"},
};

// --- The company at the left, the worker at the right

constexpr std::array kRotulosEmpresa{
    Rotulo{{2.2, 2.26, kRotulo}, "Empresa"},
    Rotulo{{2.2, 2.86, kRotulo}, "Domicilio"},
    Rotulo{{2.2, 3.46, kRotulo}, "CIF"},
    Rotulo{{2.2, 4.06, kRotulo}, "Código de cuenta de cotización a la Seguridad Social"},
};
constexpr double kAnchoRotuloEmpresa = 1.3;

constexpr std::array<Valor<DatosRecibo>, 4> kEmpresa{{
    {{3.6, 2.2, kCuerpo, kCabe, 11.0}, [](const DatosRecibo& d) { return d.de.empresa.DatosEmpresa.utf8(); }},
    {{3.6, 2.8, kCuerpo, kCabe, 11.0}, [](const DatosRecibo& d) { return d.de.empresa.DatosDomicilio.utf8(); }},
    {{3.6, 3.4, kCuerpo, kCabe, 11.0}, [](const DatosRecibo& d) { return d.de.empresa.DatosCif.utf8(); }},
    {{7.4, 4.0, kCuerpo, kCabe, 11.0}, [](const DatosRecibo& d) { return d.de.empresa.DatosCuentaSS.utf8(); }},
}};

constexpr std::array kRotulosTrabajador{
    Rotulo{{11.3, 2.26, kRotulo}, "Trabajador:"},
    Rotulo{{11.3, 2.66, kRotulo}, "NIF:"},
    Rotulo{{11.3, 3.06, kRotulo}, "Nº libro de matrícula:"},
    Rotulo{{11.3, 3.46, kRotulo}, "Nº de afiliación a la Seguridad Social:"},
    Rotulo{{11.3, 3.86, kRotulo}, "Categoría o grupo profesional:"},
    Rotulo{{11.3, 4.26, kRotulo}, "Grupo de cotización:"},
};

constexpr std::array<Valor<DatosRecibo>, 6> kTrabajador{{
    {{12.6, 2.2, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return d.de.Trabajador; }},
    {{12.6, 2.6, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return d.de.registro.NIF.utf8(); }},
    {{14.3, 3.0, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return d.de.registro.NumMatricula.utf8(); }},
    {{15.0, 3.4, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return d.de.registro.CuentaSS.utf8(); }},
    {{14.3, 3.8, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return d.de.registro.GrupoProfesional.utf8(); }},
    {{14.3, 4.2, kCuerpo, kCabe, 17.6}, [](const DatosRecibo& d) { return TextoPlano(d.entradas().Grupo); }},
}};
// clang-format on

void escribeCabecera(const DatosRecibo& datos, HojaImpresa& hoja) {
    hoja.escribe(kTitulo);
    for (const Rotulo& rotulo : kRotulosEmpresa)
        hoja.escribeRelleno(rotulo.sitio, rotulo.texto, kAnchoRotuloEmpresa);
    hoja.escribe<DatosRecibo>(kEmpresa, datos);
    hoja.escribe(kRotulosTrabajador);
    hoja.escribe<DatosRecibo>(kTrabajador, datos);
}

// --- The period

std::string periodo(const DatosRecibo& d) {
    const Fecha fin = d.entradas().FinMes;
    if (d.entradas().esPagaExtra()) return "Paga Extraordinaria de " + FormatoFecha(fin, "mmmm");
    return "del 1-" + FormatoFecha(fin, "mmmm") + " al " + FormatoFecha(fin, "d") + " de " +
           FormatoFecha(fin, "mmmm") + " de " + FormatoFecha(fin, "yyyy");
}

std::string totalDeQue(const DatosRecibo& d) {
    return d.cobraPorHoras() ? "Total horas" : "Total días";
}

std::string total(const DatosRecibo& d) {
    return TextoPlano(d.cobraPorHoras() ? d.entradas().ParcialHoras : int{d.dias().DiasCotizados});
}

constexpr std::array<Valor<DatosRecibo>, 4> kPeriodo{{
    {{2.4, 5.2, kCuerpo}, [](const DatosRecibo&) { return std::string{"Período de liquidación:"}; }},
    {{0.2, 5.2, kCuerpo, kDetras}, periodo},
    {{14.5, 5.2, kCuerpo}, totalDeQue},
    {{17.2, 5.2, kCuerpo, Ajuste::Derecha}, total},
}};

// --- Earnings

constexpr std::size_t kNoSalariales = 6;  // rows that fit
constexpr double kXLineas = 3.0;

/// On paper the lines stand in the order of the catalogue, those of no concept at the end.
int lugarEnElCatalogo(const LineaRecibo& linea) {
    const int indice = BuscaConcepto(linea.codigo).indice;
    return indice > 0 ? indice : std::numeric_limits<int>::max();
}

std::vector<FilaRecibo> filasDe(std::vector<LineaRecibo> lineas) {
    std::ranges::stable_sort(lineas, {}, lugarEnElCatalogo);
    std::vector<FilaRecibo> filas;
    filas.reserve(lineas.size());
    for (const LineaRecibo& linea : lineas) filas.push_back({kXLineas, kCuerpo, linea.texto, linea.importe});
    return filas;
}

/// What has no row of its own goes into the last one, by the name that the official model has for it.
std::vector<FilaRecibo> filasNoSalariales(const std::vector<LineaRecibo>& lineas) {
    std::vector<FilaRecibo> filas = filasDe(lineas);
    if (filas.size() <= kNoSalariales) return filas;
    FilaRecibo otras{kXLineas, kCuerpo, "Otras percepciones no salariales"};
    for (std::size_t i = kNoSalariales - 1; i < filas.size(); ++i) otras.importe += filas[i].importe;
    filas.resize(kNoSalariales - 1);
    filas.push_back(otras);
    return filas;
}

std::string coeficiente(const DatosRecibo& d) {
    if (!d.hayDesempleoParcial()) return {};
    return "(Coeficiente de Desempleo Parcial: " + TextoPlano(d.entradas().CoefDesempleo) + ")";
}

void escribeDevengos(const DatosRecibo& datos, HojaImpresa& hoja) {
    hoja.escribe({2.4, 6.0, kNegrita}, "I. DEVENGOS");
    hoja.escribe({15.3, 6.0, kNegrita}, "TOTALES");
    hoja.escribe({2.6, 6.4, kCuerpo}, "1. Percepciones salariales");
    hoja.escribe({0.3, 6.4, kCuerpo, kDetras}, coeficiente(datos));
    EscribeFilas(6.8, 2.6, filasDe(datos.recibo.salariales), hoja);
    hoja.escribe({2.6, 9.4, kCuerpo}, "2. Percepciones no salariales");
    EscribeFilas(9.8, 2.0, filasNoSalariales(datos.recibo.noSalariales), hoja);
    EscribeFila(11.8, {2.4, kNegrita, "A. TOTAL DEVENGADO", datos.recibo.TotalDevengado}, hoja);
}

// --- Deductions

std::string porcentaje(double tipo) {
    return FormatoNumero(tipo, "##0.00%");
}

/// The fixed quotas of training contracts have no rate.
std::string conTipo(std::string texto, double tipo, double tipoParcial) {
    if (tipo != 0) texto += " " + porcentaje(tipo);
    if (tipoParcial != 0) texto += " D.Parcial " + porcentaje(tipoParcial) + " (1)";
    return texto;
}

std::string conTipoEntreParentesis(const std::string& texto, double tipo) {
    return tipo == 0 ? texto : texto + " (" + porcentaje(tipo) + ")";
}

std::vector<FilaRecibo> filasDeAportaciones(const EstadoNomina& e) {
    const CuotasCC& cc = e.cuotasCC;
    const CuotasParo& p = e.cuotasParo;
    const CuotasHorasExtra& h = e.cuotasHorasExtra;
    return {
        {2.6, kCuerpo,
         "1. Aportación del trabajador a las cotizaciones de la Seguridad Social y conceptos de "
         "recaudación conjunta",
         0, "", false},
        {3.0, kCuerpo, conTipo("Contingencias comunes", cc.TipoCCTrabajador, cc.TipoCCTrabajadorParcial),
         cc.CuotaCC + cc.CuotaCCParcial},
        {3.0, kCuerpo, conTipo("Desempleo", p.TipoParoTrabajador, p.TipoParoTrabajadorParcial),
         p.CuotaParo + p.CuotaParoParcial},
        {3.0, kCuerpo, conTipo("Formación Profesional", p.TipoFPTrabajador, p.TipoFPTrabajadorParcial),
         p.CuotaFP + p.CuotaFPParcial},
        {6.0, kCuerpo, conTipoEntreParentesis("Fuerza mayor", h.TipoHEFMTrabajador), h.CuotaHEFM,
         "Horas extraordinarias:"},
        {6.0, kCuerpo, conTipoEntreParentesis("Estructurales/No estructurales", h.TipoHERestoTrabajador),
         h.CuotaHEResto},
        {2.6, kNegrita, "TOTAL APORTACIONES", e.totales.TotalSS},
    };
}

/// An advance keeps its row beside the holidays to give back, or the column wouldn't add up.
void agregaLasDemas(const DatosRecibo& d, std::vector<FilaRecibo>& filas) {
    const Devengos& dev = d.de.estado.devengos;
    const double vacaciones = d.recibo.VacacionesEnExceso;
    filas.push_back(
        {2.6, kCuerpo,
         conTipoEntreParentesis("2. Impuesto sobre la Renta de las Personas Físicas", dev.TipoIRPF),
         d.recibo.IRPF});
    if (vacaciones > 0) filas.push_back({2.6, kCuerpo, "3. Vacaciones cobradas en exceso", vacaciones});
    if (vacaciones <= 0 || dev.Anticipos > 0) filas.push_back({2.6, kCuerpo, "3. Anticipos", dev.Anticipos});
    filas.push_back({2.6, kCuerpo, "4. Valor de los productos en especie", dev.PagoEspecie});
    filas.push_back({2.6, kCuerpo, "5. Retención a cuenta por pagos en especie", dev.IngresoCuentaEspecie});
}

void escribeDeducciones(const DatosRecibo& datos, HojaImpresa& hoja) {
    hoja.escribe({2.4, 12.3, kNegrita}, "II. DEDUCCIONES");
    hoja.escribe({15.3, 12.3, kNegrita}, "TOTALES");
    std::vector<FilaRecibo> filas = filasDeAportaciones(datos.de.estado);
    agregaLasDemas(datos, filas);
    EscribeFilas(12.7, 4.4, filas, hoja);
    EscribeFila(17.1, {2.4, kNegrita, "B. TOTAL A DEDUCIR", datos.recibo.TotalADeducir}, hoja);
    EscribeFila(17.7, {2.4, kNegrita, "LÍQUIDO TOTAL A PERCIBIR (A-B)", datos.recibo.Liquido}, hoja);
}

// --- Date and signatures

std::string fechaDelRecibo(const DatosRecibo& d) {
    const auto pieza = [&](std::string_view patron) { return FormatoFecha(d.de.hoy, patron); };
    return pieza("dddd") + ", a " + pieza("dd") + " de " + pieza("mmmm") + " de " + pieza("yyyy");
}

constexpr std::array<Valor<DatosRecibo>, 3> kFirmas{{
    {{11.3, 18.35, kCuerpo}, fechaDelRecibo},
    {{11.3, 18.8, kRotulo}, [](const DatosRecibo&) { return std::string{"RECIBÍ"}; }},
    {{2.4, 18.4, kRotulo}, [](const DatosRecibo&) { return std::string{"Firma y sello de la empresa"}; }},
}};

}  // namespace

void ImprimeReciboSalarios(DestinoImpresion& destino, const DatosFormularios& datos) {
    const DatosRecibo del{datos, PreparaRecibo(datos.estado, datos.registro)};
    HojaImpresa hoja{destino};
    hoja.traza(kTrazos);
    escribeCabecera(del, hoja);
    hoja.escribe<DatosRecibo>(kPeriodo, del);
    escribeDevengos(del, hoja);
    escribeDeducciones(del, hoja);
    hoja.escribe<DatosRecibo>(kFirmas, del);
    EscribeBases(del, hoja);
    hoja.termina();
}

}  // namespace orvemo::nomina
