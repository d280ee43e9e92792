#pragma once

#include <vector>

#include "foundations/frame/formulario.h"
#include "shell/bibl_txt.h"

namespace orvemo {

/// "FONDO EDITORIAL ORVEMO": the catalogue of "bibl.txt", by subjects.
class FondoFrm final : public Formulario {
  public:
    explicit FondoFrm(Entorno& entorno);

    /// Throws FicheroInaccesible when "bibl.txt" or a picture is missing, FicheroMalFormado when the
    /// catalogue can't be read or its first subject has no books.
    void Inicia() override;

  private:
    Grupo& declaraCapitulos();
    void muestraCapitulos();
    void pulsaCapitulo(int i);
    void llenaLista(int capitulo);
    void muestraResumen();

    Catalogo catalogo_;
    std::vector<std::size_t> numeros_;  ///< number of the book of each entry of the list

  public:
    Campo& FondoBotonExit;
    Campo& LogoOrvemo;
    Grupo& FondoCap;
    Campo& FondoImg;
    Campo& FondoLista;
    Campo& FondoTxt;  ///< its label is `FondoResumen`
};

}  // namespace orvemo
