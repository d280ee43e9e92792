#include "benefits/maternidad/maternidad.h"

#include <string>

#include "benefits/comun/meses.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::maternidad {

namespace {

// Figures of the law for 2005.
constexpr int kMinimoDiasCotizados = 180;    // days within the period looked at
constexpr double kDiasPlazo = 1825;          // days: five years, made longer by the shortness of the contract
constexpr double kHorasJornadaAnual = 1826;  // hours of a full-time year
constexpr double kHorasPorDia = 5;           // hours a year that count as a day contributed
constexpr double kDiasAnio = 365;

enum class Regimen { Ordinario = 1, TiempoParcial, Autonomos, Agrario, EmpleadosHogar };

Regimen regimenDe(const RegistroMaternidad& caso) {
    return static_cast<Regimen>(caso.Situacion + 1);
}

bool esTiempoParcial(const RegistroMaternidad& caso) {
    return regimenDe(caso) == Regimen::TiempoParcial;
}

bool esCotizacionMensual(const RegistroMaternidad& caso) {
    return caso.DM != 0;
}

std::string base(double euros) {
    return FormatoNumero(euros, "###,##0.00");
}

std::string importe(double euros) {
    return FormatoNumero(euros, "##,###,##0.00");
}

/// Days before the leave in which contributions are looked for, part-time contracts only. Negative for more
/// than two full-time years of hours.
double periodoDe(const RegistroMaternidad& caso) {
    const double x = caso.D12 / kHorasJornadaAnual;
    return Techo((1 - x + 1) * kDiasPlazo);
}

int divisor(const RegistroMaternidad& caso) {
    if (esCotizacionMensual(caso) || regimenDe(caso) != Regimen::Ordinario) return kDivisorFijo;
    return delMes(kDivisorMaternidad, caso.f1);
}

double baseDiaria(const RegistroMaternidad& caso) {
    if (esTiempoParcial(caso)) return Redondeado(caso.B12 / kDiasAnio, 2);
    return Redondeado(caso.Bccant / divisor(caso), 2);
}

void exigeCotizacion(Dictamen& d) {
    d.linea("La trabajadora debe justificar un mínimo de 180 días de cotización,");
    d.linea("dentro de los últimos 5 años.");
}

/// Days since joining, at most those of the period.
int diasDesdeElAlta(const RegistroMaternidad& caso, double periodo) {
    const int dias = DiferenciaFechas(Intervalo::Dia, caso.fAlta, caso.f1);
    return dias > periodo ? RedondeaPar(periodo) : dias;
}

/// True when the days since joining reach the minimum; the days justified are told and not tested.
bool justificaCotizacionATiempoParcial(const RegistroMaternidad& caso, Dictamen& d) {
    const double periodo = periodoDe(caso);
    const int dias = diasDesdeElAlta(caso, periodo);
    const int justificados = RedondeaPar((caso.D12 / kHorasPorDia / kDiasAnio) * dias);
    const int anuales = Suelo(caso.D12 / kHorasPorDia);
    d.linea("La trabajadora justifica ", anuales, " días de cotización al año, es decir ",
            FormatoNumero(justificados, "#0"), " días desde la fecha de alta");
    const bool cumple = dias >= kMinimoDiasCotizados;
    d.linea(cumple ? "cumpliendo" : "y no cumple",
            " el mínimo de 180 días de cotización dentro de los últimos ", TextoPlano(periodo), " días.");
    return cumple;
}

/// The whole leave at the whole base.
void informaDeDescansoEntero(int total, double diaria, Dictamen& d) {
    d.linea("El número de días a subsidiar es de ", total);
    d.linea("El importe de la prestación es de ", importe(total * diaria), " €");
}

/// A first stretch at the whole base and, from the day on which she works part of the day, a second one whose
/// days grow as the base shrinks.
void informaDeDescansoPartido(const RegistroMaternidad& caso, int total, double diaria, Dictamen& d) {
    const int antes = DiferenciaFechas(Intervalo::Dia, caso.f1, caso.ftp);
    d.linea("El número de días a subsidiar antes del inicio del contrato a T.P. es de ", antes);
    d.linea("El importe de la prestación para este período es de ", importe(antes * diaria), " €");
    const double noTrabajado = 100.0 - caso.ptp;
    const double reducida = Redondeado(noTrabajado * diaria / 100, 2);
    const double segundos = Redondeado(Cociente(100, noTrabajado) * (total - antes), 0);
    d.linea("Base Reguladora reducida para la segunda prestación:", base(reducida), " €");
    d.linea("Días durante los cuales recibirá esta prestación:", FormatoNumero(segundos, "###,##0"));
    d.linea("El importe de la prestación para este segundo período es de ", importe(segundos * reducida),
            " €");
}

}  // namespace

void CalculaMaternidad(const RegistroMaternidad& caso, Jornada jornada, Dictamen& dictamen) {
    dictamen.vacia();
    dictamen.linea("La interesada desea solicitar una prestación por maternidad.");
    const double diaria = baseDiaria(caso);
    dictamen.ConDerecho = true;
    if (esTiempoParcial(caso)) {
        dictamen.ConDerecho = justificaCotizacionATiempoParcial(caso, dictamen);
    } else {
        exigeCotizacion(dictamen);
    }
    if (!dictamen.ConDerecho) return;
    const int total = DiferenciaFechas(Intervalo::Dia, caso.f1, caso.f2) + 1;
    dictamen.linea("Base Reguladora para la prestación:", base(diaria), " €");
    if (jornada == Jornada::Reducida) {
        informaDeDescansoPartido(caso, total, diaria, dictamen);
    } else {
        informaDeDescansoEntero(total, diaria, dictamen);
    }
}

}  // namespace orvemo::maternidad
