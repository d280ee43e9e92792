#include "cases/archivo_supuestos.h"

#include <algorithm>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr std::size_t kPosicionNombre = 1;

std::string nombreSupuesto(std::string_view cabecera) {
    const std::string_view bytes = cabecera.substr(kPosicionNombre, kAnchoNombre);
    return De1252(Recorta(bytes.substr(0, bytes.find('\0'))));
}

}  // namespace

ArchivoSupuestos::ArchivoSupuestos(Almacen& almacen, std::string nombre, std::size_t longitud)
    : almacen_{almacen}, nombre_{std::move(nombre)}, longitud_{longitud} {}

std::uint64_t ArchivoSupuestos::posicion(int r) const {
    return static_cast<std::uint64_t>(r - 1) * longitud_;
}

int ArchivoSupuestos::cuenta(FicheroAleatorio& fichero) const {
    return RedondeaPar16(static_cast<double>(fichero.longitud()) / static_cast<double>(longitud_));
}

int ArchivoSupuestos::cuenta() const {
    return cuenta(*almacen_.abre(nombre_, Acceso::Lectura));
}

std::string ArchivoSupuestos::lee(int r) const {
    std::string bytes(longitud_, '\0');
    almacen_.abre(nombre_, Acceso::Lectura)->lee(posicion(r), bytes);
    return bytes;
}

std::vector<EntradaSupuesto> ArchivoSupuestos::lista() const {
    const auto fichero = almacen_.abre(nombre_, Acceso::Lectura);
    const int registros = cuenta(*fichero);
    std::vector<EntradaSupuesto> entradas;
    for (int r = 1; r <= registros; ++r) {
        std::string cabecera(kAnchoCabecera, '\0');
        fichero->lee(posicion(r), cabecera);
        if (cabecera.front() != kRegistroLibre) entradas.push_back({r, nombreSupuesto(cabecera)});
    }
    return entradas;
}

int ArchivoSupuestos::agrega(std::string bytes) {
    bytes.front() = kRegistroEnUso;
    const auto fichero = almacen_.abre(nombre_, Acceso::Escritura);
    const int registros = cuenta(*fichero);
    int r = 1;
    for (char estado = '\0'; r <= registros; ++r) {
        fichero->lee(posicion(r), {&estado, 1});
        if (estado == kRegistroLibre) break;
    }
    if (r > kMaxRegistros) throw DesbordeNumerico{static_cast<double>(r)};
    escribeEntero(*fichero, r, bytes);
    return r;
}

void ArchivoSupuestos::sobrescribe(int r, std::string bytes) {
    bytes.front() = kRegistroEnUso;
    escribeEntero(*almacen_.abre(nombre_, Acceso::Escritura), r, bytes);
}

std::optional<int> ArchivoSupuestos::sobrescribePorNombre(std::string bytes) {
    bytes.front() = kRegistroEnUso;
    const auto fichero = almacen_.abre(nombre_, Acceso::Escritura);
    const int registros = cuenta(*fichero);
    const std::string_view buscado = std::string_view{bytes}.substr(0, kPosicionNombre + kAnchoNombre);
    for (int r = 1; r <= registros; ++r) {
        std::string cabecera(buscado.size(), '\0');
        fichero->lee(posicion(r), cabecera);
        if (cabecera != buscado) continue;
        escribeEntero(*fichero, r, bytes);
        return r;
    }
    return std::nullopt;
}

void ArchivoSupuestos::borra(int r) {
    std::string cabecera(kAnchoCabecera, ' ');
    cabecera.front() = kRegistroLibre;
    escribeEntero(*almacen_.abre(nombre_, Acceso::Escritura), r, cabecera);
}

void ArchivoSupuestos::escribeEntero(FicheroAleatorio& fichero, int r, std::string_view bytes) const {
    const std::uint64_t longitudAnterior = fichero.longitud();
    std::string anterior(bytes.size(), '\0');
    anterior.resize(fichero.lee(posicion(r), anterior));
    if (fichero.escribe(posicion(r), bytes) == bytes.size()) return;
    // The old record first, then the old length: a case half written would pass for a whole one.
    fichero.escribe(posicion(r), anterior);
    fichero.corta(longitudAnterior);
    throw FicheroInaccesible{nombre_, "no se ha podido escribir el registro entero (¿disco lleno?)"};
}

}  // namespace orvemo
