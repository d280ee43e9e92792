#include "pensions/comun/serie_bases.h"

#include <chrono>
#include <cmath>
#include <cstdlib>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::pensiones {

namespace {

using namespace std::chrono_literals;

constexpr int kDiasHastaReferencia = 90;  // from the last contribution to the event, either way
constexpr Fecha kSinUltimoDia{1d / 1 / 1901};

/// The bases with the months that they belong to.
class Serie {
  public:
    Serie(std::span<const double> bases, Fecha referencia, const TablasPensiones& tablas, bool conLagunas)
        : bases_{bases}, meses_{referencia}, tablas_{tablas}, conLagunas_{conLagunas} {}

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
    [[nodiscard]] double base(int i) const { return bases_[static_cast<std::size_t>(i - 1)]; }
    [[nodiscard]] bool esLaguna(int i) const { return conLagunas_ && base(i) == 0; }
    [[nodiscard]] double minima(int i) const {
        return tablas_.BaseMinima(meses_.anio(i), meses_.mes(i), "M");
    }

    std::span<const double> bases_;
    MesesAnteriores meses_;
    const TablasPensiones& tablas_;
    bool conLagunas_;
};

}  // namespace

std::vector<Periodo> PeriodosDe(std::span<const Texto<10>> desde, std::span<const Texto<10>> hasta) {
    std::vector<Periodo> periodos;
    for (std::size_t i = 0; i < desde.size(); ++i) {
        const std::string primero = desde[i].utf8();
        if (primero.empty()) continue;
        periodos.push_back({FechaDe(primero), FechaDe(hasta[i].utf8())});
    }
    return periodos;
}

std::vector<std::string> TextosDe(std::span<const Texto<10>> filas) {
    std::vector<std::string> textos;
    for (const Texto<10>& fila : filas) textos.push_back(fila.utf8());
    return textos;
}

std::optional<Fecha> UltimoDiaCercano(std::span<const std::string> dias, Fecha hecho) {
    Fecha ultimo = kSinUltimoDia;
    for (const std::string& dia : dias) {
        if (!EsVacio(dia)) ultimo = Mayor(ultimo, FechaDe(dia));
    }
    if (std::abs(DiferenciaFechas(Intervalo::Dia, ultimo, hecho)) > kDiasHastaReferencia) return std::nullopt;
    return ultimo;
}

SumaBases SumaSerieBases(std::span<const double> bases, int meses, Fecha referencia,
                         const TablasPensiones& tablas, bool rellenaLagunas) {
    const Serie serie{bases, referencia, tablas, rellenaLagunas};
    SumaBases suma;
    for (int i = 1; i <= Menor(kMesesSinRevalorizar, meses); ++i) {
        suma.recientes += Redondeado(serie.reciente(i), 2);
    }
    const IndiceIPC ipc25 = serie.ipc(kMesesSinRevalorizar + 1);
    suma.IPCProyectado = ipc25.IPCProyectado;
    for (int i = kMesesSinRevalorizar + 1; i <= meses; ++i) {
        const IndiceIPC ipci = serie.ipc(i);
        suma.IPCProyectado = suma.IPCProyectado || ipci.IPCProyectado;
        suma.anteriores += Redondeado(serie.revalorizada(i, ipc25.valor, ipci.valor), 2);
    }
    return suma;
}

}  // namespace orvemo::pensiones
