#include "foundations/frame/campo.h"

#include <algorithm>
#include <utility>

#include "foundations/frame/formulario.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr std::string_view kPatronFecha = "dd-MM-yyyy";

FiltroTecla filtroDe(Contenido contenido) {
    if (contenido == Contenido::Entero) return TeclaDigito;
    if (contenido == Contenido::Decimal) return TeclaNumero;
    return {};
}

}  // namespace

Grupo::Grupo(Formulario& formulario, DefGrupo def)
    : formulario_{formulario}, def_{std::move(def)}, visible_{def_.visible}, titulo_{def_.titulo} {}

void Grupo::ponVisible(bool visible) {
    if (std::exchange(visible_, visible) == visible) return;
    if (Vista* vista = formulario_.vista()) vista->refresca(*this);
}

void Grupo::ponTitulo(std::string titulo) {
    titulo_ = std::move(titulo);
    if (Vista* vista = formulario_.vista()) vista->refresca(*this);
}

Campo::Campo(Formulario& formulario, DefCampo def)
    : formulario_{formulario},
      def_{std::move(def)},
      opciones_{def_.opciones},
      rotulo_{def_.rotulo},
      pantalla_{def_.pantalla},
      visible_{def_.visible} {
    if (!def_.filtro) def_.filtro = filtroDe(def_.contenido);
    ponDefecto();
}

void Campo::refresca() const {
    if (Vista* vista = formulario_.vista()) vista->refresca(*this);
}

void Campo::ponTexto(std::string texto) {
    if (def_.largo > 0) texto = PrimerosCaracteres(texto, def_.largo);
    if (esFecha()) {
        fechaAsentada_ = texto;
        if (EsFecha(texto)) fechaValida_ = texto;
    }
    if (texto == texto_) return;
    texto_ = std::move(texto);
    refresca();
}

std::string Campo::presentacion() const {
    if (def_.formato.empty() || !EsNumero(texto_)) return texto_;
    return FormatoNumero(LeeNumeroRegional(texto_), def_.formato);
}

void Campo::ponMarcado(bool marcado) {
    if (std::exchange(marcado_, marcado) == marcado) return;
    refresca();
    formulario_.reacciona(*this);
}

void Campo::ponIndice(int indice) {
    if (ponIndiceSinReaccion(indice)) formulario_.reacciona(*this);
}

bool Campo::ponIndiceSinReaccion(int indice) {
    const int ultima = static_cast<int>(opciones_.size()) - 1;
    const int nueva = indice < 0 && indice != -1 ? std::min(0, ultima) : std::min(indice, ultima);
    const bool cambia = std::exchange(indice_, nueva) != nueva;
    texto_ = nueva < 0 ? std::string{} : opciones_[static_cast<std::size_t>(nueva)];
    refresca();
    return cambia;
}

void Campo::ponOpciones(std::vector<std::string> opciones) {
    opciones_ = std::move(opciones);
    datos_.clear();
    ponIndice(indice_);
}

void Campo::rellena(std::vector<std::string> opciones, std::vector<std::int64_t> datos, int indice) {
    opciones_ = std::move(opciones);
    datos_ = std::move(datos);
    ponIndiceSinReaccion(indice);
    formulario_.reacciona(*this);
}

std::int64_t Campo::dato(int indice) const {
    const auto i = static_cast<std::size_t>(indice);
    return indice >= 0 && i < datos_.size() ? datos_[i] : 0;
}

void Campo::ponGrafica(Grafica grafica) {
    if (grafica == grafica_) return;
    grafica_ = std::move(grafica);
    refresca();
}

bool Campo::visible() const {
    return visible_ && (def_.grupo == nullptr || def_.grupo->visible());
}

void Campo::ponVisible(bool visible) {
    if (std::exchange(visible_, visible) != visible) refresca();
}

void Campo::ponActivo(bool activo) {
    if (std::exchange(activo_, activo) != activo) refresca();
}

void Campo::ponRotulo(std::string rotulo) {
    if (rotulo == rotulo_) return;
    rotulo_ = std::move(rotulo);
    refresca();
}

void Campo::ponPantalla(int pantalla) {
    const int anterior = std::exchange(pantalla_, pantalla);
    if (anterior == pantalla || formulario_.vista() == nullptr) return;
    formulario_.vista()->reconstruye(anterior);
    formulario_.vista()->reconstruye(pantalla);
}

void Campo::ponDefecto() {
    switch (def_.clase) {
        case Clase::Casilla:
            ponMarcado(!def_.defecto.empty());
            break;
        case Clase::Lista:
        case Clase::Opciones:
        case Clase::ListaAbierta:
            ponIndice(def_.defecto.empty() ? 0 : EnteroDe(def_.defecto));
            break;
        case Clase::FechaSelector:
            ponTexto(def_.defecto.empty() ? FormatoFecha(formulario_.hoy(), kPatronFecha) : def_.defecto);
            break;
        default:
            ponTexto(def_.defecto);
    }
}

void Campo::pideFoco() {
    formulario_.pideFoco(*this);
}

bool Campo::enfocable() const {
    switch (def_.clase) {
        case Clase::Resultado:
        case Clase::Etiqueta:
        case Clase::Imagen:
        case Clase::Veredicto:
        case Clase::Grafica:
            return false;
        default:
            return activo_ && visible();
    }
}

bool Campo::esLista() const {
    return def_.clase == Clase::Lista || def_.clase == Clase::Opciones || def_.clase == Clase::ListaAbierta;
}

bool Campo::esTexto() const {
    return def_.clase == Clase::Texto || esFecha();
}

bool Campo::esFecha() const {
    return def_.clase == Clase::FechaSelector || def_.clase == Clase::FechaEscrita;
}

bool Campo::asientaFecha() {
    const std::string antes = fechaAsentada_;
    if (EsFecha(texto_)) {
        ponTexto(FormatoFecha(FechaDe(texto_), kPatronFecha));
    } else if (def_.clase == Clase::FechaSelector) {
        ponTexto(FormatoFecha(FechaDe(fechaValida_), kPatronFecha));
    }
    fechaAsentada_ = texto_;
    return fechaAsentada_ != antes;
}

}  // namespace orvemo
