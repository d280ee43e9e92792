#include "shell/programa.h"

#include <exception>
#include <filesystem>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "shell/config_frm.h"

namespace orvemo {

namespace {

/// Program-wide values at start: first net figure and extra pays offered by the net-to-gross conversion.
constexpr std::int32_t kLiquidoInicial = 915;  // euros per month
constexpr std::uint8_t kPagasIniciales = 2;

/// The hourglass, as long as it lives.
class CursorEspera {
  public:
    CursorEspera(VistaPrograma& vista, bool espera) : vista_{vista}, espera_{espera} {
        if (espera_) vista_.cursorEspera(true);
    }
    ~CursorEspera() {
        if (espera_) vista_.cursorEspera(false);
    }
    CursorEspera(const CursorEspera&) = delete;
    CursorEspera& operator=(const CursorEspera&) = delete;

  private:
    VistaPrograma& vista_;
    bool espera_;
};

void haceActualElDirectorio(const Almacen& almacen) {
    const std::filesystem::path directorio = almacen.ruta(kFotoPortada).parent_path();
    if (directorio.empty()) return;
    std::error_code fallo;
    std::filesystem::current_path(directorio, fallo);
    if (fallo) throw FicheroInaccesible{directorio.string(), "no se puede entrar en la carpeta del programa"};
}

void ponValoresIniciales(ValoresPrograma& valores) {
    valores.LiquidoAnterior = kLiquidoInicial;
    valores.PagasAnterior = kPagasIniciales;
}

std::unique_ptr<Formulario> abreConfigFrm(Entorno& entorno) {
    return std::make_unique<ConfigFrm>(entorno);
}

}  // namespace

Programa::Programa(Entorno& entorno, Pantallas pantallas, VistaPrograma& vista)
    : entorno_{entorno}, pantallas_{std::move(pantallas)}, vista_{vista} {
    for (std::size_t i = 0; i < kOpciones.size(); ++i) opciones_[i].puesto = kOpciones[i].puesto;
}

// --- Start-up

void Programa::Inicia() {
    vista_.muestraPortada(ImagenPresente(entorno_.almacen, kFotoPortada), kDuracionPortada);
    ponValoresIniciales(entorno_.valores);
    haceActualElDirectorio(entorno_.almacen);
    cargaFotos();
    vista_.centraMenu();
    ocultaOpciones();
    leeConfiguracion();
}

void Programa::cargaFotos() {
    vista_.cargaMenuFoto(ImagenPresente(entorno_.almacen, kFotoPortada));
    // The logo is what the reports need of `MenuPrincipal`.
    entorno_.rutinas.ponLogo(vista_.cargaLogoOrvemo(ImagenPresente(entorno_.almacen, kFotoLogo)));
}

void Programa::ocultaOpciones() {
    for (std::size_t i = 0; i < kOpcionVerBaseActual; ++i) {
        opciones_[i].visible = false;
        opciones_[i].texto.clear();
    }
}

void Programa::leeConfiguracion() {
    try {
        ConfigNom config{entorno_.almacen};
        aplicaTitulo(config.lee(kRegistroTitulo));
        for (int i = 0; i < kOpcionesConfig; ++i) aplicaOpcion(i, config.lee(registroDeOpcion(i)));
    } catch (const std::exception&) {
        // Whatever fails ends the reading; the options read so far stay in force and nobody is told.
        return;
    }
}

void Programa::aplicaTitulo(const RegistroConfig& registro) {
    entorno_.valores.TituloPrograma = registro.Texto.utf8();
    vista_.ponCaption(entorno_.valores.TituloPrograma);
    entorno_.valores.VerBaseActual = false;
}

void Programa::aplicaOpcion(int indice, const RegistroConfig& registro) {
    if (indice == kOpcionVerBaseActual) {
        entorno_.valores.VerBaseActual = registro.activa();
        return;
    }
    OpcionMenu& opcion = opciones_.at(static_cast<std::size_t>(indice));
    const int orden = RedondeaPar(LimiteDe(registro.Orden.utf8()));
    opcion.texto = registro.Texto.utf8();
    opcion.visible = registro.activa() || !opcion.texto.empty();
    if (orden != 0 && opcion.visible) opcion.puesto = puestoDeOrden(orden);
}

// --- The menu

void Programa::Opcion(int indice) {
    const std::string& texto = opciones_.at(static_cast<std::size_t>(indice)).texto;
    if (!texto.empty()) {
        entorno_.mensajes.ComunicaError(texto);
    } else if (indice == kOpcionFin) {
        fin();
    } else {
        abreOpcion(indice);
    }
}

void Programa::abreOpcion(int indice) {
    const auto i = static_cast<std::size_t>(indice);
    if (pantallas_.at(i)) {
        abre(pantallas_[i], kOpciones[i].apertura);
    } else {
        entorno_.mensajes.ComunicaError("La opción \"" + std::string{kOpciones[i].rotulo} +
                                        "\" no está disponible en esta versión del programa");
    }
}

void Programa::LogoOrvemo() {
    if (entorno_.almacen.existe(kFicheroNodo)) abre(abreConfigFrm, kConfiguracion);
}

void Programa::abre(const Abridor& abridor, Apertura apertura) {
    try {
        const std::unique_ptr<Formulario> pantalla = preparada(abridor, apertura.espera);
        vista_.muestraModal(*pantalla, apertura.sobreElMenu);
    } catch (const Fallo& fallo) {
        entorno_.mensajes.ComunicaError(
            "No se ha podido completar la operación: " + std::string{fallo.what()} + ".");
    }
}

std::unique_ptr<Formulario> Programa::preparada(const Abridor& abridor, bool espera) {
    const CursorEspera cursor{vista_, espera};
    std::unique_ptr<Formulario> pantalla = abridor(entorno_);
    pantalla->Inicia();
    return pantalla;
}

// --- Leaving

void Programa::fin() {
    if (!entorno_.mensajes.Confirma("¿Desea abandonar el programa?")) return;
    entorno_.valores.FinPrograma = true;
    vista_.descarga();
}

void Programa::alDescargar() {
    entorno_.valores.FinPrograma = true;
}

}  // namespace orvemo
