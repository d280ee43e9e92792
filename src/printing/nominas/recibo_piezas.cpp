#include "printing/nominas/recibo_piezas.h"

#include <cstddef>

namespace orvemo::nomina {
namespace {

constexpr double kXAntes = 3.0;

}  // namespace

void EscribeFila(double y, const FilaRecibo& fila, HojaImpresa& hoja, double finPuntos) {
    if (!fila.antes.empty()) hoja.escribe({kXAntes, y, fila.letra}, fila.antes);
    const Sitio sitio{fila.x, y, fila.letra};
    if (!fila.punteada) return hoja.escribe(sitio, fila.texto);
    hoja.escribePunteado(sitio, fila.texto, finPuntos);
    hoja.escribeImporte(y, fila.letra, fila.importe);
}

void EscribeFilas(double y, double alto, const std::vector<FilaRecibo>& filas, HojaImpresa& hoja) {
    const double paso = PasoDeFilas(filas.size(), alto);
    for (std::size_t i = 0; i < filas.size(); ++i)
        EscribeFila(y + paso * static_cast<double>(i), filas[i], hoja);
}

}  // namespace orvemo::nomina
