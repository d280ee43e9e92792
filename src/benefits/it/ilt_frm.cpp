#include "benefits/it/ilt_frm.h"

#include "benefits/comun/meses.h"
#include "benefits/it/incapacidad_temporal.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

const std::vector<std::string> kRegimenes{"R. general (contrato ordinario)",
                                          "R. general (contrato tiempo parcial)",
                                          "R.E. Autónomos",
                                          "R.E. Agrario",
                                          "R.E. Empleados de Hogar",
                                          "R. general (contrato formación)"};
enum : int { kOrdinario, kTiempoParcial, kAutonomos, kAgrario, kEmpleadosHogar, kFormacion };

// The third cause is told in short until the scheme is changed for the first time.
const std::vector<std::string> kCausasAlAbrir{"Enfermedad Común", "Accidente No Laboral",
                                              "Accidente Laboral"};
const std::vector<std::string> kCausasRegimenGeneral{"Enfermedad Común", "Accidente No Laboral",
                                                     "Accidente Laboral/Enfermedad Profesional"};
const std::vector<std::string> kCausasRegimenEspecial{"Enfermedad", "Accidente"};
constexpr int kAccidenteLaboral = 2;
constexpr int kAnchuraTBaja = 30;  // wide letters: enough for the longest cause, whichever the scheme

constexpr const char* kRotuloBaseComun =
    "Base de cotización por C. Comunes, en el mes anterior al de la baja:";
constexpr const char* kRotuloBaseUnica = "Base de cotización en el mes anterior al de la baja:";

constexpr const char* kTope = "99999999";  // euros or days
constexpr double kTopeHe = 99999999;       // euros
constexpr const char* kPatronImporte = "##,###,##0.00";
constexpr const char* kPatronFecha = "dd-MM-yyyy";

bool esRegimenEspecial(int s) {
    return s == kAutonomos || s == kAgrario || s == kEmpleadosHogar;
}

}  // namespace

ILTFrm::ILTFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "INCAPACIDAD TEMPORAL",
                   .caption = "Incapacidad Temporal",
                   .fichero = "ILT.nom",
                   .subtitulos = {"Datos del solicitante",
                                  "CONCLUSIONES SOBRE INDEMNIZACION POR INCAPACIDAD TEMPORAL"}}},
      Sup1{nuevoGrupo(
          {.nombre = "Sup1", .titulo = "Datos adicionales: Si la baja es en el mes de alta en la empresa"})},
      Sup2{nuevoGrupo({.nombre = "Sup2", .titulo = "Datos adicionales: Días de baja en meses anteriores"})},
      Sup3{nuevoGrupo({.nombre = "Sup3", .titulo = "Datos adicionales: Contratos a Tiempo Parcial"})},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      Situacion{nuevo(lista("Situacion", "Régimen de la Seguridad Social:", kRegimenes,
                            [this](Campo&) { cambiaSituacion(); }))},
      fAlta{nuevo(fechaElegida(
          "fAlta", "Fecha de alta en la Seguridad Social:", [this](Campo&) { AjustaPantalla(); }))},
      TBaja{nuevo(conAnchura(
          lista("TBaja", "Causa de la baja:", kCausasAlAbrir, [this](Campo&) { AjustaPantalla(); }),
          kAnchuraTBaja))},
      DM{nuevo(lista("DM", "Tipo de cotización :", {"Diaria", "Mensual"}))},
      f1{nuevo(fechaElegida("f1", "Fecha de baja por IT:", [this](Campo&) { AjustaPantalla(); }))},
      f2{nuevo(alLado(fechaElegida("f2", "Fecha de alta:")))},
      Bccant{nuevo(decimal("Bccant", kRotuloBaseComun, rango("0", kTope)))},
      Batant{nuevo(decimal("Batant", "Base de cotización por A.T. y E.P., en el mes anterior al de la baja:",
                           rango("0", kTope)))},
      He{nuevo(decimal("He", "Cotización Horas Extra del mes anterior al inicio de la baja:",
                       [this](Campo&) { compruebaHe(); }))},
      He12{
          nuevo(decimal("He12", "Cotización por Horas Extra de los doce últimos meses:", rango("0", kTope)))},
      Prev{nuevo(entero("Prev", "Días pasados en IT en los 6 meses anteriores:", rango("0", kTope), &Sup2))},
      Bact{nuevo(decimal("Bact", "Salario Base Mensual:", rango("0", kTope), &Sup1))},
      Extra{nuevo(entero("Extra", "Nº Pagas Extra:", rango("0", "9"), &Sup1))},
      IExtra{nuevo(alLado(decimal("IExtra", "Importe:", rango("0", kTope), &Sup1)))},
      B12{nuevo(decimal("B12", "Suma Bases Cot. 3 últimos meses:", rango("0", kTope), &Sup3))},
      D12{nuevo(entero("D12", "Días a los que corresponde:", rango("0", kTope), &Sup3))},
      HorasAno{nuevo(entero("HorasAno", "Número de horas trabajadas al año:", rango("0", "9999"), &Sup3))},
      DSem{nuevo(texto("DSem", "Días de la semana que trabaja (LMXJVSD):", "LMXJVSD", &Sup3))} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Situacion, &Caso::Situacion);
    enlaza(fAlta, &Caso::fAlta);
    enlaza(Bccant, &Caso::Bccant);
    enlaza(Batant, &Caso::Batant);
    enlaza(He, &Caso::He);
    enlaza(He12, &Caso::He12);
    enlaza(DM, &Caso::DM);
    enlaza(f1, &Caso::f1);
    enlaza(f2, &Caso::f2);
    enlaza(TBaja, &Caso::TBaja);
    enlaza(Bact, &Caso::Bact);
    enlaza(Extra, &Caso::Extra);
    enlaza(IExtra, &Caso::IExtra);
    enlaza(Prev, &Caso::Prev);
    enlaza(D12, &Caso::D12);
    enlaza(B12, &Caso::B12);
    enlaza(HorasAno, &Caso::HorasAno);
    // With its blanks.
    enlaza([this](Caso& caso) { caso.DSem.asigna(DSem.texto()); },
           [this](const Caso& caso) { DSem.ponTexto(caso.DSem.utf8()); });
}

// --- Reactions ---

void ILTFrm::Inicia() {
    TBaja.ponOpciones(kCausasAlAbrir);
    AsistenteDe::Inicia();
}

void ILTFrm::LimpiaDatos() {
    const int antes = Situacion.indice();
    AsistenteDe::LimpiaDatos();
    if (Situacion.indice() != antes) llenaTBaja();
    AjustaPantalla();
}

void ILTFrm::cambiaSituacion() {
    llenaTBaja();
    AjustaPantalla();
}

void ILTFrm::llenaTBaja() {
    TBaja.ponOpciones(esRegimenEspecial(Situacion.indice()) ? kCausasRegimenEspecial : kCausasRegimenGeneral);
}

void ILTFrm::AjustaPantalla() {
    const int s = Situacion.indice();
    const bool esLaboral = TBaja.indice() == kAccidenteLaboral;
    for (Grupo* sup : {&Sup1, &Sup2, &Sup3}) sup->ponVisible(false);
    Bccant.ponVisible(s != kTiempoParcial && s != kFormacion && !esLaboral);
    for (Campo* campo : {&Batant, &He, &He12}) campo->ponVisible(esLaboral && s == kOrdinario);
    Bccant.ponRotulo(esRegimenEspecial(s) ? kRotuloBaseUnica : kRotuloBaseComun);
    if (s == kFormacion) return;
    if (s == kTiempoParcial) {
        Sup3.ponVisible(true);
        DM.ponVisible(true);
        return;
    }
    DM.ponVisible(s == kOrdinario);
    if (s == kOrdinario && mismoMes(FechaDe(fAlta.texto()), FechaDe(f1.texto()))) {
        Sup1.ponVisible(true);
        for (Campo* campo : {&Bccant, &Batant, &He, &He12}) campo->ponVisible(false);
        return;
    }
    Sup2.ponVisible(!esLaboral);
}

void ILTFrm::compruebaHe() {
    if (DatoMal) return;
    if (!NumeroEntre(He.texto(), 0, kTopeHe)) {
        rechaza(He, "El número no es correcto. Debe introducir un número entre 0 y 99,999,999");
        return;
    }
    He.ponTexto(FormatoNumero(DobleDe(He.texto()), kPatronImporte));
}

// --- Case ---

void ILTFrm::preparaCaso() {
    DatosTomaPantalla();
    if (!Sup2.visible()) caso_.Prev = 0;  // days that weren't asked for don't count
}

void ILTFrm::calcula(Dictamen& dictamen) {
    incapacidad_temporal::CalculaIncapacidad(caso_, DSem.texto(), dictamen);
}

// --- Report ---

namespace {

void imprimeSolicitud(const ILTFrm& frm, Informe& informe) {
    lineaNombre(informe, frm.Nombre);
    informe.linea("Régimen de la Seguridad Social: " + frm.Situacion.texto());
    lineaSiSeVe(informe, frm.TBaja, "Causa de la baja: " + frm.TBaja.texto());
    informe.linea("Fecha de alta en la Seguridad Social: " + fechaDe(frm.fAlta, kPatronFecha));
    informe.linea("Tipo de cotización: " + frm.DM.texto());
    informe.linea("Periodo de baja por IT: " + fechaDe(frm.f1, kPatronFecha) + " AL " +
                  fechaDe(frm.f2, kPatronFecha));
}

void imprimeBase(const Campo& campo, const std::string& rotulo, Informe& informe) {
    lineaSiSeVe(informe, campo, rotulo + numeroDe(campo, kPatronImporte) + " €");
}

void imprimeBases(const ILTFrm& frm, Informe& informe) {
    imprimeBase(frm.Bccant, "Base de cotización por C.Comunes en el mes anterior al de la baja: ", informe);
    imprimeBase(frm.Batant, "Base de cotización por A.T. y E.P. en el mes anterior al de la baja: ", informe);
    imprimeBase(frm.He, "Base de cotización por Horas Extraordinarias: ", informe);
    imprimeBase(frm.He12, "Cotización por Horas Extra durante los 12 últimos meses: ", informe);
}

// The amounts of the frames go on paper as they stand on their fields.

void imprimeMesDeAlta(const ILTFrm& frm, Informe& informe) {
    informe.linea("Salario Base Mensual: " + frm.Bact.texto());
    informe.linea("Número de pagas extra: " + numeroDe(frm.Extra, "##0"));
    informe.linea("Importe de las pagas: " + frm.IExtra.texto());
}

void imprimeTiempoParcial(const ILTFrm& frm, Informe& informe) {
    informe.linea("Suma Bases Cot. 3 últimos meses: " + frm.B12.texto());
    informe.linea("Días efectivamente cotizados: " + numeroDe(frm.D12, "##0"));
    informe.linea("Total de horas trabajadas al año: " + numeroDe(frm.HorasAno, "###0"));
    informe.linea("Días de la semana que trabaja: " + frm.DSem.texto());
}

void imprimeDiasPrevios(const ILTFrm& frm, Informe& informe) {
    informe.linea("Días pasados en IT en los 6 meses anteriores: " + numeroDe(frm.Prev, "##0"));
}

}  // namespace

void ILTFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "INCAPACIDAD TEMPORAL"};
    imprimeSolicitud(*this, informe);
    imprimeBases(*this, informe);
    if (Sup1.visible()) imprimeMesDeAlta(*this, informe);
    if (Sup3.visible()) imprimeTiempoParcial(*this, informe);
    if (Sup2.visible()) imprimeDiasPrevios(*this, informe);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
