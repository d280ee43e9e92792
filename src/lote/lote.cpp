#include "lote/lote.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <system_error>

#include "cases/archivo_supuestos.h"
#include "cases/texto_caso.h"
#include "foundations/frame/asistente.h"
#include "foundations/values/fallos.h"
#include "lote/almacen_lote.h"
#include "lote/corrida.h"
#include "lote/liquidos_lote.h"
#include "lote/mundo_lote.h"
#include "lote/traslado.h"
#include "toolkit/impresora_pdf.h"

namespace orvemo::lote {

namespace {

/// One calculator, with a world of its own around it.
class Apertura {
  public:
    Apertura(const RegistroCatalogo& registro, Almacen& almacen, const Reloj& reloj)
        : impresora_{almacen},
          entorno_{mensajes_, reloj, almacen, impresora_, rutinas_, valores_},
          calculadora_{registro.abre(entorno_)} {
        calculadora_->Inicia();
    }

    /// Leaves the calculator as it was just opened; false when it can't be.
    [[nodiscard]] bool empiezaDeNuevo() {
        mensajes_.error.clear();
        valores_ = {};
        return calculadora_->pulsa(calculadora_->BotonNuevo);
    }
    [[nodiscard]] Calculadora& calculadora() { return *calculadora_; }
    [[nodiscard]] const std::string& error() const { return mensajes_.error; }
    /// Throws Fallo without a picture to head the pages.
    void imprime(const Almacen& almacen, std::filesystem::path pdf) {
        rutinas_.ponLogo(imagenDe(almacen, "logo.bmp"));
        impresora_.ponRuta(std::move(pdf));
        calculadora_->imprime();
    }

  private:
    MensajesLote mensajes_;
    RutinasImpresion rutinas_;
    ValoresPrograma valores_;
    ImpresoraPdf impresora_;
    Entorno entorno_;
    std::unique_ptr<Calculadora> calculadora_;
};

/// Chooses the kind of beneficiaries. Throws ArgumentoInservible where there is none to choose.
void eligePapel(Calculadora& calculadora, int papel) {
    const auto lista =
        std::ranges::find(calculadora.campos(), "Papel", [](const Campo& c) { return c.def().nombre; });
    if (lista == calculadora.campos().end()) {
        throw ArgumentoInservible{"La calculadora pedida no tiene papeles que elegir."};
    }
    const int ultimo = static_cast<int>(lista->opciones().size()) - 1;
    if (papel > ultimo)
        throw ArgumentoInservible{"El papel debe ser un número de 0 a " + std::to_string(ultimo) + "."};
    lista->ponIndice(papel);
}

class Lote final : public Calculo {
  public:
    /// Throws Fallo for a case file that can't be read, or a data file of the calculator that is amiss.
    Lote(const Opciones& opciones, const std::filesystem::path& datos, const RegistroCatalogo& registro)
        : opciones_{opciones},
          almacen_{datos, opciones.fichero},
          archivo_{almacen_, opciones.fichero.string(), registro.longitud},
          reloj_{opciones.hoy},
          registro_{registro} {
        almacen_.ponNombreDelFichero(std::string{registro.fichero});
        apertura_ = std::make_unique<Apertura>(registro_, almacen_, reloj_);
        if (opciones_.papel) eligePapel(apertura_->calculadora(), *opciones_.papel);
    }

    [[nodiscard]] int cuenta() const override { return archivo_.cuenta(); }
    [[nodiscard]] std::optional<EntradaSupuesto> entrada(int registro) const override {
        return archivo_.entrada(registro);
    }

    /// Loads, goes to the conclusions, prints if asked; whatever fails stands in the result. Nothing of one
    /// case is there for the next.
    [[nodiscard]] Resultado calcula(const EntradaSupuesto& entrada) override {
        Resultado resultado;
        resultado.registro = entrada.registro;
        resultado.supuesto = entrada.nombre;
        try {
            if (!apertura_ || !apertura_->empiezaDeNuevo())
                apertura_ = std::make_unique<Apertura>(registro_, almacen_, reloj_);
            recorre(resultado);
        } catch (const Fallo& fallo) {
            resultado.error = fallo.what();
        }
        // Where a failure left the calculator is not looked into: the next case opens another.
        if (!resultado.error.empty()) apertura_.reset();
        return resultado;
    }

  private:
    void recorre(Resultado& resultado) {
        Calculadora& calculadora = apertura_->calculadora();
        if (opciones_.papel) eligePapel(calculadora, *opciones_.papel);
        calculadora.DatosCargaRegistro(resultado.registro);
        calculadora.concluye();
        if (opciones_.pdf && apertura_->error().empty())
            apertura_->imprime(almacen_, rutaPdf(resultado.registro));
        resultado.error = apertura_->error();
        resultado.nombre = calculadora.campoNombre().texto();
        const auto* asistente = dynamic_cast<const Asistente*>(&calculadora);
        if (asistente != nullptr && calculadora.PantallaActual() == calculadora.ultimaPantalla()) {
            resultado.derecho = asistente->ConDerecho();
            resultado.conclusion = asistente->textoConclusion();
        }
        if (asistente == nullptr) {
            resultado.conDictamen = false;
            if (!opciones_.json) resultado.conclusion = calculadora.textoResultados();
        }
        if (!opciones_.json) return;
        resultado.miembros = ",\"campos\":";
        EscribeCampos(resultado.miembros, *registro_.forma, archivo_.lee(resultado.registro));
        calculadora.agregaResultados(resultado.miembros);
    }

    [[nodiscard]] std::filesystem::path rutaPdf(int registro) const {
        return *opciones_.pdf / (opciones_.calculadora + "-" + std::to_string(registro) + ".pdf");
    }

    const Opciones& opciones_;
    AlmacenLote almacen_;
    ArchivoSupuestos archivo_;
    RelojLote reloj_;
    const RegistroCatalogo& registro_;
    std::unique_ptr<Apertura> apertura_;
};

void exigeDirectorio(const std::filesystem::path& ruta) {
    std::error_code error;
    if (std::filesystem::is_directory(ruta, error)) return;
    throw ArgumentoInservible{"No se encuentra el directorio " + ruta.string() + "."};
}

/// Throws ArgumentoInservible for what can't be used at all.
void compruebaRutas(const Opciones& opciones) {
    std::error_code error;
    const bool falta =
        std::filesystem::status(opciones.fichero, error).type() == std::filesystem::file_type::not_found;
    if (falta && opciones.mandato != Mandato::Importa)
        throw ArgumentoInservible{"No se encuentra el fichero " + opciones.fichero.string() + "."};
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

int obedece(const Opciones& opciones, Calculadoras catalogo, const std::filesystem::path& datosPorDefecto,
            std::ostream& salida, std::ostream& errores, std::istream& entrada, std::ostream* terminal) {
    compruebaRutas(opciones);
    const RegistroCatalogo& registro = registroPedido(catalogo, opciones.calculadora);
    const auto datos = opciones.datos.value_or(datosPorDefecto);
    if (registro.abre == nullptr) return CalculaLiquidos(opciones, datos, salida, terminal);
    if (opciones.mandato == Mandato::Exporta) {
        Exporta(registro, opciones.fichero, salida);
        if (!salida.flush()) throw ArgumentoInservible{"No se puede escribir la salida."};
        return kTodoCalculado;
    }
    if (opciones.mandato == Mandato::Importa) {
        const bool importado = Importa(registro, opciones.fichero, entrada, errores);
        return importado ? kTodoCalculado : kInservible;
    }
    Lote lote{opciones, datos, registro};
    return calculaTodo(opciones, lote, salida, terminal);
}

}  // namespace

int ejecuta(const Opciones& opciones, Calculadoras catalogo, const std::filesystem::path& datosPorDefecto,
            std::ostream& salida, std::ostream& errores, std::istream& entrada, std::ostream* terminal) {
    try {
        return obedece(opciones, catalogo, datosPorDefecto, salida, errores, entrada, terminal);
    } catch (const ArgumentoInservible& error) {
        errores << error.what() << '\n';
    } catch (const std::bad_alloc&) {
        errores << "No se ha podido completar la operación: no hay memoria para tanto.\n";
    } catch (const std::exception& error) {
        errores << "No se ha podido completar la operación: " << error.what() << ".\n";
    }
    return kInservible;
}

}  // namespace orvemo::lote
