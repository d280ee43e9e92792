#pragma once

#include "foundations/frame/formulario.h"

namespace orvemo::pruebas {

/// A small screen with a field of each kind, two of them with checks that their first values don't pass.
class FormularioDePrueba final : public Formulario {
  public:
    explicit FormularioDePrueba(Entorno& entorno)
        : Formulario{entorno},
          Nombre{nuevo({.nombre = "Nombre", .rotulo = "Nombre completo:", .largo = 10})},
          Edad{nuevo({.nombre = "Edad",
                      .rotulo = "Edad:",
                      .defecto = "0",
                      .contenido = Contenido::Entero,
                      .alSalir = rango("1", "99")})},
          Suma{nuevo({.nombre = "Suma",
                      .rotulo = "Suma:",
                      .defecto = "-1",
                      .contenido = Contenido::Decimal,
                      .formato = "##,###,##0.00",
                      .alSalir = rango("0", "999999")})},
          Clave{nuevo({.nombre = "Clave", .rotulo = "Clave:", .filtro = TeclaMayuscula})},
          Fecha_{nuevo({.nombre = "Fecha",
                        .rotulo = "Fecha:",
                        .clase = Clase::FechaSelector,
                        .alCambiar = [this](Campo& fecha) { fechas.push_back(fecha.texto()); }})},
          Escrita{nuevo({.nombre = "Escrita",
                         .rotulo = "Otra fecha:",
                         .clase = Clase::FechaEscrita,
                         .alSalir = fechaCorrecta()})},
          Regimen{nuevo({.nombre = "Regimen",
                         .rotulo = "Régimen:",
                         .clase = Clase::Lista,
                         .opciones = {"General", "Autónomos", "Agrario"}})},
          Situacion{nuevo({.nombre = "Situacion",
                           .rotulo = "Situación:",
                           .clase = Clase::Opciones,
                           .opciones = {"Soltero", "Casado", "Viudo"}})},
          Parcial{nuevo({.nombre = "Parcial",
                         .rotulo = "A tiempo parcial",
                         .clase = Clase::Casilla,
                         .alCambiar = [this](Campo& casilla) { Horas.ponVisible(casilla.marcado()); }})},
          Horas{nuevo({.nombre = "Horas", .rotulo = "Horas trabajadas por semana:", .visible = false})},
          Hijos{nuevo({.nombre = "Hijos",
                       .rotulo = "Hijos:",
                       .clase = Clase::ListaAbierta,
                       .opciones = {"Ana", "Blas", "Cruz"},
                       .alPulsar = [this](Campo&) { ++doblesPulsaciones; }})},
          Texto{nuevo({.nombre = "Texto", .clase = Clase::TextoLargo, .pantalla = 1})},
          Ok{nuevo({.nombre = "Ok", .clase = Clase::Veredicto, .pantalla = 1})},
          Mal{nuevo({.nombre = "Mal", .clase = Clase::Veredicto, .pantalla = 1, .visible = false})},
          BotonNuevo{nuevo({.nombre = "BotonNuevo",
                            .clase = Clase::Boton,
                            .pantalla = kBarra,
                            .alPulsar = [this](Campo&) { ++nuevos; },
                            .ayuda = "Nuevo supuesto",
                            .sinComprobacion = true})},
          BotonGraba{nuevo({.nombre = "BotonGraba",
                            .clase = Clase::Boton,
                            .pantalla = kBarra,
                            .alPulsar = [this](Campo&) { ++grabados; },
                            .ayuda = "Grabar supuesto"})},
          Siguiente{nuevo({.nombre = "Siguiente",
                           .rotulo = "(Continuación...)",
                           .clase = Clase::Boton,
                           .pantalla = kPie,
                           .alPulsar = [this](Campo&) { muestra(1); },
                           .ayuda = "Mostrar pantalla siguiente"})} {
        ponTitulos("FORMULARIO DE PRUEBA", "Prueba");
        ponNumPantallas(2);
    }

    void Inicia() override {
        muestra(0);
        enfoca(Nombre);
    }
    void cierra() override {
        ++cierres;
        Formulario::cierra();
    }
    void pasaA(Campo& campo) { enfoca(campo); }

    int nuevos = 0, grabados = 0, cierres = 0, doblesPulsaciones = 0;
    std::vector<std::string> fechas;

    Campo &Nombre, &Edad, &Suma, &Clave, &Fecha_, &Escrita, &Regimen, &Situacion, &Parcial, &Horas, &Hijos,
        &Texto, &Ok, &Mal;
    Campo &BotonNuevo, &BotonGraba, &Siguiente;
};

}  // namespace orvemo::pruebas
