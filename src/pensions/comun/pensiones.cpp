#include "pensions/comun/pensiones.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::pensiones {

namespace {

using namespace std::chrono_literals;

constexpr double kDiasPorAnio = 365.25;
constexpr double kDiasPorMes = 30.416666666;
constexpr double kSigloEnDias = 36525;
constexpr double kMaximoAniosVentana = 100;  // a longer span is told in days

constexpr Fecha kInicioSOVI{1d / 1 / 1940};
constexpr Fecha kFinSOVI{31d / 12 / 1966};

struct TramoSerie {
    int hastaAnio;
    int meses, pantallas;
};
constexpr std::array kSeries{TramoSerie{1998, 120, 3}, TramoSerie{1999, 132, 3}, TramoSerie{2000, 144, 3},
                             TramoSerie{2001, 156, 4}};
constexpr TramoSerie kSerieActual{2002, 180, 4};

double diasDesde(Periodos periodos, double limite) {
    double dias = 0;
    for (const Periodo& p : periodos) {
        const double hasta = SerieDeFecha(p.hasta);
        if (hasta > limite) dias += hasta - Mayor(SerieDeFecha(p.desde), limite);
    }
    return dias;
}

std::string aniosYMeses(int anios, int meses) {
    if (anios > 0 && meses > 0) return TextoPlano(anios) + " años y " + TextoPlano(meses) + " meses";
    if (anios > 0) return TextoPlano(anios) + " años";
    return TextoPlano(meses) + " meses";
}

}  // namespace

int AnioDelMesAnterior(Fecha fecha, int k) {
    return MesesAnteriores{fecha}.anio(k);
}

int MesDelMesAnterior(Fecha fecha, int k) {
    return MesesAnteriores{fecha}.mes(k);
}

Fecha PrimeroDeMes(int anio, int mes) {
    return FechaDMA(1, mes, anio);
}

int MesesEntreFechas(Fecha desde, Fecha hasta) {
    return DiferenciaFechas(Intervalo::Mes, desde, hasta);
}

double DiasCotizados(Periodos periodos, Fecha fecha) {
    return diasDesde(periodos, SerieDeFecha(fecha) - kSigloEnDias);
}

double DiasCotizados(Periodos periodos, Fecha fecha, double ventana) {
    const double dias = ventana > kMaximoAniosVentana ? ventana : ventana * kDiasPorAnio;
    return diasDesde(periodos, SerieDeFecha(fecha) - dias);
}

int DiasSOVI(Periodos periodos) {
    int dias = 0;
    for (const Periodo& p : periodos) {
        dias += DiferenciaFechas(Intervalo::Dia, Mayor(p.desde, kInicioSOVI), Menor(p.hasta, kFinSOVI));
    }
    return dias;
}

std::string AniosMesesTexto(int anios, int meses) {
    if (anios > 0 && meses == 12) return TextoPlano(anios) + " años y 11 meses";
    return aniosYMeses(anios, meses);
}

std::string DiasATexto(double dias) {
    const int meses = Suelo(dias / kDiasPorMes);
    const int anios = Suelo(meses / 12.0);
    return aniosYMeses(anios, meses - 12 * anios);
}

std::string PeriodoATexto(Fecha desde, Fecha hasta) {
    const int anios = AniosCumplidos(desde, hasta);
    return aniosYMeses(anios, DiferenciaFechas(Intervalo::Mes, desde, hasta) - 12 * anios);
}

SerieBases SerieBasesDe(int anio) {
    const auto tramo =
        std::ranges::find_if(kSeries, [&](const TramoSerie& t) { return anio <= t.hastaAnio; });
    const TramoSerie& serie = tramo == kSeries.end() ? kSerieActual : *tramo;
    return {serie.meses, serie.pantallas, serie.meses * 7 / 6};
}

}  // namespace orvemo::pensiones
