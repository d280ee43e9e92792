#include "cases/archivo_supuestos.h"

#include <algorithm>
#include <utility>

#include "cases/diario.h"
#include "cases/registro.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

constexpr std::size_t kPosicionNombre = 1;

/// Bytes fetched at a time while heads are looked through: a call to the disk for many records, and no more
/// memory for a large file than for a small one.
constexpr std::size_t kZancada = 65536;

constexpr const char* kSinSitio = "el disco está lleno o no admite más datos; lo que había queda como estaba";
constexpr const char* kAMedias = "el disco ha fallado a media escritura y lo que había puede estar dañado";

bool esLibre(std::string_view cabecera) {
    return cabecera.front() == kRegistroLibre;
}

std::string nombreSupuesto(std::string_view cabecera) {
    Texto<kAnchoNombre> nombre;
    EnRegistro<Texto<kAnchoNombre>>::lee(cabecera.data() + kPosicionNombre, nombre);
    return nombre.utf8();
}

/// The first record, from 1, whose head satisfies `cumple(r, cabecera)`. What the file lacks of the last one
/// reads as NUL.
template <typename Condicion>
std::optional<int> buscaCabecera(FicheroAleatorio& fichero, std::size_t longitud, int registros,
                                 const Condicion& cumple) {
    const int porZancada = static_cast<int>(std::max<std::size_t>(kZancada / longitud, 1));
    std::string bytes(static_cast<std::size_t>(std::min(porZancada, registros)) * longitud, '\0');
    for (int primero = 1; primero <= registros; primero += porZancada) {
        const int cuantos = std::min(porZancada, registros - primero + 1);
        bytes.resize(static_cast<std::size_t>(cuantos) * longitud);
        const std::size_t leidos = fichero.lee(static_cast<std::uint64_t>(primero - 1) * longitud, bytes);
        std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(leidos), bytes.end(), '\0');
        for (std::size_t i = 0; i < static_cast<std::size_t>(cuantos); ++i) {
            const int r = primero + static_cast<int>(i);
            if (cumple(r, std::string_view{bytes}.substr(i * longitud, kAnchoCabecera))) return r;
        }
    }
    return std::nullopt;
}

}  // namespace

DemasiadosSupuestos::DemasiadosSupuestos(const std::string& fichero, int registros)
    : DesbordeNumerico{static_cast<double>(registros),
                       "el fichero \"" + fichero + "\" no puede tener " + std::to_string(registros) +
                           " supuestos: el máximo es " + std::to_string(kMaxRegistros)} {}

ArchivoSupuestos::ArchivoSupuestos(Almacen& almacen, std::string nombre, std::size_t longitud)
    : almacen_{almacen}, nombre_{std::move(nombre)}, longitud_{longitud} {}

std::uint64_t ArchivoSupuestos::posicion(int r) const {
    return static_cast<std::uint64_t>(r - 1) * longitud_;
}

int ArchivoSupuestos::cuenta(FicheroAleatorio& fichero) const {
    const int registros =
        RedondeaPar(static_cast<double>(fichero.longitud()) / static_cast<double>(longitud_));
    if (registros > kMaxRegistros) throw DemasiadosSupuestos{nombre_, registros};
    return registros;
}

int ArchivoSupuestos::cuenta() const {
    return cuenta(*abre(Acceso::Lectura));
}

std::unique_ptr<FicheroAleatorio> ArchivoSupuestos::abre(Acceso acceso) const {
    Diario{almacen_, nombre_}.recupera();
    return almacen_.abre(nombre_, acceso);
}

std::string ArchivoSupuestos::leeEntero(int r, std::size_t ancho) const {
    std::string bytes(ancho, '\0');
    if (r > kMaxRegistros || abre(Acceso::Lectura)->lee(posicion(r), bytes) < ancho) throw falta(r);
    return bytes;
}

FicheroInaccesible ArchivoSupuestos::falta(int r) const {
    return {nombre_, "el registro " + std::to_string(r) + " falta o no está entero"};
}

std::string ArchivoSupuestos::lee(int r) const {
    return leeEntero(r, longitud_);
}

std::optional<EntradaSupuesto> ArchivoSupuestos::entrada(int r) const {
    const std::string cabecera = leeEntero(r, kAnchoCabecera);
    if (esLibre(cabecera)) return std::nullopt;
    return EntradaSupuesto{r, nombreSupuesto(cabecera)};
}

std::vector<EntradaSupuesto> ArchivoSupuestos::lista() const {
    const auto fichero = abre(Acceso::Lectura);
    const int registros = cuenta(*fichero);
    std::vector<EntradaSupuesto> entradas;
    entradas.reserve(static_cast<std::size_t>(registros));
    buscaCabecera(*fichero, longitud_, registros, [&](int r, std::string_view cabecera) {
        if (!esLibre(cabecera)) entradas.push_back({r, nombreSupuesto(cabecera)});
        return false;
    });
    return entradas;
}

int ArchivoSupuestos::agrega(std::string bytes) {
    bytes.front() = kRegistroEnUso;
    const auto fichero = abre(Acceso::Escritura);
    const int registros = cuenta(*fichero);
    const auto libre = buscaCabecera(*fichero, longitud_, registros,
                                     [](int, std::string_view cabecera) { return esLibre(cabecera); });
    const int r = libre.value_or(registros + 1);
    if (r > kMaxRegistros) throw DemasiadosSupuestos{nombre_, r};
    escribeEntero(*fichero, r, bytes);
    return r;
}

void ArchivoSupuestos::agregaTodos(std::span<const std::string> registros) {
    if (registros.empty()) return;
    const auto fichero = abre(Acceso::Escritura);
    int cuantos = cuenta(*fichero);
    std::string contenido(static_cast<std::size_t>(cuantos) * longitud_, '\0');
    fichero->lee(0, contenido);
    int r = 1;
    for (const std::string& bytes : registros) {
        while (r <= cuantos && contenido[posicion(r)] != kRegistroLibre) ++r;
        if (r > kMaxRegistros) throw DemasiadosSupuestos{nombre_, r};
        cuantos = std::max(cuantos, r);
        contenido.resize(std::max(contenido.size(), posicion(r + 1)));
        contenido.replace(posicion(r), longitud_, bytes);
        ++r;
    }
    almacen_.sustituye(nombre_, contenido);
}

void ArchivoSupuestos::sobrescribe(int r, std::string bytes) {
    bytes.front() = kRegistroEnUso;
    const auto fichero = abre(Acceso::Escritura);
    // The file may have gone or shrunk since the record was chosen; past its end there's room for one more.
    if (r > cuenta(*fichero) + 1) throw falta(r);
    escribeEntero(*fichero, r, bytes);
}

std::optional<int> ArchivoSupuestos::sobrescribePorNombre(std::string bytes) {
    bytes.front() = kRegistroEnUso;
    const auto fichero = abre(Acceso::Escritura);
    const std::string_view buscado = std::string_view{bytes}.substr(0, kPosicionNombre + kAnchoNombre);
    const auto encontrado =
        buscaCabecera(*fichero, longitud_, cuenta(*fichero),
                      [&](int, std::string_view cabecera) { return cabecera.starts_with(buscado); });
    if (encontrado) escribeEntero(*fichero, *encontrado, bytes);
    return encontrado;
}

void ArchivoSupuestos::borra(int r) {
    std::string cabecera(kAnchoCabecera, ' ');
    cabecera.front() = kRegistroLibre;
    const auto fichero = abre(Acceso::Escritura);
    if (r > cuenta(*fichero)) throw falta(r);
    escribeEntero(*fichero, r, cabecera);
}

void ArchivoSupuestos::escribeEntero(FicheroAleatorio& fichero, int r, std::string_view bytes) const {
    const LoAnterior anterior = LoAnterior::de(fichero, posicion(r), bytes.size());
    Diario diario{almacen_, nombre_};
    diario.anota(anterior);
    const bool escrito = fichero.escribe(posicion(r), bytes) == bytes.size();
    const bool repuesto = !escrito && anterior.repone(fichero);
    // What could not be put back now waits in the journal for the next opening.
    if (escrito || repuesto) diario.borra();
    if (!escrito) throw FicheroInaccesible{nombre_, repuesto ? kSinSitio : kAMedias};
}

}  // namespace orvemo
