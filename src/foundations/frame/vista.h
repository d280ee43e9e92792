#pragma once

#include "cases/dialogos.h"
#include "foundations/frame/campo.h"

namespace orvemo {

/// What a form asks of its renderer.
class Vista {
  public:
    virtual ~Vista() = default;

    /// Value, label, visibility or entries of a field changed.
    virtual void refresca(const Campo& campo) = 0;
    virtual void refresca(const Grupo& grupo) = 0;
    /// Title, caption or subtitle changed.
    virtual void refrescaTitulos() = 0;
    /// The fields of a panel are others now: build it anew.
    virtual void reconstruye(int pantalla) = 0;
    virtual void muestraPantalla(int pantalla) = 0;
    /// Gives the field the focus, all its text selected.
    virtual void enfoca(const Campo& campo) = 0;
    /// Ends the modal display of the form.
    virtual void oculta() = 0;

    /// Shows a dialog until it hides itself.
    virtual void muestraModal(GrabaSupuesto& dialogo) = 0;
    virtual void muestraModal(CargaSupuesto& dialogo) = 0;
    virtual void muestraModal(Formulario& formulario) = 0;
};

}  // namespace orvemo
