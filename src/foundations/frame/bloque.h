#pragma once

#include <string_view>
#include <utility>

#include "foundations/frame/formulario.h"

namespace orvemo {

/// A piece of a screen that several share: it declares its fields on their form, once and in their order, and
/// knows their checks and reactions.
class Bloque {
  public:
    Bloque(const Bloque&) = delete;
    Bloque& operator=(const Bloque&) = delete;

  protected:
    explicit Bloque(Formulario& formulario) : formulario_{formulario} {}
    ~Bloque() = default;

    Campo& nuevo(DefCampo def) { return formulario_.nuevo(std::move(def)); }
    Grupo& nuevoGrupo(DefGrupo def) { return formulario_.nuevoGrupo(std::move(def)); }
    bool rechaza(Campo& campo, std::string_view motivo) { return formulario_.rechaza(campo, motivo); }
    [[nodiscard]] Mensajes& mensajes() const { return formulario_.mensajes(); }
    [[nodiscard]] Fecha hoy() const { return formulario_.hoy(); }
    [[nodiscard]] bool Cargando() const { return formulario_.Cargando; }
    [[nodiscard]] bool& DatoMal() const { return formulario_.DatoMal; }

  private:
    Formulario& formulario_;
};

}  // namespace orvemo
