#include <algorithm>
#include <chrono>

#include "foundations/values/numeros.h"
#include "pensions/comun/tablas_pensiones.h"

namespace orvemo::pensiones {

namespace {

using namespace std::chrono_literals;

constexpr int kPrimerAnioEuros = 2002;     // earlier rows are in pesetas
constexpr double kSubidaProyectada = 102;  // percent of the year before
constexpr int kPrimerAnioProyectado = 2006;

struct FilaPublicada {
    std::chrono::year_month_day hasta;
    double mensual, diaria;  // pesetas before 2002, euros since
};

// Minimum contribution bases as published. The last two rows end on the same day: a search from the top stops
// at the first, so that the second only seeds the projection.
constexpr std::array kPublicadas{
    FilaPublicada{31d / 5 / 1980, 22500, 750},     FilaPublicada{31d / 12 / 1980, 24690, 823},
    FilaPublicada{31d / 3 / 1981, 24690, 823},     FilaPublicada{31d / 12 / 1981, 27780, 926},
    FilaPublicada{31d / 12 / 1982, 30810, 1027},   FilaPublicada{31d / 12 / 1983, 34830, 1161},
    FilaPublicada{31d / 12 / 1984, 40530, 1351},   FilaPublicada{31d / 12 / 1985, 43370, 1446},
    FilaPublicada{31d / 12 / 1986, 46830, 1561},   FilaPublicada{31d / 12 / 1987, 49170, 1639},
    FilaPublicada{31d / 12 / 1988, 51390, 1713},   FilaPublicada{31d / 12 / 1989, 54480, 1816},
    FilaPublicada{31d / 12 / 1990, 58350, 1945},   FilaPublicada{31d / 12 / 1991, 62130, 2071},
    FilaPublicada{31d / 12 / 1992, 65670, 2189},   FilaPublicada{31d / 12 / 1993, 68310, 2277},
    FilaPublicada{31d / 12 / 1994, 70680, 2356},   FilaPublicada{31d / 12 / 1995, 73140, 2438},
    FilaPublicada{31d / 12 / 1996, 75690, 2523},   FilaPublicada{31d / 12 / 1997, 77730, 2591},
    FilaPublicada{31d / 12 / 1998, 79380, 2646},   FilaPublicada{31d / 12 / 1999, 80820, 2694},
    FilaPublicada{31d / 12 / 2000, 82470, 2749},   FilaPublicada{31d / 12 / 2001, 84150, 2805},
    FilaPublicada{31d / 12 / 2002, 516.00, 17.20}, FilaPublicada{31d / 12 / 2003, 526.50, 17.55},
    FilaPublicada{30d / 6 / 2004, 537.30, 17.91},  FilaPublicada{31d / 12 / 2005, 572.70, 19.09},
    FilaPublicada{31d / 12 / 2005, 598.50, 19.95},
};

FilaBaseMinima CargaFilaBasesMinimas(const FilaPublicada& fila) {
    const Fecha fecha{fila.hasta};
    if (Anio(fecha) >= kPrimerAnioEuros) return {fecha, fila.mensual, fila.diaria};
    return {fecha, PesetasAEuros(RedondeaPar(fila.mensual)), PesetasAEuros(RedondeaPar(fila.diaria))};
}

int subida(int importe) {
    return RedondeaPar(importe * kSubidaProyectada / 100);
}

}  // namespace

TablaBasesMinimas CargaBasesMinimas() {
    TablaBasesMinimas tabla{};
    auto fila = std::ranges::transform(kPublicadas, tabla.begin(), CargaFilaBasesMinimas).out;
    int mensual = RedondeaPar(kPublicadas.back().mensual);
    int diaria = RedondeaPar(kPublicadas.back().diaria);
    for (int anio = kPrimerAnioProyectado; fila != tabla.end(); ++anio, ++fila) {
        mensual = subida(mensual);
        diaria = subida(diaria);
        *fila = {FechaDMA(31, 12, anio), static_cast<double>(mensual), static_cast<double>(diaria)};
    }
    return tabla;
}

double TablasPensiones::BaseMinima(int anio, int mes, std::string_view clase) const {
    const Fecha primero = FechaDMA(1, mes, anio);
    const auto fila =
        std::ranges::find_if(basesMinimas_, [&](const FilaBaseMinima& f) { return f.fecha >= primero; });
    if (fila == basesMinimas_.end()) return 0;
    return clase == "D" ? fila->diaria : fila->mensual;
}

}  // namespace orvemo::pensiones
