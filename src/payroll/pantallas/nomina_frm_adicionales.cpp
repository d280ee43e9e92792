#include <string>
#include <utility>

#include "foundations/frame/declaraciones.h"
#include "payroll/finiquito/causas.h"
#include "payroll/pantallas/nomina_frm.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/validaciones/rangos.h"

// The panels between the contract and the receipt: what a month asks for besides, and the settlement.

namespace orvemo {

using namespace nomina;

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

}  // namespace orvemo
