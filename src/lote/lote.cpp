#include "lote/lote.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "cases/archivo_supuestos.h"
#include "foundations/frame/asistente.h"
#include "foundations/values/fallos.h"
#include "lote/almacen_lote.h"
#include "lote/salida.h"
#include "toolkit/impresora_pdf.h"

namespace orvemo::lote {

namespace {

/// Nobody sits before a batch: questions get a No, and the first error said is why the case failed.
class MensajesLote final : public Mensajes {
  public:
    std::string error;

    bool Confirma(std::string_view /*texto*/) override { return false; }
    void Informa(std::string_view /*texto*/) override {}
    void ComunicaError(std::string_view texto) override {
        if (error.empty()) error = texto;
    }
};

class RelojLote final : public Reloj {
  public:
    explicit RelojLote(const std::optional<Fecha>& hoy) : hoy_{hoy.value_or(RelojDelSistema{}.hoy())} {}
    [[nodiscard]] Fecha hoy() const override { return hoy_; }

  private:
    Fecha hoy_;
};

/// One calculator just opened, with a world of its own around it.
class Apertura {
  public:
    Apertura(const RegistroCatalogo& registro, Almacen& almacen, const Reloj& reloj,
             std::filesystem::path pdf)
        : impresora_{almacen, std::move(pdf)},
          entorno_{mensajes_, reloj, almacen, impresora_, rutinas_, valores_},
          calculadora_{registro.abre(entorno_)} {}

    [[nodiscard]] Calculadora& calculadora() { return *calculadora_; }
    [[nodiscard]] const std::string& error() const { return mensajes_.error; }
    /// Throws Fallo without a picture to head the pages.
    void imprime(const Almacen& almacen) {
        rutinas_.ponLogo(imagenDe(almacen, "logo.bmp"));
        calculadora_->pulsa(calculadora_->BotonPrint);
    }

  private:
    MensajesLote mensajes_;
    RutinasImpresion rutinas_;
    ValoresPrograma valores_;
    ImpresoraPdf impresora_;
    Entorno entorno_;
    std::unique_ptr<Calculadora> calculadora_;
};

class Lote {
  public:
    /// Throws Fallo for a case file that can't be read, or a data file of the calculator that is amiss.
    Lote(const Opciones& opciones, const std::filesystem::path& datos, const RegistroCatalogo& registro)
        : opciones_{opciones}, almacen_{datos, opciones.fichero}, reloj_{opciones.hoy}, registro_{registro} {
        almacen_.ponNombreDelFichero(std::string{registro.fichero});
        Apertura{registro_, almacen_, reloj_, {}}.calculadora().Inicia();
    }

    [[nodiscard]] int cuenta() { return archivo().cuenta(); }
    /// The case of that record; nullopt for a free slot.
    [[nodiscard]] std::optional<EntradaSupuesto> entrada(int registro) { return archivo().entrada(registro); }

    /// Opens, loads, goes to the conclusions, prints if asked; whatever fails stands in the result.
    [[nodiscard]] Resultado calcula(const EntradaSupuesto& entrada) {
        Resultado resultado;
        resultado.registro = entrada.registro;
        resultado.supuesto = entrada.nombre;
        Apertura apertura{registro_, almacen_, reloj_, rutaPdf(entrada.registro)};
        Calculadora& calculadora = apertura.calculadora();
        try {
            calculadora.Inicia();
            calculadora.DatosCargaRegistro(entrada.registro);
            calculadora.concluye();
            if (opciones_.pdf && apertura.error().empty()) apertura.imprime(almacen_);
            resultado.error = apertura.error();
        } catch (const Fallo& fallo) {
            resultado.error = fallo.what();
        }
        resultado.nombre = calculadora.campoNombre().texto();
        if (const auto* asistente = dynamic_cast<const Asistente*>(&calculadora)) {
            resultado.derecho = asistente->ConDerecho();
            resultado.conclusion = asistente->textoConclusion();
        }
        return resultado;
    }

  private:
    [[nodiscard]] ArchivoSupuestos archivo() {
        return {almacen_, opciones_.fichero.string(), registro_.longitud};
    }

    [[nodiscard]] std::filesystem::path rutaPdf(int registro) const {
        if (!opciones_.pdf) return {};
        return *opciones_.pdf / (opciones_.calculadora + "-" + std::to_string(registro) + ".pdf");
    }

    const Opciones& opciones_;
    AlmacenLote almacen_;
    RelojLote reloj_;
    const RegistroCatalogo& registro_;
};

void exigeDirectorio(const std::filesystem::path& ruta) {
    std::error_code error;
    if (std::filesystem::is_directory(ruta, error)) return;
    throw ArgumentoInservible{"No se encuentra el directorio " + ruta.string() + "."};
}

/// Throws ArgumentoInservible for what can't be used at all.
void compruebaRutas(const Opciones& opciones) {
    if (!ExisteArchivo(opciones.fichero)) {
        throw ArgumentoInservible{"No se encuentra el fichero " + opciones.fichero.string() + "."};
    }
    if (opciones.datos) exigeDirectorio(*opciones.datos);
    if (opciones.pdf) exigeDirectorio(*opciones.pdf);
}

const RegistroCatalogo& registroPedido(Calculadoras catalogo, const std::string& nombre) {
    const auto entrada = std::ranges::find(catalogo, nombre, &EntradaCatalogo::clave);
    if (entrada == catalogo.end()) {
        throw ArgumentoInservible{"No existe la calculadora «" + nombre +
                                  "». Disponibles: " + nombresDisponibles(catalogo) + "."};
    }
    return entrada->registro;
}

/// The records asked for: one, that must be in use, or all.
std::pair<int, int> registrosPedidos(const Opciones& opciones, Lote& lote) {
    const int cuenta = lote.cuenta();
    if (!opciones.registro) return {1, cuenta};
    if (*opciones.registro > cuenta || !lote.entrada(*opciones.registro)) {
        throw ArgumentoInservible{"El fichero no tiene ningún supuesto en el registro " +
                                  std::to_string(*opciones.registro) + "."};
    }
    return {*opciones.registro, *opciones.registro};
}

int calculaTodo(const Opciones& opciones, Lote& lote, std::ostream& salida) {
    const auto [primero, ultimo] = registrosPedidos(opciones, lote);
    bool algunFallo = false;
    for (int registro = primero; registro <= ultimo; ++registro) {
        const auto entrada = lote.entrada(registro);
        if (!entrada) continue;
        const Resultado resultado = lote.calcula(*entrada);
        algunFallo = algunFallo || !resultado.error.empty();
        (opciones.json ? escribeJson : escribeTexto)(salida, resultado);
        // Whoever reads has each result as soon as it's there, and nothing is computed for nobody.
        if (!salida.flush()) throw ArgumentoInservible{"No se puede escribir la salida."};
    }
    return algunFallo ? kAlgunoFallo : kTodoCalculado;
}

}  // namespace

int ejecuta(const Opciones& opciones, Calculadoras catalogo, const std::filesystem::path& datosPorDefecto,
            std::ostream& salida, std::ostream& errores) {
    try {
        compruebaRutas(opciones);
        Lote lote{opciones, opciones.datos.value_or(datosPorDefecto),
                  registroPedido(catalogo, opciones.calculadora)};
        return calculaTodo(opciones, lote, salida);
    } catch (const ArgumentoInservible& error) {
        errores << error.what() << '\n';
    } catch (const Fallo& fallo) {
        errores << "No se ha podido completar la operación: " << fallo.what() << ".\n";
    }
    return kInservible;
}

}  // namespace orvemo::lote
