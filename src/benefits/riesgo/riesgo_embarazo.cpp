#include "benefits/riesgo/riesgo_embarazo.h"

#include <string>

#include "benefits/comun/meses.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::riesgo_embarazo {

namespace {

// Figures of the law for 2005.
constexpr double kTipo = 0.75;               // of the base
constexpr int kMinimoDiasCotizados = 180;    // days within the period looked at
constexpr double kDiasPlazo = 1825;          // days: five years, made longer by the shortness of the contract
constexpr double kHorasJornadaAnual = 1826;  // hours of a full-time year
constexpr double kHorasPorDia = 5;           // hours a year that count as a day contributed
constexpr double kDiasTresMeses = 90;        // days of the three months whose bases are summed
constexpr double kDiasAnio = 365;
constexpr double kMesesAnio = 12;

enum class Regimen { Ordinario = 1, TiempoParcial, Autonomos, Agrario };

Regimen regimenDe(const RegistroRiesgo& caso) {
    return static_cast<Regimen>(caso.Situacion + 1);
}

bool esTiempoParcial(const RegistroRiesgo& caso) {
    return regimenDe(caso) == Regimen::TiempoParcial;
}

bool esCotizacionMensual(const RegistroRiesgo& caso) {
    return caso.DM != 0;
}

/// Days before the leave in which contributions are looked for, part-time contracts only.
int periodoDe(const RegistroRiesgo& caso) {
    return RedondeaPar(Techo((1 - caso.D12 / kHorasJornadaAnual + 1) * kDiasPlazo));
}

// --- Daily base ---

int divisor(const RegistroRiesgo& caso) {
    if (esCotizacionMensual(caso) || regimenDe(caso) > Regimen::TiempoParcial) return kDivisorFijo;
    return delMes(kDivisorRiesgo, caso.f1);
}

double baseDelMesAnterior(const RegistroRiesgo& caso) {
    return Redondeado(caso.Bccant / divisor(caso), 2);
}

/// The worker who leaves in the month of joining has no month before: salary and share of the extra pays.
double baseDelMesDeAlta(const RegistroRiesgo& caso) {
    const int diasmes = delMes(kDiasDelMes, caso.f1);
    const double factor = esCotizacionMensual(caso) ? kMesesAnio : kDiasAnio / diasmes;
    const int dividendo = esCotizacionMensual(caso) ? kDivisorFijo : diasmes;
    return Redondeado((caso.Bact + caso.Extra * caso.IExtra / factor) / dividendo, 2);
}

double baseDiaria(const RegistroRiesgo& caso) {
    switch (regimenDe(caso)) {
        case Regimen::TiempoParcial:
            return Divide(caso.B12, kDiasTresMeses);
        case Regimen::Ordinario:
            return mismoMes(caso.fAlta, caso.f1) ? baseDelMesDeAlta(caso) : baseDelMesAnterior(caso);
        default:
            return caso.Bccant / kDivisorFijo;
    }
}

// --- Contribution ---

void informaDeCotizacion(const RegistroRiesgo& caso, Dictamen& d) {
    if (DiferenciaFechas(Intervalo::Dia, caso.fAlta, caso.f1) < kMinimoDiasCotizados) {
        d.linea("El trabajador debe justificar un mínimo de 180 días de cotización,");
        d.linea("dentro de los últimos 5 años.");
        return;
    }
    d.linea("El trabajador cumple el requisito de afiliación y alta en la Seguridad Social,");
    d.linea("en el momento de producirse el hecho causante, habiendo cotizado, asimismo,");
    d.linea("un mínimo de 180 días, dentro de los últimos 5 años.");
}

void informaDeCotizacionATiempoParcial(const RegistroRiesgo& caso, Dictamen& d) {
    const int periodo = periodoDe(caso);
    const int antiguedad = Menor(DiferenciaFechas(Intervalo::Dia, caso.fAlta, caso.f1) + 1, periodo);
    const double justificados = Redondeado(caso.D12 / kHorasPorDia / kDiasAnio * antiguedad, 0);
    const int anuales = Suelo(caso.D12 / kHorasPorDia);
    d.linea("La trabajadora justifica ", anuales, " días de cotización al año, es decir ",
            FormatoNumero(justificados, "#0"), " días desde la fecha de alta");
    d.linea(antiguedad >= kMinimoDiasCotizados ? "cumpliendo" : "y no cumple",
            " el mínimo de 180 días de cotización dentro de los últimos ", periodo, " días.");
}

// --- Amounts ---

int diasDeBaja(const RegistroRiesgo& caso) {
    return DiferenciaFechas(Intervalo::Dia, caso.f1, caso.f2) + 1;
}

/// Rounded for each day before the days are multiplied.
double importeDe(double base, int dias) {
    return Redondeado(base * kTipo, 2) * dias;
}

void informaDePrestacion(double base, int dias, Dictamen& d) {
    d.linea("El número de días de prestación es de ", FormatoNumero(dias, "##0"));
    d.linea("La indemnización de 75% es de ", FormatoNumero(importeDe(base, dias), "######0.00"), " €");
}

void informaDePrestacionATiempoParcial(double base, int dias, Dictamen& d) {
    d.linea("El número de días de prestación es de ", FormatoNumero(dias, "#0"));
    d.linea("El importe total de la prestación de 75% de base reguladora es de ",
            FormatoNumero(importeDe(base, dias), "###,##0.00"), " €");
}

}  // namespace

void CalculaRiesgoEmbarazo(const RegistroRiesgo& caso, Dictamen& dictamen) {
    dictamen.vacia();
    dictamen.linea("El interesado/a desea solicitar una prestación por Riesgo durante el Embarazo.");
    const double base = baseDiaria(caso);
    if (esTiempoParcial(caso)) {
        informaDeCotizacionATiempoParcial(caso, dictamen);
    } else {
        informaDeCotizacion(caso, dictamen);
    }
    dictamen.linea("Base Reguladora para la prestación:", FormatoNumero(base, "###,##0.00"), " €/diarios");
    if (esTiempoParcial(caso)) {
        informaDePrestacionATiempoParcial(base, diasDeBaja(caso), dictamen);
    } else {
        informaDePrestacion(base, diasDeBaja(caso), dictamen);
    }
    dictamen.linea("El pago de esta indemnización corre a cargo de la Seguridad Social.");
    dictamen.ConDerecho = true;
}

}  // namespace orvemo::riesgo_embarazo
