#include "shell/config_frm.h"

#include <algorithm>
#include <exception>
#include <string>
#include <string_view>

#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr std::size_t kMaximoTexto = 248;
constexpr std::size_t kMaximoOrden = 2;
// Characters that the screen shows of the longer texts.
constexpr int kAnchuraTitulo = 70;
constexpr int kAnchuraObra = 44;

constexpr std::array<std::string_view, kOpcionesConfig> kRotulos{
    "Jubilación",
    "Incapacidad Permanente",
    "Muerte y Supervivencia",
    "Pensión No Contributiva",
    "Protección Familiar",
    "Desempleo",
    "Maternidad",
    "Incapacidad Termporal",
    "Capitalización de Pensiones",
    "Nóminas",
    "Conversión Líquidos/Brutos",
    "Retenciones de IRPF",
    "Fondo Bibliográfico",
    "Pensiones Futuras",
    "Riesgo embarazo",
};

/// The characters of a text of the file as they stand, blanks included.
template <std::size_t N>
std::string caracteres(const Texto<N>& texto) {
    const auto fin = std::ranges::find(texto.bytes(), '\0');
    return De1252({texto.bytes().begin(), fin});
}

/// A text of the file without the blanks that pad it on the right.
template <std::size_t N>
std::string sinRelleno(const Texto<N>& texto) {
    std::string todo = caracteres(texto);
    todo.erase(todo.find_last_not_of(' ') + 1);
    return todo;
}

}  // namespace

ConfigFrm::ConfigFrm(Entorno& entorno)
    : Formulario{entorno},
      BotonCDROM{nuevo({.nombre = "BotonCDROM",
                        .clase = Clase::Boton,
                        .pantalla = kBarra,
                        .alPulsar = [this](Campo&) { genera(); },
                        .ayuda = "Generar fichero de configuración"})},
      BotonExit{nuevo({.nombre = "BotonExit",
                       .clase = Clase::Boton,
                       .pantalla = kBarra,
                       .alPulsar = [this](Campo&) { oculta(); },
                       .ayuda = "Volver al menú principal",
                       .sinComprobacion = true})},
      TituloPrograma{nuevo({.nombre = "Titulo",
                            .rotulo = "Título del programa:",
                            .largo = kMaximoTexto,
                            .anchura = kAnchuraTitulo})} {
    ponTitulos("CONFIGURACION DEL PROGRAMA", "CONFIGURACION DEL PROGRAMA");
    declaraTabla();
}

void ConfigFrm::declaraTabla() {
    Grupo& tabla = nuevoGrupo({.nombre = "TablaOpciones",
                               .disposicion = Disposicion::Tabla,
                               .columnas = 3,
                               .encabezados = {"Opciones activadas", "Orden/Obra alternativa", ""}});
    for (int i = 0; i < kOpcionesConfig; ++i) declaraFila(i, tabla);
}

void ConfigFrm::declaraFila(int indice, Grupo& tabla) {
    const std::string rotulo{kRotulos.at(static_cast<std::size_t>(indice))};
    nuevo(
        {.nombre = "Opciones",
         .indice = indice,
         .rotulo = rotulo,
         .clase = Clase::Casilla,
         .grupo = &tabla,
         .alCambiar = [this, indice](Campo& casilla) { fila(indice).Obra.ponVisible(!casilla.marcado()); }});
    nuevo({.nombre = "Orden",
           .indice = indice,
           .grupo = &tabla,
           .largo = kMaximoOrden,
           .ayuda = "Orden de " + rotulo,
           .anchura = static_cast<int>(kMaximoOrden)});
    nuevo({.nombre = "Obra",
           .indice = indice,
           .grupo = &tabla,
           .largo = kMaximoTexto,
           .ayuda = "Obra alternativa de " + rotulo,
           .anchura = kAnchuraObra});
}

ConfigFrm::Fila ConfigFrm::fila(int indice) {
    return {campo("Opciones", indice), campo("Orden", indice), campo("Obra", indice)};
}

// --- Reading

void ConfigFrm::Inicia() {
    try {
        lee();
    } catch (const std::exception&) {
        // The controls keep what was read so far; nobody is told.
    }
    muestra(0);
    enfocaPrimero();
}

void ConfigFrm::lee() {
    ConfigNom config{entorno().almacen};
    registro_ = config.lee(kRegistroTitulo);
    TituloPrograma.ponTexto(sinRelleno(registro_.Texto));
    for (int i = 0; i < kOpcionesConfig; ++i) {
        registro_ = config.lee(registroDeOpcion(i));
        muestraOpcion(i);
    }
}

void ConfigFrm::muestraOpcion(int indice) {
    const Fila controles = fila(indice);
    controles.Opciones.ponMarcado(registro_.activa());
    controles.Orden.ponTexto(caracteres(registro_.Orden));
    controles.Obra.ponTexto(registro_.Texto.utf8());
}

// --- Writing

void ConfigFrm::genera() {
    std::array<RegistroConfig, kRegistrosConfig> registros;
    tomaTitulo();
    registros.front() = registro_;
    for (int i = 0; i < kOpcionesConfig; ++i) {
        tomaOpcion(i);
        registros.at(static_cast<std::size_t>(i) + 1) = registro_;
    }
    EscribeConfig(entorno().almacen, registros);
}

void ConfigFrm::tomaTitulo() {
    registro_.Numero = kNumeroTitulo;
    registro_.Texto.asigna(TituloPrograma.texto());
}

void ConfigFrm::tomaOpcion(int indice) {
    const Fila controles = fila(indice);
    const bool activa = controles.Opciones.marcado();
    registro_.Numero = indice;
    registro_.ponActiva(activa);
    registro_.Orden.asigna(Recorta(controles.Orden.texto()));
    // An active option never shows a text in the menu.
    registro_.Texto.asigna(activa ? "" : controles.Obra.texto());
}

}  // namespace orvemo
