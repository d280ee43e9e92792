#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "foundations/values/mensajes.h"

namespace orvemo::pruebas {

/// Keeps what was said and answers the questions as told beforehand (No when nothing was).
class MensajesFalsos final : public Mensajes {
  public:
    std::deque<bool> respuestas;
    std::vector<std::string> dichos;  ///< "Confirma: …", "Informa: …", "Error: …", in order

    bool Confirma(std::string_view texto) override {
        dichos.push_back("Confirma: " + std::string{texto});
        if (respuestas.empty()) return false;
        const bool respuesta = respuestas.front();
        respuestas.pop_front();
        return respuesta;
    }
    void Informa(std::string_view texto) override { dichos.push_back("Informa: " + std::string{texto}); }
    void ComunicaError(std::string_view texto) override { dichos.push_back("Error: " + std::string{texto}); }
};

/// A day that stands still.
class RelojFijo final : public Reloj {
  public:
    explicit RelojFijo(Fecha dia) : dia_{dia} {}
    [[nodiscard]] Fecha hoy() const override { return dia_; }

  private:
    Fecha dia_;
};

}  // namespace orvemo::pruebas
