#include "payroll/pantallas/nomina_frm.h"

#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "payroll/conceptos/conceptos.h"
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

// --- Other screens

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
