#include "foundations/frame/calculadora.h"

#include <optional>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

/// What the user fills in; conclusions and results stay until the next calculation.
bool tieneDefecto(const Campo& campo) {
    return campo.pantalla() >= 0 &&
           (campo.esTexto() || campo.esLista() || campo.def().clase == Clase::Casilla);
}

}  // namespace

Calculadora::Calculadora(Entorno& entorno, DefCalculadora def)
    : Formulario{entorno},
      def_{std::move(def)},
      BotonNuevo{nuevoBoton("BotonNuevo", "Nuevo supuesto", &Calculadora::nuevoCaso, true)},
      BotonCarga{nuevoBoton("BotonCarga", "Cargar supuesto", &Calculadora::CargaCaso)},
      BotonGraba{nuevoBoton("BotonGraba", "Grabar supuesto", &Calculadora::GrabaCaso)},
      BotonPrint{nuevoBoton("BotonPrint", "Imprimir", &Calculadora::alImprimir)},
      BotonExit{nuevoBoton("BotonExit", "Volver al menú principal", &Calculadora::vuelveAlMenu, true)} {
    ponTitulos(def_.titulo, def_.caption);
    ponNumPantallas(static_cast<int>(def_.subtitulos.size()));
}

/// A button that throws the case away holds nobody in a field whose value goes with it.
Campo& Calculadora::nuevoBoton(const std::string& nombre, std::string ayuda, void (Calculadora::*accion)(),
                               bool descarta) {
    return nuevo({.nombre = def_.prefijoBarra + nombre,
                  .clase = Clase::Boton,
                  .pantalla = kBarra,
                  .alPulsar = [this, accion](Campo&) { (this->*accion)(); },
                  .ayuda = std::move(ayuda),
                  .sinComprobacion = descarta});
}

// --- Set-up and panels

void Calculadora::Inicia() {
    {
        const MientrasCarga mientras{Cargando};
        LimpiaDatos();
    }
    MuestraPantalla(0);
    daPorGuardado();
}

bool Calculadora::puedeDescartar() {
    return !modificado() || mensajes().Confirma("¿Desea descartar los datos del supuesto?");
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
    casoEnElTitulo({});
}

/// The caption of the window tells which case stands on the screen, as it was loaded or saved.
void Calculadora::casoEnElTitulo(const std::string& nombre) {
    ponTitulos(def_.titulo, nombre.empty() ? def_.caption : def_.caption + " - " + nombre);
    daPorGuardado();
}

void Calculadora::vuelveAlMenu() {
    oculta();
}

void Calculadora::MuestraPantalla(int n) {
    muestra(n);
    ponSubtitulo(subtituloDe(n));
    if (n == 0) {
        enfoca(campoNombre());
    } else {
        enfocaPrimero();
    }
}

std::string Calculadora::subtituloDe(int pantalla) const {
    return def_.subtitulos.at(static_cast<std::size_t>(pantalla));
}

bool Calculadora::DatosTomaPantalla() {
    try {
        tomaCampos();
        return true;
    } catch (const Fallo&) {
        mensajes().ComunicaError("Algún dato no es correcto. Revise el supuesto");
        return false;
    }
}

// --- Cases

ArchivoSupuestos Calculadora::archivo() const {
    return {entorno().almacen, def_.fichero, longitudRegistro()};
}

void Calculadora::DatosCargaRegistro(int r) {
    if (r < 1) return;
    const std::string bytes = archivo().lee(r);
    const std::string antes = escribeCaso();
    std::optional<Instantanea> campos;  // without a renderer nobody sees what stands there
    if (vista() != nullptr) campos.emplace(*this);
    try {
        leeCaso(bytes);
        cargaCampos();
        trasCargar();
    } catch (const Fallo&) {
        // A case that can't be shown leaves the one on screen as it was.
        leeCaso(antes);
        if (campos) campos->restaura();
        throw;
    }
    NombreActual_ = NombreSupuesto();
    MuestraPantalla(0);
    casoEnElTitulo(NombreActual_);
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
    casoEnElTitulo(NombreSupuesto());
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

void Calculadora::escribeDocumento(DestinoImpresion& destino) {
    entorno().rutinas.empieza(destino);
    ImprimeInforme(entorno().rutinas);
    destino.EndDoc();
}

void Calculadora::imprime() {
    const std::string quien{Recorta(campoNombre().texto())};
    const auto destino = entorno().impresora.elige(quien.empty() ? Titulo() : Titulo() + " - " + quien);
    if (destino == nullptr) return;
    try {
        escribeDocumento(*destino);
    } catch (const Fallo& fallo) {
        mensajes().ComunicaError("No se ha podido imprimir: " + std::string{fallo.what()} + ".");
    }
    mensajes().Informa("Impresión terminada");
}

}  // namespace orvemo
