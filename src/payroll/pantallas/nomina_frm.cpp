#include "payroll/pantallas/nomina_frm.h"

#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "payroll/conceptos/conceptos.h"
#include "payroll/finiquito/causas.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/validaciones/rangos.h"
#include "tax/liquidos_frm.h"
#include "tax/rirpf_frm.h"

namespace orvemo {

using namespace nomina;

namespace {

// Characters that the fields show: the panels are dense.
constexpr std::size_t kLargoNombre = 80;
constexpr int kAnchoLista = 28;
constexpr int kAnchoListaCorta = 18;
constexpr int kAnchoConcepto = 25;
constexpr int kAnchoIncidencia = 15;
constexpr int kAnchoNumero = 10;

// Stored with the blanks that the list has had since ever, 41 characters each.
// clang-format off
const std::vector<std::string> kCategorias{
    "1. Ingenieros y licenciados              ",
    "2. Ing. técnicos, peritos y ayud. titul. ",
    "3. Jefes administrativos y de taller     ",
    "4. Ayudantes no titulados                ",
    "5. Oficiales administrativos             ",
    "6. Subalternos                           ",
    "7. Auxiliares administrativos            ",
    "8. Oficiales de 1ª y 2ª                  ",
    "9. Oficiales de 3ª y especialistas       ",
    "10. Peones                               ",
    "11. Trabajadores menores de 18 años      ",
};
// clang-format on

DefCampo defCifra(std::string nombre, std::string rotulo, Grupo& grupo, int indice, int anchura) {
    DefCampo def = resultado(std::move(nombre), std::move(rotulo), {}, anchura, &grupo);
    def.indice = indice;
    def.pantalla = grupo.def().pantalla;
    return def;
}

const std::vector<std::string> kMeses{" 1. Enero",      " 2. Febrero", " 3. Marzo",     " 4. Abril",
                                      " 5. Mayo",       " 6. Junio",   " 7. Julio",     " 8. Agosto",
                                      " 9. Septiembre", "10. Octubre", "11. Noviembre", "12. Diciembre"};

}  // namespace

NominaFrm::NominaFrm(Entorno& entorno)
    : CalculadoraDe{entorno,
                    {.titulo = "SUPUESTOS DE NÓMINAS Y SEGUROS SOCIALES",
                     .caption = "Cálculo de Nóminas",
                     .fichero = "nominas.nom",
                     .subtitulos = {"Datos del contrato", "Datos adicionales para diversas contingencias",
                                    "Datos adicionales para el finiquito", "Recibo de nóminas del trabajador",
                                    "Datos para el impreso TC/2", "Datos para el impreso TC/1",
                                    "Datos para el impreso TC/1 (Situación de Desempleo Parcial)",
                                    "Impresión", "Lista de conceptos", "Lista de incidencias"},
                     .campoNombre = "NomiNombre",
                     .prefijoBarra = "Nomi"}},
      listaConceptos_{ListaConceptos()},
      listaIncidencias_{ListaIncidencias()} {
    ponPanel(kContrato, {.denso = true});
    declaraContrato();
    declaraConceptos();
    declaraIncidencias();
    declaraExtraYParcial();
    declaraBaja();
    declaraFiniquito();
    declaraRecibo();
    declaraFormularios();
    declaraSalida();
    declaraAyudas();
    enlazaContrato();
    enlazaFilas();
    enlazaAdicionales();
    enlazaFiniquito();
}

// --- Kinds of field

/// A number with the range, the message and the pattern of its name.
Campo& NominaFrm::numero(std::string nombre, std::string rotulo, DefCampo sitio) {
    const RangoNumero& rango = RangoDe(nombre);
    sitio.nombre = std::move(nombre);
    sitio.rotulo = std::move(rotulo);
    sitio.contenido = Contenido::Decimal;
    if (sitio.anchura == 0) sitio.anchura = kAnchoNumero;
    sitio.formato = rango.formato;
    sitio.alSalir = [this, &rango](Campo& campo) {
        rechaza(campo, CompruebaNumero(rango, campo.texto()));
        if (rango.campo == "NomiPagaExtra") avisaExtras();
    };
    return nuevo(std::move(sitio));
}

/// A typed date with a calendar.
Campo& NominaFrm::fecha(std::string nombre, std::string rotulo, DefCampo sitio) {
    sitio.nombre = std::move(nombre);
    sitio.rotulo = std::move(rotulo);
    sitio.clase = Clase::FechaEscrita;
    return nuevo(std::move(sitio));
}

/// A figure or a text that only the program writes.
void NominaFrm::cifra(std::string nombre, std::string rotulo, Grupo& grupo, int indice, int anchura) {
    nuevo(defCifra(std::move(nombre), std::move(rotulo), grupo, indice, anchura));
}

/// The same, beside the one before it.
void NominaFrm::cifraAlLado(std::string nombre, std::string rotulo, Grupo& grupo, int indice, int anchura) {
    DefCampo def = defCifra(std::move(nombre), std::move(rotulo), grupo, indice, anchura);
    def.mismaLinea = true;
    nuevo(std::move(def));
}

Campo& NominaFrm::boton(std::string nombre, std::string rotulo, int pantalla, void (NominaFrm::*accion)()) {
    return nuevo({.nombre = std::move(nombre),
                  .rotulo = std::move(rotulo),
                  .clase = Clase::Boton,
                  .pantalla = pantalla,
                  .alPulsar = [this, accion](Campo&) { (this->*accion)(); }});
}

void NominaFrm::botonesDe(int pantalla, const char* anterior, const char* siguiente) {
    const auto lleva = [this, pantalla](const char* nombre, const char* rotulo, int hasta) {
        nuevo({.nombre = nombre,
               .rotulo = rotulo,
               .clase = Clase::Boton,
               .pantalla = pantalla,
               .alPulsar = [this, hasta](Campo&) { MuestraPantalla(hasta); },
               .mismaLinea = hasta > pantalla});
    };
    lleva(anterior, "(Pantalla Anterior...)", pantalla == kRecibo ? kContrato : pantalla - 1);
    if (siguiente != nullptr) lleva(siguiente, "(Continuación...)", pantalla + 1);
}

// --- Panel 0

void NominaFrm::declaraContrato() {
    Grupo& contrato = nuevoGrupo({.nombre = "Contrato"});
    nuevo({.nombre = "NomiNombre", .rotulo = "Nombre:", .grupo = &contrato, .largo = kLargoNombre});
    const auto agrega = [this](Grupo& grupo, int anchura, DefCampo def) {
        def.grupo = &grupo;
        def.anchura = anchura;
        nuevo(std::move(def));
    };
    agrega(contrato, kAnchoLista, lista("NomiEpigrafe", "Epígrafe para A.T. y E.P.", {}));
    agrega(contrato, kAnchoLista, lista("NomiCategoria", "Grupo de Cotización:", kCategorias, [this](Campo&) {
               cambiaCategoria();
           }));
    agrega(contrato, kAnchoLista,
           lista("TipoContrato", "Tipo de contrato:", {}, [this](Campo&) { cambiaGrupoContrato(); }));
    agrega(contrato, kAnchoLista,
           lista("NomiContrato", "Sub-Tipo:", {}, [this](Campo&) { ajustaCamposContrato(); }));
    Grupo& nomina = nuevoGrupo({.nombre = "Mes", .alLado = true});
    agrega(nomina, kAnchoListaCorta, lista("NomiMes", "Mes Nómina:", kMeses));
    agrega(nomina, kAnchoListaCorta,
           lista("NomiTipoPaga", "Tipo de paga:", {"1. Paga normal", "2. Paga extraordinaria"}));
    fecha("NomiFechaAlta", "Fecha de Inicio",
          {.grupo = &nomina, .defecto = std::string{kPrimerDiaAnio}, .alSalir = [this](Campo& c) {
               aplica(c, CompruebaFechaAlta(c.texto()));
           }});
    fecha("NomiFechaBaja", "F. de Cese",
          {.grupo = &nomina, .alSalir = [this](Campo& c) {
               aplica(c, CompruebaCese(c.texto(), campo("NomiFechaAlta").texto(), this->mes()));
           }});
    numero("NomiEdad", "Edad:", {.grupo = &nomina, .defecto = "25"});
    declaraPagas();
}

/// What the pay hangs on besides its concepts.
void NominaFrm::declaraPagas() {
    numero("NomiDesempleo", "Coeficiente Desempleo Parcial:", {.largo = 8});
    numero("NomiPluriempleo", "% Pluriempleo / Jornada Reducida:", {.largo = 6});
    for (int fila = 0; fila < 2; ++fila) {
        numero("NomiNumPagas",
               "Pagas extra:", {.indice = fila, .defecto = fila == 0 ? "2" : "0", .anchura = 4});
        numero("NomiPagaExtra", "pagas de (Mensuales)", {.indice = fila, .defecto = "0", .mismaLinea = true});
    }
    numero("NomiIRPFExtra", "% IRPF:", {.defecto = "0"});
    nuevo({.nombre = "BotonIRPF",
           .rotulo = "Cálculo %IRPF",
           .clase = Clase::Boton,
           .alPulsar = [this](Campo&) { calculaIRPF(); },
           .ayuda = "Utilidad para calcular el % de retención a cuenta del IRPF",
           .mismaLinea = true});
    nuevo({.nombre = "BotonLiquidos",
           .rotulo = "Conversión de líquidos en brutos",
           .clase = Clase::Boton,
           .alPulsar = [this](Campo&) { convierteLiquidos(); },
           .mismaLinea = true});
}

void NominaFrm::declaraConceptos() {
    Grupo& g = nuevoGrupo({.nombre = "Conceptos",
                           .titulo = "Conceptos del recibo de salario",
                           .disposicion = Disposicion::Tabla,
                           .columnas = 5,
                           .encabezados = {"Código", "", "Concepto", "Importe", "Período"}});
    for (int i = 0; i < kConceptos; ++i) {
        nuevo({.nombre = "NomiConcepto",
               .indice = i,
               .grupo = &g,
               .largo = 2,
               .filtro = TeclaMayuscula,
               .alSalir = [this, i](Campo&) { dejaConcepto(concepto(i)); },
               .anchura = 3});
        DefCampo ayuda = interrogacion("NomiConceptoAyuda", "Lista de conceptos", [this, i](Campo&) {
            muestraAyuda(kAyudaConceptos, concepto(i).codigo);
        });
        ayuda.indice = i;
        ayuda.grupo = &g;
        ayuda.mismaLinea = false;
        nuevo(std::move(ayuda));
        cifra("NomiTextoConcepto", "", g, i, kAnchoConcepto);
        nuevo({.nombre = "NomiImporte",
               .indice = i,
               .grupo = &g,
               .filtro = TeclaNumero,
               .formato = "##,###,##0.00",
               .alSalir = [this, i](Campo&) { compruebaImporte(concepto(i)); },
               .anchura = 12});
        nuevo({.nombre = "NomiPeriod",
               .indice = i,
               .grupo = &g,
               .largo = 1,
               .filtro = TeclaMayuscula,
               .alSalir =
                   [this](Campo& c) {
                       if (c.activo()) rechaza(c, CompruebaPeriodo(c.texto()));
                   },
               .anchura = 2});
    }
}

void NominaFrm::declaraIncidencias() {
    Grupo& g = nuevoGrupo({.nombre = "Incidencias",
                           .titulo = "Incidencias del mes",
                           .disposicion = Disposicion::Tabla,
                           .columnas = 5,
                           .encabezados = {"Incidencia", "", "Descripción", "del día", "al"},
                           .alLado = true});
    for (int i = 0; i < kIncidencias; ++i) {
        nuevo({.nombre = "NomiIncidencia",
               .indice = i,
               .grupo = &g,
               .largo = 1,
               .alSalir = [this, i](Campo&) { dejaIncidencia(incidencia(i)); },
               .anchura = 3});
        DefCampo ayuda = interrogacion("NomiInciAyuda", "Lista de incidencias", [this, i](Campo&) {
            muestraAyuda(kAyudaIncidencias, incidencia(i).codigo);
        });
        ayuda.indice = i;
        ayuda.grupo = &g;
        ayuda.mismaLinea = false;
        nuevo(std::move(ayuda));
        cifra("NomiTextoIncidencia", "", g, i, kAnchoIncidencia);
        nuevo({.nombre = "NomiFechaInci1",
               .indice = i,
               .grupo = &g,
               .largo = 2,
               .filtro = TeclaDigito,
               .alSalir = [this, i](Campo&) { compruebaDia1(incidencia(i)); },
               .anchura = 3});
        nuevo({.nombre = "NomiFechaInci2",
               .indice = i,
               .grupo = &g,
               .largo = 2,
               .filtro = TeclaDigito,
               .alSalir =
                   [this, i](Campo& c) {
                       const FilaIncidencia f = incidencia(i);
                       aplica(c, CompruebaDiaInci2(f.codigo.texto(), f.dia1.texto(), f.dia2.texto(), mes()));
                   },
               .anchura = 3});
    }
    boton("NomiSig0", "(Continuación...)", kContrato, &NominaFrm::dejaContrato);
}

/// The lists that the "?" of a row opens, a panel each.
void NominaFrm::declaraAyudas() {
    const auto ayuda = [this](int pantalla, const char* lista, const char* vuelve,
                              const std::vector<std::string>& opciones, std::size_t ancho) {
        nuevo({.nombre = lista,
               .clase = Clase::ListaAbierta,
               .pantalla = pantalla,
               .opciones = opciones,
               .alPulsar = [this, ancho](Campo& l) { copiaCodigo(l, ancho); }});
        boton(vuelve, "(Pantalla Anterior...)", pantalla, &NominaFrm::cierraAyuda);
    };
    ayuda(kAyudaConceptos, "NomiConceptos", "NomiConceptosVuelve", listaConceptos_, 2);
    ayuda(kAyudaIncidencias, "NomiIncidencias", "NomiIncidenciasVuelve", listaIncidencias_, 1);
}

// --- Panel 1

void NominaFrm::declaraExtraYParcial() {
    ponPanel(kAdicionales, {.denso = true});
    Grupo& extra = nuevoGrupo(
        {.nombre = "NomiExtraLbl",
         .titulo = "-> Periodo mínimo de alta requerido para recibir la gratificación extraordinaria:",
         .pantalla = kAdicionales});
    grupoExtra_ = &extra;
    fecha("NomiFechaExtra1", "Del día:",
          {.pantalla = kAdicionales,
           .grupo = &extra,
           .defecto = std::string{kPrimerDiaAnio},
           .alSalir = [this](Campo& c) { aplica(c, CompruebaFechaIniExtra(c.texto())); }});
    fecha("NomiFechaExtra2", "hasta el día:",
          {.pantalla = kAdicionales,
           .grupo = &extra,
           .defecto = std::string{kFinPrimerSemestre},
           .alSalir = [this](Campo& c) {
               aplica(c, CompruebaFechaFinExtra(c.texto(), campo("NomiFechaExtra1").texto()));
           }});
    numero("NomiParcialDias",
           "-> Días trabajados en el mes a liquidar:", {.pantalla = kAdicionales, .defecto = "0"});
    numero("NomiParcialHoras",
           "-> Horas trabajadas en el mes a liquidar:", {.pantalla = kAdicionales, .defecto = "0"});
    nuevo({.nombre = "NomiPromedio6Meses",
           .rotulo = "-> Promedio de las bases de contingencias durante los últimos 6 meses:",
           .pantalla = kAdicionales,
           .defecto = "0",
           .contenido = Contenido::Decimal,
           .alSalir = [this](Campo& c) { rechaza(c, CompruebaPromedio(c.texto())); },
           .anchura = kAnchoNumero});
}

void NominaFrm::declaraBaja() {
    Grupo& g = nuevoGrupo({.nombre = "Baja", .pantalla = kAdicionales});
    grupoBaja_ = &g;
    const DefCampo sitio{.pantalla = kAdicionales, .grupo = &g, .defecto = "0"};
    numero("NomiBaseCCAnt", "", sitio);
    numero("NomiBaseATEPAnt", "", sitio);
    numero("NomiHEAnt", "-> Horas extra del mes anterior al inicio de la baja:", sitio);
    numero("NomiHEAñoAnt", "-> Horas extra del año anterior al inicio de la baja:", sitio);
    nuevo({.nombre = "NomiDiasAnt",
           .pantalla = kAdicionales,
           .grupo = &g,
           .defecto = "0",
           .contenido = Contenido::Entero,
           .formato = "#0",
           .alSalir = [this](Campo& c) { rechaza(c, CompruebaDiasAnt(c.texto(), mes())); },
           .anchura = kAnchoNumero});
    nuevo({.nombre = "NomiDiasSemana",
           .rotulo = "Días de la semana trabajados:",
           .pantalla = kAdicionales,
           .grupo = &g,
           .defecto = "LMWJVSD",
           .largo = 7,
           .filtro = TeclaMayuscula,
           .anchura = kAnchoNumero});
    DefCampo horas = sitio;
    horas.defecto = "6";
    numero("NomiHorasDiarias", "-> Horas diarias del contrato:", horas);
    numero("NomiDias12", "-> Días cotizados en los 12 meses anteriores al inicio del descanso:", sitio);
    numero("NomiBase12",
           "-> Base de contingencias durante los 12 meses anteriores al inicio descanso:", sitio);
    nuevo({.nombre = "NomiAnt1",
           .rotulo = "(Pantalla Anterior...)",
           .clase = Clase::Boton,
           .pantalla = kAdicionales,
           .alPulsar = [this](Campo&) { MuestraPantalla(kContrato); }});
    boton("NomiSig1", "(Continuación...)", kAdicionales, &NominaFrm::dejaAdicionales);
}

// --- Panel 2

void NominaFrm::declaraFiniquito() {
    ponPanel(kFiniquito, {.denso = true});
    DefCampo causa =
        lista("NomiFTipoDes", "Causa del cese:", CausasCese(), [this](Campo&) { proponeCese(); });
    causa.pantalla = kFiniquito;
    nuevo(causa);
    DefCampo extincion =
        casilla("NomiFExtincion", "Calcular Indemnización/Compensación por la extinción del contrato");
    DefCampo preaviso =
        casilla("NomiFPreaviso",
                "Calcular indemnización por falta de preaviso reglamentario con 30 días de antelación");
    extincion.pantalla = preaviso.pantalla = kFiniquito;
    nuevo(extincion);
    nuevo(preaviso);
    const DefCampo sitio{.pantalla = kFiniquito, .defecto = "0"};
    numero("NomiFDiasInd", "Días legales por año trabajado:", sitio);
    numero("NomiFDiasCom", "Días de compensación adicional (con IRPF):", sitio);
    numero("NomiFMaxInd", "Máximo de meses:", sitio);
    Grupo& vacaciones = nuevoGrupo({.nombre = "Vacaciones",
                                    .titulo = "Vacaciones",
                                    .pantalla = kFiniquito,
                                    .disposicion = Disposicion::Columnas,
                                    .columnas = 2});
    declaraPeriodo({"NomiFVac1", "NomiFVac2"}, vacaciones, 0);
    nuevo({.nombre = "NomiFImpVac",
           .rotulo = "Salario real:",
           .pantalla = kFiniquito,
           .grupo = &vacaciones,
           .defecto = "0",
           .contenido = Contenido::Entero,
           .anchura = kAnchoNumero});
    numero("NomiFDiasVac",
           "Días disfrutados:", {.pantalla = kFiniquito, .grupo = &vacaciones, .defecto = "0"});
    declaraExtrasFin();
    boton("NomiAnt2", "(Pantalla Anterior...)", kFiniquito, &NominaFrm::vuelveDelFiniquito);
    boton("NomiSig2", "(Continuación...)", kFiniquito, &NominaFrm::CalculaSupuesto);
}

void NominaFrm::declaraExtrasFin() {
    Grupo& g = nuevoGrupo({.nombre = "ExtrasFin",
                           .titulo = "Pagas extra",
                           .pantalla = kFiniquito,
                           .disposicion = Disposicion::Tabla,
                           .columnas = 4,
                           .encabezados = {"Concepto", "Desde", "Hasta", "Importe"}});
    const char* conceptos[] = {"P.P. Verano", "P.P. Navidad", "P.P. Beneficios", "P.P. Otros conceptos"};
    for (int i = 0; i < kExtrasFin; ++i) {
        nuevo({.nombre = "NomiFConcepto",
               .indice = i,
               .pantalla = kFiniquito,
               .grupo = &g,
               .defecto = conceptos[i],
               .largo = 40});
        declaraPeriodo({"NomiFFec1", "NomiFFec2"}, g, i);
        nuevo({.nombre = "NomiFImporte",
               .indice = i,
               .pantalla = kFiniquito,
               .grupo = &g,
               .defecto = "0",
               .filtro = TeclaNumero,
               .formato = "#,###,##0.00",
               .anchura = 12});
    }
}

/// Both ends of a period, the year by default.
void NominaFrm::declaraPeriodo(std::pair<const char*, const char*> nombres, Grupo& grupo, int indice) {
    const char* const primera = nombres.first;
    fecha(primera, grupo.def().encabezados.empty() ? "Del día:" : "",
          {.indice = indice,
           .pantalla = kFiniquito,
           .grupo = &grupo,
           .defecto = std::string{kPrimerDiaAnio},
           .alSalir = [this](Campo& c) { aplica(c, CompruebaFechaPeriodo1(c.texto())); }});
    fecha(nombres.second, grupo.def().encabezados.empty() ? "al:" : "",
          {.indice = indice,
           .pantalla = kFiniquito,
           .grupo = &grupo,
           .defecto = std::string{kUltimoDiaAnio},
           .alSalir = [this, primera, indice](Campo& c) {
               aplica(c, CompruebaFechaPeriodo2(c.texto(), campo(primera, indice).texto()));
           }});
}

/// The percentage comes back, if one was worked out.
void NominaFrm::calculaIRPF() {
    RetIrpfFrm retenciones{entorno()};
    abreModal(retenciones);
    if (!retenciones.resultado()) return;
    campo("NomiIRPFExtra").ponTexto(TextoPlano(retenciones.resultado()->TipoRetencion));
}

void NominaFrm::convierteLiquidos() {
    LiquidosFrm liquidos{entorno()};
    abreModal(liquidos);
}

}  // namespace orvemo
