#include "foundations/frame/formulario.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

/// A field's new text beside its old one: only what is new goes through the filter, as it would key by key;
/// what stood there stays.
struct Cambio {
    std::string_view antes;  ///< common to both at the start
    std::string_view nuevo;
    std::string_view despues;  ///< common to both at the end
};

/// Whether the text can't be cut at `pos` without halving a character.
bool parteCaracter(std::string_view texto, std::size_t pos) {
    return pos < texto.size() && (static_cast<unsigned char>(texto[pos]) & 0xC0U) == 0x80U;
}

Cambio comparaTextos(std::string_view viejo, std::string_view texto) {
    const auto comunes = [](auto a, auto finA, auto b, auto finB) {
        return static_cast<std::size_t>(std::mismatch(a, finA, b, finB).second - b);
    };
    std::size_t antes = comunes(viejo.begin(), viejo.end(), texto.begin(), texto.end());
    while (antes > 0 && (parteCaracter(texto, antes) || parteCaracter(viejo, antes))) --antes;
    viejo.remove_prefix(antes);
    const std::string_view resto = texto.substr(antes);
    std::size_t despues = comunes(viejo.rbegin(), viejo.rend(), resto.rbegin(), resto.rend());
    while (despues > 0 && parteCaracter(resto, resto.size() - despues)) --despues;
    const std::size_t nuevos = resto.size() - despues;
    return {
        .antes = texto.substr(0, antes), .nuevo = resto.substr(0, nuevos), .despues = resto.substr(nuevos)};
}

}  // namespace

Formulario::Formulario(Entorno& entorno) : entorno_{entorno} {}

// --- Declaration

Campo& Formulario::nuevo(DefCampo def) {
    const MientrasCarga mientras{Cargando};
    return campos_.emplace_back(*this, std::move(def));
}

Grupo& Formulario::nuevoGrupo(DefGrupo def) {
    return grupos_.emplace_back(*this, std::move(def));
}

DefPanel Formulario::panel(int pantalla) const {
    const auto suyo = paneles_.find(pantalla);
    return suyo == paneles_.end() ? DefPanel{} : suyo->second;
}

Reaccion Formulario::rango(std::string minimo, std::string maximo) {
    return [this, minimo = std::move(minimo), maximo = std::move(maximo)](Campo& campo) {
        CompruebaRango(campo, minimo, maximo, DatoMal, mensajes());
    };
}

Reaccion Formulario::fechaCorrecta() {
    return [this](Campo& campo) { CompruebaFecha(campo, DatoMal, mensajes(), entorno_.reloj); };
}

bool Formulario::exigeFecha(Campo& fecha, std::string_view mensaje) {
    if (EsFecha(fecha.texto())) return true;
    mensajes().ComunicaError(mensaje);
    fecha.pideFoco();
    return false;
}

void Formulario::ponTitulos(std::string titulo, std::string caption) {
    titulo_ = std::move(titulo);
    caption_ = std::move(caption);
    if (vista_ != nullptr) vista_->refrescaTitulos();
}

void Formulario::ponSubtitulo(std::string subtitulo) {
    subtitulo_ = std::move(subtitulo);
    if (vista_ != nullptr) vista_->refrescaTitulos();
}

// --- What can be asked

Campo& Formulario::campo(std::string_view nombre, int indice) {
    const auto encontrado = std::ranges::find_if(campos_, [&](const Campo& campo) {
        return campo.def().nombre == nombre && campo.def().indice == indice;
    });
    if (encontrado == campos_.end()) throw std::out_of_range{"no field named " + std::string{nombre}};
    return *encontrado;
}

bool Formulario::enPantalla(const Campo& campo) const {
    const bool suSitio = campo.pantalla() < 0 || campo.pantalla() == PantallaActual_;
    return suSitio && campo.visible();
}

// --- Focus and checks

bool Formulario::foco(Campo& destino) {
    if (comprobando_) return false;
    if (&destino == actual_) return true;
    // The field isn't left yet: going through such a button throws its value away, passing by it does not.
    if (destino.def().sinComprobacion) return true;
    if (!dejaActual()) return false;
    actual_ = &destino;
    DatoMal = false;
    return true;
}

bool Formulario::dejaActual() {
    if (actual_ == nullptr || !puedeTenerFoco(*actual_)) return true;
    Campo& dejado = *actual_;
    pedido_ = nullptr;
    comprobando_ = true;
    protegido([&] { comprueba(dejado); });
    comprobando_ = false;
    Campo* pedido = std::exchange(pedido_, nullptr);
    if (pedido == nullptr) return true;
    if (!puedeTenerFoco(*pedido)) {
        // Nobody is held by a field that can't be reached.
        DatoMal = false;
        return true;
    }
    enfoca(*pedido);
    return false;
}

void Formulario::comprueba(Campo& campo) {
    const std::string fechaAntes = campo.estado_.fechaAsentada;
    const bool otraFecha = campo.esFecha() && campo.asientaFecha();
    if (!esFechaLegible(campo)) {
        rechaza(campo, "La fecha no es correcta. El formato válido es día-mes-año");
    } else if (campo.def().alSalir) {
        campo.def().alSalir(campo);
    }
    if (pedido_ != nullptr) {
        campo.estado_.fechaAsentada =
            fechaAntes;  // not left yet: whatever stands there now is still to be told
    } else if (otraFecha) {
        reacciona(campo);
    }
}

/// A picker holds nothing but a date once it is left; a typed date may be blank or bad.
bool Formulario::esFechaLegible(const Campo& campo) {
    return campo.def().clase != Clase::FechaSelector || EsFecha(campo.texto());
}

void Formulario::pideFoco(Campo& campo) {
    if (comprobando_) {
        pedido_ = &campo;
    } else {
        enfoca(campo);
    }
}

bool Formulario::puedeTenerFoco(const Campo& campo) const {
    return campo.enfocable() && enPantalla(campo);
}

bool Formulario::rechaza(Campo& campo, std::string_view motivo) {
    if (motivo.empty()) return false;
    mensajes().ComunicaError(motivo);
    DatoMal = true;
    campo.pideFoco();
    return true;
}

void Formulario::enfoca(Campo& campo) {
    if (!puedeTenerFoco(campo)) return;
    actual_ = &campo;
    DatoMal = false;
    if (vista_ != nullptr) vista_->enfoca(campo);
}

void Formulario::enfocaPrimero() {
    const auto primero = std::ranges::find_if(campos_, [&](const Campo& campo) {
        return campo.pantalla() == PantallaActual_ && campo.enfocable();
    });
    if (primero != campos_.end()) enfoca(*primero);
}

void Formulario::reacciona(Campo& campo) {
    if (!Cargando && campo.def().alCambiar) campo.def().alCambiar(campo);
}

// --- Events

bool Formulario::pulsa(Campo& boton) {
    if (comprobando_ || !boton.enfocable() || !enPantalla(boton)) return false;
    if (!boton.def().sinComprobacion && !foco(boton)) return false;
    if (boton.def().alPulsar) protegido([&] { boton.def().alPulsar(boton); });
    return true;
}

bool Formulario::pulsaPorTeclas(Campo& boton) {
    if (boton.def().sinComprobacion && !puedeDescartar()) return false;
    return pulsa(boton);
}

void Formulario::escribe(Campo& campo, std::string_view texto) {
    protegido([&] {
        const std::string antes = campo.texto();
        campo.estado_.texto = depura(campo, texto);
        if (vista_ != nullptr) vista_->refresca(campo);
        if (campo.estado_.texto == antes) return;
        modificado_ = true;
        if (campo.def().alEscribir) campo.def().alEscribir(campo);
    });
}

std::string Formulario::depura(const Campo& campo, std::string_view texto) const {
    std::string admitido{texto};
    if (campo.def().filtro) {
        const Cambio cambio = comparaTextos(campo.texto(), texto);
        admitido = FiltraTexto(campo.def().filtro, cambio.nuevo, cambio.antes, cambio.despues);
    }
    std::erase_if(admitido, [](char c) { return c == '\0' || c == '\r' || c == '\n'; });
    if (campo.def().largo > 0) admitido = PrimerosCaracteres(admitido, campo.def().largo);
    return admitido;
}

void Formulario::marca(Campo& campo, bool marcado) {
    modificado_ = modificado_ || campo.marcado() != marcado;
    protegido([&] { campo.ponMarcado(marcado); });
}

void Formulario::elige(Campo& campo, int indice) {
    modificado_ = modificado_ || campo.indice() != indice;
    protegido([&] { campo.ponIndice(indice); });
}

void Formulario::eligeFecha(Campo& campo, Fecha fecha) {
    protegido([&] {
        campo.estado_.texto = FormatoFecha(fecha, "dd-MM-yyyy");
        const bool otraFecha = campo.asientaFecha();
        modificado_ = modificado_ || otraFecha;
        campo.refresca();
        if (otraFecha) reacciona(campo);
    });
}

void Formulario::doblePulsa(Campo& campo) {
    if (campo.def().alPulsar) protegido([&] { campo.def().alPulsar(campo); });
}

char32_t Formulario::teclea(const Campo& campo, char32_t tecla) const {
    return campo.def().filtro ? campo.def().filtro(tecla, campo.texto()) : tecla;
}

// --- State

void Formulario::muestra(int pantalla) {
    PantallaActual_ = pantalla;
    if (vista_ != nullptr) vista_->muestraPantalla(pantalla);
}

void Formulario::oculta() {
    oculto_ = true;
    if (vista_ != nullptr) vista_->oculta();
}

void Formulario::abreModal(Formulario& otra) {
    otra.Inicia();
    if (vista_ != nullptr) vista_->muestraModal(otra);
}

bool Formulario::protegido(const std::function<void()>& accion) {
    try {
        accion();
        return true;
    } catch (const Fallo& fallo) {
        mensajes().ComunicaError("No se ha podido completar la operación: " + std::string{fallo.what()} +
                                 ".");
        return false;
    }
}

// --- Instantanea

Instantanea::Instantanea(Formulario& formulario) {
    for (Campo& campo : formulario.campos()) campos_.emplace_back(&campo, campo.estado());
    for (Grupo& grupo : formulario.grupos()) grupos_.push_back({&grupo, grupo.titulo(), grupo.visible()});
}

void Instantanea::restaura() const {
    for (const auto& [campo, estado] : campos_) campo->ponEstado(estado);
    for (const EstadoGrupo& estado : grupos_) {
        estado.grupo->ponTitulo(estado.titulo);
        estado.grupo->ponVisible(estado.visible);
    }
}

}  // namespace orvemo
