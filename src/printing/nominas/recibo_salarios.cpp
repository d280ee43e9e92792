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
#include "payroll/recibo/recibo.h"
#include "printing/nominas/formularios.h"
#include "printing/nominas/hoja_impresa.h"

namespace orvemo::nomina {
namespace {

/// The payslip and its receipt, put together.
struct Datos {
    const DatosFormularios& de;
    Recibo recibo;

    [[nodiscard]] const Entradas& entradas() const { return de.estado.entradas; }
    [[nodiscard]] const Dias& dias() const { return de.estado.dias; }
    [[nodiscard]] bool cobraPorHoras() const { return entradas().ModoContrato == "H"; }
    [[nodiscard]] bool hayDesempleoParcial() const { return entradas().hayDesempleoParcial(); }
};

constexpr auto kCuerpo = Letra::Cuerpo;
constexpr auto kNegrita = Letra::CuerpoNegrita;
constexpr auto kRotulo = Letra::Rotulo;
constexpr auto kCabe = Ajuste::Cabe;
constexpr auto kDetras = Ajuste::Detras;

constexpr double kFinPuntos = 15.0;   // where the dots before the amounts end
constexpr double kFinConNota = 11.1;  // and those before a note

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

constexpr std::array<Valor<Datos>, 4> kEmpresa{{
    {{3.6, 2.2, kCuerpo, kCabe, 11.0}, [](const Datos& d) { return d.de.empresa.DatosEmpresa.utf8(); }},
    {{3.6, 2.8, kCuerpo, kCabe, 11.0}, [](const Datos& d) { return d.de.empresa.DatosDomicilio.utf8(); }},
    {{3.6, 3.4, kCuerpo, kCabe, 11.0}, [](const Datos& d) { return d.de.empresa.DatosCif.utf8(); }},
    {{7.4, 4.0, kCuerpo, kCabe, 11.0}, [](const Datos& d) { return d.de.empresa.DatosCuentaSS.utf8(); }},
}};

constexpr std::array kRotulosTrabajador{
    Rotulo{{11.3, 2.26, kRotulo}, "Trabajador:"},
    Rotulo{{11.3, 2.66, kRotulo}, "NIF:"},
    Rotulo{{11.3, 3.06, kRotulo}, "Nº libro de matrícula:"},
    Rotulo{{11.3, 3.46, kRotulo}, "Nº de afiliación a la Seguridad Social:"},
    Rotulo{{11.3, 3.86, kRotulo}, "Categoría o grupo profesional:"},
    Rotulo{{11.3, 4.26, kRotulo}, "Grupo de cotización:"},
};

constexpr std::array<Valor<Datos>, 6> kTrabajador{{
    {{12.6, 2.2, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return d.de.Trabajador; }},
    {{12.6, 2.6, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return d.de.registro.NIF.utf8(); }},
    {{14.3, 3.0, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return d.de.registro.NumMatricula.utf8(); }},
    {{15.0, 3.4, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return d.de.registro.CuentaSS.utf8(); }},
    {{14.3, 3.8, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return d.de.registro.GrupoProfesional.utf8(); }},
    {{14.3, 4.2, kCuerpo, kCabe, 17.6}, [](const Datos& d) { return TextoPlano(d.entradas().Grupo); }},
}};
// clang-format on

void escribeCabecera(const Datos& datos, HojaImpresa& hoja) {
    hoja.escribe(kTitulo);
    for (const Rotulo& rotulo : kRotulosEmpresa)
        hoja.escribeRelleno(rotulo.sitio, rotulo.texto, kAnchoRotuloEmpresa);
    hoja.escribe<Datos>(kEmpresa, datos);
    hoja.escribe(kRotulosTrabajador);
    hoja.escribe<Datos>(kTrabajador, datos);
}

// --- The period

std::string periodo(const Datos& d) {
    const Fecha fin = d.entradas().FinMes;
    if (d.entradas().esPagaExtra()) return "Paga Extraordinaria de " + FormatoFecha(fin, "mmmm");
    return "del 1-" + FormatoFecha(fin, "mmmm") + " al " + FormatoFecha(fin, "d") + " de " +
           FormatoFecha(fin, "mmmm") + " de " + FormatoFecha(fin, "yyyy");
}

std::string totalDeQue(const Datos& d) {
    return d.cobraPorHoras() ? "Total horas" : "Total días";
}

std::string total(const Datos& d) {
    return TextoPlano(d.cobraPorHoras() ? d.entradas().ParcialHoras : int{d.dias().DiasCotizados});
}

constexpr std::array<Valor<Datos>, 4> kPeriodo{{
    {{2.4, 5.2, kCuerpo}, [](const Datos&) { return std::string{"Período de liquidación:"}; }},
    {{0.2, 5.2, kCuerpo, kDetras}, periodo},
    {{14.5, 5.2, kCuerpo}, totalDeQue},
    {{17.2, 5.2, kCuerpo, Ajuste::Derecha}, total},
}};

// --- Rows with an amount

/// A row of the receipt: a text, dots and an amount, 0 for none.
struct Fila {
    double x;
    Letra letra;
    std::string texto;
    double importe = 0;
    std::string_view antes{};  ///< what stands before it, at the left
    bool punteada = true;
};

constexpr double kXAntes = 3.0;

void escribeFila(double y, const Fila& fila, double finPuntos, HojaImpresa& hoja) {
    if (!fila.antes.empty()) hoja.escribe({kXAntes, y, fila.letra}, fila.antes);
    const Sitio sitio{fila.x, y, fila.letra};
    if (!fila.punteada) return hoja.escribe(sitio, fila.texto);
    hoja.escribePunteado(sitio, fila.texto, finPuntos);
    hoja.escribeImporte(y, fila.letra, fila.importe);
}

/// Rows one under another in `alto` centimetres.
void escribeFilas(double y, double alto, const std::vector<Fila>& filas, HojaImpresa& hoja) {
    const double paso = PasoDeFilas(filas.size(), alto);
    for (std::size_t i = 0; i < filas.size(); ++i)
        escribeFila(y + paso * static_cast<double>(i), filas[i], kFinPuntos, hoja);
}

// --- Earnings

constexpr std::size_t kNoSalariales = 6;  // rows that fit
constexpr double kXLineas = 3.0;

/// On paper the lines stand in the order of the catalogue, those of no concept at the end.
int lugarEnElCatalogo(const LineaRecibo& linea) {
    const int indice = BuscaConcepto(linea.codigo).indice;
    return indice > 0 ? indice : std::numeric_limits<int>::max();
}

std::vector<Fila> filasDe(std::vector<LineaRecibo> lineas) {
    std::ranges::stable_sort(lineas, {}, lugarEnElCatalogo);
    std::vector<Fila> filas;
    for (const LineaRecibo& linea : lineas) filas.push_back({kXLineas, kCuerpo, linea.texto, linea.importe});
    return filas;
}

/// What has no row of its own goes into the last one, by the name that the official model has for it.
std::vector<Fila> filasNoSalariales(const std::vector<LineaRecibo>& lineas) {
    std::vector<Fila> filas = filasDe(lineas);
    if (filas.size() <= kNoSalariales) return filas;
    Fila otras{kXLineas, kCuerpo, "Otras percepciones no salariales"};
    for (std::size_t i = kNoSalariales - 1; i < filas.size(); ++i) otras.importe += filas[i].importe;
    filas.resize(kNoSalariales - 1);
    filas.push_back(otras);
    return filas;
}

std::string coeficiente(const Datos& d) {
    if (!d.hayDesempleoParcial()) return {};
    return "(Coeficiente de Desempleo Parcial: " + TextoPlano(d.entradas().CoefDesempleo) + ")";
}

void escribeDevengos(const Datos& datos, HojaImpresa& hoja) {
    hoja.escribe({2.4, 6.0, kNegrita}, "I. DEVENGOS");
    hoja.escribe({15.3, 6.0, kNegrita}, "TOTALES");
    hoja.escribe({2.6, 6.4, kCuerpo}, "1. Percepciones salariales");
    hoja.escribe({0.3, 6.4, kCuerpo, kDetras}, coeficiente(datos));
    escribeFilas(6.8, 2.6, filasDe(datos.recibo.salariales), hoja);
    hoja.escribe({2.6, 9.4, kCuerpo}, "2. Percepciones no salariales");
    escribeFilas(9.8, 2.0, filasNoSalariales(datos.recibo.noSalariales), hoja);
    escribeFila(11.8, {2.4, kNegrita, "A. TOTAL DEVENGADO", datos.recibo.TotalDevengado}, kFinPuntos, hoja);
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

std::string conTipoEntreParentesis(std::string texto, double tipo) {
    return tipo == 0 ? texto : texto + " (" + porcentaje(tipo) + ")";
}

std::vector<Fila> filasDeAportaciones(const EstadoNomina& e) {
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
void agregaLasDemas(const Datos& d, std::vector<Fila>& filas) {
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

void escribeDeducciones(const Datos& datos, HojaImpresa& hoja) {
    hoja.escribe({2.4, 12.3, kNegrita}, "II. DEDUCCIONES");
    hoja.escribe({15.3, 12.3, kNegrita}, "TOTALES");
    std::vector<Fila> filas = filasDeAportaciones(datos.de.estado);
    agregaLasDemas(datos, filas);
    escribeFilas(12.7, 4.4, filas, hoja);
    escribeFila(17.1, {2.4, kNegrita, "B. TOTAL A DEDUCIR", datos.recibo.TotalADeducir}, kFinPuntos, hoja);
    escribeFila(17.7, {2.4, kNegrita, "LÍQUIDO TOTAL A PERCIBIR (A-B)", datos.recibo.Liquido}, kFinPuntos,
                hoja);
}

// --- Date and signatures

std::string fechaDelRecibo(const Datos& d) {
    const auto pieza = [&](std::string_view patron) { return FormatoFecha(d.de.hoy, patron); };
    return pieza("dddd") + ", a " + pieza("dd") + " de " + pieza("mmmm") + " de " + pieza("yyyy");
}

constexpr std::array<Valor<Datos>, 3> kFirmas{{
    {{11.3, 18.35, kCuerpo}, fechaDelRecibo},
    {{11.3, 18.8, kRotulo}, [](const Datos&) { return std::string{"RECIBÍ"}; }},
    {{2.4, 18.4, kRotulo}, [](const Datos&) { return std::string{"Firma y sello de la empresa"}; }},
}};

// --- Bases

constexpr std::array kRotulosBases{
    Rotulo{{2.2, 20.9, kNegrita},
           "DETERMINACIÓN DE LAS BASES DE COTIZACIÓN A LA SEGURIDAD SOCIAL Y CONCEPTOS DE RECAUDACIÓN"},
    Rotulo{{2.2, 21.3, kNegrita}, "CONJUNTA Y DE LA BASE SUJETA A RETENCIÓN DEL IRPF"},
    Rotulo{{2.4, 21.9, kCuerpo}, "1. Base de cotización por contingencias comunes"},
};

std::string nota(int dias, std::string_view deQue) {
    return dias == 0 ? std::string{} : "(  " + TextoPlano(dias) + std::string{deQue};
}

/// What the days of the month went into, where not all were worked; the hours, for who works by them.
std::array<std::string, 4> notas(const Datos& datos) {
    const Dias& d = datos.dias();
    const int deBaja = d.DiasIT + d.DiasAT;
    std::array<std::string, 4> textos{};
    if (d.DiasPermiso != 0 || d.DiasMat != 0 || deBaja != 0)
        textos = {nota(d.DiasPermiso, " días de permiso)"), nota(d.DiasMat, " días de descanso)"),
                  nota(deBaja, " días en IT)"), nota(d.DiasTrabajados, " días en activo)")};
    if (datos.cobraPorHoras())
        textos.back() = "(" + FormatoNumero(datos.entradas().ParcialHoras, "###,###,###") + " normalizadas)";
    return textos;
}

constexpr double kXNotas = 11.3;
constexpr double kYNotas = 21.9;
constexpr double kPasoNotas = 0.4;

void escribeBasesComunes(const Datos& datos, HojaImpresa& hoja) {
    const Bases& b = datos.de.estado.bases;
    const CuotasCC& cc = datos.de.estado.cuotasCC;
    const auto textos = notas(datos);
    for (std::size_t i = 0; i < textos.size(); ++i)
        hoja.escribe({kXNotas, kYNotas + kPasoNotas * static_cast<double>(i), kCuerpo}, textos.at(i));
    const auto finPuntos = [&](std::size_t i) { return textos.at(i).empty() ? kFinPuntos : kFinConNota; };
    escribeFila(22.3, {3.0, kCuerpo, "Remuneración mensual", b.AcumBaseCC}, finPuntos(1), hoja);
    escribeFila(22.7, {3.0, kCuerpo, "Prorrata pagas extraordinarias", b.BaseCCProrrata - b.AcumBaseCC},
                finPuntos(2), hoja);
    escribeFila(23.1, {3.0, kNegrita, "TOTAL", cc.BaseReciboCC}, finPuntos(3), hoja);
}

/// The part of the base that is in unemployment, where there is one.
void escribeParteEnDesempleo(double y, double importe, const Datos& datos, HojaImpresa& hoja) {
    if (!datos.hayDesempleoParcial()) return;
    hoja.escribe({14.2, y, kCuerpo}, "(D.P.)");
    hoja.escribeImporte(y, kCuerpo, importe);
}

std::string conEpigrafe(std::string texto, const Datos& d, std::string_view blancos) {
    const std::string_view epigrafe = Recorta(d.entradas().Epigrafe);
    if (epigrafe.empty()) return texto;
    return texto.append(blancos).append("(Epígrafe ").append(epigrafe).append(")");
}

void escribeBasesProfesionales(const Datos& datos, HojaImpresa& hoja) {
    const double base = datos.de.estado.bases.BaseParoSinMat;
    hoja.escribe({2.4, 24.0, kCuerpo},
                 "2. Base de cotización por contingencias profesionales (AT y EP) y con-");
    if (datos.entradas().tieneCuotasFijas()) {
        const std::string texto = "ceptos de recaudación conjunta (Fondo de Garantía Salarial)";
        escribeFila(24.4, {2.7, kCuerpo, conEpigrafe(texto, datos, " "), base}, kFinPuntos, hoja);
    } else {
        hoja.escribe({2.7, 24.4, kCuerpo},
                     "ceptos de recaudación conjunta (desempleo, formación profesional,");
        escribeFila(24.8, {2.7, kCuerpo, conEpigrafe("Fondo de Garantía Salarial)", datos, "  "), base},
                    kFinPuntos, hoja);
    }
}

constexpr std::string_view kHorasExtra = "3. Base de cotización adicional por horas extraordinarias ";

/// By force majeure (HEE) and other (HNE), each with its mark; the second takes a row where there are both.
void escribeHorasExtra(const Devengos& d, HojaImpresa& hoja) {
    constexpr double kX = 2.4;
    const bool hayFM = d.HorasExtraFM != 0, hayResto = d.HorasExtraResto != 0;
    const std::string_view marca = hayFM ? "(HEE)" : hayResto ? "(HNE)" : "";
    const std::string texto = std::string{kHorasExtra}.append(marca);
    escribeFila(25.7, {kX, kCuerpo, texto, hayFM ? d.HorasExtraFM : d.HorasExtraResto}, kFinPuntos, hoja);
    if (!hayFM || !hayResto) return;
    const double bajoLaMarca = kX + hoja.ancho(kCuerpo, kHorasExtra);
    escribeFila(26.1, {bajoLaMarca, kCuerpo, "(HNE)", d.HorasExtraResto}, kFinPuntos, hoja);
}

void escribeBases(const Datos& datos, HojaImpresa& hoja) {
    const EstadoNomina& e = datos.de.estado;
    hoja.escribe(kRotulosBases);
    escribeBasesComunes(datos, hoja);
    escribeParteEnDesempleo(23.5, e.cuotasCC.BaseReciboCCParcial, datos, hoja);
    escribeBasesProfesionales(datos, hoja);
    escribeParteEnDesempleo(25.2, e.bases.BaseParcial, datos, hoja);
    escribeHorasExtra(e.devengos, hoja);
    escribeFila(26.5, {2.4, kCuerpo, "4. Base sujeta a retención del IRPF", e.devengos.BaseIRPF}, kFinPuntos,
                hoja);
    if (datos.hayDesempleoParcial())
        hoja.escribe({2.4, 27.3, kRotulo}, "(1) Resultado de multiplicar el tipo normal por el coeficiente " +
                                               TextoPlano(datos.entradas().CoefDesempleo));
}

}  // namespace

void ImprimeReciboSalarios(DestinoImpresion& destino, const DatosFormularios& datos) {
    const Datos del{datos, PreparaRecibo(datos.estado, datos.registro)};
    HojaImpresa hoja{destino};
    hoja.traza(kTrazos);
    escribeCabecera(del, hoja);
    hoja.escribe<Datos>(kPeriodo, del);
    escribeDevengos(del, hoja);
    escribeDeducciones(del, hoja);
    hoja.escribe<Datos>(kFirmas, del);
    escribeBases(del, hoja);
    hoja.termina();
}

}  // namespace orvemo::nomina
