#include "cases/diario.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string_view>

#include "foundations/values/fallos.h"

namespace orvemo {

namespace {

// The journal: a mark, where the bytes go, how long the file was, how many are written, those that were there
// and a sum of all that.
constexpr std::string_view kMarca = "ORVEMO-1";
constexpr std::size_t kNumero = sizeof(std::uint64_t);
constexpr std::size_t kPosicionBytes = kMarca.size() + 3 * kNumero;
/// Larger than any record.
constexpr std::size_t kMaximo = 1 << 16;

/// FNV-1a, 64 bits.
std::uint64_t suma(std::string_view bytes) {
    std::uint64_t suma = 0xcbf29ce484222325U;
    for (const char c : bytes) suma = (suma ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    return suma;
}

void agrega(std::string& bytes, std::uint64_t numero) {
    std::array<char, kNumero> ocho{};
    std::memcpy(ocho.data(), &numero, kNumero);
    bytes.append(ocho.data(), kNumero);
}

std::uint64_t numeroEn(std::string_view bytes, std::size_t posicion) {
    std::uint64_t numero = 0;
    std::memcpy(&numero, bytes.substr(posicion, kNumero).data(), kNumero);
    return numero;
}

std::string escrito(const LoAnterior& anterior) {
    std::string bytes{kMarca};
    agrega(bytes, anterior.posicion);
    agrega(bytes, anterior.longitud);
    agrega(bytes, anterior.ancho);
    bytes += anterior.bytes;
    agrega(bytes, suma(bytes));
    return bytes;
}

/// What a whole journal tells.
std::optional<LoAnterior> leido(std::string_view bytes) {
    if (bytes.size() < kPosicionBytes + kNumero || !bytes.starts_with(kMarca)) return std::nullopt;
    const std::string_view sumado = bytes.substr(0, bytes.size() - kNumero);
    if (numeroEn(bytes, sumado.size()) != suma(sumado)) return std::nullopt;
    return LoAnterior{numeroEn(bytes, kMarca.size()), numeroEn(bytes, kMarca.size() + kNumero),
                      numeroEn(bytes, kMarca.size() + 2 * kNumero),
                      std::string{sumado.substr(kPosicionBytes)}};
}

/// Whether the file may be the one that the write left: a copy put in its place since then has other lengths.
bool esDeEse(const LoAnterior& anterior, FicheroAleatorio& fichero) {
    const std::uint64_t ahora = fichero.longitud();
    return ahora >= anterior.longitud &&
           ahora <= std::max(anterior.longitud, anterior.posicion + anterior.ancho);
}

}  // namespace

LoAnterior LoAnterior::de(FicheroAleatorio& fichero, std::uint64_t posicion, std::size_t ancho) {
    LoAnterior anterior{posicion, fichero.longitud(), ancho, std::string(ancho, '\0')};
    anterior.bytes.resize(fichero.lee(posicion, anterior.bytes));
    return anterior;
}

bool LoAnterior::repone(FicheroAleatorio& fichero) const {
    if (!bytes.empty()) fichero.escribe(posicion, bytes);
    if (fichero.longitud() != longitud) fichero.corta(longitud);
    std::string ahora(bytes.size(), '\0');
    fichero.lee(posicion, ahora);
    return ahora == bytes && fichero.longitud() == longitud;
}

Diario::Diario(Almacen& almacen, const std::string& fichero)
    : almacen_{almacen}, fichero_{fichero}, nombre_{fichero + std::string{kSufijoDiario}} {}

void Diario::anota(const LoAnterior& anterior) {
    const std::string bytes = escrito(anterior);
    try {
        if (almacen_.abre(nombre_, Acceso::Escritura)->escribe(0, bytes) == bytes.size()) return;
    } catch (const FicheroInaccesible&) {
        // There is no room for it, as below.
    }
    borra();
}

void Diario::borra() {
    almacen_.elimina(nombre_);
}

void Diario::recupera() {
    if (!almacen_.existe(nombre_)) return;
    try {
        const auto anterior = leido(almacen_.leeHasta(nombre_, kMaximo));
        if (anterior) {
            const auto fichero = almacen_.abre(fichero_, Acceso::Escritura);
            if (esDeEse(*anterior, *fichero) && !anterior->repone(*fichero)) return;
        }
        borra();
    } catch (const FicheroInaccesible&) {
        // Where nothing can be written the file is read as it stands, and the journal waits.
    }
}

}  // namespace orvemo
