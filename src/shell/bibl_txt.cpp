#include "shell/bibl_txt.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr std::string_view kMarcaCapitulo = "#A:";
constexpr std::string_view kMarcaFin = "#FIN";
constexpr std::string_view kMarcaLibro = "#";
/// Place of the title in the line of a book: behind the mark, the subject and a character that says nothing.
constexpr std::size_t kInicioTitulo = 3;

/// Takes the first line off the text, with its line end, and gives it without.
std::string_view tomaLinea(std::string_view& texto) {
    const std::size_t fin = std::min(texto.find_first_of("\r\n"), texto.size());
    const std::string_view linea = texto.substr(0, fin);
    texto.remove_prefix(fin);
    texto.remove_prefix(texto.starts_with("\r\n") ? 2 : std::min<std::size_t>(texto.size(), 1));
    return linea;
}

class LectorBibl {
  public:
    Catalogo lee(std::string_view contenido) {
        while (!contenido.empty() && !acabado_) {
            ++numeroLinea_;
            leeLinea(tomaLinea(contenido));
        }
        return std::move(catalogo_);
    }

  private:
    void leeLinea(std::string_view linea) {
        if (linea.starts_with(kMarcaCapitulo)) {
            nombraCapitulo(std::string{linea.substr(kMarcaCapitulo.size())});
        } else if (linea.starts_with(kMarcaFin)) {
            cierraLibro();
            acabado_ = true;
        } else if (linea.starts_with(kMarcaLibro)) {
            cierraLibro();
            empiezaLibro(linea);
        } else if (enMano_) {
            enMano_->Resumen += De1252(linea);
            enMano_->Resumen += kFinDeLinea;
        }
    }

    void nombraCapitulo(std::string definicion) {
        if (definicion.find('@') == std::string::npos)
            malFormado("falta la arroba tras el número del capítulo");
        const int numero = numeroDeCapitulo(CortaCampo(definicion, "@"));
        if (!EntreLimites(numero, 1, kNumCapitulos)) return;
        catalogo_.capitulos.at(static_cast<std::size_t>(numero) - 1) = {De1252(definicion), numeroLinea_};
    }

    [[nodiscard]] int numeroDeCapitulo(const std::string& texto) const {
        if (!EsNumero(texto)) malFormado("el número del capítulo no se puede leer");
        // A number of any size is just another number: no subject's.
        return RedondeaPar(std::clamp(LeeNumeroRegional(texto), 0.0, kNumCapitulos + 1.0));
    }

    void cierraLibro() {
        if (enMano_) catalogo_.libros.push_back(*std::exchange(enMano_, std::nullopt));
    }

    void empiezaLibro(std::string_view linea) {
        const char capitulo = linea.size() > 1 ? linea[1] : ' ';
        if (!EntreLimites(capitulo, '0', '9')) malFormado("el capítulo del libro no es una cifra");
        const std::string_view titulo = linea.substr(std::min(linea.size(), kInicioTitulo));
        enMano_ = Libro{.Capitulo = static_cast<std::uint8_t>(capitulo - '0'), .Titulo = De1252(titulo)};
    }

    [[noreturn]] void malFormado(const char* motivo) const {
        throw FicheroMalFormado{kFicheroBibl, numeroLinea_, motivo};
    }

    Catalogo catalogo_;
    std::optional<Libro> enMano_;
    int numeroLinea_ = 0;
    bool acabado_ = false;
};

}  // namespace

Catalogo LeeBibl(std::string_view contenido) {
    return LectorBibl{}.lee(contenido);
}

}  // namespace orvemo
