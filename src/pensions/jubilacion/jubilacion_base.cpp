#include "pensions/jubilacion/jubilacion_base.h"

#include "foundations/values/numeros.h"
#include "pensions/comun/serie_bases.h"

namespace orvemo::jubilacion {

namespace {

using pensiones::TablasPensiones;

bool rellenaLagunas(Regimen regimen) {
    return regimen != Regimen::Autonomos && regimen != Regimen::Agrario && regimen != Regimen::EmpleadosHogar;
}

pensiones::SerieBases serieDe(const RegistroJubilacion& caso) {
    return pensiones::SerieBasesDe(Anio(caso.JubiFechaJub));
}

}  // namespace

Fecha FechaReferencia(Regimen regimen, Fecha JubiFechaJub, std::span<const std::string> JubiPerHasta) {
    if (regimen != Regimen::General) return JubiFechaJub;
    const auto ultimo = pensiones::UltimoDiaCercano(JubiPerHasta, JubiFechaJub);
    if (!ultimo) return JubiFechaJub;
    // A period that ends with its month moves the series on; in December the month number falls back to 1.
    const Fecha siguiente = SumaFecha(Intervalo::Dia, 1, *ultimo);
    return Mes(siguiente) > Mes(*ultimo) ? siguiente : *ultimo;
}

Fecha FechaReferencia(const RegistroJubilacion& caso) {
    std::array<std::string, kFilasPeriodos> dias;
    for (std::size_t i = 0; i < dias.size(); ++i) dias[i] = caso.JubiPerHasta[i].utf8();
    return FechaReferencia(regimenDe(caso), caso.JubiFechaJub, dias);
}

BaseReguladora JubiBaseReguladora(const RegistroJubilacion& caso, const TablasPensiones& tablas,
                                  bool rellenaLagunas) {
    const auto [MesesBases, PantallasBases, DivisorBases] = serieDe(caso);
    const pensiones::SumaBases suma =
        pensiones::SumaSerieBases(caso.JubiBase, MesesBases, FechaReferencia(caso), tablas, rellenaLagunas);
    return {Redondeado((suma.anteriores + suma.recientes) / DivisorBases, 2), suma.IPCProyectado};
}

BaseReguladora baseReguladora(const RegistroJubilacion& caso, const TablasPensiones& tablas) {
    if (caso.JubiBasesDesglosadas == 1) {
        return JubiBaseReguladora(caso, tablas, rellenaLagunas(regimenDe(caso)));
    }
    return {Redondeado(caso.JubiSumaBases / serieDe(caso).DivisorBases, 2), false};
}

}  // namespace orvemo::jubilacion
