#pragma once

#include <array>

#include "foundations/frame/formulario.h"
#include "shell/config_nom.h"

namespace orvemo {

/// "CONFIGURACION DEL PROGRAMA": maintenance of `config.nom`, the title of the program and its options. What
/// is written reaches the menu at the next start.
class ConfigFrm final : public Formulario {
  public:
    explicit ConfigFrm(Entorno& entorno);

    /// Reads `config.nom` into the controls; any failure silently ends the reading.
    void Inicia() override;

  private:
    /// The three controls of an option, one of each array.
    struct Fila {
        Campo& Opciones;
        Campo& Orden;
        Campo& Obra;
    };

    [[nodiscard]] Fila fila(int indice);
    void declaraTabla();
    void declaraFila(int indice, Grupo& tabla);
    void lee();
    void muestraOpcion(int indice);
    void genera();
    void tomaTitulo();
    void tomaOpcion(int indice);

    /// The one buffer that every record is read into and written from: record 1 is written with the `Activa`
    /// and the `Orden` that stand in it.
    RegistroConfig registro_;

  public:
    Campo& BotonCDROM;
    Campo& BotonExit;
    Campo& TituloPrograma;  ///< the control `Titulo`
};

}  // namespace orvemo
