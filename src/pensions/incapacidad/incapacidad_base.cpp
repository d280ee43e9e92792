#include "pensions/incapacidad/incapacidad_base.h"

#include "foundations/values/numeros.h"
#include "pensions/comun/serie_bases.h"
#include "pensions/incapacidad/incapacidad_periodos.h"

namespace orvemo::incapacidad {

namespace {

using pensiones::TablasPensiones;

constexpr double kMesesDelAnio = 12;
constexpr double kPagasDeDosAnios = 28;  // fourteen a year
constexpr int kMesesSerieCompleta = 96;  // eight years
constexpr double kPagasSerieCompleta = 112;
constexpr double kPagasPorMes = 1.1666;  // fourteenths, as the shorter series take them

// What the screen asks for.
constexpr int kMesesSinAlta = 180;
constexpr int kDiasMinimos = 1825;
constexpr double kDiasPorMes = 30;

int mesesDeAdulto(const Expediente& e) {
    const int dias = DiferenciaFechas(Intervalo::Dia, e.fecha20, e.caso.InvaFechaInv);
    return Suelo(Mayor(kDiasMinimos, Suelo(dias / 4.0)) / kDiasPorMes);
}

}  // namespace

Fecha FechaReferencia(Regimen regimen, Fecha InvaFechaInv, std::span<const std::string> InvaPerHasta) {
    if (regimen != Regimen::General) return InvaFechaInv;
    return pensiones::UltimoDiaCercano(InvaPerHasta, InvaFechaInv).value_or(InvaFechaInv);
}

bool promediaBases(Grado grado, Causa causa, bool alta) {
    if (causa == Causa::EnfermedadComun) return true;
    return causa == Causa::AccidenteNoLaboral && grado != Grado::Total && !alta;
}

Lecturas LecturasDe(Grado grado, Causa causa, bool alta) {
    if (grado == Grado::Parcial) {
        return {.alta = true,
                .conyuge = false,
                .persona = false,
                .ultimaBase = true,
                .periodos = causa == Causa::EnfermedadComun,
                .bases = false};
    }
    const bool promedia = promediaBases(grado, causa, alta);
    return {.alta = grado != Grado::Total || causa != Causa::AccidenteNoLaboral,
            .conyuge = true,
            .persona = grado == Grado::GranInvalidez,
            .ultimaBase = !promedia,
            .periodos = promedia,
            .bases = promedia};
}

std::string_view RotuloUltimaBase(Grado grado, Causa causa) {
    if (grado == Grado::Parcial) return "Última base reguladora DIARIA para I.T.:";
    if (causa == Causa::Profesional) return "Último Salario Anual:";
    return "Suma de las bases de 24 meses SEGUIDOS dentro de los últimos 7 años:";
}

double InvaBaseReguladora(const Expediente& e, const TablasPensiones& tablas, int meses) {
    const bool esGeneral = e.regimen == Regimen::General;
    const Fecha referencia =
        FechaReferencia(e.regimen, e.caso.InvaFechaInv, pensiones::TextosDe(e.caso.InvaPerHasta));
    const pensiones::SumaBases partes = pensiones::SumaSerieBases(
        e.caso.InvaBase, Menor(meses, kMesesSerieCompleta), referencia, tablas, esGeneral);
    const double suma = partes.recientes + partes.anteriores;
    if (meses < kMesesSerieCompleta) return Redondeado(Cociente(suma, kPagasPorMes * meses), 2);
    return Redondeado(suma / kPagasSerieCompleta, 2);
}

double baseReguladora(const Expediente& e, const TablasPensiones& tablas, int minimo) {
    if (e.causa == Causa::Profesional) return Redondeado(e.caso.InvaUltimaBase / kMesesDelAnio, 2);
    if (!promediaBases(e.grado, e.causa, e.alta))
        return Redondeado(e.caso.InvaUltimaBase / kPagasDeDosAnios, 2);
    if (e.caso.InvaBasesDesglosadas == 1) {
        return InvaBaseReguladora(e, tablas, Menor(kMesesSerieCompleta, minimo));
    }
    if (minimo > kMesesSerieCompleta) return Redondeado(e.caso.InvaSumaBases / kPagasSerieCompleta, 2);
    return Redondeado(Cociente(e.caso.InvaSumaBases, kPagasPorMes * minimo), 2);
}

int InvaMinimoBases(const Expediente& e) {
    if (e.causa != Causa::EnfermedadComun) return 0;
    const auto meses = [&] {
        if (!e.alta) return kMesesSinAlta;
        return e.edad < kEdadDeAdulto ? minimoDeJoven(e).meses : mesesDeAdulto(e);
    };
    return Menor(meses(), kMesesSerieCompleta);
}

}  // namespace orvemo::incapacidad
