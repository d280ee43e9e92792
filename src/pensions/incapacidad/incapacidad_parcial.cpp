#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/incapacidad/incapacidad.h"

namespace orvemo::incapacidad {

namespace {

// Figures of the law for 2005.
constexpr double kDiasRecientes = 3650;  // ten years before the opinion
constexpr double kMesesMinimos = 60;     // to be contributed within them in the domestic scheme
constexpr double kDiasMinimos = 1800;    // to be passed within them in the others
constexpr double kDiasPorMes = 30;
constexpr double kMensualidades = 24;  // that the lump sum comes to

constexpr double kDiasPorAnio = 365;
constexpr int kEdadMaxima = 99;

/// Here alone an age is counted in years of 365 days.
int edad(const RegistroIncapacidad& caso) {
    const int dias = DiferenciaFechas(Intervalo::Dia, caso.InvaFechaNac, caso.InvaFechaInv);
    return Mayor(0, Menor(Suelo(dias / kDiasPorAnio), kEdadMaxima));
}

void deniega(Dictamen& d) {
    d.linea();
    d.linea("*** NO TIENE DERECHO A PRESTACIÓN ***");
}

bool estaProtegido(const Expediente& e) {
    const bool sinContingenciasComunes = e.regimen == Regimen::Autonomos || e.regimen == Regimen::Agrario;
    return !sinContingenciasComunes || e.causa == Causa::Profesional;
}

double diasRecientes(const Expediente& e) {
    return DiasDesdeFecha(e.periodos, SerieDeFecha(e.caso.InvaFechaInv) - kDiasRecientes) + e.diasTP10;
}

bool cumpleMeses(const Expediente& e, Dictamen& d) {
    const bool cumple = Techo(diasRecientes(e) / kDiasPorMes) >= kMesesMinimos;
    d.linea(cumple ? "Cumple el periodo mínimo de 60 meses cotizados."
                   : "No cumple el periodo mínimo de 60 meses cotizados.");
    return cumple;
}

bool cumpleDias(const Expediente& e, Dictamen& d) {
    const double dias = diasRecientes(e);
    d.linea("Ha cotizado ", TextoPlano(dias), " días en los 10 años anteriores al hecho causante ");
    d.linea("de la incapacidad.");
    if (dias > kDiasMinimos) {
        d.linea("Luego cumple el periodo mínimo de 1800 días de cotización.");
        return true;
    }
    d.AddConc("Luego NO CUMPLE el periodo mínimo de 1800 días exigido.");
    return false;
}

bool cumplePeriodo(const Expediente& e, Dictamen& d) {
    if (e.causa != Causa::EnfermedadComun) return true;
    return e.regimen == Regimen::EmpleadosHogar ? cumpleMeses(e, d) : cumpleDias(e, d);
}

bool estaDeAlta(const Expediente& e, Dictamen& d) {
    if (e.alta) return true;
    d.linea("Debe estar AFILIADO y EN ALTA o SITUACION ASIMILADA A ALTA ");
    d.linea("en la Seguridad Social.");
    return false;
}

void concluyePrestacion(double InvaUltimaBase, Dictamen& d) {
    const double mensualidad = InvaUltimaBase * kDiasPorMes;
    d.linea("Le corresponde una PRESTACION equivalente a 24 mensualidades ");
    d.linea(" de Base Reguladora utilizada para determinar la prestación");
    d.linea(" económica derivada de IT, cuyo importe es de ", importe(mensualidad), " €.");
    d.linea();
    d.linea("La PRESTACION TOTAL es de ", importe(mensualidad * kMensualidades), " €.");
    d.linea("También puede solicitar un complemento de 75% del subsidio para recuperación.");
}

}  // namespace

void InvaCalculaParcial(const Expediente& e, Dictamen& d) {
    d.linea("El interesado solicita la pensión a los ", edad(e.caso), " años.");
    d.linea("Sufre ", textoDe(e.grado), " derivada de ", textoDe(e.causa), ".");
    if (!estaProtegido(e)) {
        d.linea("La incapacidad permanente parcial derivada de enfermedad común o accidente ");
        d.linea("no laboral no es objeto de protección en el régimen especial de autónomos.");
        return deniega(d);
    }
    d.linea("La incapacidad parcial NO SUPONE DERECHO A PENSION, sino a una ");
    d.linea("prestación de tipo asistencial.");
    if (!cumplePeriodo(e, d) || !estaDeAlta(e, d)) return deniega(d);
    concluyePrestacion(e.caso.InvaUltimaBase, d);
    if (e.caso.InvaRecargo == 1) {
        d.linea("Puede solicitar recargo de 30/50% por haber sido provocada por maquinaria ");
        d.linea("sin dispositivos de precaución reglamentarios.");
    }
    d.ConDerecho = true;
}

}  // namespace orvemo::incapacidad
