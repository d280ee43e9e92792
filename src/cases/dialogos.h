#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cases/archivo_supuestos.h"
#include "foundations/values/mensajes.h"

namespace orvemo {

/// `Registro` of a dialog: nothing chosen.
inline constexpr int kSinRegistro = 0;
/// `Registro` of a dialog: a new record. A record with this number or above is appended too.
inline constexpr int kRegistroNuevo = 9999;

/// What both dialogs share: the list of the cases of a file, in alphabetical order, and the erasing of one.
class DialogoSupuestos {
  public:
    DialogoSupuestos(Almacen& almacen, Mensajes& mensajes, std::string fichero, std::size_t longitud,
                     int primerLibre);
    virtual ~DialogoSupuestos() = default;

    /// 0 nothing chosen, 9999 a new record, otherwise the record chosen.
    [[nodiscard]] int Registro() const { return registro_; }
    [[nodiscard]] bool oculto() const { return oculto_; }

    [[nodiscard]] const std::vector<EntradaSupuesto>& ListaSupuestos() const { return lista_; }
    /// The entry selected, -1 for none.
    [[nodiscard]] int seleccion() const { return seleccion_; }

    /// Reads the heads of the file again; no entry is selected then.
    void CargaLista();
    /// Selects an entry (a click or the arrow keys); -1 for none.
    virtual void selecciona(int entrada);
    /// Erases the entry selected, after asking.
    virtual void BotonBorrar() = 0;
    /// Nothing chosen; the dialog hides.
    void BotonCancelar();
    /// Closed by its title bar: hides, and `Registro` stays as it is.
    void cierra();

    /// Told whenever list, selection, name or visibility change; the toolkit redraws then.
    std::function<void()> alCambiar;

  protected:
    void avisa() const;
    void oculta(int registro);
    [[nodiscard]] const EntradaSupuesto* elegida() const;
    void borraElegida();
    /// Runs an operation; a failure is told in a box and the dialog stays.
    void protegido(const std::function<void()>& accion);

    Almacen& almacen_;
    Mensajes& mensajes_;
    ArchivoSupuestos archivo_;
    int primerLibre_;
    int registro_ = kSinRegistro;
    int seleccion_ = -1;
    bool oculto_ = false;
    std::vector<EntradaSupuesto> lista_;
};

/// "Grabación de supuestos": asks for the name under which a case is saved.
class GrabaSupuesto final : public DialogoSupuestos {
  public:
    using DialogoSupuestos::DialogoSupuestos;

    static constexpr std::size_t kMaximoNombre = kAnchoNombre;

    /// Sets the name offered and lists the cases.
    void Inicia(const std::string& nombre);

    [[nodiscard]] const std::string& Nombre() const { return nombre_; }
    void ponNombre(const std::string& nombre);
    /// Whether `BotonGrabar` is enabled: the name isn't blank.
    [[nodiscard]] bool puedeGrabar() const;

    void selecciona(int entrada) override;
    void BotonGrabar();
    void BotonBorrar() override;

  private:
    std::string nombre_;
};

/// "Carga de supuestos": lets the user pick a case.
class CargaSupuesto final : public DialogoSupuestos {
  public:
    using DialogoSupuestos::DialogoSupuestos;

    void Inicia();
    /// Also a double click or Enter on the list.
    void BotonCargar();
    void BotonBorrar() override;
};

}  // namespace orvemo
