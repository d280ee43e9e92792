#include "pensions/jubilacion/jubilacion_base.h"

#include <chrono>
#include <cmath>
#include <cstdlib>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::jubilacion {

namespace {

using namespace std::chrono_literals;
using pensiones::IndiceIPC;
using pensiones::MesesAnteriores;
using pensiones::TablasPensiones;

constexpr int kDiasHastaReferencia = 90;  // from the last contribution to the retirement, either way
constexpr int kMesesSinRevalorizar = 24;
constexpr Fecha kSinUltimoDia{1d / 1 / 1901};

bool rellenaLagunas(Regimen regimen) {
    return regimen != Regimen::Autonomos && regimen != Regimen::Agrario && regimen != Regimen::EmpleadosHogar;
}

/// The bases of a case with the months that they belong to.
class SerieDelCaso {
  public:
    SerieDelCaso(const RegistroJubilacion& caso, const TablasPensiones& tablas, bool conLagunas)
        : caso_{caso}, tablas_{tablas}, meses_{FechaReferencia(caso)}, conLagunas_{conLagunas} {}

    [[nodiscard]] IndiceIPC ipc(int i) const { return tablas_.IPCDe(meses_.anio(i), meses_.mes(i)); }

    /// A recent month: the figure is read on its line up to the decimal comma, so that its cents are lost.
    [[nodiscard]] double reciente(int i) const {
        if (esLaguna(i)) return minima(i);
        return std::trunc(base(i));
    }

    /// An earlier month at the prices of month 25; a gap filled with the minimum base is not brought up to
    /// them.
    [[nodiscard]] double revalorizada(int i, double ipc25, double ipci) const {
        if (esLaguna(i)) return Cociente(minima(i), ipci);
        return Cociente(base(i) * ipc25, ipci);
    }

  private:
    [[nodiscard]] double base(int i) const { return caso_.JubiBase[static_cast<std::size_t>(i - 1)]; }
    [[nodiscard]] bool esLaguna(int i) const { return conLagunas_ && base(i) == 0; }
    [[nodiscard]] double minima(int i) const {
        return tablas_.BaseMinima(meses_.anio(i), meses_.mes(i), "M");
    }

    const RegistroJubilacion& caso_;
    const TablasPensiones& tablas_;
    MesesAnteriores meses_;
    bool conLagunas_;
};

UltimosDias ultimosDiasDe(const RegistroJubilacion& caso) {
    UltimosDias dias;
    for (std::size_t i = 0; i < dias.size(); ++i) dias[i] = caso.JubiPerHasta[i].utf8();
    return dias;
}

Fecha ultimoDia(const UltimosDias& dias) {
    Fecha ultimo = kSinUltimoDia;
    for (const std::string& dia : dias) {
        if (!EsVacio(dia)) ultimo = Mayor(ultimo, FechaDe(dia));
    }
    return ultimo;
}

pensiones::SerieBases serieDe(const RegistroJubilacion& caso) {
    return pensiones::SerieBasesDe(Anio(caso.JubiFechaJub));
}

}  // namespace

Fecha FechaReferencia(Regimen regimen, Fecha JubiFechaJub, const UltimosDias& JubiPerHasta) {
    if (regimen != Regimen::General) return JubiFechaJub;
    const Fecha ultimo = ultimoDia(JubiPerHasta);
    if (std::abs(DiferenciaFechas(Intervalo::Dia, ultimo, JubiFechaJub)) > kDiasHastaReferencia) {
        return JubiFechaJub;
    }
    // A period that ends with its month moves the series on; in December the month number falls back to 1.
    const Fecha siguiente = SumaFecha(Intervalo::Dia, 1, ultimo);
    return Mes(siguiente) > Mes(ultimo) ? siguiente : ultimo;
}

Fecha FechaReferencia(const RegistroJubilacion& caso) {
    return FechaReferencia(regimenDe(caso), caso.JubiFechaJub, ultimosDiasDe(caso));
}

BaseReguladora JubiBaseReguladora(const RegistroJubilacion& caso, const TablasPensiones& tablas,
                                  bool rellenaLagunas) {
    const auto [MesesBases, PantallasBases, DivisorBases] = serieDe(caso);
    const SerieDelCaso serie{caso, tablas, rellenaLagunas};
    double recientes = 0;
    for (int i = 1; i <= kMesesSinRevalorizar; ++i) recientes += Redondeado(serie.reciente(i), 2);
    const IndiceIPC ipc25 = serie.ipc(kMesesSinRevalorizar + 1);
    bool IPCProyectado = ipc25.IPCProyectado;
    double anteriores = 0;
    for (int i = kMesesSinRevalorizar + 1; i <= MesesBases; ++i) {
        const IndiceIPC ipci = serie.ipc(i);
        IPCProyectado = IPCProyectado || ipci.IPCProyectado;
        anteriores += Redondeado(serie.revalorizada(i, ipc25.valor, ipci.valor), 2);
    }
    return {Redondeado((anteriores + recientes) / DivisorBases, 2), IPCProyectado};
}

BaseReguladora baseReguladora(const RegistroJubilacion& caso, const TablasPensiones& tablas) {
    if (caso.JubiBasesDesglosadas == 1) {
        return JubiBaseReguladora(caso, tablas, rellenaLagunas(regimenDe(caso)));
    }
    return {Redondeado(caso.JubiSumaBases / serieDe(caso).DivisorBases, 2), false};
}

}  // namespace orvemo::jubilacion
