#pragma once

#include <array>
#include <string_view>

#include "foundations/values/almacen.h"
#include "foundations/values/fechas.h"

namespace orvemo::pensiones {

/// File of the price index, in the application directory.
inline constexpr std::string_view kFicheroIPC = "ipc.txt";
/// First year of the price index and the years that its table holds.
inline constexpr int kPrimerAnioIPC = 1984;
inline constexpr int kAniosIPC = 50;
/// Last year read from the table; later months are projected.
inline constexpr int kUltimoAnioIPC = 2004;

/// Price index by year (row 1 is 1984) and month. Empty cells are 0.
using TablaIPC = std::array<std::array<double, 12>, kAniosIPC>;

/// A row of the minimum bases: the last day on which it applies and its amounts, euros.
struct FilaBaseMinima {
    Fecha fecha;
    double mensual;
    double diaria;
};

inline constexpr std::size_t kFilasBasesMinimas = 68;
using TablaBasesMinimas = std::array<FilaBaseMinima, kFilasBasesMinimas>;

/// An index of prices, and whether it had to be projected.
struct IndiceIPC {
    double valor;
    bool IPCProyectado;
};

/// The tables on which the retirement, incapacity and death calculators rest.
class TablasPensiones {
  public:
    TablasPensiones(const TablaIPC& ipc, const TablaBasesMinimas& basesMinimas)
        : ipc_{ipc}, basesMinimas_{basesMinimas} {}

    /// The index of a month: 0 before 1984 or for a month that does not exist; from January 2005 on, 111.69
    /// (December 2004) and two points a year more.
    [[nodiscard]] IndiceIPC IPCDe(int anio, int mes) const;

    /// The minimum contribution base of a month, euros: `clase` "D" a day, anything else a month. 0 after
    /// 2044. Throws FechaInexistente for a month that does not exist.
    [[nodiscard]] double BaseMinima(int anio, int mes, std::string_view clase) const;

  private:
    TablaIPC ipc_;
    TablaBasesMinimas basesMinimas_;
};

/// The tables as the screens need them, from "ipc.txt" in the application directory. Throws
/// FicheroInaccesible, FicheroMalFormado.
[[nodiscard]] TablasPensiones IniciaPensiones(const Almacen& almacen);

/// The price index of the text of "ipc.txt": groups of 13 lines, a heading and twelve months, one group a
/// year from 1984 on. Throws FicheroMalFormado, with the line to blame.
[[nodiscard]] TablaIPC LeeIPC(std::string_view texto);

/// The minimum bases of 1980 to 2005 and their projection to 2044.
[[nodiscard]] TablaBasesMinimas CargaBasesMinimas();

/// What prices grew from a year to 2005, as a factor, by the yearly list of pension increases: 0 before 1990,
/// 1 from 2005 on.
[[nodiscard]] double FactorIPCAcumulado(int anio);

}  // namespace orvemo::pensiones
