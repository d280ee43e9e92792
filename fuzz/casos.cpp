// Any bytes as a case file: what can be read is listed, every operation does what it says or leaves the file
// as it was, and any record goes through the layouts and back.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "apoyo/almacen_memoria.h"
#include "apoyo/mensajes_falsos.h"
#include "cases/archivo_supuestos.h"
#include "cases/dialogos.h"
#include "catalogue/catalogo.h"
#include "exige.h"
#include "foundations/values/textos.h"
#include "longitudes.h"

namespace {

using namespace orvemo;
using namespace orvemo::pruebas;

constexpr const char* kNombre = "casos.nom";

/// A record read and written again may lose what is no date; a second time it loses nothing.
void porSuDiseno(const RegistroCatalogo& registro, const std::string& bytes) {
    if (bytes.size() < registro.longitud) return;
    const std::string escrito = registro.relee(bytes);
    exige(escrito.size() == registro.longitud, "a record has its length");
    exige(escrito.substr(0, kAnchoCabecera) == bytes.substr(0, kAnchoCabecera), "a head stays as it was");
    exige(registro.relee(escrito) == escrito, "a record written reads back");
}

void porLosDisenos(const std::string& bytes) {
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        if (entrada.registro.relee != nullptr) porSuDiseno(entrada.registro, bytes);
    }
}

/// The case file as the operations see it, and what they must do to it.
class Prueba {
  public:
    Prueba(std::size_t longitud, std::string bytes) : archivo_{almacen_, kNombre, longitud} {
        almacen_[kNombre] = std::move(bytes);
    }

    void lista() {
        const auto lista = archivo_.lista();
        exige(lista.size() <= static_cast<std::size_t>(archivo_.cuenta()), "no more cases than records");
        for (const EntradaSupuesto& entrada : lista) {
            const auto entero = registroEntero(entrada.registro);
            exige(entero || entrada.registro == archivo_.cuenta(), "the last alone may be partial");
            if (!entero) continue;
            const std::string& registro = *entero;
            exige(registro.front() != kRegistroLibre, "free slots aren't listed");
            exige(CuentaCaracteres(entrada.nombre) <= kAnchoNombre, "a name fits its field");
            exige(A1252(entrada.nombre).size() == CuentaCaracteres(entrada.nombre), "and 1252 has it all");
            porLosDisenos(registro);
        }
        const auto ordenada = OrdenaAlfabeticamente(lista);
        exige(std::is_permutation(lista.begin(), lista.end(), ordenada.begin(), ordenada.end(),
                                  [](const auto& a, const auto& b) {
                                      return a.registro == b.registro && a.nombre == b.nombre;
                                  }),
              "ordering loses nobody");
    }

    void agrega(std::string registro, std::optional<Averia> averia) {
        registro.resize(archivo_.longitud(), ' ');
        const std::size_t casos = archivo_.lista().size();
        escribe(averia, [&] {
            const int r = archivo_.agrega(registro);
            registro.front() = kRegistroEnUso;
            exige(archivo_.lee(r) == registro, "a case appended stands where it was told");
            exige(archivo_.lista().size() == casos + 1, "and is one more");
        });
    }

    void sobrescribePorNombre(std::string registro, std::optional<Averia> averia) {
        registro.resize(archivo_.longitud(), ' ');
        const std::string antes = almacen_[kNombre];
        escribe(averia, [&] {
            const auto r = archivo_.sobrescribePorNombre(registro);
            exige(r || almacen_[kNombre] == antes, "without a match nothing is written");
        });
    }

    void borra(unsigned cual, std::optional<Averia> averia) {
        const auto lista = archivo_.lista();
        if (lista.empty()) return;
        const int r = lista[cual % lista.size()].registro;
        const auto antes = registroEntero(r);
        escribe(averia, [&] {
            archivo_.borra(r);
            if (antes)
                exige(archivo_.lee(r).substr(kAnchoCabecera) == antes->substr(kAnchoCabecera),
                      "the rest stays");
            exige(archivo_.lista().size() == lista.size() - 1, "an erased case is one less");
        });
    }

    void graba(const std::string& nombre) {
        MensajesFalsos mensajes;
        mensajes.respuestas = {true};
        GrabaSupuesto dialogo{almacen_, mensajes, kNombre, archivo_.longitud(), 1};
        dialogo.Inicia(nombre);
        dialogo.BotonGrabar();
        exige(dialogo.oculto() == dialogo.puedeGrabar(), "a name that isn't blank is saved");
        exige(dialogo.Registro() == kRegistroNuevo || dialogo.Registro() <= archivo_.cuenta(),
              "over a record");
    }

  private:
    /// nullopt for a partial last record.
    [[nodiscard]] std::optional<std::string> registroEntero(int r) const {
        try {
            return archivo_.lee(r);
        } catch (const FicheroInaccesible&) {
            return std::nullopt;
        }
    }

    /// A write that fails once leaves the file as it was.
    void escribe(std::optional<Averia> averia, auto&& operacion) {
        const std::string antes = almacen_[kNombre];
        almacen_.averia = averia;
        try {
            operacion();
        } catch (const FicheroInaccesible&) {
            exige(averia.has_value(), "a sound disk writes");
            exige(almacen_[kNombre] == antes, "a failed write leaves what there was");
        }
        almacen_.averia.reset();
    }

    AlmacenMemoria almacen_;
    ArchivoSupuestos archivo_;
};

/// One operation, in four bytes of the input.
struct Paso {
    unsigned clase;
    unsigned lugar;  ///< of the record erased, or in the file of the bytes that are written
    std::optional<Averia> averia;
};
constexpr std::size_t kBytesDePaso = 4;
constexpr std::size_t kMaximoPasos = 8;

Paso leePaso(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    Paso paso{.clase = byte(0) % 4U, .lugar = byte(1), .averia = {}};
    if (byte(0) >= 128U) paso.averia = Averia{.bytes = byte(2) * 8U + byte(3) % 8U};
    return paso;
}

void da(Prueba& prueba, const Paso& paso, const std::string& fichero) {
    // Names of the file itself, so that they meet one another.
    const std::string bytes = fichero.substr(paso.lugar * fichero.size() / 256);
    if (paso.clase == 0) prueba.agrega(bytes, paso.averia);
    if (paso.clase == 1) prueba.sobrescribePorNombre(bytes, paso.averia);
    if (paso.clase == 2) prueba.borra(paso.lugar, paso.averia);
    if (paso.clase == 3) prueba.graba(De1252(bytes.substr(0, kAnchoNombre)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    const std::string entrada(datos, datos + cuantos);
    if (entrada.size() < 2) return 0;
    const std::size_t longitud = kLongitudes[static_cast<unsigned char>(entrada[0]) % kLongitudes.size()];
    const std::size_t pasos = std::min(static_cast<unsigned char>(entrada[1]) % (kMaximoPasos + 1),
                                       (entrada.size() - 2) / kBytesDePaso);
    const std::string fichero = entrada.substr(2 + pasos * kBytesDePaso);
    Prueba prueba{longitud, fichero};
    prueba.lista();
    for (std::size_t i = 0; i < pasos; ++i) {
        da(prueba, leePaso(std::string_view{entrada}.substr(2 + i * kBytesDePaso)), fichero);
    }
    prueba.lista();
    return 0;
}
