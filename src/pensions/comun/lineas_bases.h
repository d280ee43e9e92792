#pragma once

#include <string>
#include <vector>

#include "foundations/frame/bloque.h"
#include "foundations/frame/enlaces.h"
#include "printing/informe.h"

namespace orvemo::pensiones {

struct DefBases {
    std::string nombre;  ///< of each line
    std::string marco;   ///< of the frames
    int lineas;
    int primeraPantalla;  ///< panel of the first frame; each has its own
};

/// The lines of monthly contribution bases of a pension's screen, four years a frame and a frame a panel. The
/// first line is the latest month.
class LineasBases : public Bloque {
  public:
    /// How a line tells its month.
    enum class Rotulo { NumeroYMes, MesYAnio };

    LineasBases(Formulario& formulario, const DefBases& def);

    /// The base of line i, from 1.
    [[nodiscard]] Campo& base(int i) const { return *lineas_[static_cast<std::size_t>(i - 1)]; }
    /// Lines on view.
    [[nodiscard]] int meses() const { return meses_; }
    [[nodiscard]] int pantallas() const;
    /// Calendar year of line i.
    [[nodiscard]] int anio(int i) const;

    /// Shows so many lines and labels them with the months before that of the date.
    void prepara(Fecha referencia, int meses, Rotulo rotulo = Rotulo::NumeroYMes);
    /// Estimates the months of 2005 and later from the present base, if it is another than the last time. A
    /// month already filled is asked about, once; one still empty is filled at once, and the filled ones
    /// after it are then filled too.
    void proyecta(double baseActual);
    /// A new case, or another one: nothing was typed yet, and this base projects nothing.
    void olvida(double baseActual = 0);
    /// In three columns, label and amount.
    void imprime(Informe& informe) const;

    template <typename Registro>
    void enlaza(Enlaces<Registro>& enlaces, auto miembro) const {
        enlaces.agregaSerie(lineas_, miembro, vias::kImporteOCero);
    }

  private:
    [[nodiscard]] Campo& nuevaLinea(const DefBases& def, int i, Grupo& marco);
    void deja(int i);
    void copiaHastaFinDeAnio(int i);
    [[nodiscard]] std::string rotuloDe(int i) const;

    std::vector<Campo*> lineas_;
    Fecha referencia_{};
    int meses_ = 0;
    Rotulo rotulo_ = Rotulo::NumeroYMes;
    double baseActualProyectada_ = 0;  ///< the present base when last projected
    bool BaseEditada_ = false;         ///< a line was typed in since the last copy forward
};

}  // namespace orvemo::pensiones
