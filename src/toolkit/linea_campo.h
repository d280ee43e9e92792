#pragma once

#include <QLineEdit>

#include "toolkit/control.h"

namespace orvemo {

/// One line of text. Keys go through the field's filter, and so does what is pasted or dictated; the whole
/// text is selected on entering, the caret before it; without the focus an amount shows by its pattern.
class LineaCampo : public QLineEdit, public Control {
  public:
    LineaCampo(Campo& campo, Anfitrion& anfitrion);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void enfoca() override;
    void deja() override;
    [[nodiscard]] QSize sizeHint() const override;
    /// A long text may be squeezed; figures and dates are seen whole.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void refrescaValor() override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void focusInEvent(QFocusEvent* suceso) override;
    void focusOutEvent(QFocusEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;

    /// Characters that the field is wide enough to show.
    [[nodiscard]] virtual int anchura() const;
    /// Pixels of so many characters.
    [[nodiscard]] int anchoDelTexto() const;

  private:
    void teclea(const QString& texto);
    void cambia(const QString& texto);
    void cambiaDeGolpe(const QString& texto);
    void recuerdaElCursor();
    [[nodiscard]] const Campo* enOtraFila(int paso) const;
    void muestra(const QString& texto);
    void seleccionaTexto();
    [[nodiscard]] bool esNumero() const;
    [[nodiscard]] bool esDecimal() const;

    bool editando_ = false;       ///< it has the focus, be it in a window that isn't active now
    int antesDelCambio_ = 0;      ///< where the caret or the selection began
    bool tecleando_ = false;      ///< what changes is what was typed
    bool mostrando_ = false;      ///< the program itself is setting the text
    bool recienEntrado_ = false;  ///< by a click that must not undo the selection
};

}  // namespace orvemo
