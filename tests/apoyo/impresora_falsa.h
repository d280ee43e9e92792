#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apoyo/destino_grabador.h"
#include "foundations/frame/entorno.h"

namespace orvemo::pruebas {

/// A printer that hands out recorders and keeps what the last document held once it is closed. Must outlive
/// what it hands out.
class ImpresoraFalsa final : public Impresora {
  public:
    bool cancela = false;          ///< the user cancels the dialog
    bool fallaAlTerminar = false;  ///< the document is refused at its end

    std::vector<std::string> lineas;  ///< see DestinoGrabador::lineas
    std::vector<Operacion> operaciones;

    [[nodiscard]] std::unique_ptr<DestinoImpresion> elige(const std::string& /*documento*/) override {
        if (cancela) return nullptr;
        auto grabador = std::make_unique<DestinoGrabador>();
        grabador->fallaAlTerminar = fallaAlTerminar;
        grabador->alCerrar = [this](const DestinoGrabador& cerrado) { guarda(cerrado); };
        return grabador;
    }

  private:
    void guarda(const DestinoGrabador& cerrado) {
        lineas = cerrado.lineas();
        operaciones = cerrado.operaciones;
    }
};

}  // namespace orvemo::pruebas
