#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "printing/nominas/recibo_piezas.h"

namespace orvemo::nomina {
namespace {

constexpr auto kCuerpo = Letra::Cuerpo;
constexpr auto kNegrita = Letra::CuerpoNegrita;

/// Where the dots end in a row that bears a note.
constexpr double kFinConNota = 11.1;

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
std::array<std::string, 4> notas(const DatosRecibo& datos) {
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

void escribeBasesComunes(const DatosRecibo& datos, HojaImpresa& hoja) {
    const Bases& b = datos.de.estado.bases;
    const CuotasCC& cc = datos.de.estado.cuotasCC;
    const auto textos = notas(datos);
    for (std::size_t i = 0; i < textos.size(); ++i)
        hoja.escribe({kXNotas, kYNotas + kPasoNotas * static_cast<double>(i), kCuerpo}, textos.at(i));
    const auto finPuntos = [&](std::size_t i) { return textos.at(i).empty() ? kFinPuntos : kFinConNota; };
    EscribeFila(22.3, {3.0, kCuerpo, "Remuneración mensual", b.AcumBaseCC}, hoja, finPuntos(1));
    EscribeFila(22.7, {3.0, kCuerpo, "Prorrata pagas extraordinarias", b.BaseCCProrrata - b.AcumBaseCC}, hoja,
                finPuntos(2));
    EscribeFila(23.1, {3.0, kNegrita, "TOTAL", cc.BaseReciboCC}, hoja, finPuntos(3));
}

/// The part of the base that is in unemployment, where there is one.
void escribeParteEnDesempleo(double y, double importe, const DatosRecibo& datos, HojaImpresa& hoja) {
    if (!datos.hayDesempleoParcial()) return;
    hoja.escribe({14.2, y, kCuerpo}, "(D.P.)");
    hoja.escribeImporte(y, kCuerpo, importe);
}

std::string conEpigrafe(std::string texto, const DatosRecibo& d, std::string_view blancos) {
    const std::string_view epigrafe = Recorta(d.entradas().Epigrafe);
    if (epigrafe.empty()) return texto;
    return texto.append(blancos).append("(Epígrafe ").append(epigrafe).append(")");
}

void escribeBasesProfesionales(const DatosRecibo& datos, HojaImpresa& hoja) {
    const double base = BaseRecaudacionConjunta(datos.de.estado);
    hoja.escribe({2.4, 24.0, kCuerpo},
                 "2. Base de cotización por contingencias profesionales (AT y EP) y con-");
    if (datos.entradas().tieneCuotasFijas()) {
        const std::string texto = "ceptos de recaudación conjunta (Fondo de Garantía Salarial)";
        EscribeFila(24.4, {2.7, kCuerpo, conEpigrafe(texto, datos, " "), base}, hoja);
    } else {
        hoja.escribe({2.7, 24.4, kCuerpo},
                     "ceptos de recaudación conjunta (desempleo, formación profesional,");
        EscribeFila(24.8, {2.7, kCuerpo, conEpigrafe("Fondo de Garantía Salarial)", datos, "  "), base},
                    hoja);
    }
}

constexpr std::string_view kHorasExtra = "3. Base de cotización adicional por horas extraordinarias ";

/// By force majeure (HEE) and other (HNE), each with its mark; the second takes a row where there are both.
void escribeHorasExtra(const Devengos& d, HojaImpresa& hoja) {
    constexpr double kX = 2.4;
    const bool hayFM = d.HorasExtraFM != 0, hayResto = d.HorasExtraResto != 0;
    const std::string_view marca = hayFM ? "(HEE)" : hayResto ? "(HNE)" : "";
    const std::string texto = std::string{kHorasExtra}.append(marca);
    EscribeFila(25.7, {kX, kCuerpo, texto, hayFM ? d.HorasExtraFM : d.HorasExtraResto}, hoja);
    if (!hayFM || !hayResto) return;
    const double bajoLaMarca = kX + hoja.ancho(kCuerpo, kHorasExtra);
    EscribeFila(26.1, {bajoLaMarca, kCuerpo, "(HNE)", d.HorasExtraResto}, hoja);
}

}  // namespace

void EscribeBases(const DatosRecibo& datos, HojaImpresa& hoja) {
    const EstadoNomina& e = datos.de.estado;
    hoja.escribe(kRotulosBases);
    escribeBasesComunes(datos, hoja);
    escribeParteEnDesempleo(23.5, e.cuotasCC.BaseReciboCCParcial, datos, hoja);
    escribeBasesProfesionales(datos, hoja);
    escribeParteEnDesempleo(25.2, e.bases.BaseParcial, datos, hoja);
    escribeHorasExtra(e.devengos, hoja);
    EscribeFila(26.5, {2.4, kCuerpo, "4. Base sujeta a retención del IRPF", e.devengos.BaseIRPF}, hoja);
    if (datos.hayDesempleoParcial())
        hoja.escribe({2.4, 27.3, Letra::Rotulo},
                     "(1) Resultado de multiplicar el tipo normal por el coeficiente " +
                         TextoPlano(datos.entradas().CoefDesempleo));
}

}  // namespace orvemo::nomina
