#include "benefits/maternidad/mater_frm.h"

#include "benefits/maternidad/maternidad.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

const std::vector<std::string> kRegimenes{"R.General (contrato ordinario)",
                                          "R.General (contrato tiempo parcial)", "R.E. de Autónomos",
                                          "R.E. Agrario", "R.E. de Empleados de Hogar"};
enum : int { kOrdinario, kTiempoParcial };

constexpr const char* kTope = "999999";  // euros or hours
constexpr const char* kPatronFecha = "dd-MM-yyyy";
constexpr const char* kPatronFechaInforme = "dd-mmm-yyyy";

}  // namespace

MaterFrm::MaterFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "PRESTACION POR MATERNIDAD",
                   .caption = "Prestación por maternidad",
                   .fichero = "Mater.nom",
                   .subtitulos = {"Datos del solicitante",
                                  "CONCLUSIONES SOBRE INDEMNIZACION POR MATERNIDAD"}}},
      tp{nuevoGrupo({.nombre = "tp", .visible = false})},
      jtp{nuevoGrupo({.nombre = "jtp", .visible = false})},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      Situacion{nuevo(lista("Situacion", "Régimen de la Seguridad Social:", kRegimenes,
                            [this](Campo&) { AjustaRegimen(); }))},
      fAlta{nuevo(fechaEscrita("fAlta", "Fecha de alta en la Seguridad Social:"))},
      f1{nuevo(fechaEscrita("f1", "Fecha de inicio y final del descanso:"))},
      f2{nuevo(alLado(fechaEscrita("f2", "al")))},
      Bccant{nuevo(decimal("Bccant",
                           "Base de cotización por Contingencias Comunes, en el mes anterior al inicio del "
                           "descanso:",
                           rango("0", kTope)))},
      DM{nuevo(lista("DM", "Tipo de cotización :", {"Diaria", "Mensual"}))},
      B12{nuevo(
          decimal("B12", "Suma de las bases de cotización durante el último año:", rango("0", kTope), &tp))},
      D12{nuevo(entero("D12", "Horas anuales pactadas en contrato:", rango("0", kTope), &tp, "913"))},
      jtpcnd{nuevo(casilla("jtpcnd", "Reducción de jornada",
                           [this](Campo& reduccion) { jtp.ponVisible(reduccion.marcado()); }))},
      ftp{nuevo(fechaElegida("ftp", "Fecha inicio jornada tiempo parcial:", {}, &jtp))},
      ptp{nuevo(entero("ptp", "% de jornada realizada:", rango("0", "100"), &jtp, "60"))} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Situacion, &Caso::Situacion);
    enlaza(fAlta, &Caso::fAlta);
    enlaza(f1, &Caso::f1);
    enlaza(f2, &Caso::f2);
    enlaza(Bccant, &Caso::Bccant);
    enlaza(DM, &Caso::DM);
    enlaza(B12, &Caso::B12);
    enlaza(D12, &Caso::D12);
    enlaza(jtpcnd, &Caso::jtpcnd);
    enlaza(ftp, &Caso::ftp);
    enlaza(ptp, &Caso::ptp);
}

// --- Reactions ---

void MaterFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    for (Campo* fecha : {&fAlta, &f1, &f2}) fecha->ponTexto(FormatoFecha(hoy(), kPatronFecha));
    AjustaRegimen();
}

void MaterFrm::AjustaRegimen() {
    const int i = Situacion.indice();
    DM.ponVisible(i == kOrdinario);
    tp.ponVisible(i == kTiempoParcial);
    Bccant.ponVisible(i != kTiempoParcial);
}

bool MaterFrm::ValidaPantalla() {
    return exigeFecha(fAlta, "La fecha de alta no es correcta") &&
           exigeFecha(f1, "La fecha de inicio del descanso no es correcta") &&
           exigeFecha(f2, "La fecha de final del descanso no es correcta");
}

// --- Case ---

void MaterFrm::calcula(Dictamen& dictamen) {
    using maternidad::Jornada;
    maternidad::CalculaMaternidad(caso_, jtpcnd.marcado() ? Jornada::Reducida : Jornada::Completa, dictamen);
}

// --- Report ---

namespace {

void imprimeDescanso(const MaterFrm& frm, Informe& informe) {
    lineaNombre(informe, frm.Nombre);
    informe.linea("Régimen de la Seguridad Social: " + frm.Situacion.texto());
    informe.linea("Fecha de alta en la Seguridad Social: " + fechaDe(frm.fAlta, kPatronFechaInforme));
    informe.linea("Fecha de inicio del descanso: " + fechaDe(frm.f1, kPatronFechaInforme));
    informe.linea("Fecha de final del descanso: " + fechaDe(frm.f2, kPatronFechaInforme));
}

void imprimeCotizacion(const MaterFrm& frm, Informe& informe) {
    lineaSiSeVe(informe, frm.Bccant, "Base de cotización por Contingencias Comunes, en el mes anterior");
    lineaSiSeVe(informe, frm.Bccant,
                "al inicio del descanso: " + numeroDe(frm.Bccant, "###,###,##0.00") + " €");
    lineaSiSeVe(informe, frm.DM, "Tipo de cotización: " + frm.DM.texto());
    if (frm.Situacion.indice() != kTiempoParcial) return;
    informe.linea("Suma de cotización de los 12 últimos meses: " + numeroDe(frm.B12, "##,###,##0.00") + " €");
    informe.linea("Horas cotizadas en el último año: " + numeroDe(frm.D12, "####0"));
}

}  // namespace

void MaterFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "DESCANSO POR MATERNIDAD"};
    imprimeDescanso(*this, informe);
    imprimeCotizacion(*this, informe);
    // No heading parts the conclusions of this report from the data.
    informe.separa();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
