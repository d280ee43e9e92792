#pragma once

#include <string>
#include <vector>

#include "foundations/frame/bloque.h"
#include "foundations/frame/enlaces.h"
#include "printing/informe.h"

namespace orvemo::pensiones {

/// A row: the first and the last day, which may be blank, and the company.
struct FilaPeriodo {
    Campo& PerDesde;
    Campo& PerHasta;
    Campo& PerEmpresa;
};

struct DefPeriodos {
    std::string prefijo;   ///< what the names of the fields begin with: "JubiPerDesde"
    std::string grupo;     ///< name of their frame
    std::string titulo{};  ///< its caption
    int filas;
    int pantalla;
};

/// The rows of contribution periods of a pension's screen.
class PeriodosCotizados : public Bloque {
  public:
    PeriodosCotizados(Formulario& formulario, const DefPeriodos& def);

    [[nodiscard]] Grupo& grupo() { return grupo_; }
    [[nodiscard]] std::size_t size() const { return filas_.size(); }
    [[nodiscard]] const FilaPeriodo& operator[](std::size_t i) const { return filas_[i]; }
    [[nodiscard]] auto begin() const { return filas_.begin(); }
    [[nodiscard]] auto end() const { return filas_.end(); }

    /// Gate of their panel: the first bad day is told and takes the focus.
    [[nodiscard]] bool valida();
    /// The last days as they stand on the screen.
    [[nodiscard]] std::vector<std::string> ultimosDias() const;
    /// "Del … al … en …", of each row with a first day.
    void imprime(Informe& informe) const;

    template <typename Registro>
    void enlaza(Enlaces<Registro>& enlaces, auto desde, auto hasta, auto empresa) const {
        enlaces.agregaSerie(columna(kDesde), desde);
        enlaces.agregaSerie(columna(kHasta), hasta);
        enlaces.agregaSerie(columna(kEmpresa), empresa);
    }

  private:
    enum Columna { kDesde, kHasta, kEmpresa };

    [[nodiscard]] FilaPeriodo nuevaFila(const DefPeriodos& def, int fila);
    [[nodiscard]] std::vector<Campo*> columna(Columna columna) const;

    Grupo& grupo_;
    std::vector<FilaPeriodo> filas_;
};

}  // namespace orvemo::pensiones
