#include "printing/nominas/hoja_impresa.h"

#include <algorithm>
#include <array>

#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"
#include "printing/rutinas_impresion.h"

namespace orvemo::nomina {
namespace {

constexpr double kPaso = 0.4;          // between rows, at most
constexpr double kXImportes = 17.2;    // right edge of every amount
constexpr double kHuecoPuntos = 0.15;  // between a text and its dots
constexpr int kCuerpo = 8;             // points
constexpr int kRotulo = 6;             // points

/// Sizes for a text that has to fit: on one line, then on two.
constexpr std::array kTamanosUnaLinea{8, 7, 6};
constexpr std::array kTamanosDosLineas{6, 5};
constexpr double kPrimeraLinea = -0.09;
constexpr double kSegundaLinea = 0.13;

/// What a smaller letter goes down to stand on the same foot.
double bajadaDe(int tamano) {
    constexpr double kPorPunto = 0.03;
    return kPorPunto * (kCuerpo - tamano);
}

Fuente fuenteDe(Letra letra) {
    const bool esRotulo = letra == Letra::Rotulo || letra == Letra::RotuloNegrita;
    const bool negrita = letra == Letra::CuerpoNegrita || letra == Letra::RotuloNegrita;
    return {.nombre = esRotulo ? "SmallFonts" : "Arial",
            .tamano = esRotulo ? kRotulo : kCuerpo,
            .negrita = negrita};
}

std::string loQueCabe(DestinoImpresion& destino, const std::string& texto, double ancho) {
    RutinasImpresion rutinas;
    rutinas.empieza(destino);
    return std::string{rutinas.TextoQueCabe(texto, ancho)};
}

}  // namespace

double PasoDeFilas(std::size_t filas, double alto) {
    return filas == 0 ? kPaso : std::min(kPaso, alto / static_cast<double>(filas));
}

// --- Drawing

void HojaImpresa::ponFuente(Letra letra) {
    if (!ErrorImpresion) destino_.Font(fuenteDe(letra));
}

void HojaImpresa::ponFuente(int tamano) {
    if (!ErrorImpresion) destino_.Font({.nombre = "Arial", .tamano = tamano});
}

void HojaImpresa::EscribeEn(double x, double y, std::string_view texto) {
    if (ErrorImpresion) return;
    const std::string_view recortado = Recorta(texto);
    if (recortado.empty()) return;
    destino_.CurrentX(static_cast<float>(x));
    destino_.CurrentY(static_cast<float>(y));
    destino_.Print(recortado, true);
}

void HojaImpresa::EscribeDerecha(double x, double y, std::string_view texto) {
    if (!ErrorImpresion) EscribeEn(x - destino_.TextWidth(texto), y, texto);
}

void HojaImpresa::escribeDesde(double x, double y, std::string_view texto) {
    if (ErrorImpresion) return;
    EscribeEn(x, y, texto);
    fin_ = x + destino_.TextWidth(texto);
}

void HojaImpresa::traza(std::span<const Trazo> trazos) {
    for (const Trazo& t : trazos) TrazaLinea(destino_, t.x1, t.y1, t.x2, t.y2, ErrorImpresion);
}

void HojaImpresa::escribe(const Sitio& sitio, std::string_view texto) {
    texto = Recorta(texto);
    ponFuente(sitio.letra);
    switch (sitio.ajuste) {
        case Ajuste::Izquierda:
            return escribeDesde(sitio.x, sitio.y, texto);
        case Ajuste::Derecha:
            return EscribeDerecha(sitio.x, sitio.y, texto);
        case Ajuste::Centro:
            return EscribeDerecha(sitio.x + destino_.TextWidth(texto) / 2, sitio.y, texto);
        case Ajuste::Detras:
            return escribeDesde(fin_ + sitio.x, sitio.y, texto);
        case Ajuste::Cabe:
            return encaja(sitio, std::string{texto});
    }
}

void HojaImpresa::escribe(std::span<const Rotulo> rotulos) {
    for (const Rotulo& rotulo : rotulos) escribe(rotulo.sitio, rotulo.texto);
}

void HojaImpresa::escribePunteado(const Sitio& sitio, std::string_view texto, double hasta) {
    escribe(sitio, texto);
    if (ErrorImpresion || hasta <= fin_ + kHuecoPuntos) return;
    EscribeDerecha(hasta, sitio.y, RellenaAncho(destino_, "", ".", hasta - fin_ - kHuecoPuntos));
}

void HojaImpresa::escribeImporte(double y, Letra letra, double importe) {
    ponFuente(letra);
    EscribeDerecha(kXImportes, y, FormatoImporte(importe));
}

void HojaImpresa::escribeRelleno(const Sitio& sitio, std::string_view texto, double ancho) {
    ponFuente(sitio.letra);
    EscribeEn(sitio.x, sitio.y, RellenaAncho(destino_, texto, ".", ancho));
}

double HojaImpresa::ancho(Letra letra, std::string_view texto) {
    ponFuente(letra);
    return destino_.TextWidth(texto);
}

void HojaImpresa::termina() {
    if (!ErrorImpresion) destino_.EndDoc();
}

// --- Texts that have to fit

void HojaImpresa::encaja(const Sitio& sitio, const std::string& texto) {
    if (ErrorImpresion || encajaEnUnaLinea(sitio, texto) || encajaEnDosLineas(sitio, texto)) return;
    const std::string cortado = loQueCabe(destino_, texto, sitio.hasta - sitio.x);
    EscribeEn(sitio.x, sitio.y + bajadaDe(kTamanosDosLineas.back()), cortado);
}

bool HojaImpresa::encajaEnUnaLinea(const Sitio& sitio, const std::string& texto) {
    for (const int tamano : kTamanosUnaLinea) {
        ponFuente(tamano);
        if (destino_.TextWidth(texto) > sitio.hasta - sitio.x) continue;
        EscribeEn(sitio.x, sitio.y + bajadaDe(tamano), texto);
        return true;
    }
    return false;
}

/// Broken at the last blank that leaves room for the first line.
bool HojaImpresa::encajaEnDosLineas(const Sitio& sitio, const std::string& texto) {
    const double ancho = sitio.hasta - sitio.x;
    for (const int tamano : kTamanosDosLineas) {
        ponFuente(tamano);
        const std::size_t corte = texto.rfind(' ', loQueCabe(destino_, texto, ancho).size());
        if (corte == std::string::npos || destino_.TextWidth(texto.substr(corte + 1)) > ancho) continue;
        EscribeEn(sitio.x, sitio.y + kPrimeraLinea, texto.substr(0, corte));
        EscribeEn(sitio.x, sitio.y + kSegundaLinea, texto.substr(corte + 1));
        return true;
    }
    return false;
}

}  // namespace orvemo::nomina
