#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "payroll/recibo/recibo.h"
#include "printing/nominas/formularios.h"
#include "printing/nominas/hoja_impresa.h"

namespace orvemo::nomina {

/// The payslip and its receipt, put together.
struct DatosRecibo {
    const DatosFormularios& de;
    Recibo recibo;

    [[nodiscard]] const Entradas& entradas() const { return de.estado.entradas; }
    [[nodiscard]] const Dias& dias() const { return de.estado.dias; }
    [[nodiscard]] bool cobraPorHoras() const { return entradas().ModoContrato == "H"; }
    [[nodiscard]] bool hayDesempleoParcial() const { return entradas().hayDesempleoParcial(); }
};

/// A row of the receipt: a text, dots and an amount, 0 for none.
struct FilaRecibo {
    double x;
    Letra letra;
    std::string texto;
    double importe = 0;
    std::string_view antes{};  ///< what stands before it, at the left
    bool punteada = true;
};

/// Where the dots before the amounts of all rows end.
inline constexpr double kFinPuntos = 15.0;

/// The row at a height, its dots up to where the amounts begin or a note stands.
void EscribeFila(double y, const FilaRecibo& fila, HojaImpresa& hoja, double finPuntos = kFinPuntos);

/// Rows one under another in `alto` centimetres.
void EscribeFilas(double y, double alto, const std::vector<FilaRecibo>& filas, HojaImpresa& hoja);

/// The foot of the receipt: how the bases of the contributions and of the tax come about.
void EscribeBases(const DatosRecibo& datos, HojaImpresa& hoja);

}  // namespace orvemo::nomina
