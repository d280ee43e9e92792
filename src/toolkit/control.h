#pragma once

#include <QLabel>
#include <QPixmap>
#include <string>

#include "foundations/frame/formulario.h"

namespace orvemo {

class Control;

/// What a control asks of the window that holds it.
class Anfitrion {
  public:
    virtual ~Anfitrion() = default;
    [[nodiscard]] virtual Formulario& formulario() = 0;
    /// Brings the focus to a control that is being used without it (a mnemonic, an aid for the blind), with
    /// the check of the field left. False when the focus was refused: the use is lost.
    [[nodiscard]] virtual bool tomaFoco(Control& control) = 0;
    /// Brings the focus to a field, whole and in view.
    virtual void enfoca(const Campo& campo) = 0;
    /// A picture of the application directory. Throws FicheroInaccesible.
    [[nodiscard]] virtual QPixmap imagen(const std::string& nombre) const = 0;
};

/// The widget of one field: shows what the model holds and tells it what the user does. Every widget that is
/// one also derives from its toolkit class, whose parent owns it.
class Control {
  public:
    Control(Campo& campo, Anfitrion& anfitrion) : campo_{campo}, anfitrion_{anfitrion} {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] Campo& campo() const { return campo_; }
    [[nodiscard]] virtual QWidget& widget() = 0;

    /// The label that stands beside the widget and follows its visibility.
    void ponRotulo(QLabel* rotulo) { rotulo_ = rotulo; }
    [[nodiscard]] QLabel* rotulo() const { return rotulo_; }
    /// What an aid for the blind calls it when it has neither label nor tip.
    void ponNombreAccesible(const QString& nombre);

    /// Shows the field as it is in the model now.
    void refresca();
    /// Takes the focus, all its text selected.
    virtual void enfoca() { widget().setFocus(Qt::OtherFocusReason); }
    /// The focus only touched it: the form refused it.
    virtual void deja() {}

  protected:
    virtual void refrescaValor() = 0;

    [[nodiscard]] Formulario& formulario() const { return anfitrion_.formulario(); }
    [[nodiscard]] Anfitrion& anfitrion() const { return anfitrion_; }

  private:
    void refrescaRotulo();
    void refrescaNombre();

    Campo& campo_;
    Anfitrion& anfitrion_;
    QLabel* rotulo_ = nullptr;
    QString nombreAccesible_;
};

/// The control that a widget is part of, if any: the focus may be on an inner widget.
[[nodiscard]] Control* controlDe(QWidget* widget);

/// Name of a field as scripts and tests know its widget: its own, with the place in a control array.
[[nodiscard]] QString nombreDe(const Campo& campo);

}  // namespace orvemo
