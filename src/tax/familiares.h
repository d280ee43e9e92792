#pragma once

#include <functional>
#include <string>

#include "foundations/frame/enlaces.h"
#include "foundations/frame/formulario.h"
#include "tax/datos_retencion.h"

namespace orvemo::irpf {

/// How a block of fields declares itself in the form that holds it.
struct Declarador {
    std::function<Campo&(DefCampo)> campo;
    std::function<Grupo&(DefGrupo)> grupo;
    Mensajes& mensajes;
    int pantalla = 0;
};

/// The two lists of dependants, with the fields that fill them and the buttons to add and delete.
///
/// A row keeps its data: it begins with six digits (year of birth, disability and whether it counts whole),
/// and the adoption or the persons who share are its datum.
class Familiares {
  public:
    explicit Familiares(Declarador declara);

    void limpia();
    /// The rows, in order, are entries of the record; the entries left have nobody.
    void enlaza(Enlaces<DatosRetencion>& enlaces);

  private:
    void agregaHijo();
    void agregaAscendiente();
    void borra(Campo& lista);
    void compruebaConvivencia();
    [[nodiscard]] bool acepta(bool correcto, Campo& campo, const char* mensaje);
    [[nodiscard]] Campo& boton(const char* nombre, int indice, const char* rotulo, Grupo& grupo,
                               Reaccion alPulsar);

    Declarador declara_;

  public:
    Grupo& grupoHijos;
    Campo& Descendientes;
    Campo& NacimientoHijo;
    Campo& AdopcionHijo;
    Campo& DiscapacidadHijo;
    Campo& ComputoHijo;
    Campo& AgregaHijo;  ///< `Hijos` 0
    Campo& BorraHijo;   ///< `Hijos` 1
    Grupo& grupoAscendientes;
    Campo& Ascendientes;
    Campo& NacimientoAscen;
    Campo& ConvAscen;
    Campo& DiscapacidadAscen;
    Campo& AgregaAscendiente;  ///< `Ascen` 0
    Campo& BorraAscendiente;   ///< `Ascen` 1
};

}  // namespace orvemo::irpf
