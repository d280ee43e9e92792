#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "printing/destino_impresion.h"

namespace orvemo {

/// The page engine of all reports. One object serves the whole run of the program: remembered font, print
/// width and page number pass from one report to the next. Positions in centimetres.
class RutinasImpresion {
  public:
    /// `logo` heads every page.
    explicit RutinasImpresion(Imagen logo = {});

    void ponLogo(Imagen logo) { logo_ = std::move(logo); }

    /// Where the report in hand goes; must outlive it.
    void empieza(DestinoImpresion& destino) { destino_ = &destino; }
    [[nodiscard]] DestinoImpresion& destino() const { return *destino_; }

    /// Starts a page: the document's first with a number, the next after a page feed without.
    void ImprimeCabecera(std::optional<int> Pagina = {}, std::optional<std::string_view> Titulo = {});
    /// Prints one line with its marks ($N bold, $S underline, $P new page, $$ a dollar) from X, then moves to
    /// X 0 and `Paso` down.
    void ImprimeTexto(std::string_view Texto, float X, float Paso);
    void PonPosicion(float X, float Y);
    void AvanzaLinea(float Paso);
    /// Sets and remembers what is given. In `Estilo` an upper-case N is bold, an upper-case S underline.
    void PonFuente(std::optional<std::string_view> Nombre = {}, std::optional<int> Tamano = {},
                   std::optional<std::string_view> Estilo = {});
    void RestauraFuente();
    /// True when the body of the page is full.
    [[nodiscard]] bool FinDePagina() const;
    /// What of the text fits the width, measured character by character.
    [[nodiscard]] std::string_view TextoQueCabe(std::string_view Texto, double Ancho) const;
    /// Prints a fragment; with 0 line ends X moves along.
    void ImprimeTrozo(std::string_view Texto, int Saltos = 1);

    /// The conclusions as every report ends with them: cut at each line end, a line each, at X 1 and step
    /// 0.6.
    void ImprimeConclusion(std::string_view Conclusion);

    [[nodiscard]] double AltoPagina() const { return AltoPagina_; }
    [[nodiscard]] double AnchoPagina() const { return AnchoPagina_; }
    [[nodiscard]] double FinCuerpo() const { return FinCuerpo_; }
    [[nodiscard]] double AnchoImpresion() const { return AnchoImpresion_; }
    [[nodiscard]] int NumeroPagina() const { return NumeroPagina_; }

  private:
    void numeraPagina(std::optional<int> Pagina);
    void mideHoja();
    void pintaLogo();
    void imprimeTitulo(std::string_view titulo);
    void imprimeLoQueCabe(std::string_view texto);
    std::size_t atiendeMarca(std::string_view texto, float X);

    DestinoImpresion* destino_ = nullptr;
    Imagen logo_;
    double AltoPagina_ = 0;
    double AnchoPagina_ = 0;
    double FinCuerpo_ = 0;
    double AnchoImpresion_ = 0;
    int NumeroPagina_ = 0;
    Fuente recordada_;
};

/// A straight line on the target, unless an error was flagged for this print run.
void TrazaLinea(DestinoImpresion& destino, double x1, double y1, double x2, double y2,
                bool errorImpresion = false);

/// The trimmed text with the filler appended while its printed width is less than `ancho` centimetres.
[[nodiscard]] std::string RellenaAncho(const DestinoImpresion& destino, std::string_view texto,
                                       std::string_view relleno, double ancho);

}  // namespace orvemo
