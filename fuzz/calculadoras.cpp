// Any record of any calculator of the catalogue: it is shown, concluded, printed and told by its fields, and
// once it has been through the screen it comes back the same. The first byte chooses the calculator.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/destino_grabador.h"
#include "apoyo/entorno_falso.h"
#include "cases/texto_caso.h"
#include "catalogue/catalogo.h"
#include "exige.h"
#include "foundations/frame/asistente.h"
#include "foundations/values/fallos.h"

namespace {

using namespace orvemo;

/// A calculator opened once: what one record leaves must not reach the next.
class Abierta {
  public:
    explicit Abierta(const RegistroCatalogo& registro) : registro_{registro} {
        const DirectorioAplicacion datos{ORVEMO_DATOS};
        for (const auto& fichero : std::filesystem::directory_iterator{ORVEMO_DATOS}) {
            const std::string nombre = fichero.path().filename();
            const bool imagen = nombre.ends_with(".bmp");
            if (fichero.is_regular_file() && !imagen) mundo_.almacen[nombre] = datos.leeTodo(nombre);
        }
        mundo_.almacen[registro.fichero].clear();
        frm_ = registro.abre(mundo_.entorno);
        frm_->Inicia();
    }

    void recorre(std::string bytes) {
        bytes.resize(registro_.longitud, ' ');
        cuentaCampos(bytes);
        mundo_.mensajes.dichos.clear();
        exige(frm_->pulsa(frm_->BotonNuevo), "a new case can always be begun");
        mundo_.almacen[registro_.fichero] = std::move(bytes);
        try {
            frm_->DatosCargaRegistro(1);
        } catch (const Fallo&) {
            return;  // a case that can't be shown
        }
        frm_->concluye();
        compruebaVeredicto();
        imprime();
        const std::string primero = guardado();
        frm_->DatosCargaRegistro(1);
        exige(guardado() == primero, "a case comes back as it was saved");
    }

  private:
    void cuentaCampos(const std::string& bytes) const {
        std::string texto;
        EscribeCampos(texto, *registro_.forma, bytes);
        exige(texto.starts_with('{') && texto.ends_with('}'), "a record is told on one line");
        for (const char c : texto) exige(static_cast<unsigned char>(c) >= 0x20, "without control characters");
    }

    void compruebaVeredicto() const {
        const auto* asistente = dynamic_cast<const Asistente*>(frm_.get());
        if (asistente == nullptr || frm_->PantallaActual() != frm_->ultimaPantalla()) return;
        exige(asistente->Ok.visible() == asistente->ConDerecho(), "the mark tells the right");
    }

    void imprime() {
        pruebas::DestinoGrabador papel;
        mundo_.rutinas.empieza(papel);
        try {
            frm_->ImprimeInforme(mundo_.rutinas);
        } catch (const Fallo&) {
            // Told in a box on the screen.
        }
    }

    std::string guardado() {
        frm_->DatosTomaPantalla();
        exige(frm_->DatosGrabaRegistro(1), "a sound disk writes");
        return mundo_.almacen[registro_.fichero];
    }

    const RegistroCatalogo& registro_;
    pruebas::EntornoFalso mundo_;
    std::unique_ptr<Calculadora> frm_;
};

std::vector<std::unique_ptr<Abierta>> abreTodas() {
    std::vector<std::unique_ptr<Abierta>> abiertas;
    for (const EntradaCatalogo& entrada : CalculadorasDelPrograma()) {
        if (entrada.registro.abre != nullptr) abiertas.push_back(std::make_unique<Abierta>(entrada.registro));
    }
    return abiertas;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    static const std::vector<std::unique_ptr<Abierta>> abiertas = abreTodas();
    if (cuantos == 0) return 0;
    abiertas[datos[0] % abiertas.size()]->recorre({reinterpret_cast<const char*>(datos + 1), cuantos - 1});
    return 0;
}
