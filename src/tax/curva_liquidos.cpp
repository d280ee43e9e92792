#include "tax/curva_liquidos.h"

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"

namespace orvemo::liquidos {

namespace {

// The stretch shown, as shares of the answer.
constexpr double kDesde = 0.5;
constexpr double kHasta = 1.5;
constexpr int kTramos = 60;

std::string importe(double euros) {
    return FormatoNumero(euros, "###,##0.00");
}

std::vector<PuntoGrafica> puntosDe(const DatosLiquidos& datos, double Bruto) {
    std::vector<PuntoGrafica> puntos;
    for (int i = 0; i <= kTramos; ++i) {
        const double x = Bruto * (kDesde + (kHasta - kDesde) * i / kTramos);
        puntos.push_back({x, LiquidoDe(datos, x)});
    }
    return puntos;
}

std::string descripcion(const Grafica& grafica) {
    const PuntoGrafica& menor = grafica.puntos.front();
    const PuntoGrafica& mayor = grafica.puntos.back();
    return "Salario líquido según el bruto: de " + importe(menor.y) + " € con " + importe(menor.x) +
           " € brutos a " + importe(mayor.y) + " € con " + importe(mayor.x) + " €; marcado, " +
           importe(grafica.marcado->y) + " € con " + importe(grafica.marcado->x) + " €.";
}

}  // namespace

Grafica CurvaDe(const DatosLiquidos& datos, const ResultadoLiquidos& resultado) {
    try {
        Grafica grafica{.puntos = puntosDe(datos, resultado.Bruto),
                        .marcado = PuntoGrafica{resultado.Bruto, LiquidoDe(datos, resultado.Bruto)},
                        .ejeX = "Salario bruto mensual, €",
                        .ejeY = "Líquido mensual, €"};
        grafica.descripcion = descripcion(grafica);
        return grafica;
    } catch (const Fallo&) {
        return {};
    }
}

}  // namespace orvemo::liquidos
