#include "benefits/desempleo/desempleo.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::desempleo {

namespace {

// Figures of the law for 2005.
constexpr int kEdadOrdinaria = 65;              // years: the retirement pension takes over
constexpr int kMinimoDiasCotizados = 360;       // days in the last six years
constexpr double kDiasDeLaSuma = 180;           // days whose bases are summed
constexpr double kJornadaCompleta = 40;         // hours a week
constexpr double kMinimoSinHijos = 14.616;      // euros a day
constexpr double kMinimoConHijos = 19.5489;     // euros a day
constexpr double kMaximoSinHijos = 31.9725;     // euros a day
constexpr double kMaximoUnHijo = 36.54;         // euros a day
constexpr double kMaximoVariosHijos = 41.1075;  // euros a day
constexpr double kPrimerTramo = 0.7;            // of the base, first 180 days
constexpr double kSegundoTramo = 0.6;           // of the base, from day 181
constexpr int kDiasPrimerTramo = 180;
constexpr int kPlazoSolicitud = 15;  // days

struct Banda {
    int desde;  // days contributed
    int dias;   // days of benefit
};
// clang-format off
constexpr std::array kBandas{
    Banda{ 360, 120},
    Banda{ 540, 180},
    Banda{ 720, 240},
    Banda{ 900, 300},
    Banda{1080, 360},
    Banda{1260, 420},
    Banda{1440, 480},
    Banda{1620, 540},
    Banda{1800, 600},
    Banda{1980, 660},
    Banda{2160, 720},
};
// clang-format on

struct DiaFestivo {
    int dia, mes;
};
// 2 January is one of them, 1 January isn't.
// clang-format off
constexpr std::array kFestivos{
    DiaFestivo{ 2,  1},
    DiaFestivo{ 6,  1},
    DiaFestivo{25,  7},
    DiaFestivo{12, 10},
    DiaFestivo{ 6, 12},
    DiaFestivo{ 8, 12},
    DiaFestivo{25, 12},
};
// clang-format on

bool esFestivo(Fecha fecha) {
    return std::ranges::any_of(
        kFestivos, [&](const DiaFestivo& f) { return f.dia == Dia(fecha) && f.mes == Mes(fecha); });
}

bool esLaborable(Fecha fecha) {
    const std::chrono::weekday dia{fecha};
    return dia != std::chrono::Saturday && dia != std::chrono::Sunday && !esFestivo(fecha);
}

std::string importe(double euros) {
    return FormatoNumero(euros, "##,###,##0.00");
}

bool esContratoParcial(const RegistroDesempleo& caso) {
    return caso.Parcial == 1 && caso.Horas > 0 && caso.Horas < kJornadaCompleta;
}

/// The daily limits of the benefit, euros.
struct Topes {
    double minimo, maximo;
};

double minimoDiario(int Hijos) {
    return Hijos < 1 ? kMinimoSinHijos : kMinimoConHijos;
}

double maximoDiario(int Hijos) {
    if (Hijos == 0) return kMaximoSinHijos;
    return Hijos == 1 ? kMaximoUnHijo : kMaximoVariosHijos;
}

double dentroDeTopes(double diaria, const Topes& topes) {
    return Mayor(Menor(diaria, topes.maximo), topes.minimo);
}

void avisaDeTopes(double diaria, const Topes& topes, std::string_view dias, Dictamen& d) {
    if (diaria > topes.maximo) {
        d.linea("La prestación diaria para los ", dias, " días supera la máxima, por lo que se toma ésta.");
    } else if (diaria < topes.minimo) {
        d.linea("La prestación diaria para los ", dias,
                " días es inferior a la mínima, por lo que se toma ésta.");
    }
}

void remiteAJubilacion(Dictamen& d) {
    d.linea("El solicitante ha cumplido la edad ordinaria de jubilación por lo que");
    d.linea("no le corresponde prestación por desempleo.");
    d.AddConc("En su lugar debe solicitar la pensión de jubilación que pueda corresponderle.");
}

void deniegaPorCotizacion(Dictamen& d) {
    d.linea("Debe haber cumplido 12 meses de cotización en los últimos 6 años.");
    d.linea("No tiene derecho a prestación.");
    d.linea("Puede estudiar la posibilidad de obtener el subsidio por desempleo.");
}

void deniegaSinDias(Dictamen& d) {
    d.linea("El número de días de prestación es 0.");
    d.linea("Puede estudiar la posibilidad de obtener el subsidio por desempleo.");
}

void informaDeParcialidad(double coef, Dictamen& d) {
    d.linea("Se ha tomado la parte proporcional de los topes mínimo y máximo diarios,");
    d.linea("equivalentes a ", TextoPlano(Redondeado(coef * 100, 2)),
            "%, por ser contrato a tiempo parcial.");
}

void informaDeImportes(double base, int dias, const Topes& topes, Dictamen& d) {
    const double p70 = Redondeado(base * kPrimerTramo, 2);
    avisaDeTopes(p70, topes, "primeros 180", d);
    const double primera = dentroDeTopes(p70, topes);
    const double p60 = Redondeado(base * kSegundoTramo, 2);
    const double segunda = dentroDeTopes(p60, topes);
    if (dias <= kDiasPrimerTramo) {
        d.linea("El importe de la prestación es de ", importe(primera), " € diarios.");
        return;
    }
    d.linea("Los primeros 180 días tendrá una prestación de ", importe(primera), " € diarios.");
    // The sentence says 120 whatever days remain.
    avisaDeTopes(p60, topes, "restantes 120", d);
    d.linea("A partir del día 181 la prestación será de ", importe(segunda), " € diarios.");
}

void avisaDeRetraso(int fueraDePlazo, Dictamen& d) {
    if (fueraDePlazo <= kPlazoSolicitud) return;
    d.linea("La solicitud ha sido hecha fuera del plazo de 15 días por lo que pierde la");
    d.linea("prestación correspondiente a ", fueraDePlazo, " días.");
}

}  // namespace

int DiasPrestacion(int Dias) {
    const auto siguiente = std::ranges::upper_bound(kBandas, Dias, {}, &Banda::desde);
    return siguiente == kBandas.begin() ? 0 : std::prev(siguiente)->dias;
}

int DiasFueraPlazo(Fecha desde, Fecha hasta) {
    if (hasta < desde || !esLaborable(desde)) return 0;
    return DiferenciaFechas(Intervalo::Dia, desde, hasta) + 1;
}

void CalculaDesempleo(const RegistroDesempleo& caso, Dictamen& dictamen) {
    dictamen.vacia();
    const double coef = esContratoParcial(caso) ? caso.Horas / kJornadaCompleta : 1;
    dictamen.linea("El interesado desea solicitar una prestación de desempleo.");
    if (caso.Edad >= kEdadOrdinaria) return remiteAJubilacion(dictamen);
    if (caso.Dias < kMinimoDiasCotizados) return deniegaPorCotizacion(dictamen);
    const int dias = DiasPrestacion(caso.Dias);
    // The bands give no 0 from 360 days on; the rule stands all the same.
    if (dias == 0) return deniegaSinDias(dictamen);
    dictamen.linea("Tiene derecho a ", dias, " días de prestación.");
    const double base = Redondeado(caso.Suma / kDiasDeLaSuma, 2);
    const Topes topes{Redondeado(coef * minimoDiario(caso.Hijos), 2),
                      Redondeado(coef * maximoDiario(caso.Hijos), 2)};
    dictamen.linea("La base reguladora diaria es de ", importe(base), " €.");
    if (coef < 1) informaDeParcialidad(coef, dictamen);
    informaDeImportes(base, dias, topes, dictamen);
    avisaDeRetraso(DiasFueraPlazo(caso.fIni, caso.Fecha_), dictamen);
    dictamen.ConDerecho = true;
}

}  // namespace orvemo::desempleo
