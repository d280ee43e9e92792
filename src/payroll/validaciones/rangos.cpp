#include "payroll/validaciones/rangos.h"

#include <algorithm>
#include <limits>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/dias/calendario.h"

namespace orvemo::nomina {

namespace {

constexpr double kMaximoDiasAnt = 90;
/// Above this an amount a day looks like one a month, euros.
constexpr double kPagaDiariaGrande = 300;
constexpr std::string_view kPeriodos = "DMAX";

constexpr std::string_view kEntre17Y99 = "El número no es correcto. Debe introducir un número entre 17 y 99";
constexpr std::string_view kEntre0Y1 = "El número no es correcto. Debe introducir un número entre 0 y 1";
constexpr std::string_view kEntre0Y99 = "El número no es correcto. Debe introducir un número entre 0 y 99";
constexpr std::string_view kEntre0Y100 = "El número no es correcto. Debe introducir un número entre 0 y 100";
constexpr std::string_view kEntre0Y99999 =
    "El número no es correcto. Debe introducir un número entre 0 y 99999";
constexpr std::string_view kVacaciones =
    "El número de días de vacaciones disfrutadas no es correcto. Debe introducir un número entre 0 y 99";
constexpr std::string_view kBaseAnterior =
    "El número no es correcto. Debe introducir un número entre 0 y 10,000";
constexpr std::string_view kImporteAnterior =
    "El importe no es correcto. Debe introducir un número entre 0 y 10,000";
constexpr std::string_view kHorasAlDia = "El importe no es correcto. Debe introducir un número entre 0 y 24";
constexpr std::string_view kDiasAlAnio = "El valor no es correcto. Debe introducir un número entre 0 y 365";
constexpr std::string_view kBase12 = "El importe no es correcto. Debe introducir un número entre 0 y 50000";
constexpr std::string_view kHoras = "El número de horas no es válido: debe estar entre 0 y 999";
constexpr std::string_view kDias = "El número de días no es válido: debe estar entre 0 y 31";

// The message of NomiPluriempleo says a range that isn't its own.
// clang-format off
constexpr RangoNumero kRangos[] = {
    {"NomiEdad",          17,    99, kEntre17Y99,      "#0"},
    {"NomiNumPagas",       0,    99, kEntre0Y99,       "#0"},
    {"NomiPagaExtra",      0, 99999, kEntre0Y99999,    "#,###,##0.00"},
    {"NomiIRPFExtra",      0,   100, kEntre0Y100,      ""},
    {"NomiDesempleo",      0,     1, kEntre0Y1,        ""},
    {"NomiPluriempleo",    0,   100, kEntre0Y1,        ""},
    {"NomiFDiasCom",       0,    99, kEntre0Y99,       "#0"},
    {"NomiFDiasInd",       0,    99, kEntre0Y99,       "#0"},
    {"NomiFMaxInd",        0,    99, kEntre0Y99,       "#0"},
    {"NomiFDiasVac",       0,    99, kVacaciones,      "#0"},
    {"NomiBaseCCAnt",      0, 10000, kBaseAnterior,    "#####0.00"},
    {"NomiBaseATEPAnt",    0, 10000, kImporteAnterior, "#####0.00"},
    {"NomiHEAnt",          0, 10000, kImporteAnterior, "#####0.00"},
    {"NomiHEAñoAnt",       0, 10000, kImporteAnterior, "#####0.00"},
    {"NomiHorasDiarias",   0,    24, kHorasAlDia,      "#0.0"},
    {"NomiDias12",         0,   365, kDiasAlAnio,      "##0"},
    {"NomiBase12",         0, 50000, kBase12,          ""},
    {"NomiParcialHoras",   0,   999, kHoras,           "#0"},
    {"NomiParcialDias",    0,    31, kDias,            "#0"},
};
// clang-format on

/// The number of a text; one that no double holds is beyond any limit.
double numero(std::string_view texto) {
    try {
        return ValComa(texto);
    } catch (const DesbordeNumerico&) {
        return Recorta(texto).starts_with('-') ? -std::numeric_limits<double>::max()
                                               : std::numeric_limits<double>::max();
    }
}

bool entre(std::string_view texto, double minimo, double maximo) {
    return EntreLimites(numero(texto), minimo, maximo);
}

}  // namespace

std::span<const RangoNumero> RangosNomina() {
    return kRangos;
}

const RangoNumero& RangoDe(std::string_view campo) {
    return *std::ranges::find(kRangos, campo, &RangoNumero::campo);
}

std::string CompruebaNumero(const RangoNumero& rango, std::string_view texto) {
    return entre(texto, rango.minimo, rango.maximo) ? std::string{} : std::string{rango.mensaje};
}

std::string CompruebaImporte(std::string_view texto, std::int32_t Limite) {
    if (entre(texto, 0, Limite)) return {};
    return "El número no es correcto. Debe introducir un número entre 0 y " +
           FormatoNumero(Limite, "##,###,##0");
}

std::string CompruebaPromedio(std::string_view texto) {
    if (numero(texto) < kMaximoAnterior) return {};
    return "El promedio de las bases de los últimos 6 meses debe ser inferior a 10,000 euros";
}

std::string CompruebaDiasAnt(std::string_view texto, int Mes) {
    if (entre(texto, 0, kMaximoDiasAnt)) return {};
    return "El número de días cotizados en el mes anterior no es correcto. Debe introducir un número entre 0 "
           "y " +
           TextoPlano(DiasDelMes(Mes - 1));
}

std::string CompruebaPeriodo(std::string_view letra) {
    if (kPeriodos.find(letra) != std::string_view::npos) return {};
    return "Debe responder (M)ensual (D)iario, (X) Por día cotizado ó (A) Independiente del número de días "
           "trabajados, según que el concepto sea mensual, por dia trabajado, o independiente del número de "
           "días trabajados, respectivamente";
}

bool Supera(std::string_view texto, double limite) {
    return numero(texto) > limite;
}

std::string_view AvisoExtras(bool cobraPorDias, std::span<const std::string> pagas) {
    const bool hayGrande =
        std::ranges::any_of(pagas, [](const std::string& paga) { return Supera(paga, kPagaDiariaGrande); });
    if (!cobraPorDias || !hayGrande) return {};
    return "El importe que se pide para las pagas es DIARIO. Las cifras parecen mensuales.";
}

}  // namespace orvemo::nomina
