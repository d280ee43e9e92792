#include "pensions/incapacidad/incapacidad_periodos.h"

#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::incapacidad {

namespace {

// Figures of the law for 2005.
constexpr double kMesesPorTramo = 6;  // months are counted by whole half years
constexpr int kMesesMinimos = 60;     // five years, the least that an adult is asked for
constexpr int kDiasMinimos = 1800;    // the same in days
constexpr int kDiasMinimosPorCuarto = 1825;
constexpr int kDiasPorMes = 30;
constexpr double kQuinta = 5;            // part of the minimum that must be recent
constexpr double kDiasRecientes = 3650;  // ten years before the opinion

// Who is not in the social security.
constexpr int kMesesSinAlta = 180;
constexpr double kDiasSinAlta = 5478.75;            // 15 years
constexpr double kDiasRecientesSinAlta = 3652.5;    // ten years before the opinion
constexpr double kMinimoRecienteSinAlta = 1095.75;  // 3 years

int mediosAnios(Fecha desde, Fecha hasta) {
    return Suelo(pensiones::MesesEntreFechas(desde, hasta) / kMesesPorTramo);
}

double diasCotizados(const Expediente& e) {
    return DiasDesdeFecha(e.periodos, SerieDeFecha(e.caso.InvaFechaNac)) + e.diasTP;
}

/// Days contributed in a span before the opinion.
double diasRecientes(const Expediente& e, double dias) {
    return DiasDesdeFecha(e.periodos, SerieDeFecha(e.caso.InvaFechaInv) - dias) + e.diasTP10;
}

void informaDeDias(double dias, Dictamen& d) {
    d.linea("Ha cotizado ", TextoPlano(dias), " días (", pensiones::DiasATexto(dias), "), ");
}

std::optional<int> deniega(Dictamen& d) {
    deniegaPension(d);
    return std::nullopt;
}

std::optional<int> cumpleJoven(const Expediente& e, Dictamen& d) {
    const PeriodoMinimo minimo = minimoDeJoven(e);
    const double dias = diasCotizados(e);
    informaDeDias(dias, d);
    if (dias < minimo.dias) {
        d.linea("por lo que NO CUMPLE el periodo mínimo de ", minimo.meses, " meses establecido.");
        return deniega(d);
    }
    d.linea("cumpliendo el periodo mínimo de ", minimo.meses, " meses establecido.");
    return minimo.meses;
}

std::string textoDelMinimo(int meses) {
    return meses > kMesesMinimos ? TextoPlano(meses) + " meses " : "5 años ";
}

/// A fifth of the minimum must lie within the ten years before the opinion.
bool cumpleQuinta(const Expediente& e, const PeriodoMinimo& minimo, Dictamen& d) {
    const int quinta = Suelo(minimo.meses / kQuinta);
    const bool cumple =
        diasRecientes(e, kDiasRecientes) >= Menor(Suelo(minimo.dias / kQuinta), kDiasPorMes * quinta);
    d.linea(cumple ? "También cumple el requisito de haber cotizado una quinta parte "
                   : "Pero NO CUMPLE el requisito de haber cotizado una quinta parte ");
    d.linea("del periodo mínimo dentro de los 10 años anteriores al hecho causante ");
    d.linea("(", quinta, ") meses.");
    return cumple;
}

std::optional<int> cumpleAdulto(const Expediente& e, Dictamen& d) {
    const PeriodoMinimo minimo = minimoDeAdulto(e);
    const double dias = diasCotizados(e);
    informaDeDias(dias, d);
    if (dias < Menor(minimo.dias, kDiasPorMes * minimo.meses)) {
        d.linea("por lo que NO CUMPLE el periodo mínimo de ", textoDelMinimo(minimo.meses), "establecido.");
        return deniega(d);
    }
    d.linea("cumpliendo el periodo mínimo de ", textoDelMinimo(minimo.meses), "establecido.");
    if (!cumpleQuinta(e, minimo, d)) return deniega(d);
    return minimo.meses;
}

}  // namespace

void deniegaPension(Dictamen& d) {
    d.linea();
    d.linea("*** NO TIENE DERECHO A PENSIÓN ***");
    d.linea("(Pruebe la opción de PENSIÓN NO CONTRIBUTIVA derivada de invalidez");
    d.AddConc(" ya que a lo mejor cumple los demás requisitos sobre renta anual.)");
}

PeriodoMinimo minimoDeJoven(const Expediente& e) {
    const int dias = DiferenciaFechas(Intervalo::Dia, e.fecha16, e.caso.InvaFechaInv);
    return {Suelo(dias / 2.0), mediosAnios(e.fecha16, e.caso.InvaFechaInv) * 6 / 2};
}

PeriodoMinimo minimoDeAdulto(const Expediente& e) {
    const int dias = DiferenciaFechas(Intervalo::Dia, e.fecha20, e.caso.InvaFechaInv);
    const int meses = Suelo(mediosAnios(e.fecha20, e.caso.InvaFechaInv) * 6 / 4.0);
    if (meses <= kMesesMinimos) return {kDiasMinimos, kMesesMinimos};
    return {Mayor(kDiasMinimosPorCuarto, Suelo(dias / 4.0)), meses};
}

std::optional<int> cumplePeriodos(const Expediente& e, Dictamen& d) {
    if (e.causa == Causa::EnfermedadComun) {
        return e.edad < kEdadDeAdulto ? cumpleJoven(e, d) : cumpleAdulto(e, d);
    }
    d.linea("No se exige ningún periodo previo de cotización.");
    return 0;
}

std::optional<int> cumpleQuinceAnios(const Expediente& e, Dictamen& d) {
    const double dias = diasCotizados(e);
    informaDeDias(dias, d);
    if (dias < kDiasSinAlta) {
        d.linea("por lo que NO CUMPLE el periodo mínimo de 15 años establecido.");
        return deniega(d);
    }
    d.linea("cumpliendo el periodo mínimo de 15 años establecido.");
    if (diasRecientes(e, kDiasRecientesSinAlta) < kMinimoRecienteSinAlta) {
        d.linea("Pero NO CUMPLE el requisito de haber cotizado un mínimo de 3 años ");
        d.linea("dentro de los 10 años anteriores al hecho causante.");
        return deniega(d);
    }
    d.linea("También cumple el requisito de haber cotizado al menos 3 años");
    d.linea("dentro de los 10 años anteriores al hecho causante.");
    return kMesesSinAlta;
}

}  // namespace orvemo::incapacidad
