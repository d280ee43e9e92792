#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundations/values/fechas.h"
#include "foundations/values/mensajes.h"

namespace orvemo::lote {

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

}  // namespace orvemo::lote
