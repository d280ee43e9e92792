#include "pensions/comun/lineas_bases.h"

#include <cmath>
#include <utility>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/pensiones.h"

namespace orvemo::pensiones {

namespace {

constexpr int kLineasPorMarco = 48;  // four years
constexpr int kLineasPorColumna = 12;
constexpr int kColumnasInforme = 3;

constexpr const char* kFormatoBase = "###,##0.00";
constexpr const char* kMinimaBase = "0";  // euros a month, as the message tells it
constexpr const char* kMaximaBase = "999999";

}  // namespace

// --- Declaration

LineasBases::LineasBases(Formulario& formulario, const DefBases& def) : Bloque{formulario} {
    Grupo* marco = nullptr;
    for (int i = 1; i <= def.lineas; ++i) {
        if ((i - 1) % kLineasPorMarco == 0) {
            marco = &nuevoGrupo({.nombre = def.marco,
                                 .pantalla = def.primeraPantalla + (i - 1) / kLineasPorMarco,
                                 .disposicion = Disposicion::Columnas,
                                 .columnas = kLineasPorMarco / kLineasPorColumna});
        }
        lineas_.push_back(&nuevaLinea(def, i, *marco));
    }
}

Campo& LineasBases::nuevaLinea(const DefBases& def, int i, Grupo& marco) {
    return nuevo({.nombre = def.nombre,
                  .indice = i,
                  .pantalla = marco.def().pantalla,
                  .grupo = &marco,
                  .defecto = "0",
                  .contenido = Contenido::Decimal,
                  .formato = kFormatoBase,
                  .alSalir = [this, i](Campo&) { deja(i); },
                  .alEscribir = [this](Campo&) { BaseEditada_ = true; },
                  .anchura = 9});
}

int LineasBases::pantallas() const {
    return (meses_ + kLineasPorMarco - 1) / kLineasPorMarco;
}

// --- Copying forward

void LineasBases::deja(int i) {
    if (Cargando()) return;
    CompruebaRango(base(i), kMinimaBase, kMaximaBase, DatoMal(), mensajes());
    if (DatoMal() || i == meses_ || !BaseEditada_) return;
    copiaHastaFinDeAnio(i);
    BaseEditada_ = false;
}

void LineasBases::copiaHastaFinDeAnio(int i) {
    const int ultima = Menor(i + 12, meses_);
    for (int j = i + 1; j <= ultima; ++j) {
        if (anio(j) == anio(i)) base(j).ponTexto(base(j - 1).texto());
    }
}

// --- The series

void LineasBases::prepara(Fecha referencia, int meses, Rotulo rotulo) {
    referencia_ = referencia;
    meses_ = meses;
    rotulo_ = rotulo;
    for (int i = 1; i <= static_cast<int>(lineas_.size()); ++i) {
        base(i).ponVisible(i <= meses);
        if (i <= meses) base(i).ponRotulo([this, i] { return rotuloDe(i); });
    }
}

int LineasBases::anio(int i) const {
    return AnioDelMesAnterior(referencia_, i);
}

std::string LineasBases::rotuloDe(int i) const {
    const Fecha mes = PrimeroDeMes(anio(i), MesDelMesAnterior(referencia_, i));
    if (rotulo_ == Rotulo::MesYAnio) return FormatoFecha(mes, "mmm/yyyy");
    return FormatoNumero(i, "0#") + ". " + FormatoFecha(mes, "mmm-yy");
}

void LineasBases::proyecta(double baseActual) {
    if (baseActual == baseActualProyectada_) return;
    bool preguntado = false;
    bool recalcula = false;
    for (int i = 1; i <= meses_; ++i) {
        const int anios = anio(i) - kAnioDelPrograma;
        if (anios < 0) continue;
        if (DobleDe(base(i).texto()) == 0) {
            recalcula = true;
        } else if (!std::exchange(preguntado, true)) {
            recalcula = mensajes().Confirma("¿Recalcular bases futuras proyectadas?");
        }
        if (recalcula) base(i).ponTexto(vias::escribeImporte(baseActual * std::pow(kSubidaAnual, anios)));
    }
    baseActualProyectada_ = baseActual;
}

void LineasBases::olvida(double baseActual) {
    baseActualProyectada_ = baseActual;
    BaseEditada_ = false;
}

// --- Report

void LineasBases::imprime(Informe& informe) const {
    const int filas = (meses_ + kColumnasInforme - 1) / kColumnasInforme;
    for (int fila = 1; fila <= filas; ++fila) {
        std::vector<CeldaInforme> celdas;
        for (int i = fila; i <= meses_; i += filas) {
            celdas.push_back({base(i).rotulo(), FormatoNumero(DobleDe(base(i).texto()), kFormatoBase)});
        }
        informe.columnas(celdas);
    }
}

}  // namespace orvemo::pensiones
