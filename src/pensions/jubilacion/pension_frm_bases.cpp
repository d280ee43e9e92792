#include <cmath>
#include <utility>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/jubilacion_cuantia.h"
#include "pensions/jubilacion/pension_frm.h"

namespace orvemo {

namespace {

using jubilacion::kAnioDelPrograma;
using jubilacion::kLineasGuardadas;
using jubilacion::kSubidaAnual;
using jubilacion::Regimen;
using pensiones::AnioDelMesAnterior;
using pensiones::MesDelMesAnterior;

constexpr int kLineasPorMarco = 48;  // four years
constexpr int kLineasPorColumna = 12;

}  // namespace

// --- Declaration

std::vector<Campo*> PensionFrm::nuevasBases() {
    std::vector<Campo*> bases;
    bases.reserve(kLineasGuardadas);
    Grupo* marco = nullptr;
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        const int pantalla = kPrimerMarco + (i - 1) / kLineasPorMarco;
        if ((i - 1) % kLineasPorMarco == 0) {
            marco = &nuevoGrupo({.nombre = "JubiBases",
                                 .pantalla = pantalla,
                                 .disposicion = Disposicion::Columnas,
                                 .columnas = kLineasPorMarco / kLineasPorColumna});
        }
        bases.push_back(&nuevo({.nombre = "JubiBase",
                                .indice = i,
                                .pantalla = pantalla,
                                .grupo = marco,
                                .defecto = "0",
                                .contenido = Contenido::Decimal,
                                .formato = kFormatoBase,
                                .alSalir = [this, i](Campo&) { dejaBase(i); },
                                .alEscribir = [this](Campo&) { BaseEditada_ = true; },
                                .anchura = 9}));
    }
    return bases;
}

// --- Copying forward

void PensionFrm::dejaBase(int i) {
    if (Cargando) return;
    CompruebaRango(JubiBase(i), "0", "999999", DatoMal, mensajes());
    if (DatoMal || i == serie_.MesesBases || !BaseEditada_) return;
    const int anio = anioDeBase(i);
    const int ultima = Menor(i + 12, serie_.MesesBases);
    for (int j = i + 1; j <= ultima; ++j) {
        if (anioDeBase(j) == anio) JubiBase(j).ponTexto(JubiBase(j - 1).texto());
    }
    BaseEditada_ = false;
}

// --- Series of bases

void PensionFrm::PreparaBasesJubilacion() {
    preparaSerie();
    proyectaBases();
}

void PensionFrm::preparaSerie() {
    const Fecha jubilacion = FechaDe(JubiFechaJub.texto());
    referencia_ = jubilacion::FechaReferencia(static_cast<Regimen>(JubiRegimen.indice() + 1), jubilacion,
                                              ultimosDias());
    serie_ = pensiones::SerieBasesDe(Anio(jubilacion));
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        JubiBase(i).ponVisible(i <= serie_.MesesBases);
        if (i <= serie_.MesesBases) JubiBase(i).ponRotulo(rotuloDeBase(i));
    }
}

/// Estimates the months of 2005 and later from the present base. A month already filled is asked about, once;
/// one still empty is filled at once, and the filled ones after it are then filled too.
void PensionFrm::proyectaBases() {
    const double baseActual = DobleDe(JubiBaseActual.texto());
    if (baseActual == baseActualProyectada_) return;
    bool preguntado = false;
    bool recalcula = false;
    for (int i = 1; i <= serie_.MesesBases; ++i) {
        const int anios = anioDeBase(i) - kAnioDelPrograma;
        if (anios < 0) continue;
        if (DobleDe(JubiBase(i).texto()) == 0) {
            recalcula = true;
        } else if (!std::exchange(preguntado, true)) {
            recalcula = mensajes().Confirma("¿Recalcular bases futuras proyectadas?");
        }
        if (recalcula) {
            JubiBase(i).ponTexto(FormatoNumero(baseActual * std::pow(kSubidaAnual, anios), kTextoImporte));
        }
    }
    baseActualProyectada_ = baseActual;
}

std::string PensionFrm::rotuloDeBase(int i) const {
    const Fecha mes = pensiones::PrimeroDeMes(anioDeBase(i), MesDelMesAnterior(referencia_, i));
    return FormatoNumero(i, "0#") + ". " + FormatoFecha(mes, "mmm-yy");
}

int PensionFrm::anioDeBase(int i) const {
    return AnioDelMesAnterior(referencia_, i);
}

jubilacion::UltimosDias PensionFrm::ultimosDias() const {
    jubilacion::UltimosDias dias;
    for (std::size_t i = 0; i < dias.size(); ++i) dias[i] = periodos[i].JubiPerHasta.texto();
    return dias;
}

}  // namespace orvemo
