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

bool sonCifras(std::string_view texto) {
    return texto.find_first_not_of("0123456789") == std::string_view::npos;
}

/// A date as people also type it, "31121993", "311293" or "31.12.1993", as day-month-year; any other text as
/// it stands.
std::string fechaTecleada(std::string_view escrito) {
    std::string texto{Recorta(escrito)};
    if ((texto.size() == 6 || texto.size() == 8) && sonCifras(texto)) {
        return texto.substr(0, 2) + "-" + texto.substr(2, 2) + "-" + texto.substr(4);
    }
    if (std::ranges::count(texto, '.') == 2) std::ranges::replace(texto, '.', '-');
    return texto;
}

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
      estado_{.opciones = def_.opciones,
              .rotulo = def_.rotulo,
              .pantalla = def_.pantalla,
              .visible = def_.visible} {
    if (!def_.filtro) def_.filtro = filtroDe(def_.contenido);
    ponDefecto();
}

void Campo::refresca() const {
    if (Vista* vista = formulario_.vista()) vista->refresca(*this);
}

void Campo::ponTexto(std::string texto) {
    if (def_.largo > 0 && texto.size() > def_.largo)
        texto.resize(PrimerosCaracteres(texto, def_.largo).size());
    if (esFecha()) estado_.fechaAsentada = texto;
    if (texto == estado_.texto) return;
    estado_.texto = std::move(texto);
    refresca();
}

std::string Campo::presentacion() const {
    if (def_.formato.empty() || !EsNumero(estado_.texto)) return estado_.texto;
    return FormatoNumero(LeeNumeroRegional(estado_.texto), def_.formato);
}

void Campo::ponMarcado(bool marcado) {
    if (std::exchange(estado_.marcado, marcado) == marcado) return;
    refresca();
    formulario_.reacciona(*this);
}

void Campo::ponIndice(int indice) {
    if (ponIndiceSinReaccion(indice)) formulario_.reacciona(*this);
}

bool Campo::ponIndiceSinReaccion(int indice) {
    const int ultima = static_cast<int>(estado_.opciones.size()) - 1;
    const int nueva = indice < 0 && indice != -1 ? std::min(0, ultima) : std::min(indice, ultima);
    const bool cambia = std::exchange(estado_.indice, nueva) != nueva;
    estado_.texto = nueva < 0 ? std::string{} : estado_.opciones[static_cast<std::size_t>(nueva)];
    refresca();
    return cambia;
}

void Campo::ponOpciones(std::vector<std::string> opciones) {
    estado_.opciones = std::move(opciones);
    estado_.datos.clear();
    ponIndice(estado_.indice);
}

void Campo::rellena(std::vector<std::string> opciones, std::vector<std::int64_t> datos, int indice) {
    estado_.opciones = std::move(opciones);
    estado_.datos = std::move(datos);
    ponIndiceSinReaccion(indice);
    formulario_.reacciona(*this);
}

std::int64_t Campo::dato(int indice) const {
    const auto i = static_cast<std::size_t>(indice);
    return indice >= 0 && i < estado_.datos.size() ? estado_.datos[i] : 0;
}

const Grafica& Campo::grafica() const {
    static const Grafica kVacia;
    return estado_.grafica == nullptr ? kVacia : *estado_.grafica;
}

void Campo::ponGrafica(Grafica nueva) {
    estado_.grafica = std::make_shared<const Grafica>(std::move(nueva));
    refresca();
}

bool Campo::visible() const {
    return estado_.visible && (def_.grupo == nullptr || def_.grupo->visible());
}

void Campo::ponVisible(bool visible) {
    if (std::exchange(estado_.visible, visible) != visible) refresca();
}

void Campo::ponActivo(bool activo) {
    if (std::exchange(estado_.activo, activo) != activo) refresca();
}

const std::string& Campo::rotulo() const {
    if (estado_.rotuloPendiente) estado_.rotulo = std::exchange(estado_.rotuloPendiente, {})();
    return estado_.rotulo;
}

void Campo::ponRotulo(std::string rotulo) {
    if (!estado_.rotuloPendiente && rotulo == estado_.rotulo) return;
    estado_.rotulo = std::move(rotulo);
    estado_.rotuloPendiente = nullptr;
    refresca();
}

void Campo::ponRotulo(std::function<std::string()> rotulo) {
    estado_.rotuloPendiente = std::move(rotulo);
    refresca();
}

void Campo::ponEstado(Estado estado) {
    const int pantalla = estado.pantalla;
    estado.pantalla = estado_.pantalla;
    estado_ = std::move(estado);
    refresca();
    ponPantalla(pantalla);
}

void Campo::ponPantalla(int pantalla) {
    const int anterior = std::exchange(estado_.pantalla, pantalla);
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
            return estado_.activo && visible();
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
    const std::string antes = estado_.fechaAsentada;
    const std::string leida = fechaTecleada(estado_.texto);
    if (EsFecha(leida)) ponTexto(FormatoFecha(FechaDe(leida), kPatronFecha));
    estado_.fechaAsentada = estado_.texto;
    return estado_.fechaAsentada != antes;
}

}  // namespace orvemo
