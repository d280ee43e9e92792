#include "pensions/jubilacion/jubilacion_carrera.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>

#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/serie_bases.h"

namespace orvemo::jubilacion {

namespace {

using namespace std::chrono_literals;
using pensiones::Periodo;
using pensiones::Periodos;

// Figures of the law for 2005.
constexpr int kEdadSustitucion = 64;    // years: replaced by a registered unemployed person
constexpr int kEdadParcial = 60;        // years
constexpr int kEdadMutualista = 60;     // years: who contributed before 1967
constexpr int kMesesMinimos = 180;      // months of contribution
constexpr double kAniosRecientes = 15;  // span in which recent contributions are asked for
constexpr Fecha kFinMutualismo{1d / 1 / 1967};
constexpr Fecha kInicioComputo{1d / 1 / 1960};  // earlier days count through the bonus alone
constexpr Fecha kSinUltimaFecha{1d / 1 / 1901};

constexpr double kHorasPorDia = 5;
constexpr double kDiasPorDiaTrabajado = 1.5;  // rest days included
constexpr int kDiasPorAnio = 365;
constexpr double kDiasPorAnioMedio = 365.25;
constexpr double kDiasPorMes = 30;

constexpr int kTopeEdadBonificada = 65;  // years on 01-01-1967
constexpr int kEdadSinBonificar = 20;
constexpr double kDiasBonificadosPorAnio = 250.4;  // for each year of age over 20

// Percentage of the regulatory base.
constexpr int kAniosDePartida = 15;  // years that give the first percentage
constexpr int kPorcentajeDePartida = 50;
constexpr int kAniosSegundoTramo = 25;   // years from which each gives less
constexpr int kPorAnioPrimerTramo = 3;   // percent
constexpr int kMaximoPrimerTramo = 30;   // percent
constexpr int kPorAnioSegundoTramo = 2;  // percent
constexpr int kPorcentajeMaximo = 100;

constexpr double kTipoOrdinario = 8;  // percent for each year short of 65
struct TipoReducido {
    int desde, hasta;  // years of contribution
    double tipo;       // percent for each year short of 65
};
// Years 38 and 39 are not in the list: they keep the ordinary rate.
constexpr std::array kTiposReducidos{TipoReducido{31, 34, 7.5}, TipoReducido{35, 37, 7},
                                     TipoReducido{40, std::numeric_limits<int>::max(), 6}};

bool sinMutualismo(Regimen regimen) {
    return regimen == Regimen::Autonomos || regimen == Regimen::EmpleadosHogar;
}

bool empiezaAntesDe1967(const Periodo& p) {
    return p.desde < kFinMutualismo;
}

/// Who may retire at 60 for having contributed before 1967.
bool admiteMutualistas(Regimen regimen) {
    return regimen == Regimen::General || regimen == Regimen::Agrario;
}

/// The record has a row more than the screen.
std::vector<Periodo> periodosDe(const RegistroJubilacion& caso) {
    return pensiones::PeriodosDe(std::span{caso.JubiPerDesde}.first<kFilasPeriodos>(), caso.JubiPerHasta);
}

/// Some fifteen days over whole years already count as another year, so that no months remain.
AniosMeses aniosCotizados(double dias) {
    AniosMeses cotizado{Suelo(dias / kDiasPorAnio), 0};
    cotizado.meses = RedondeaPar(Redondeado(RedondeaPar(dias) % kDiasPorAnio / kDiasPorMes, 0));
    if (cotizado.meses > 0) return {cotizado.anios + 1, 0};
    return cotizado;
}

double tipoPorAnioQueFalta(int anios) {
    const auto reducido = std::ranges::find_if(
        kTiposReducidos, [&](const TipoReducido& t) { return EntreLimites(anios, t.desde, t.hasta); });
    return reducido == kTiposReducidos.end() ? kTipoOrdinario : reducido->tipo;
}

int edadMinimaDe(Regimen regimen, Periodos periodos) {
    if (regimen == Regimen::Sustitucion64) return kEdadSustitucion;
    if (regimen == Regimen::Parcial) return kEdadParcial;
    const bool mutualista = admiteMutualistas(regimen) && std::ranges::any_of(periodos, empiezaAntesDe1967);
    return mutualista ? kEdadMutualista : kEdadOrdinaria;
}

Fecha ultimaFechaDe(Regimen regimen, Periodos periodos) {
    Fecha ultima = kSinUltimaFecha;
    if (!admiteMutualistas(regimen)) return ultima;
    for (const Periodo& p : periodos) ultima = Mayor(ultima, p.hasta);
    return ultima;
}

Coeficiente coeficienteDe(const Carrera& carrera, bool voluntario) {
    const bool sinReduccion =
        carrera.regimen == Regimen::Sustitucion64 || carrera.regimen == Regimen::Parcial;
    if (sinReduccion) return {1.0, false};
    return CoeficienteReductor(carrera.edad, carrera.aniosParaPorcentaje, carrera.antesDe1967, voluntario);
}

}  // namespace

Regimen regimenDe(const RegistroJubilacion& caso) {
    return static_cast<Regimen>(caso.JubiRegimen + 1);
}

float precisionSimple(double valor) {
    if (!(std::abs(valor) <= std::numeric_limits<float>::max())) throw DesbordeNumerico{valor};
    return static_cast<float>(valor);
}

int PeriodoMinimoJubilacion(Fecha /*fecha*/) {
    return kMesesMinimos;
}

int DiasDeHoras(double horas) {
    const float dias = precisionSimple(horas) / static_cast<float>(kHorasPorDia);
    return RedondeaPar(Redondeado(kDiasPorDiaTrabajado * Redondeado(dias, 0), 0));
}

double DiasBonificados(Fecha fechaNac, Regimen regimen) {
    if (sinMutualismo(regimen)) return 0;
    const int edad = Menor(AniosCumplidos(fechaNac, kFinMutualismo), kTopeEdadBonificada);
    if (edad <= kEdadSinBonificar) return 0;
    return (edad - kEdadSinBonificar) * kDiasBonificadosPorAnio;
}

int DiasDesde1960(Fecha desde, Fecha hasta, Regimen regimen) {
    if (sinMutualismo(regimen)) return DiferenciaFechas(Intervalo::Dia, desde, hasta);
    if (hasta < kInicioComputo) return 0;
    return DiferenciaFechas(Intervalo::Dia, Mayor(desde, kInicioComputo), hasta);
}

AniosPorcentaje AniosParaPorcentaje(Periodos periodos, Fecha fechaNac, Regimen regimen, int diasParciales) {
    const bool antesDe1967 = !sinMutualismo(regimen) && std::ranges::any_of(periodos, empiezaAntesDe1967);
    const double bonificados = antesDe1967 ? DiasBonificados(fechaNac, regimen) : 0;
    double dias = RedondeaPar(bonificados) % kDiasPorAnio;
    for (const Periodo& p : periodos) {
        dias += DiasDesde1960(Mayor(p.desde, kInicioComputo), Mayor(p.hasta, kInicioComputo), regimen);
        dias += diasParciales;
    }
    const double anios = Techo(dias / kDiasPorAnioMedio) + Suelo(bonificados / kDiasPorAnio);
    return {RedondeaPar(anios), antesDe1967};
}

double PorcentajeSobreBase(int anios) {
    const int primerTramo = Menor(kPorAnioPrimerTramo * (anios - kAniosDePartida), kMaximoPrimerTramo);
    const int segundoTramo = kPorAnioSegundoTramo * Mayor(anios - kAniosSegundoTramo, 0);
    return Redondeado(Menor(kPorcentajeMaximo, kPorcentajeDePartida + primerTramo + segundoTramo), 2);
}

Coeficiente CoeficienteReductor(int edad, int anios, bool antesDe1967, bool voluntario) {
    if (edad >= kEdadOrdinaria) return {1, false};
    if (edad < kEdadMutualista) return {0, false};
    const bool carreraLarga = antesDe1967 ? anios > 30 : anios >= 30;
    const bool especial = carreraLarga && !voluntario;
    const double tipo = especial ? tipoPorAnioQueFalta(anios) : kTipoOrdinario;
    return {1 - tipo / 100 * (kEdadOrdinaria - edad), especial};
}

Carrera estudiaCarrera(const RegistroJubilacion& caso) {
    Carrera c;
    c.edad = AniosCumplidos(caso.JubiFechaNac, caso.JubiFechaJub);
    c.regimen = regimenDe(caso);
    const int diasTP = DiasDeHoras(caso.HorasTP);
    const int diasTP15 = DiasDeHoras(caso.HorasTP15);
    const std::vector<Periodo> periodos = periodosDe(caso);
    if (!periodos.empty()) {
        const auto computo = AniosParaPorcentaje(periodos, caso.JubiFechaNac, c.regimen, diasTP);
        c.aniosParaPorcentaje = computo.anios;
        c.antesDe1967 = computo.antesDe1967;
        c.porcentaje = PorcentajeSobreBase(c.aniosParaPorcentaje);
    }
    const Coeficiente coeficiente = coeficienteDe(c, caso.JubiVoluntario == 1);
    c.coeficiente = coeficiente.valor;
    c.CoeficienteEspecial = coeficiente.especial;
    const int minimo = PeriodoMinimoJubilacion(caso.JubiFechaJub);
    c.periodoMinimo = {minimo / 12, minimo % 12};
    if (!periodos.empty()) {
        c.cotizado = aniosCotizados(pensiones::DiasCotizados(periodos, caso.JubiFechaJub) + diasTP);
        c.ultimos15 =
            aniosCotizados(pensiones::DiasCotizados(periodos, caso.JubiFechaJub, kAniosRecientes) + diasTP15);
        c.diasSOVI = pensiones::DiasSOVI(periodos);
    }
    c.edadMinima = edadMinimaDe(c.regimen, periodos);
    c.ultimaFecha = ultimaFechaDe(c.regimen, periodos);
    return c;
}

}  // namespace orvemo::jubilacion
