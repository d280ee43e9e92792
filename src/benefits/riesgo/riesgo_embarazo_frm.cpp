#include "benefits/riesgo/riesgo_embarazo_frm.h"

#include "benefits/comun/meses.h"
#include "benefits/riesgo/riesgo_embarazo.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

const std::vector<std::string> kRegimenes{"R. general (contrato ordinario)",
                                          "R. general (contrato tiempo parcial)", "R.E. Autónomos",
                                          "R.E. Agrario"};
enum : int { kOrdinario, kTiempoParcial };

constexpr const char* kTope = "99999999";  // euros
constexpr const char* kPatronFecha = "dd-MM-yyyy";
constexpr const char* kPatronFechaInforme = "dd-mmm-yyyy";

}  // namespace

RiesgoEmbarazo::RiesgoEmbarazo(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "RIESGO DURANTE EL EMBARAZO",
                   .caption = "Riesgo durante el embarazo",
                   .fichero = "RiesgoEm.nom",
                   .subtitulos = {"Datos del solicitante",
                                  "CONCLUSIONES SOBRE PRESTACIÓN POR RIESGO DURANTE EMBARAZO"}}},
      Sup1{nuevoGrupo(
          {.nombre = "Sup1", .titulo = "Datos adicionales: Si la baja es en el mes de alta en la empresa"})},
      Sup3{nuevoGrupo({.nombre = "Sup3", .titulo = "Datos adicionales: Contratos a Tiempo Parcial"})},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      Situacion{nuevo(lista("Situacion", "Régimen de la Seguridad Social:", kRegimenes,
                            [this](Campo&) { AjustaRegimen(); }))},
      fAlta{nuevo(fechaEscrita(
          "fAlta", "Fecha de alta en la Seguridad Social:", [this](Campo&) { AjustaRegimen(); }))},
      f1{nuevo(fechaEscrita("f1", "Fecha de la baja:", [this](Campo&) { AjustaRegimen(); }))},
      f2{nuevo(fechaEscrita("f2", "Fecha del fin de la baja:", [this](Campo&) { AjustaRegimen(); }))},
      Bccant{nuevo(
          decimal("Bccant", "Base de cotización en el mes anterior al de la baja:", rango("0", kTope)))},
      DM{nuevo(lista("DM", "Tipo de cotización :", {"Diaria", "Mensual"}))},
      B12{nuevo(decimal("B12", "Suma Bases Cot. 3 últimos meses:", rango("0", kTope), &Sup3))},
      D12{nuevo(entero("D12", "Horas anuales pactadas en contrato:", rango("0", "1826"), &Sup3))},
      Bact{nuevo(decimal("Bact", "Salario Base Mensual:", rango("0", kTope), &Sup1))},
      Extra{nuevo(entero("Extra", "Nº Pagas Extra:", rango("0", "9"), &Sup1))},
      IExtra{nuevo(alLado(decimal("IExtra", "Importe:", rango("0", kTope), &Sup1)))} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Situacion, &Caso::Situacion);
    enlaza(fAlta, &Caso::fAlta);
    enlaza(Bccant, &Caso::Bccant);
    enlaza(DM, &Caso::DM);
    enlaza(f1, &Caso::f1);
    enlaza(f2, &Caso::f2);
    enlaza(Bact, &Caso::Bact);
    enlaza(Extra, &Caso::Extra);
    enlaza(IExtra, &Caso::IExtra);
    enlaza(D12, &Caso::D12);
    enlaza(B12, &Caso::B12);
}

// --- Reactions ---

void RiesgoEmbarazo::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    for (Campo* fecha : {&fAlta, &f1, &f2}) fecha->ponTexto(FormatoFecha(hoy(), kPatronFecha));
    AjustaRegimen();
}

void RiesgoEmbarazo::AjustaRegimen() {
    const int i = Situacion.indice();
    Sup1.ponVisible(false);
    Sup3.ponVisible(false);
    Bccant.ponVisible(i != kTiempoParcial);
    if (i == kTiempoParcial) {
        Sup3.ponVisible(true);
        DM.ponVisible(true);
        return;
    }
    DM.ponVisible(i == kOrdinario);
    Sup1.ponVisible(i == kOrdinario && mismoMes(FechaDe(fAlta.texto()), FechaDe(f1.texto())));
}

bool RiesgoEmbarazo::ValidaPantalla() {
    return exigeFecha(fAlta, "La fecha de alta no es correcta") &&
           exigeFecha(f1, "La fecha de inicio de la baja no es correcta") &&
           exigeFecha(f2, "La fecha de final de la baja no es correcta");
}

// --- Case ---

void RiesgoEmbarazo::calcula(Dictamen& dictamen) {
    riesgo_embarazo::CalculaRiesgoEmbarazo(caso_, dictamen);
}

// --- Report ---

namespace {

void imprimeBaja(const RiesgoEmbarazo& frm, Informe& informe) {
    lineaNombre(informe, frm.Nombre);
    informe.linea("Régimen de la Seguridad Social: " + frm.Situacion.texto());
    informe.linea("Fecha de alta en la Seguridad Social: " + fechaDe(frm.fAlta, kPatronFechaInforme));
    informe.linea("Tipo de cotización: " + frm.DM.texto());
    informe.linea("Periodo de baja: " + fechaDe(frm.f1, kPatronFechaInforme) + " AL " +
                  fechaDe(frm.f2, kPatronFechaInforme));
    informe.linea("Base de cotización por C.Comunes en el mes anterior al de la baja: " +
                  numeroDe(frm.Bccant, "##,###,##0.00") + " €");
}

void imprimeTiempoParcial(const RiesgoEmbarazo& frm, Informe& informe) {
    informe.linea("Suma Bases Cot. 3 últimos meses: " + numeroDe(frm.B12, "##,###,##0.00") + " €");
    informe.linea("Horas anuales pactadas en contrato: " + numeroDe(frm.D12, "##0"));
}

void imprimeMesDeAlta(const RiesgoEmbarazo& frm, Informe& informe) {
    informe.linea("Datos adicionales por ser la baja en el mes de alta en la empresa:");
    informe.linea("Salario Base mensual: " + numeroDe(frm.Bact, "###,##0.00") + " €");
    informe.linea("Nº de Pagas extra: " + numeroDe(frm.Extra, "##0") + " de " +
                  numeroDe(frm.IExtra, "###,##0.00") + " €");
}

}  // namespace

void RiesgoEmbarazo::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "RIESGO DURANTE EL EMBARAZO"};
    imprimeBaja(*this, informe);
    if (Sup3.visible()) imprimeTiempoParcial(*this, informe);
    if (Sup1.visible()) imprimeMesDeAlta(*this, informe);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
