#include "pensions/jubilacion/jubilacion.h"

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/jubilacion_carrera.h"
#include "pensions/jubilacion/jubilacion_cuantia.h"

namespace orvemo::jubilacion {

namespace {

// Figures of the law for 2005.
constexpr int kEdadAnticipada = 61;            // years: early retirement against the person's will
constexpr int kEdadParcial = 60;               // years
constexpr int kAniosAnticipada = 30;           // years of contribution over which it is open
constexpr AniosMeses kPeriodoTrasBaja{15, 0};  // of contribution, for who no longer contributes
constexpr int kDiasEnAlta = 90;                // from the last contribution, to count as contributing
constexpr int kAniosRecientes = 15;            // span before the retirement
constexpr int kMinimoAniosRecientes = 2;       // to be contributed within it
constexpr int kAniosParaBonificar = 35;        // of contribution
constexpr int kBonificacionPorAnio = 2;        // percent for each year worked after 65
constexpr int kMinimoDiasSOVI = 1800;

int enMeses(const AniosMeses& periodo) {
    return 12 * periodo.anios + periodo.meses;
}

void deniega(Dictamen& d) {
    d.linea();
    d.linea("*** NO TIENE DERECHO A PENSION ***");
}

/// The general scheme asks more of who stopped contributing more than 90 days ago.
void asimilaABaja(const RegistroJubilacion& caso, Carrera& carrera, Dictamen& d) {
    const int sinCotizar = DiferenciaFechas(Intervalo::Dia, carrera.ultimaFecha, caso.JubiFechaJub);
    if (carrera.regimen != Regimen::General || sinCotizar <= kDiasEnAlta) return;
    d.linea("Está en situación asimilada a baja.");
    carrera.edadMinima = kEdadOrdinaria;
    carrera.periodoMinimo = kPeriodoTrasBaja;
}

bool puedeAnticipar(const RegistroJubilacion& caso, const Carrera& carrera) {
    return carrera.edad >= kEdadAnticipada && caso.JubiVoluntario != 1 &&
           carrera.cotizado.anios > kAniosAnticipada;
}

void deniegaPorEdad(const Carrera& carrera, Dictamen& d) {
    d.linea("Al no reunir las condiciones mínimas para la jubilación anticipada (mínimo 61 ");
    d.linea("años, jubilación por causa no imputable o por despido y más de 30 años cotizados)");
    d.linea("y no haber cotizado al SOVI, no corresponde adelanto en la edad de jubilación.");
    d.linea("La edad mínima para la jubilación es de ", carrera.edadMinima, " años.");
    deniega(d);
}

bool cumpleEdad(const RegistroJubilacion& caso, const Carrera& carrera, Dictamen& d) {
    if (carrera.edad < carrera.edadMinima) {
        if (!puedeAnticipar(caso, carrera)) {
            deniegaPorEdad(carrera, d);
            return false;
        }
        d.linea(
            "Debe acreditar que se encuentra inscrito en la oficina de empleo desde hace por lo menos 6 "
            "meses.");
    } else if (carrera.regimen == Regimen::Parcial && carrera.edad < kEdadParcial) {
        // The minimum age of the partial pension has already stopped these; the rule stands all the same.
        d.linea("No tiene cumplidos los 60 años: no puede recibir este tipo de pensión.");
        deniega(d);
        return false;
    }
    return true;
}

void informaDeCotizacion(const Carrera& carrera, Dictamen& d) {
    const auto texto = [](const AniosMeses& t) { return pensiones::AniosMesesTexto(t.anios, t.meses); };
    d.linea("Ha cotizado durante ", texto(carrera.cotizado), ".");
    d.linea("Además,  en los ", kAniosRecientes, " últimos años ha cotizado ", texto(carrera.ultimos15), ".");
    d.linea("El periodo mínimo de cotización exigido es de 15 años así como 2 años dentro");
    d.linea("de los 15 años anteriores a la solicitud.");
}

bool cumplePeriodos(const Carrera& carrera, Dictamen& d) {
    if (enMeses(carrera.cotizado) < enMeses(carrera.periodoMinimo)) {
        d.linea("Luego NO CUMPLE el periodo mínimo de cotización exigido.");
    } else if (carrera.ultimos15.anios < kMinimoAniosRecientes) {
        d.linea("Luego NO CUMPLE el periodo mínimo de 2 años de cotización dentro de los");
        d.linea(kAniosRecientes, " últimos años anteriores a la solicitud.");
    } else {
        return true;
    }
    deniega(d);
    PensionSOVI(carrera.edad, carrera.diasSOVI, d);
    return false;
}

/// Percentage by which the pension grows for retiring after 65 with a long career.
int concluyeBonificacion(const Carrera& carrera, Dictamen& d) {
    if (carrera.edad <= kEdadOrdinaria || carrera.cotizado.anios < kAniosParaBonificar) return 0;
    const int bonificacion = kBonificacionPorAnio * (carrera.edad - kEdadOrdinaria);
    d.linea("La pensión se incrementará en un ", bonificacion, "% por jubilarse con");
    d.linea("posterioridad a los 65 años.");
    return bonificacion;
}

}  // namespace

void PensionSOVI(int edad, int diasSOVI, Dictamen& d) {
    if (edad < kEdadOrdinaria) return;
    if (diasSOVI >= kMinimoDiasSOVI) {
        d.linea();
        d.linea("Sin embargo, TIENE DERECHO A UNA PENSIÓN SOVI de ", TextoPlano(kPensionSOVI), " €/mes");
        return;
    }
    d.AddConc("(Pruebe la opción de PENSIÓN NO CONTRIBUTIVA en el menú principal");
    d.AddConc(" del programa, ya que tiene edad suficiente y a lo mejor cumple los");
    d.AddConc(" demás requisitos sobre renta anual.)");
}

void CalculaJubilacion(const RegistroJubilacion& caso, const pensiones::TablasPensiones& tablas, Fecha hoy,
                       Dictamen& d) {
    d.vacia();
    d.linea("El interesado desea jubilarse a los ", AniosCumplidos(caso.JubiFechaNac, caso.JubiFechaJub),
            " años.");
    Carrera carrera = estudiaCarrera(caso);
    asimilaABaja(caso, carrera, d);
    if (!cumpleEdad(caso, carrera, d)) return;
    informaDeCotizacion(carrera, d);
    if (!cumplePeriodos(carrera, d)) return;
    const int bonificacion = concluyeBonificacion(carrera, d);
    d.linea("El interesado cumple los periodos mínimos de cotización exigidos.");
    CalculaCuantia(caso, carrera, bonificacion, tablas, hoy, d);
    d.ConDerecho = true;
}

}  // namespace orvemo::jubilacion
