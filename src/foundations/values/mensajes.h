#pragma once

#include <string_view>

#include "foundations/values/fechas.h"

namespace orvemo {

/// The only way in which the program speaks to the user outside its screens: modal boxes.
class Mensajes {
  public:
    virtual ~Mensajes() = default;

    /// "Confirmación": Yes and No, Yes preselected. True on Yes.
    [[nodiscard]] virtual bool Confirma(std::string_view texto) = 0;
    /// "Mensaje informativo".
    virtual void Informa(std::string_view texto) = 0;
    /// "Comunicación de error".
    virtual void ComunicaError(std::string_view texto) = 0;
};

/// Today.
class Reloj {
  public:
    virtual ~Reloj() = default;
    [[nodiscard]] virtual Fecha hoy() const = 0;
};

/// The machine's calendar.
class RelojDelSistema final : public Reloj {
  public:
    [[nodiscard]] Fecha hoy() const override;
};

}  // namespace orvemo
