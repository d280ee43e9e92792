#include "printing/rutinas_impresion.h"

#include <cstdint>
#include <limits>
#include <utility>

#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr double kTwipsPorCentimetro = 567;

// The page, in centimetres.
constexpr double kFranjaNoImprimible = 0.5;  ///< taken off the height of the sheet
constexpr double kPieBajoCuerpo = 3.5;  ///< from the last place where a line may start to the end of the page
constexpr double kPieBajoRegla = 2.8;   ///< from the lower rule to the end of the page
constexpr double kLogoX = 0.6;
constexpr double kLogoY = 0.1;
constexpr double kLogoAlto = 2.0;
constexpr float kTituloY = 2.7F;
constexpr float kTituloPaso = 2.7F;
constexpr double kReglaY = 3.2;
constexpr double kBarraFondo = 3.3;
constexpr float kCuerpoY = 4.5F;

// The conclusions, in centimetres.
constexpr float kConclusionX = 1.0F;
constexpr float kConclusionPaso = 0.6F;

constexpr int kTamanoTitulo = 12;
constexpr int kTamanoCuerpo = 10;
constexpr int kTamanoPie = 6;

constexpr char kMarca = '$';

void ponNombre(DestinoImpresion& destino, std::string_view nombre) {
    Fuente fuente = destino.Font();
    fuente.nombre = nombre;
    destino.Font(fuente);
}

void ponTamano(DestinoImpresion& destino, int tamano) {
    Fuente fuente = destino.Font();
    fuente.tamano = tamano;
    destino.Font(fuente);
}

void ponNegrita(DestinoImpresion& destino, bool negrita) {
    Fuente fuente = destino.Font();
    fuente.negrita = negrita;
    destino.Font(fuente);
}

void ponSubrayado(DestinoImpresion& destino, bool subrayado) {
    Fuente fuente = destino.Font();
    fuente.subrayado = subrayado;
    destino.Font(fuente);
}

[[nodiscard]] std::string_view sinBlancosFinales(std::string_view texto) {
    return texto.substr(0, texto.find_last_not_of(' ') + 1);
}

/// The letter of a mark: N, S and P in either case.
[[nodiscard]] char letraDeMarca(std::string_view marca) {
    const char letra = marca.size() > 1 ? marca[1] : '\0';
    return letra >= 'a' && letra <= 'z' ? static_cast<char>(letra - 'a' + 'A') : letra;
}

[[nodiscard]] bool contiene(std::string_view texto, char letra) {
    return texto.find(letra) != std::string_view::npos;
}

/// A font size is remembered in one byte. Throws DesbordeNumerico.
[[nodiscard]] int comoByte(int tamano) {
    if (!EntreLimites(tamano, 0, int{std::numeric_limits<std::uint8_t>::max()})) {
        throw DesbordeNumerico{static_cast<double>(tamano)};
    }
    return tamano;
}

/// The fillers that surely fit are put at once: measuring a row of dots after each of them takes its time.
std::string rellenado(std::string texto, std::string_view relleno, double veces) {
    for (int i = 0; i < veces; ++i) texto += relleno;
    return texto;
}

}  // namespace

RutinasImpresion::RutinasImpresion(Imagen logo) : logo_{std::move(logo)} {}

// --- Starting a page

void RutinasImpresion::ImprimeCabecera(std::optional<int> Pagina, std::optional<std::string_view> Titulo) {
    numeraPagina(Pagina);
    if (recordada_.nombre.empty()) recordada_ = Fuente{.nombre = "Arial", .tamano = kTamanoCuerpo};
    mideHoja();
    pintaLogo();

    ponNombre(*destino_, "Arial");
    ponTamano(*destino_, kTamanoTitulo);
    ponNegrita(*destino_, false);
    PonPosicion(0, kTituloY);
    if (Titulo) imprimeTitulo(Recorta(*Titulo));
    destino_->Line(0, kReglaY, AnchoImpresion_, kReglaY);

    ponTamano(*destino_, kTamanoCuerpo);
    ponNegrita(*destino_, false);
    destino_->Line(0, AltoPagina_ - kPieBajoRegla, AnchoImpresion_, AltoPagina_ - kPieBajoRegla);

    ponNombre(*destino_, "SmallFonts");
    ponTamano(*destino_, kTamanoPie);  // a foot in small print that no report has: overwritten at once
    ponTamano(*destino_, kTamanoCuerpo);
    ponNegrita(*destino_, false);
    PonPosicion(0, kCuerpoY);
    RestauraFuente();
}

void RutinasImpresion::numeraPagina(std::optional<int> Pagina) {
    if (Pagina) {
        NumeroPagina_ = *Pagina;
    } else {
        destino_->NewPage();
        ++NumeroPagina_;
    }
}

/// A paper changed in mid run moves the foot but not the right edge, which is the first report's.
void RutinasImpresion::mideHoja() {
    AltoPagina_ = RedondeaPar(destino_->Height()) / kTwipsPorCentimetro - kFranjaNoImprimible;
    AnchoPagina_ = RedondeaPar(destino_->Width()) / kTwipsPorCentimetro;
    FinCuerpo_ = AltoPagina_ - kPieBajoCuerpo;
    if (AnchoImpresion_ == 0) AnchoImpresion_ = AnchoPagina_;
}

/// The height is fixed and the picture keeps its shape.
void RutinasImpresion::pintaLogo() {
    if (logo_.nombre.empty()) return;
    const double ancho = kLogoAlto * Cociente(logo_.ancho, logo_.alto);
    destino_->PaintPicture(logo_, kLogoX, kLogoY, ancho, kLogoAlto);
}

/// The title and under it a bar exactly as wide.
void RutinasImpresion::imprimeTitulo(std::string_view titulo) {
    ImprimeTexto(titulo, 0, kTituloPaso);
    destino_->Caja(0, kReglaY, destino_->TextWidth(titulo), kBarraFondo);
}

// --- Printing a text

void RutinasImpresion::ImprimeTexto(std::string_view Texto, float X, float Paso) {
    if (FinDePagina()) ImprimeCabecera();
    std::string_view resto = sinBlancosFinales(Texto);
    destino_->CurrentX(X);
    while (!resto.empty()) {
        const auto marca = resto.find(kMarca);
        imprimeLoQueCabe(resto.substr(0, marca));
        if (marca == std::string_view::npos) break;
        resto.remove_prefix(marca);
        resto.remove_prefix(atiendeMarca(resto, X));
    }
    ponNegrita(*destino_, false);
    ponSubrayado(*destino_, false);
    AvanzaLinea(Paso);
}

/// What overruns the right edge is lost.
void RutinasImpresion::imprimeLoQueCabe(std::string_view texto) {
    ImprimeTrozo(TextoQueCabe(texto, AnchoImpresion_ - destino_->CurrentX()), 0);
}

/// Does what the mark at the head of `texto` asks for and gives the characters that it takes up.
std::size_t RutinasImpresion::atiendeMarca(std::string_view texto, float X) {
    switch (letraDeMarca(texto)) {
        case kMarca:
            ImprimeTrozo("$", 0);
            return 2;
        case 'N':
            ponNegrita(*destino_, !destino_->Font().negrita);
            return 2;
        case 'S':
            ponSubrayado(*destino_, !destino_->Font().subrayado);
            return 2;
        case 'P':
            ImprimeCabecera();
            destino_->CurrentX(X);
            return 2;
        default:
            ImprimeTrozo("$", 0);
            return 1;
    }
}

void RutinasImpresion::ImprimeTrozo(std::string_view Texto, int Saltos) {
    if (destino_->CurrentY() > FinCuerpo_) ImprimeCabecera();
    if (Saltos == 0) {
        destino_->Print(Texto, false);
        return;
    }
    destino_->Print(Texto, true);
    for (int salto = 1; salto < Saltos; ++salto) destino_->Print("", true);
}

std::string_view RutinasImpresion::TextoQueCabe(std::string_view Texto, double Ancho) const {
    if (destino_->TextWidth(Texto) <= Ancho) return Texto;
    std::size_t i = 1;
    while (destino_->TextWidth(PrimerosCaracteres(Texto, i)) < Ancho) ++i;
    return PrimerosCaracteres(Texto, i - 1);
}

void RutinasImpresion::ImprimeConclusion(std::string_view Conclusion) {
    while (!Conclusion.empty()) {
        const auto fin = Conclusion.find(kFinDeLinea);
        ImprimeTexto(Conclusion.substr(0, fin), kConclusionX, kConclusionPaso);
        if (fin == std::string_view::npos) break;
        Conclusion.remove_prefix(fin + kFinDeLinea.size());
    }
}

// --- Place and font

void RutinasImpresion::PonPosicion(float X, float Y) {
    destino_->CurrentX(X);
    destino_->CurrentY(Y);
}

void RutinasImpresion::AvanzaLinea(float Paso) {
    destino_->CurrentX(0);
    destino_->CurrentY(destino_->CurrentY() + Paso);
}

bool RutinasImpresion::FinDePagina() const {
    return destino_->CurrentY() > static_cast<float>(FinCuerpo_);
}

void RutinasImpresion::PonFuente(std::optional<std::string_view> Nombre, std::optional<int> Tamano,
                                 std::optional<std::string_view> Estilo) {
    if (Nombre) {
        ponNombre(*destino_, *Nombre);
        recordada_.nombre = *Nombre;
    }
    if (Tamano) {
        ponTamano(*destino_, *Tamano);
        recordada_.tamano = comoByte(*Tamano);
    }
    if (Estilo) {
        ponNegrita(*destino_, contiene(*Estilo, 'N'));
        ponSubrayado(*destino_, contiene(*Estilo, 'S'));
        recordada_.negrita = destino_->Font().negrita;
        recordada_.subrayado = destino_->Font().subrayado;
    }
}

void RutinasImpresion::RestauraFuente() {
    destino_->Font(recordada_);
}

// --- Drawing on a target by itself

void TrazaLinea(DestinoImpresion& destino, double x1, double y1, double x2, double y2, bool errorImpresion) {
    if (!errorImpresion) destino.Line(x1, y1, x2, y2);
}

std::string RellenaAncho(const DestinoImpresion& destino, std::string_view texto, std::string_view relleno,
                         double ancho) {
    std::string recortado{Recorta(texto)};
    const double paso = destino.TextWidth(relleno);
    if (paso <= 0) return recortado;  // it would never be filled
    std::string lleno = rellenado(recortado, relleno, (ancho - destino.TextWidth(recortado)) / paso - 1);
    if (destino.TextWidth(lleno) >= ancho) lleno = recortado;
    while (destino.TextWidth(lleno) < ancho) lleno += relleno;
    return lleno;
}

}  // namespace orvemo
