#include "foundations/frame/calculadora.h"

#include <utility>

#include "foundations/values/fallos.h"

namespace orvemo {

namespace {

DefCampo botonDeBarra(std::string nombre, std::string ayuda) {
    return {
        .nombre = std::move(nombre), .clase = Clase::Boton, .pantalla = kBarra, .ayuda = std::move(ayuda)};
}

/// A button that throws the case away holds nobody in a field whose value goes with it.
DefCampo botonQueDescarta(std::string nombre, std::string ayuda) {
    DefCampo def = botonDeBarra(std::move(nombre), std::move(ayuda));
    def.sinComprobacion = true;
    return def;
}

bool tieneDefecto(const Campo& campo) {
    const Clase clase = campo.def().clase;
    return campo.pantalla() >= 0 && clase != Clase::TextoLargo && clase != Clase::Etiqueta &&
           clase != Clase::Veredicto && clase != Clase::Boton && clase != Clase::Imagen;
}

int ultimaDe(const DefCalculadora& def) {
    return static_cast<int>(def.subtitulos.size()) - 1;
}

DefCampo conAccion(DefCampo def, Reaccion accion) {
    def.alPulsar = std::move(accion);
    return def;
}

}  // namespace

Calculadora::Calculadora(Entorno& entorno, DefCalculadora def)
    : Formulario{entorno},
      BotonNuevo{nuevo(
          conAccion(botonQueDescarta("BotonNuevo", "Nuevo supuesto"), [this](Campo&) { nuevoCaso(); }))},
      BotonCarga{
          nuevo(conAccion(botonDeBarra("BotonCarga", "Cargar supuesto"), [this](Campo&) { CargaCaso(); }))},
      BotonGraba{
          nuevo(conAccion(botonDeBarra("BotonGraba", "Grabar supuesto"), [this](Campo&) { GrabaCaso(); }))},
      BotonPrint{nuevo(conAccion(botonDeBarra("BotonPrint", "Imprimir"), [this](Campo&) { imprime(); }))},
      BotonExit{nuevo(conAccion(botonQueDescarta("BotonExit", "Volver al menú principal"),
                                [this](Campo&) { oculta(); }))},
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
      Conclusion{nuevo({.nombre = "Conclusion", .clase = Clase::TextoLargo, .pantalla = ultimaDe(def)})},
      Ok{nuevo({.nombre = "Ok", .clase = Clase::Veredicto, .pantalla = ultimaDe(def), .visible = false})},
      Mal{nuevo({.nombre = "Mal", .clase = Clase::Veredicto, .pantalla = ultimaDe(def), .visible = false})},
      def_{std::move(def)} {
    ponTitulos(def_.titulo, def_.caption);
    ponNumPantallas(ultimaDe(def_) + 1);
}

// --- Set-up and panels

void Calculadora::Inicia() {
    {
        const MientrasCarga mientras{Cargando};
        LimpiaDatos();
    }
    MuestraPantalla(0);
}

void Calculadora::LimpiaDatos() {
    for (Campo& campo : campos()) {
        if (tieneDefecto(campo)) campo.ponDefecto();
    }
}

void Calculadora::nuevoCaso() {
    const MientrasCarga mientras{Cargando};
    LimpiaDatos();
    MuestraPantalla(0);
}

void Calculadora::avanza() {
    if (!ValidaPantalla()) return;
    dejaPantalla(PantallaActual());
    MuestraPantalla(pantallaSiguiente(PantallaActual()));
}

void Calculadora::MuestraPantalla(int n) {
    Anterior.ponVisible(n > 0);
    Siguiente.ponVisible(n < ultimaPantalla());
    muestra(n);
    ponSubtitulo(subtituloDe(n));
    if (n == 0) {
        enfoca(campoNombre());
    } else if (n == ultimaPantalla()) {
        enfoca(Conclusion);
        ActualizaConclusion();
    } else {
        enfocaPrimero();
    }
}

std::string Calculadora::subtituloDe(int pantalla) const {
    return def_.subtitulos.at(static_cast<std::size_t>(pantalla));
}

// --- Conclusions

bool Calculadora::DatosTomaPantalla() {
    try {
        tomaCampos();
        return true;
    } catch (const Fallo&) {
        mensajes().ComunicaError("Algún dato no es correcto. Revise el supuesto");
        return false;
    }
}

void Calculadora::ActualizaConclusion() {
    if (!calculaDesdeCampos()) DatosTomaPantalla();
    Dictamen dictamen;
    try {
        calcula(dictamen);
    } catch (const Fallo&) {
        // The lines written so far stay, but nothing was decided.
        dictamen.ConDerecho = false;
        ponVeredicto(dictamen);
        throw;
    }
    ponVeredicto(dictamen);
}

void Calculadora::ponVeredicto(const Dictamen& dictamen) {
    ConDerecho_ = dictamen.ConDerecho;
    Conclusion.ponTexto(dictamen.Conclusion());
    Ok.ponVisible(ConDerecho_);
    Mal.ponVisible(!ConDerecho_);
}

// --- Cases

ArchivoSupuestos Calculadora::archivo() const {
    return {entorno().almacen, def_.fichero, longitudRegistro()};
}

void Calculadora::DatosCargaRegistro(int r) {
    if (r < 1) return;
    const std::string bytes = archivo().lee(r);
    const std::string antes = escribeCaso();
    const Instantanea campos{*this};
    try {
        leeCaso(bytes);
        cargaCampos();
        trasCargar();
    } catch (const Fallo&) {
        // A case that can't be shown leaves the one on screen as it was.
        leeCaso(antes);
        campos.restaura(Cargando);
        throw;
    }
    NombreActual_ = NombreSupuesto();
    MuestraPantalla(0);
}

void Calculadora::CargaCaso() {
    CargaSupuesto dialogo{entorno().almacen, mensajes(), def_.fichero, longitudRegistro(), def_.primerLibre};
    dialogo.Inicia();
    if (vista() != nullptr) vista()->muestraModal(dialogo);
    DatosCargaRegistro(dialogo.Registro());
}

void Calculadora::GrabaCaso() {
    NombreActual_ = campoNombre().texto();
    GrabaSupuesto dialogo{entorno().almacen, mensajes(), def_.fichero, longitudRegistro(), def_.primerLibre};
    dialogo.Inicia(NombreActual_);
    if (vista() != nullptr) vista()->muestraModal(dialogo);
    if (dialogo.Registro() == kSinRegistro) return;
    NombreActual_ = dialogo.Nombre();
    ponNombreSupuesto(NombreActual_);
    if (!DatosTomaPantalla() && !grabaDatosIncompletos()) return;
    if (dialogo.Registro() >= kRegistroNuevo) {
        DatosAppendRegistro();
    } else if (!DatosGrabaRegistro(dialogo.Registro())) {
        throw Fallo{motivoFallo_};
    }
}

void Calculadora::DatosAppendRegistro() {
    archivo().agrega(escribeCaso());
}

bool Calculadora::DatosGrabaRegistro(int r) {
    try {
        if (r == 0) return archivo().sobrescribePorNombre(escribeCaso()).has_value();
        archivo().sobrescribe(r, escribeCaso());
        return true;
    } catch (const Fallo& fallo) {
        motivoFallo_ = fallo.what();
        return false;
    }
}

// --- Report

void Calculadora::imprime() {
    const auto destino = entorno().impresora.elige(Titulo());
    if (destino == nullptr) return;
    try {
        entorno().rutinas.empieza(*destino);
        ImprimeInforme(entorno().rutinas);
        destino->EndDoc();
    } catch (const Fallo& fallo) {
        mensajes().ComunicaError("No se ha podido imprimir: " + std::string{fallo.what()} + ".");
    }
    mensajes().Informa("Impresión terminada");
}

}  // namespace orvemo
