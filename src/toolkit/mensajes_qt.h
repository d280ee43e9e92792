#pragma once

#include "foundations/values/mensajes.h"

namespace orvemo {

/// The message boxes on the screen. The window that was active is so again after each.
class MensajesQt final : public Mensajes {
  public:
    bool Confirma(std::string_view texto) override;
    void Informa(std::string_view texto) override;
    void ComunicaError(std::string_view texto) override;
};

}  // namespace orvemo
