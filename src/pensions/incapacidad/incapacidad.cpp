#include "pensions/incapacidad/incapacidad.h"

#include <optional>
#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/limites.h"
#include "pensions/incapacidad/incapacidad_base.h"
#include "pensions/incapacidad/incapacidad_periodos.h"

namespace orvemo::incapacidad {

namespace {

using pensiones::kPensionMaxima;
using pensiones::Minimos;
using pensiones::TablasPensiones;

// Figures of the law for 2005.
constexpr double kPorcentajeTotal = 0.55;    // of the regulatory base
constexpr double kIncrementoTotal = 0.2;     // of the regulatory base, for who can't find other work
constexpr int kEdadDelIncremento = 55;       // years
constexpr int kEdadSinAlternativa = 60;      // years from which no lump sum takes the place of the pension
constexpr int kMensualidadesAutonomos = 40;  // of the lump sum
constexpr int kMaximoMensualidades = 84;     // of the lump sum in the other schemes
constexpr int kEdadDeLaSolicitud = 21;       // years from which the lump sum may be asked for
constexpr int kPlazoDeLaSolicitud = 1095;    // days
constexpr int kEdadOrdinaria = 65;           // of retirement, years
// The least pension of great incapacity: once and a half that of the age of 65, unrounded, euros a month.
constexpr Minimos kMinimosGranInvalidez{786.015, 658.065};

// --- Lines that several grades share

/// Grades of pensions whose text runs over two lines.
void presenta(const Expediente& e, Dictamen& d) {
    d.linea("El interesado solicita la pensión a los ",
            pensiones::PeriodoATexto(e.caso.InvaFechaNac, e.caso.InvaFechaInv), ".");
    if (e.grado == Grado::GranInvalidez) {
        d.linea("Sufre Gran Invalidez derivada de ", textoDe(e.causa), ".");
        return;
    }
    d.linea("Sufre ", textoDe(e.grado), " derivada de ");
    d.linea(textoDe(e.causa), ".");
}

void asumeAlta(const Expediente& e, Dictamen& d) {
    if (e.causa != Causa::Profesional || e.alta) return;
    d.linea("Se asume alta en S.S. de pleno derecho por ser accidente de carácter profesional.");
}

void informaDeJubilacion(const Expediente& e, Dictamen& d) {
    if (e.edad <= kEdadOrdinaria) return;
    d.linea("Si ha cotizado más de 15 años y 2 de ellos están comprendidos dentro de los ");
    d.linea("últimos 15 años, entonces DEBE optar a la pensión de jubilación.");
}

double concluyeBase(const Expediente& e, const TablasPensiones& tablas, int minimo, Dictamen& d) {
    const double base = baseReguladora(e, tablas, minimo);
    d.linea("La base reguladora es de ", importe(base), " €.");
    return base;
}

/// Payments a year.
void informaDePagas(const Expediente& e, Dictamen& d) {
    d.linea(e.causa == Causa::Profesional
                ? "(12 pagas al año)."
                : "(14 pagas al año, una por cada mes del año más una extraordinaria en junio y otra en "
                  "noviembre).");
}

void concluyePension(const Expediente& e, double pension, Dictamen& d) {
    if (pension == kPensionMaxima) {
        d.linea("Le corresponde la PENSIÓN VITALICIA de ", importe(pension), " € mensuales,");
        d.linea("máximo para su caso ");
    } else {
        d.linea("Le corresponde una PENSIÓN VITALICIA de ", importe(pension), " € mensuales ");
    }
    informaDePagas(e, d);
}

void informaDeRecargo(const Expediente& e, Dictamen& d) {
    if (e.caso.InvaRecargo != 1) return;
    d.linea("Puede solicitar recargo de 30 a 50% por haber sido provocada por ");
    d.linea("maquinaria sin dispositivos de precaución reglamentarios.");
}

// --- Total incapacity

bool admiteAltaTotal(const Expediente& e, Dictamen& d) {
    if (e.causa == Causa::EnfermedadComun && !e.alta) {
        d.linea("Debe estar AFILIADO y EN ALTA o SITUACION ASIMILADA A ALTA ");
        d.linea(" en la Seguridad Social.");
        deniegaPension(d);
        return false;
    }
    asumeAlta(e, d);
    return true;
}

/// Below 60 years there is no minimum.
double pensionTotal(const Expediente& e, double base, Dictamen& d) {
    const double pension = Menor(Redondeado(base * kPorcentajeTotal, 2), kPensionMaxima);
    if (e.edad < kEdadSinAlternativa) return pension;
    const Minimos& minimos =
        e.edad >= kEdadOrdinaria ? pensiones::kMinimosDesde65 : pensiones::kMinimosAntesDe65;
    const double minimo = minimos.segun(e.caso.InvaConyuge == 1);
    if (pension >= minimo) return pension;
    d.linea("La pensión que le corresponde (", importe(pension),
            " €) es inferior al mínimo para su edad, por lo que se toma este valor.");
    return minimo;
}

void informaDeIncremento(const Expediente& e, double base, Dictamen& d) {
    const std::string incremento = importe(Redondeado(base * kIncrementoTotal, 2));
    if (e.edad >= kEdadDelIncremento) {
        if (e.regimen == Regimen::EmpleadosHogar) return;
        d.linea("Tiene derecho a un incremento de 20% de la base reguladora (", incremento, " €) ");
        d.linea("si no puede ejercer otro trabajo o no puede conseguirlo.");
        d.linea("Este incremento quedará en suspenso mientras obtenga empleo.");
        return;
    }
    if (e.regimen == Regimen::General) {
        d.linea("Tiene derecho a un incremento de 20% (", incremento, " €) cuando cumpla 55 años.");
    }
    d.linea("Puede además solicitar un complemento de 20% del subsidio para recuperación.");
}

/// A lump sum that may take the place of the pension up to the age of 60.
void informaDeIndemnizacion(const Expediente& e, double base, double pension, Dictamen& d) {
    const bool esAutonomo = e.regimen == Regimen::Autonomos;
    const int meses = Mayor(Menor(12 * (kEdadSinAlternativa - e.edad), kMaximoMensualidades), 0);
    d.linea("Alternativamente, puede optar a una indemnización de ",
            esAutonomo ? kMensualidadesAutonomos : meses, " mensualidades ");
    d.linea("de ", esAutonomo ? importe(base) : TextoPlano(pension),
            " €, hasta cumplir los 60 años, en que pasará a ");
    d.linea("recibir la pensión vitalicia anterior.");
}

void informaDePlazo(const Expediente& e, Dictamen& d) {
    if (e.edad <= kEdadDeLaSolicitud) {
        d.linea("(Para ello debe formalizar la solicitud cuando cumpla 21 años)");
        return;
    }
    const Fecha plazo = SumaFecha(Intervalo::Dia, kPlazoDeLaSolicitud, e.caso.InvaFechaInv);
    d.linea("(Para ello debe formalizar la solicitud antes del ", FormatoFecha(plazo, "dd-mmm-yyyy"), ")");
}

void InvaCalculaTotal(const Expediente& e, const TablasPensiones& tablas, Dictamen& d) {
    presenta(e, d);
    if (!admiteAltaTotal(e, d)) return;
    informaDeJubilacion(e, d);
    const auto minimo = cumplePeriodos(e, d);
    if (!minimo) return;
    const double base = concluyeBase(e, tablas, *minimo, d);
    const double pension = pensionTotal(e, base, d);
    concluyePension(e, pension, d);
    informaDeIncremento(e, base, d);
    informaDeRecargo(e, d);
    if (e.edad < kEdadSinAlternativa) {
        informaDeIndemnizacion(e, base, pension, d);
        informaDePlazo(e, d);
    }
    d.ConDerecho = true;
}

// --- Absolute incapacity and great incapacity

/// The regulatory base, whole; nothing for who has not contributed long enough.
std::optional<double> pensionPorEntero(const Expediente& e, const TablasPensiones& tablas, Dictamen& d) {
    presenta(e, d);
    asumeAlta(e, d);
    informaDeJubilacion(e, d);
    const bool exigeQuinceAnios = e.causa != Causa::Profesional && !e.alta;
    const auto minimo = exigeQuinceAnios ? cumpleQuinceAnios(e, d) : cumplePeriodos(e, d);
    if (!minimo) return std::nullopt;
    return Menor(Redondeado(concluyeBase(e, tablas, *minimo, d), 2), kPensionMaxima);
}

double alMenosElMinimoAbsoluta(const Expediente& e, double pension, Dictamen& d) {
    const double minimo = pensiones::kMinimosDesde65.segun(e.caso.InvaConyuge == 1);
    if (pension >= minimo) return pension;
    d.linea("La pensión que le corresponde (", importe(pension),
            " €) es inferior al mínimo, por lo que se toma éste valor.");
    return minimo;
}

void InvaCalculaAbsoluta(const Expediente& e, const TablasPensiones& tablas, Dictamen& d) {
    const auto entera = pensionPorEntero(e, tablas, d);
    if (!entera) return;
    concluyePension(e, alMenosElMinimoAbsoluta(e, *entera, d), d);
    informaDeRecargo(e, d);
    if (!e.alta) d.linea("Los efectos económicos se producirán desde el momento de la solicitud");
    d.ConDerecho = true;
}

double alMenosElMinimoGranInvalidez(const Expediente& e, double pension, Dictamen& d) {
    const double minimo = kMinimosGranInvalidez.segun(e.caso.InvaConyuge == 1);
    if (pension >= minimo) return pension;
    d.linea("La pensión que le corresponde (", importe(pension), " €) es inferior al mínimo, por lo que");
    d.linea("se toma éste valor (", TextoPlano(minimo), ")");
    return minimo;
}

double conAsistente(const Expediente& e, double pension, Dictamen& d) {
    if (e.caso.InvaPersona != 1) {
        d.linea("La pensión obtenida se incrementaría en 50% si tuviera que remunerar a un asistente.");
        return pension;
    }
    d.linea("La pensión obtenida se incrementa en 50% por tener que remunerar a un asistente.");
    return pension + Redondeado(pension / 2, 2);
}

void InvaCalculaGranInvalidez(const Expediente& e, const TablasPensiones& tablas, Dictamen& d) {
    const auto entera = pensionPorEntero(e, tablas, d);
    if (!entera) return;
    const double pension = alMenosElMinimoGranInvalidez(e, *entera, d);
    concluyePension(e, conAsistente(e, pension, d), d);
    informaDeRecargo(e, d);
    d.ConDerecho = true;
}

}  // namespace

void InvaCalcula(const RegistroIncapacidad& caso, const TablasPensiones& tablas, Dictamen& d) {
    d.vacia();
    const Expediente expediente{caso};
    switch (expediente.grado) {
        case Grado::Parcial:
            return InvaCalculaParcial(expediente, d);
        case Grado::Total:
            return InvaCalculaTotal(expediente, tablas, d);
        case Grado::Absoluta:
            return InvaCalculaAbsoluta(expediente, tablas, d);
        case Grado::GranInvalidez:
            return InvaCalculaGranInvalidez(expediente, tablas, d);
    }
}

}  // namespace orvemo::incapacidad
