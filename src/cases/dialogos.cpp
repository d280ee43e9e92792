#include "cases/dialogos.h"

#include <algorithm>
#include <utility>

#include "cases/registro.h"
#include "foundations/values/fallos.h"
#include "foundations/values/textos.h"

namespace orvemo {

namespace {

constexpr std::string_view kMarcaEjemplosLibres = "vesta";

/// A name as it will be listed once saved: trimmed, and without what the file can't hold ("Łódź" comes back
/// as
/// "?ód?"). Saved twice, such a name has to meet itself and not become two cases.
std::string comoSeListara(std::string_view nombre) {
    return Texto<kAnchoNombre>{nombre}.utf8();
}

}  // namespace

DialogoSupuestos::DialogoSupuestos(Almacen& almacen, Mensajes& mensajes, std::string fichero,
                                   std::size_t longitud, int primerLibre)
    : almacen_{almacen},
      mensajes_{mensajes},
      archivo_{almacen, std::move(fichero), longitud},
      primerLibre_{primerLibre} {}

void DialogoSupuestos::avisa() const {
    if (alCambiar) alCambiar();
}

void DialogoSupuestos::CargaLista() {
    lista_ = OrdenaAlfabeticamente(archivo_.lista());
    seleccion_ = -1;
    avisa();
}

void DialogoSupuestos::selecciona(int entrada) {
    seleccion_ = entrada >= 0 && entrada < static_cast<int>(lista_.size()) ? entrada : -1;
    avisa();
}

const EntradaSupuesto* DialogoSupuestos::elegida() const {
    return seleccion_ < 0 ? nullptr : &lista_[static_cast<std::size_t>(seleccion_)];
}

void DialogoSupuestos::oculta(int registro) {
    registro_ = registro;
    oculto_ = true;
    avisa();
}

void DialogoSupuestos::BotonCancelar() {
    oculta(kSinRegistro);
}

void DialogoSupuestos::cierra() {
    oculta(registro_);
}

void DialogoSupuestos::protegido(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const Fallo& fallo) {
        mensajes_.ComunicaError("No se ha podido completar la operación: " + std::string{fallo.what()} + ".");
    }
}

void DialogoSupuestos::borraElegida() {
    if (!mensajes_.Confirma("¿Borrar el supuesto?")) return;
    protegido([&] {
        archivo_.borra(elegida()->registro);
        CargaLista();
    });
}

// --- GrabaSupuesto

void GrabaSupuesto::Inicia(const std::string& nombre) {
    ponNombre(std::string{Recorta(nombre)});
    CargaLista();
}

void GrabaSupuesto::ponNombre(const std::string& nombre) {
    nombre_ = PrimerosCaracteres(nombre, kMaximoNombre);
    avisa();
}

bool GrabaSupuesto::puedeGrabar() const {
    return !EsVacio(nombre_);
}

void GrabaSupuesto::selecciona(int entrada) {
    DialogoSupuestos::selecciona(entrada);
    if (elegida() != nullptr) ponNombre(elegida()->nombre);
}

void GrabaSupuesto::BotonGrabar() {
    if (EsVacio(nombre_)) {
        mensajes_.ComunicaError("El nombre del supuesto no puede estar en blanco.");
        return;
    }
    const auto igual = std::ranges::find(lista_, comoSeListara(nombre_), &EntradaSupuesto::nombre);
    if (igual == lista_.end()) return oculta(kRegistroNuevo);
    // Examples aren't protected here: a save over one goes through.
    registro_ = igual->registro;
    if (mensajes_.Confirma("¿Desea sobreescribir el antigüo supuesto?")) oculta(registro_);
}

void GrabaSupuesto::BotonBorrar() {
    const EntradaSupuesto* entrada = elegida();
    if (entrada == nullptr) return;
    if (entrada->registro < primerLibre_ && !almacen_.existe(kMarcaEjemplosLibres)) {
        mensajes_.ComunicaError(
            "No pueden borrarse ni  sobreescribirse los supuestos entregados como ejemplo");
        return;
    }
    borraElegida();
}

// --- CargaSupuesto

void CargaSupuesto::Inicia() {
    CargaLista();
}

void CargaSupuesto::BotonCargar() {
    if (elegida() != nullptr) oculta(elegida()->registro);
}

void CargaSupuesto::BotonBorrar() {
    // The examples aren't protected in this dialog.
    if (elegida() != nullptr) borraElegida();
}

}  // namespace orvemo
