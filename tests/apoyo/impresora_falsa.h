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

    std::vector<std::string> documentos;  ///< names of the documents asked for, in order
    std::vector<std::string> lineas;      ///< see DestinoGrabador::lineas
    std::vector<std::string> dibujo;      ///< see DestinoGrabador::dibujo
    std::vector<Operacion> operaciones;
    bool terminado = false;

    [[nodiscard]] std::unique_ptr<DestinoImpresion> elige(const std::string& documento) override {
        if (cancela) return nullptr;
        documentos.push_back(documento);
        auto grabador = std::make_unique<DestinoGrabador>();
        grabador->fallaAlTerminar = fallaAlTerminar;
        grabador->alCerrar = [this](const DestinoGrabador& cerrado) { guarda(cerrado); };
        return grabador;
    }

  private:
    void guarda(const DestinoGrabador& cerrado) {
        lineas = cerrado.lineas();
        dibujo = cerrado.dibujo();
        operaciones = cerrado.operaciones;
        terminado = cerrado.terminado;
    }
};

}  // namespace orvemo::pruebas
