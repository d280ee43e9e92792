#pragma once

#include <QDialog>
#include <map>
#include <set>
#include <unordered_map>

#include "foundations/frame/vista.h"
#include "foundations/values/almacen.h"
#include "toolkit/control.h"
#include "toolkit/guardia_foco.h"
#include "toolkit/panel_formulario.h"

class QHBoxLayout;
class QScrollArea;
class QStackedWidget;

namespace orvemo {

/// The one window that shows any form: title, bar of buttons, panel on view, buttons to go on and back. The
/// widgets of a panel are made when it first shows. Throws FicheroInaccesible on creation when the logo is
/// missing.
class VistaFormulario final : public QDialog, public Vista, public Anfitrion {
  public:
    VistaFormulario(Formulario& formulario, const Almacen& almacen, QWidget* padre = nullptr);
    ~VistaFormulario() override;

    // Vista
    void refresca(const Campo& campo) override;
    void refresca(const Grupo& grupo) override;
    void refrescaTitulos() override;
    void reconstruye(int pantalla) override;
    void muestraPantalla(int pantalla) override;
    void enfoca(const Campo& campo) override;
    void oculta() override;
    void muestraModal(GrabaSupuesto& dialogo) override;
    void muestraModal(CargaSupuesto& dialogo) override;
    void muestraModal(Formulario& formulario) override;

    // Anfitrion
    [[nodiscard]] Formulario& formulario() override { return formulario_; }
    [[nodiscard]] bool tomaFoco(Control& control) override { return guardia_.toma(control); }
    [[nodiscard]] QPixmap imagen(const std::string& nombre) const override;

    /// Whether the widgets of a panel have been made.
    [[nodiscard]] bool construida(int pantalla) const { return paneles_.contains(pantalla); }

    /// Escape closes nothing: it would lose what was typed.
    void reject() override {}

  protected:
    void closeEvent(QCloseEvent* suceso) override;

  private:
    [[nodiscard]] QLayout* cabecera(QWidget* logo);
    [[nodiscard]] QLayout* fila(int pantalla);
    [[nodiscard]] QWidget* nuevoLogo();
    void acompana(QWidget* enfocado);
    void construye(int pantalla);
    void rehaz();
    void descarta(int pantalla);
    void encadenaTabulador();
    [[nodiscard]] Control* control(const Campo& campo) const;

    Formulario& formulario_;
    const Almacen& almacen_;
    GuardiaFoco guardia_;
    QLabel* titulo_;
    QLabel* subtitulo_;
    QStackedWidget* pila_;
    std::map<int, PanelFormulario*> paneles_;
    std::set<int> caducadas_;  ///< the panel on view, while its fields are moving
    std::unordered_map<const Campo*, Control*> controles_;
};

}  // namespace orvemo
