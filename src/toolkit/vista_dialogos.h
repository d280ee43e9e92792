#pragma once

#include <QDialog>
#include <vector>

#include "cases/dialogos.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace orvemo {

class ListaTextos;

/// What the windows of both dialogs share: the list of the cases and the ways out.
class VistaSupuestos : public QDialog {
  public:
    ~VistaSupuestos() override;

    /// Escape is the button that cancels.
    void reject() override;

  protected:
    VistaSupuestos(DialogoSupuestos& dialogo, const QString& titulo, QWidget* padre);

    void closeEvent(QCloseEvent* suceso) override;
    virtual void refresca();

    [[nodiscard]] ListaTextos& lista() const { return *lista_; }
    [[nodiscard]] QVBoxLayout& columna() const { return *columna_; }
    /// The buttons that do nothing while no case is selected.
    [[nodiscard]] std::vector<QPushButton*>& deLoElegido() { return deLoElegido_; }
    /// The list under its heading.
    void agregaLista();
    /// The row of buttons: erase at the left, cancel and the main one at the right.
    void agregaBotones(QPushButton* borrar, QPushButton* cancelar, QPushButton* principal);

  private:
    DialogoSupuestos& dialogo_;
    QVBoxLayout* columna_;
    ListaTextos* lista_;
    std::vector<QPushButton*> deLoElegido_;
};

/// The window of "Grabación de supuestos".
class VistaGrabaSupuesto final : public VistaSupuestos {
  public:
    VistaGrabaSupuesto(GrabaSupuesto& dialogo, QWidget* padre);

  protected:
    void refresca() override;

  private:
    void eligeConElRaton();

    GrabaSupuesto& dialogo_;
    QLineEdit* nombre_;
    QPushButton* grabar_;
};

/// The window of "Carga de supuestos".
class VistaCargaSupuesto final : public VistaSupuestos {
  public:
    VistaCargaSupuesto(CargaSupuesto& dialogo, QWidget* padre);
};

}  // namespace orvemo
