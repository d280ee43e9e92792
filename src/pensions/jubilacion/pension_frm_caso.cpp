#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/pension_frm.h"

namespace orvemo {

namespace {

using jubilacion::kLineasGuardadas;

constexpr const char* kTextoFecha = "dd-mm-yyyy";

std::uint8_t unoSi(const Campo& casilla) {
    return casilla.marcado() ? 1 : 0;
}

}  // namespace

void PensionFrm::tomaCampos() {
    caso_.JubiNombre.asigna(Recorta(JubiNombre.texto()));
    caso_.JubiFechaNac = FechaDe(JubiFechaNac.texto());
    caso_.JubiFechaJub = FechaDe(JubiFechaJub.texto());
    caso_.JubiRegimen = static_cast<std::uint8_t>(JubiRegimen.indice());
    caso_.JubiConyuge = unoSi(JubiConyuge);
    caso_.JubiVoluntario = unoSi(JubiVoluntario);
    caso_.JubiNoImputable = unoSi(JubiNoImputable);
    tomaPeriodos();
    caso_.JubiBasesDesglosadas = unoSi(JubiBasesDesglosadas);
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        caso_.JubiBase[static_cast<std::size_t>(i - 1)] = DobleDe(JubiBase(i).texto());
    }
    caso_.JubiSumaBases = DobleDe(JubiSumaBases.texto());
    caso_.JubiBaseActual = DobleDe(JubiBaseActual.texto());
    caso_.JubiRedJor = DobleDe(JubiRedJor.texto());
    caso_.HorasTP = DobleDe(HorasTP.texto());
    caso_.HorasTP15 = DobleDe(HorasTP15.texto());
    caso_.marca.asigna("DP");
}

void PensionFrm::tomaPeriodos() {
    for (std::size_t i = 0; i < periodos.size(); ++i) {
        caso_.JubiPerDesde[i].asigna(Recorta(periodos[i].JubiPerDesde.texto()));
        caso_.JubiPerHasta[i].asigna(Recorta(periodos[i].JubiPerHasta.texto()));
        caso_.JubiPerEmpresa[i].asigna(Recorta(periodos[i].JubiPerEmpresa.texto()));
    }
}

void PensionFrm::cargaCampos() {
    JubiNombre.ponTexto(caso_.JubiNombre.utf8());
    JubiFechaNac.ponTexto(FormatoFecha(caso_.JubiFechaNac, kTextoFecha));
    JubiFechaJub.ponTexto(FormatoFecha(caso_.JubiFechaJub, kTextoFecha));
    JubiRegimen.ponIndice(caso_.JubiRegimen);
    JubiConyuge.ponMarcado(caso_.JubiConyuge == 1);
    JubiVoluntario.ponMarcado(caso_.JubiVoluntario == 1);
    JubiNoImputable.ponMarcado(caso_.JubiNoImputable == 1);
    cargaPeriodos();
    JubiBasesDesglosadas.ponMarcado(caso_.JubiBasesDesglosadas == 1);
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        JubiBase(i).ponTexto(FormatoNumero(caso_.JubiBase[static_cast<std::size_t>(i - 1)], kTextoImporte));
    }
    JubiSumaBases.ponTexto(FormatoNumero(caso_.JubiSumaBases, kTextoImporte));
    JubiBaseActual.ponTexto(FormatoNumero(caso_.JubiBaseActual, kTextoImporte));
    JubiRedJor.ponTexto(TextoPlano(caso_.JubiRedJor));
    HorasTP.ponTexto(TextoPlano(caso_.HorasTP));
    HorasTP15.ponTexto(TextoPlano(caso_.HorasTP15));
}

void PensionFrm::cargaPeriodos() {
    for (std::size_t i = 0; i < periodos.size(); ++i) {
        periodos[i].JubiPerDesde.ponTexto(caso_.JubiPerDesde[i].utf8());
        periodos[i].JubiPerHasta.ponTexto(caso_.JubiPerHasta[i].utf8());
        periodos[i].JubiPerEmpresa.ponTexto(caso_.JubiPerEmpresa[i].utf8());
    }
}

void PensionFrm::trasCargar() {
    // Unchanged data must not offer a new projection.
    baseActualProyectada_ = DobleDe(JubiBaseActual.texto());
    BaseEditada_ = false;
    ajustaVisibles();
    preparaSerie();
}

}  // namespace orvemo
