#include "tax/familiares.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::irpf {

namespace {

constexpr int kAnchoLista = 20;  // characters; both lists stand side by side
constexpr int kPrimerAnio = 1900;
constexpr int kUltimoAnio = 9999;
constexpr const char* kPersonasQueConviven = "El número de personas que conviven debe estar entre 1 y 9";

// The six digits of a row: year, disability, counted whole.
constexpr int kPorAnio = 100;
constexpr int kPorDiscapacidad = 10;

const std::vector<std::string> kDiscapacidades{
    "Sin discapacidad",
    "Discapacidad >=33% y <65%",
    "Disc >=33% y <65% Mov.Red.",
    "Discapacidad >=65%",
};

/// A degree that isn't on the scale, as a damaged record may hold, counts as none.
int enLaEscala(int discapacidad) {
    return discapacidad < static_cast<int>(kDiscapacidades.size()) ? discapacidad : 0;
}

/// A row of either list: its text and its datum.
struct Fila {
    std::string texto;
    std::int64_t dato;
};

std::string seisCifras(int nacimiento, int discapacidad, int computo) {
    return FormatoNumero(nacimiento * kPorAnio + discapacidad * kPorDiscapacidad + computo, "000000");
}

std::string textoDiscapacidad(int discapacidad) {
    return ", " + kDiscapacidades.at(static_cast<std::size_t>(discapacidad));
}

Fila filaDe(const Hijo& hijo) {
    const int discapacidad = enLaEscala(hijo.DiscapacidadHijo);
    const bool computa = hijo.ComputoHijo == 1;
    std::string texto = seisCifras(hijo.Nacimiento, discapacidad, computa ? 1 : 0) + "  Nacimiento " +
                        std::to_string(hijo.Nacimiento);
    if (hijo.Adopcion != 0) texto += ", adopción " + std::to_string(hijo.Adopcion);
    texto += textoDiscapacidad(discapacidad);
    if (computa) texto += ", Familia Monoparental";
    return {texto, hijo.Adopcion};
}

Fila filaDe(const Ascendiente& ascendiente) {
    const int discapacidad = enLaEscala(ascendiente.DiscapacidadAscen);
    return {seisCifras(ascendiente.Nacimiento, discapacidad, 0) + "  Nacimiento " +
                std::to_string(ascendiente.Nacimiento) + ", convivencia " +
                std::to_string(ascendiente.Convivencia) + textoDiscapacidad(discapacidad),
            ascendiente.Convivencia};
}

/// What the six digits of a row tell.
struct Cifras {
    std::int16_t nacimiento;
    std::uint8_t discapacidad;
    std::uint8_t computo;
};

Cifras cifrasDe(const std::string& fila) {
    const auto numero = RedondeaPar(LeeNumero(fila));
    const int anio = Suelo(numero / double{kPorAnio});
    const int resto = numero - anio * kPorAnio;
    return {static_cast<std::int16_t>(anio), static_cast<std::uint8_t>(resto / kPorDiscapacidad),
            static_cast<std::uint8_t>(resto % kPorDiscapacidad)};
}

Hijo hijoDe(const std::string& fila, std::int64_t dato) {
    const Cifras cifras = cifrasDe(fila);
    return {1, cifras.nacimiento, cifras.computo, static_cast<std::int32_t>(dato), cifras.discapacidad};
}

Ascendiente ascendienteDe(const std::string& fila, std::int64_t dato) {
    const Cifras cifras = cifrasDe(fila);
    return {1, cifras.nacimiento, static_cast<std::uint8_t>(dato), cifras.discapacidad, {}};
}

void agrega(Campo& lista, Fila fila) {
    auto textos = lista.opciones();
    auto datos = lista.datos();
    textos.push_back(std::move(fila.texto));
    datos.push_back(fila.dato);
    lista.rellena(std::move(textos), std::move(datos), static_cast<int>(lista.opciones().size()));
}

template <typename Persona, std::size_t N>
void cargaLista(Campo& lista, const std::array<Persona, N>& personas) {
    lista.rellena({}, {}, -1);
    for (const Persona& persona : personas) {
        if (persona.Presente != 0) agrega(lista, filaDe(persona));
    }
}

template <typename Persona, std::size_t N>
void tomaLista(const Campo& lista, std::array<Persona, N>& personas,
               Persona (*personaDe)(const std::string&, std::int64_t)) {
    personas = {};
    const auto& filas = lista.opciones();
    for (std::size_t i = 0; i < std::min(N, filas.size()); ++i) {
        personas.at(i) = personaDe(filas[i], lista.dato(static_cast<int>(i)));
    }
}

/// The year that a field tells; 0 when blank.
int anioDe(const Campo& campo) {
    return EnteroDe(campo.texto());
}

bool esAnio(int anio) {
    return EntreLimites(anio, kPrimerAnio, kUltimoAnio);
}

bool esConvivencia(const std::string& texto) {
    return texto.size() == 1 && texto[0] >= '1' && texto[0] <= '9';
}

DefCampo listaAbierta(const char* nombre, int pantalla, Grupo& grupo) {
    return {.nombre = nombre, .clase = Clase::ListaAbierta, .pantalla = pantalla, .grupo = &grupo};
}

DefCampo anio(const char* nombre, const char* rotulo, int pantalla, Grupo& grupo) {
    return {.nombre = nombre,
            .rotulo = rotulo,
            .pantalla = pantalla,
            .grupo = &grupo,
            .largo = 4,
            .contenido = Contenido::Entero};
}

DefCampo discapacidad(const char* nombre, int pantalla, Grupo& grupo) {
    return {.nombre = nombre,
            .rotulo = "Discapacidad:",
            .clase = Clase::Lista,
            .pantalla = pantalla,
            .grupo = &grupo,
            .opciones = kDiscapacidades,
            .anchura = kAnchoLista};
}

}  // namespace

Familiares::Familiares(Declarador declara)
    : declara_{std::move(declara)},
      grupoHijos{declara_.grupo(
          {.nombre = "FrmHijos", .titulo = "HIJOS Y OTROS DESCENDIENTES", .pantalla = declara_.pantalla})},
      Descendientes{declara_.campo(listaAbierta("Descendientes", declara_.pantalla, grupoHijos))},
      NacimientoHijo{
          declara_.campo(anio("NacimientoHijo", "Año Nacimiento:", declara_.pantalla, grupoHijos))},
      AdopcionHijo{
          declara_.campo(alLado(anio("AdopcionHijo", "Año Adopción:", declara_.pantalla, grupoHijos)))},
      DiscapacidadHijo{declara_.campo(discapacidad("DiscapacidadHijo", declara_.pantalla, grupoHijos))},
      ComputoHijo{declara_.campo({.nombre = "ComputoHijo",
                                  .rotulo = "Familia Monoparental",
                                  .clase = Clase::Casilla,
                                  .pantalla = declara_.pantalla,
                                  .grupo = &grupoHijos})},
      AgregaHijo{boton("Hijos", 0, "Añadir", grupoHijos, [this](Campo&) { agregaHijo(); })},
      BorraHijo{boton("Hijos", 1, "Borrar", grupoHijos, [this](Campo&) { borra(Descendientes); })},
      grupoAscendientes{declara_.grupo({.nombre = "FrmAscendientes",
                                        .titulo = "ASCENDIENTES",
                                        .pantalla = declara_.pantalla,
                                        .alLado = true})},
      Ascendientes{declara_.campo(listaAbierta("Ascendientes", declara_.pantalla, grupoAscendientes))},
      NacimientoAscen{
          declara_.campo(anio("NacimientoAscen", "Año Nacimiento:", declara_.pantalla, grupoAscendientes))},
      ConvAscen{declara_.campo({.nombre = "ConvAscen",
                                .rotulo = "Convivencia:",
                                .pantalla = declara_.pantalla,
                                .grupo = &grupoAscendientes,
                                .defecto = "1",
                                .largo = 1,
                                .alEscribir = [this](Campo&) { compruebaConvivencia(); },
                                .mismaLinea = true,
                                .anchura = 3})},
      DiscapacidadAscen{
          declara_.campo(discapacidad("DiscapacidadAscen", declara_.pantalla, grupoAscendientes))},
      AgregaAscendiente{
          boton("Ascen", 0, "Añadir", grupoAscendientes, [this](Campo&) { agregaAscendiente(); })},
      BorraAscendiente{
          boton("Ascen", 1, "Borrar", grupoAscendientes, [this](Campo&) { borra(Ascendientes); })} {}

Campo& Familiares::boton(const char* nombre, int indice, const char* rotulo, Grupo& grupo,
                         Reaccion alPulsar) {
    // Those of the descendants stand beside the mark before them: so both lists are of one height.
    const bool trasLaCasilla = indice == 0 && &grupo == &grupoHijos;
    return declara_.campo({.nombre = nombre,
                           .indice = indice,
                           .rotulo = rotulo,
                           .clase = Clase::Boton,
                           .pantalla = declara_.pantalla,
                           .grupo = &grupo,
                           .alPulsar = std::move(alPulsar),
                           .mismaLinea = indice > 0 || trasLaCasilla});
}

// --- Rows and entries

void Familiares::limpia() {
    Descendientes.rellena({}, {}, -1);
    Ascendientes.rellena({}, {}, -1);
}

void Familiares::enlaza(Enlaces<DatosRetencion>& enlaces) {
    enlaces.agrega([this](DatosRetencion& r) { tomaLista(Descendientes, r.Hijos, hijoDe); },
                   [this](const DatosRetencion& r) { cargaLista(Descendientes, r.Hijos); });
    enlaces.agrega([this](DatosRetencion& r) { tomaLista(Ascendientes, r.Ascendientes, ascendienteDe); },
                   [this](const DatosRetencion& r) { cargaLista(Ascendientes, r.Ascendientes); });
}

// --- Buttons

bool Familiares::acepta(bool correcto, Campo& campo, const char* mensaje) {
    if (correcto) return true;
    declara_.mensajes.ComunicaError(mensaje);
    campo.pideFoco();
    return false;
}

void Familiares::agregaHijo() {
    const int nacimiento = anioDe(NacimientoHijo);
    const int adopcion = anioDe(AdopcionHijo);
    const bool caben = Descendientes.opciones().size() < DatosRetencion{}.Hijos.size();
    if (!acepta(caben, Descendientes, "No caben más de 10 hijos y otros descendientes") ||
        !acepta(esAnio(nacimiento), NacimientoHijo, "Año de nacimiento incorrecto") ||
        !acepta(adopcion == 0 || esAnio(adopcion), AdopcionHijo, "Año de adopción incorrecto")) {
        return;
    }
    const Hijo hijo{1, static_cast<std::int16_t>(nacimiento),
                    static_cast<std::uint8_t>(ComputoHijo.marcado() ? 1 : 0), adopcion,
                    static_cast<std::uint8_t>(DiscapacidadHijo.indice())};
    agrega(Descendientes, filaDe(hijo));
    for (Campo* campo : {&NacimientoHijo, &AdopcionHijo, &DiscapacidadHijo, &ComputoHijo})
        campo->ponDefecto();
    NacimientoHijo.pideFoco();
}

void Familiares::agregaAscendiente() {
    const int nacimiento = anioDe(NacimientoAscen);
    const bool caben = Ascendientes.opciones().size() < DatosRetencion{}.Ascendientes.size();
    if (!acepta(caben, Ascendientes, "No caben más de 5 ascendientes") ||
        !acepta(esAnio(nacimiento), NacimientoAscen, "Año de nacimiento incorrecto") ||
        !acepta(esConvivencia(ConvAscen.texto()), ConvAscen, kPersonasQueConviven)) {
        return;
    }
    const Ascendiente ascendiente{1,
                                  static_cast<std::int16_t>(nacimiento),
                                  static_cast<std::uint8_t>(EnteroDe(ConvAscen.texto())),
                                  static_cast<std::uint8_t>(DiscapacidadAscen.indice()),
                                  {}};
    agrega(Ascendientes, filaDe(ascendiente));
    for (Campo* campo : {&NacimientoAscen, &ConvAscen, &DiscapacidadAscen}) campo->ponDefecto();
    NacimientoAscen.pideFoco();
}

void Familiares::borra(Campo& lista) {
    const auto fila = static_cast<std::ptrdiff_t>(lista.indice());
    if (fila < 0) return;
    auto textos = lista.opciones();
    auto datos = lista.datos();
    textos.erase(textos.begin() + fila);
    datos.erase(datos.begin() + fila);
    lista.rellena(std::move(textos), std::move(datos), lista.indice());
}

/// Any other key is told at once and swallowed.
void Familiares::compruebaConvivencia() {
    if (ConvAscen.texto().empty() || esConvivencia(ConvAscen.texto())) return;
    ConvAscen.ponTexto("");
    declara_.mensajes.ComunicaError(kPersonasQueConviven);
}

}  // namespace orvemo::irpf
