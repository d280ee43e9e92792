#include "foundations/frame/asistente.h"

#include <utility>

#include "foundations/values/fallos.h"

namespace orvemo {

Asistente::Asistente(Entorno& entorno, DefCalculadora def)
    : Calculadora{entorno, std::move(def)},
      Anterior{nuevo({.nombre = "Anterior",
                      .rotulo = "(Pantalla Anterior...)",
                      .clase = Clase::Boton,
                      .pantalla = kPie,
                      .alPulsar = [this](Campo&) { MuestraPantalla(pantallaAnterior(PantallaActual())); },
                      .visible = false,
                      .ayuda = "Mostrar pantalla anterior"})},
      Siguiente{nuevo({.nombre = "Siguiente",
                       .rotulo = "(Continuación...)",
                       .clase = Clase::Boton,
                       .pantalla = kPie,
                       .alPulsar = [this](Campo&) { avanza(); },
                       .ayuda = "Mostrar pantalla siguiente"})},
      Conclusion{nuevo({.nombre = "Conclusion", .clase = Clase::TextoLargo, .pantalla = ultimaPantalla()})},
      Ok{nuevo({.nombre = "Ok", .clase = Clase::Veredicto, .pantalla = ultimaPantalla(), .visible = false})},
      Mal{nuevo(
          {.nombre = "Mal", .clase = Clase::Veredicto, .pantalla = ultimaPantalla(), .visible = false})} {}

// --- Panels

void Asistente::avanza() {
    if (!ValidaPantalla()) return;
    dejaPantalla(PantallaActual());
    MuestraPantalla(pantallaSiguiente(PantallaActual()));
}

void Asistente::MuestraPantalla(int n) {
    Anterior.ponVisible(n > 0);
    Siguiente.ponVisible(n < ultimaPantalla());
    Calculadora::MuestraPantalla(n);
    if (n == ultimaPantalla()) ActualizaConclusion();
}

void Asistente::concluye() {
    while (PantallaActual() != ultimaPantalla()) {
        const int antes = PantallaActual();
        if (!pulsa(Siguiente) || PantallaActual() == antes) return;
    }
}

// --- Conclusions

void Asistente::ActualizaConclusion() {
    Dictamen dictamen;
    try {
        preparaCaso();
        calcula(dictamen);
    } catch (const Fallo&) {
        // The lines written so far stay, but nothing was decided.
        dictamen.ConDerecho = false;
        Mal.ponRotulo("Cálculo no terminado");
        ponVeredicto(dictamen);
        throw;
    }
    Mal.ponRotulo("");
    ponVeredicto(dictamen);
}

void Asistente::ponVeredicto(const Dictamen& dictamen) {
    ConDerecho_ = dictamen.ConDerecho;
    Conclusion.ponTexto(dictamen.Conclusion());
    Ok.ponVisible(ConDerecho_);
    Mal.ponVisible(!ConDerecho_);
}

}  // namespace orvemo
