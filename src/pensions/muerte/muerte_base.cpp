#include "pensions/muerte/muerte_base.h"

#include <charconv>
#include <cmath>
#include <vector>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/pensiones.h"
#include "pensions/comun/serie_bases.h"

namespace orvemo::muerte {

namespace {

// Figures of the law for 2005.
constexpr double kAniosDeHistoria = 90;  // span in which the fifteen years are looked for
constexpr int kDiasDeQuinceAnios = 5475;
constexpr double kAniosRecientes = 5;  // span in which the five hundred days are looked for
constexpr int kDiasRecientes = 500;
constexpr int kEnfermedadComun = 1;      // cause
constexpr double kPagasDeDosAnios = 28;  // fourteen a year
constexpr double kMesesDelAnio = 12;

// Part-time work: the fewer its hours a year, the longer the span, up to ten years.
constexpr float kHorasAlAnio = 1826;  // of full-time work
constexpr float kAniosVentana = 5;
constexpr float kDiasPorAnio = 365;
constexpr double kHorasPorDia = 5;

std::vector<pensiones::Periodo> periodosDe(const RegistroMuerte& caso) {
    return pensiones::PeriodosDe(caso.MuertePerDesde, caso.MuertePerHasta);
}

bool cumpleQuinceAnios(const RegistroMuerte& caso, Dictamen& d) {
    if (pensiones::DiasCotizados(periodosDe(caso), caso.MuerteFechaMuerte, kAniosDeHistoria) <
        kDiasDeQuinceAnios) {
        d.linea("No cumple el periodo mínimo de 15 años cotizados necesario.");
        d.AddConc("NO TIENE DERECHO A PENSION");
        return false;
    }
    d.linea("Cumple el periodo mínimo de 15 años cotizados.");
    return true;
}

/// Days before the death in which a part-time worker's contributions are looked for, worked out in single
/// precision.
int ventanaTiempoParcial(float HorasTP) {
    const float anios = (1 - HorasTP / kHorasAlAnio) * kAniosVentana + kAniosVentana;
    return RedondeaPar(Redondeado(anios * kDiasPorAnio, 0));
}

double diasTiempoParcial(const RegistroMuerte& caso, int ventana) {
    const double dias = pensiones::DiasCotizados(periodosDe(caso), caso.MuerteFechaMuerte, ventana);
    const double horas = LimiteDe(caso.HorasTP);
    return Redondeado(dias * (horas / kHorasPorDia) / kDiasPorAnio, 2);
}

bool cumpleTiempoParcial(const RegistroMuerte& caso, Dictamen& d) {
    const int ventana = ventanaTiempoParcial(LimiteDe(caso.HorasTP));
    const bool cumple = diasTiempoParcial(caso, ventana) >= kDiasRecientes;
    d.linea(cumple ? "Cumple el periodo mínimo de 500 días cotizados dentro de los últimos "
                   : "No cumple el periodo mínimo de 500 días cotizados en los últimos ",
            ventana, " días.");
    return cumple;
}

bool cumpleTiempoCompleto(const RegistroMuerte& caso, Dictamen& d) {
    const bool cumple =
        pensiones::DiasCotizados(periodosDe(caso), caso.MuerteFechaMuerte, kAniosRecientes) >= kDiasRecientes;
    d.linea(cumple ? "Cumple el periodo mínimo de 500 días cotizados dentro de los últimos 5 años"
                   : "No cumple el periodo mínimo de 500 días cotizados en los últimos 5 años.");
    return cumple;
}

bool cumpleQuinientosDias(const RegistroMuerte& caso, Dictamen& d) {
    if (situacionDe(caso) == kTiempoParcial ? cumpleTiempoParcial(caso, d) : cumpleTiempoCompleto(caso, d)) {
        return true;
    }
    d.linea("NO TIENE DERECHO A PENSION");
    return false;
}

bool exigeQuinientosDias(int situacion, int causa) {
    return esta(situacion, kConQuinientosDias) && causa == kEnfermedadComun;
}

Base concluyeBaseDePensionista(const RegistroMuerte& caso, Dictamen& d) {
    d.linea("La base reguladora será la de la pensión, es decir ", importe(caso.MuerteUltimaBase), " €, ");
    d.linea("con las mejoras y revalorizaciones habidas desde que se causó la ");
    d.linea("pensión del fallecido.");
    return {caso.MuerteUltimaBase, "tantas pagas como la pensión."};
}

/// The figure is read on its field up to the decimal comma, so that its cents are lost.
Base concluyeBaseDeActivo(const RegistroMuerte& caso, double divisor, std::string_view pagas, Dictamen& d) {
    const double base = Redondeado(std::trunc(caso.MuerteUltimaBase) / divisor, 2);
    d.linea("La base reguladora es de ", importe(base), " €.");
    return {base, pagas};
}

}  // namespace

bool esta(int numero, Conjunto conjunto) {
    std::array<char, 12> cifras{};
    const auto fin = std::to_chars(cifras.begin(), cifras.end(), numero);
    return conjunto.find({cifras.data(), fin.ptr}) != Conjunto::npos;
}

int situacionDe(const RegistroMuerte& caso) {
    return caso.MuerteSituacion + 1;
}

int causaDe(const RegistroMuerte& caso) {
    return caso.MuerteCausa + 1;
}

bool exigePeriodos(int situacion, int causa) {
    return esta(situacion, kNoEnAlta) || exigeQuinientosDias(situacion, causa);
}

std::string importe(double euros) {
    return FormatoNumero(euros, "###,###,##0.00");
}

bool cumplePeriodos(const RegistroMuerte& caso, Dictamen& d) {
    if (esta(situacionDe(caso), kNoEnAlta)) return cumpleQuinceAnios(caso, d);
    return !exigeQuinientosDias(situacionDe(caso), causaDe(caso)) || cumpleQuinientosDias(caso, d);
}

Base concluyeBase(const RegistroMuerte& caso, Dictamen& d) {
    const int situacion = situacionDe(caso);
    const int causa = causaDe(caso);
    if (esta(situacion, kPensionistas)) return concluyeBaseDePensionista(caso, d);
    if (esta(situacion, kAgrarioYAutonomos)) {
        return concluyeBaseDeActivo(caso, kPagasDeDosAnios, "14 pagas.", d);
    }
    if (!esta(situacion, kPorCuentaAjena)) return {};
    if (esta(causa, kCausasComunes)) return concluyeBaseDeActivo(caso, kPagasDeDosAnios, "14 pagas.", d);
    if (esta(causa, kCausasProfesionales)) return concluyeBaseDeActivo(caso, kMesesDelAnio, "12 pagas.", d);
    const Base base = concluyeBaseDeActivo(caso, kMesesDelAnio, "14 pagas.", d);
    d.linea("Tiene derecho a un incremento de 30/50% sobre la base reguladora,");
    d.linea("por falta de medidas de seguridad en la empresa.");
    return base;
}

}  // namespace orvemo::muerte
