#pragma once

#include <QMainWindow>
#include <string>
#include <vector>

#include "foundations/values/almacen.h"
#include "shell/plano_menu.h"
#include "shell/programa.h"

class QLabel;
class QPixmap;

namespace orvemo {

class BotonLogo;
class BotonOpcion;
class Supuesto;

/// The main window: the menu with its options, the cover's picture and the logo.
class VistaMenu final : public QMainWindow, public VistaPrograma {
  public:
    explicit VistaMenu(const Almacen& almacen);

    /// Shows the menu of a program that has started.
    void muestra(Programa& programa);

    // VistaPrograma
    void muestraPortada(const std::string& foto, std::chrono::milliseconds duracion) override;
    void cargaMenuFoto(const std::string& foto) override;
    Imagen cargaLogoOrvemo(const std::string& foto) override;
    void centraMenu() override;
    void ponCaption(const std::string& caption) override;
    void cursorEspera(bool espera) override;
    void muestraModal(Formulario& pantalla, bool sobreElMenu) override;
    void descarga() override;

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

  protected:
    void closeEvent(QCloseEvent* suceso) override;
    void changeEvent(QEvent* suceso) override;

  private:
    void ponFoto(const QPixmap& imagen);
    void ponOpciones();
    void ponCabecera(const Cabecera& cabecera);
    void ponLogoAlAlcance();
    bool atiendeTecla(const BotonOpcion& boton, int tecla);
    [[nodiscard]] BotonOpcion* vecino(const BotonOpcion& boton, int tecla) const;

    const Almacen& almacen_;
    Programa* programa_ = nullptr;
    Supuesto* menu_;
    BotonLogo* logo_;
    QLabel* foto_;
    std::string fotoDePortada_;  ///< the picture already in its place
    std::vector<BotonOpcion*> opciones_;
};

}  // namespace orvemo
