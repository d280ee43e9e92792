#include "capital/capitalizacion/capitalizacion.h"

#include <cmath>

#include "capital/capitalizacion/beneficiarios.h"
#include "capital/capitalizacion/factores.h"
#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::capital {

namespace {

constexpr double kMesesPorAnio = 12;
/// What the note says; the rate itself is inside the tariffs.
constexpr int kInteres = 5;  // percent a year

/// Whole years by the months between the dates, half a year to the even one.
int anios(Fecha desde, Fecha hasta) {
    return RedondeaPar(DiferenciaFechas(Intervalo::Mes, desde, hasta) / kMesesPorAnio);
}

/// Divides the pension by the days married; days that nobody has give nobody a part.
void reparte(const RegistroCapital& caso, Beneficiarios& b) {
    const auto Dias1 = static_cast<float>(caso.Dias1);
    const auto Dias2 = static_cast<float>(caso.Dias2);
    b.P1 = Divide(Dias1, Dias1 + Dias2);
    b.P2 = Divide(Dias2, Dias1 + Dias2);
}

Beneficiarios beneficiariosDe(const RegistroCapital& caso, const TipoBeneficiarios& papel) {
    Beneficiarios b;
    b.a = anios(caso.Edad, caso.fConce);
    b.b = anios(caso.EdadB, caso.fConce);
    b.c = anios(caso.Edad1, caso.fConce);
    b.e = anios(caso.Edad2, caso.fConce);
    b.f = anios(caso.Edad3, caso.fConce);
    if (papel.dias) reparte(caso, b);
    return b;
}

double factorDe(const RegistroCapital& caso, std::size_t papel, const Almacen& almacen) {
    const TipoBeneficiarios& tipo = kPapeles.at(papel);
    const Tarifas tarifas{almacen, tipo.tope};
    if (caso.Situacion < kMuerte) {
        const int x = anios(caso.Edad, caso.fConce);
        return FactorInvalidez(tarifas, caso.Situacion, x, anios(caso.fConce, caso.fCapi));
    }
    return FactorMuerte(tarifas, papel, beneficiariosDe(caso, tipo));
}

/// The product, which a double must hold.
double capitalCoste(double Factor, double Capital) {
    const double coste = Factor * Capital;
    if (!std::isfinite(coste)) throw DesbordeNumerico{Capital};
    return coste;
}

}  // namespace

double CalculaCapital(const RegistroCapital& caso, int papel, std::string_view Capital,
                      const Almacen& almacen, Dictamen& dictamen) {
    dictamen.vacia();
    dictamen.linea("El interesado/a desea Capitalizar una pensión de la Seguridad Social.");
    const double Factor = factorDe(caso, static_cast<std::size_t>(papel), almacen);
    const double CapitalCoste = capitalCoste(Factor, LeeNumeroRegional(Capital));
    dictamen.linea("El capital coste de renta es de ", FormatoNumero(CapitalCoste, "###,###,##0.00"), " €",
                   kFinDeLinea);
    dictamen.linea("Nota: Este capital está calculado a partir de las tablas de mortalidad,");
    dictamen.linea("      considerando un ", kInteres, " por 100 anual de interés de ");
    dictamen.AddConc("      capitalización compuesta, con los recargos legales vigentes.");
    dictamen.ConDerecho = true;
    return CapitalCoste;
}

}  // namespace orvemo::capital
