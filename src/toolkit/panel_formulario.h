#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QWidget>
#include <map>
#include <vector>

#include "toolkit/control.h"

namespace orvemo {

/// The widgets of one panel of a form, laid out by their order and their groups.
class PanelFormulario final : public QWidget {
  public:
    PanelFormulario(int pantalla, Anfitrion& anfitrion);

    /// In tab order.
    [[nodiscard]] const std::vector<Control*>& controles() const { return controles_; }
    /// Shows a group as it is in the model now; one that hides gives its room to the others.
    void refresca(const Grupo& grupo);
    /// Makes the columns of labels as wide as the widest caption of each asks for now.
    void mideRotulos();

  private:
    /// Fields that stand side by side.
    using Fila = std::vector<Campo*>;
    using Filas = std::vector<Fila>;

    struct Bloque {
        const Grupo* grupo;
        Filas filas;
        int enFila = 1;  ///< blocks that share the width of the panel with it, itself counted
    };

    [[nodiscard]] std::vector<Bloque> bloques(int pantalla) const;
    static void cuentaLosDeCadaFila(std::vector<Bloque>& bloques);
    void coloca(QWidget* marco, bool alLado);
    [[nodiscard]] QGridLayout* nuevaRejilla(QWidget* marco) const;
    void agregaSueltos(const Filas& filas);
    void agregaGrupo(const Bloque& bloque);

    void reparteEnFilas(QGridLayout& rejilla, const Filas& filas);
    void reparteEnTabla(QGridLayout& rejilla, const Filas& filas, const DefGrupo& def);
    void reparteEnColumnas(QGridLayout& rejilla, const Filas& filas, int columnas);

    /// Label and field, the label in a column of its own.
    void ponPar(QGridLayout& rejilla, int fila, int columna, const Fila& campos);
    void ponBotonAncho(QGridLayout& rejilla, int fila, int columna, Campo& campo);
    /// Kinds that take the whole width: side by side when they share a row, each under its label.
    void ponAncha(QGridLayout& rejilla, int fila, const Fila& campos);
    [[nodiscard]] QLayout* bajoSuRotulo(Campo& campo);
    void ponPasos(QGridLayout& rejilla, int fila, const Fila& campos);
    void ponVeredictos(QGridLayout& rejilla, const Filas& filas);
    enum class RotuloDelPrimero { Aparte, EnLinea };
    [[nodiscard]] QLayout* enLinea(const Fila& campos, RotuloDelPrimero rotulo);

    [[nodiscard]] bool conservaSuSitio(const Campo& campo) const;
    Control& crea(Campo& campo);
    [[nodiscard]] QLabel* creaRotulo(Control& control, int anchoMaximo);

    Anfitrion& anfitrion_;
    std::vector<Control*> controles_;
    std::map<const Grupo*, QWidget*> marcos_;
    QHBoxLayout* fila_ = nullptr;          ///< of the block laid out last
    const Campo* finDeLinea_ = nullptr;    ///< of the row being laid out
    int anchoRotulo_ = 0;                  ///< that labels may have in the block being laid out
    std::vector<QGridLayout*> alineadas_;  ///< the grids of labels and fields without a frame
    std::vector<QGridLayout*> enMarco_;    ///< those within one
};

}  // namespace orvemo
