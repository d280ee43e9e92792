#include "pensions/jubilacion/jubilacion_cuantia.h"

#include <cmath>
#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/limites.h"
#include "pensions/jubilacion/jubilacion_base.h"

namespace orvemo::jubilacion {

namespace {

using pensiones::TablasPensiones;

constexpr int kInflacionEstimada = 2;  // percent a year

/// The limits of the pension, at the prices of the year of retirement.
struct Limites {
    double minimo, maximo;
};

std::string importe(double euros) {
    return FormatoNumero(euros, "###,##0.00");
}

bool seAnticipa(const Carrera& carrera) {
    return carrera.edad < kEdadOrdinaria && carrera.regimen != Regimen::Sustitucion64;
}

Limites limitesDe(const RegistroJubilacion& caso, const Carrera& carrera, float factor) {
    const pensiones::Minimos& minimos =
        seAnticipa(carrera) ? pensiones::kMinimosAntesDe65 : pensiones::kMinimosDesde65;
    const double minimo = minimos.segun(caso.JubiConyuge == 1);
    return {Redondeado(factor * minimo, 2), Redondeado(factor * pensiones::kPensionMaxima, 2)};
}

void informaDeInflacion(Dictamen& d) {
    d.linea("La fecha de jubilación EXCEDE ESTE AÑO por lo que se ajustan los");
    d.linea("diferentes valores (Bases, IPC, Etc.) a la inflación anual estimada de ", kInflacionEstimada,
            "%");
}

void informaDePorcentaje(const Carrera& carrera, Dictamen& d) {
    d.linea("El periodo cotizado a efectos de cálculo del % a aplicar sobre la base ");
    d.linea("reguladora es de ", carrera.aniosParaPorcentaje, " años.");
    d.linea("El porcentaje a aplicar sobre la base reguladora es de ", TextoPlano(carrera.porcentaje), "% ");
}

/// The base in euros of the day on which the program is used.
double enEurosDeHoy(double base, const TablasPensiones& tablas, Fecha hoy, Fecha jubilacion) {
    const double ipcDeHoy = tablas.IPCDe(Anio(hoy), Mes(hoy)).valor;
    const double ipcJubilacion = tablas.IPCDe(Anio(jubilacion), Mes(jubilacion)).valor;
    return Redondeado(Cociente(base * ipcDeHoy, ipcJubilacion), 2);
}

double concluyeBase(const RegistroJubilacion& caso, const BaseReguladora& base, const TablasPensiones& tablas,
                    Fecha hoy, Dictamen& d) {
    if (!base.IPCProyectado) {
        d.linea("siendo la base reguladora de ", importe(base.importe), " €.");
        return base.importe;
    }
    d.linea("siendo la base reguladora de ", importe(base.importe), " € del año en que se jubila,");
    const double deHoy = enEurosDeHoy(base.importe, tablas, hoy, caso.JubiFechaJub);
    d.linea("equivalentes a ", importe(deHoy), " € de hoy (según la hipótesis de inflación).");
    return deHoy;
}

void informaDeReduccion(const Carrera& carrera, Dictamen& d) {
    if (carrera.coeficiente != 1) {
        d.linea("La edad de jubilación es inferior a los 65 años por lo que se ha ");
        d.linea("aplicado un coeficiente reductor en la pensión (", TextoPlano(carrera.coeficiente), "). ");
        if (carrera.CoeficienteEspecial) {
            d.linea("(Coeficiente especial para trabajadores que acrediten 40 o más años");
            d.linea("de cotización y tuvieran condición de mutualistas el 1 de enero de 1967)");
        }
    } else if (carrera.regimen == Regimen::Parcial) {
        d.linea("Aunque la edad de jubilación es inferior a los 65 años, no se aplica");
        d.linea("coeficiente reductor en la pensión por tratarse de jubilación parcial.");
    }
}

double limitaAlMaximo(double pension, const Limites& limites, Dictamen& d) {
    if (pension <= limites.maximo) return pension;
    d.linea("La pensión que se deduce es superior al valor máximo, por lo que se ");
    d.linea("toma este valor que es de ", importe(limites.maximo), " €/mes.");
    return limites.maximo;
}

double limitaAntesDe65(double pension, const Limites& limites, Dictamen& d) {
    if (pension >= limites.minimo) return limitaAlMaximo(pension, limites, d);
    d.linea("La pensión que se deduce es inferior al valor mínimo, por lo que se ");
    d.linea("toma este valor que es de ", importe(limites.minimo), " €/mes.");
    return limites.minimo;
}

double limitaDesde65(double pension, const Limites& limites, Dictamen& d) {
    if (pension >= limites.minimo) return limitaAlMaximo(pension, limites, d);
    d.linea("La pensión es inferior al valor mínimo, por lo que se toma éste.");
    return limites.minimo;
}

/// The minimum has already been applied: what is left of a partial pension may lie below it.
double concluyeParcial(double entera, double JubiRedJor, Dictamen& d) {
    const double pension = Redondeado((100 - JubiRedJor) * entera / 100, 2);
    d.linea("Al ser jubilación parcial, se reduce la pensión en un ", TextoPlano(JubiRedJor),
            "% siendo por tanto ");
    d.linea("de ", importe(pension), " €/mes (con dos pagas extras).");
    return pension;
}

double concluyeEntera(double pension, Dictamen& d) {
    d.linea("La cuantía de la pensión es de ", importe(pension), " €/mes (con dos pagas extras).");
    return pension;
}

}  // namespace

float FactorInflacion(int anio) {
    if (anio <= kAnioDelPrograma) return 1;
    return precisionSimple(std::pow(kSubidaAnual, anio - kAnioDelPrograma));
}

void CalculaCuantia(const RegistroJubilacion& caso, const Carrera& carrera, int bonificacion,
                    const TablasPensiones& tablas, Fecha hoy, Dictamen& d) {
    const BaseReguladora reguladora = baseReguladora(caso, tablas);
    const float factor = FactorInflacion(Anio(caso.JubiFechaJub));
    if (Anio(caso.JubiFechaJub) > kAnioDelPrograma) informaDeInflacion(d);
    informaDePorcentaje(carrera, d);
    const double base = concluyeBase(caso, reguladora, tablas, hoy, d);
    double pension =
        Redondeado((1 + bonificacion / 100.0) * carrera.coeficiente * (carrera.porcentaje / 100) * base, 2);
    const Limites limites = limitesDe(caso, carrera, factor);
    if (seAnticipa(carrera)) {
        informaDeReduccion(carrera, d);
        pension = limitaAntesDe65(pension, limites, d);
    } else {
        pension = limitaDesde65(pension, limites, d);
    }
    if (pension != 0) {
        pension = carrera.regimen == Regimen::Parcial ? concluyeParcial(pension, caso.JubiRedJor, d)
                                                      : concluyeEntera(pension, d);
        if (factor != 1) d.linea("(Importe calculado en € de hoy)");
    }
    if (pension == 0 && carrera.antesDe1967) {
        d.linea("Sólo puede recibir la pensión SOVI de ", TextoPlano(kPensionSOVI),
                " €/mes (con dos pagas extras).");
    }
}

}  // namespace orvemo::jubilacion
