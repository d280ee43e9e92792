#include "pensions/muerte/muerte.h"

#include <string>

#include "foundations/values/fechas.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/muerte/muerte_pensiones.h"

namespace orvemo::muerte {

namespace {

bool esPensionista(const RegistroMuerte& caso) {
    return esta(situacionDe(caso), kPensionistas);
}

/// What prices have grown since the dead person's pension was granted.
double factorDeMejora(const RegistroMuerte& caso) {
    return pensiones::FactorIPCAcumulado(Anio(caso.MuerteFechaPension));
}

/// Empty for who had no pension and for one granted in 2005 or later.
std::string mejoraDe(const RegistroMuerte& caso) {
    if (!esPensionista(caso)) return {};
    const double factor = factorDeMejora(caso);
    if (factor == 1) return {};
    return " (Incrementada en un " + FormatoNumero((factor - 1) * 100, "###.##") + "%)";
}

void informaDeAuxilio(Dictamen& d) {
    d.linea("Corresponde además un subsidio o pago único de 30,05 €, en ");
    d.linea("concepto de Auxilio por Defunción.");
}

/// Pensions granted before 1990 have no factor to tell.
void informaDeFactor(const RegistroMuerte& caso, Dictamen& d) {
    const double factor = factorDeMejora(caso);
    if (!esPensionista(caso) || factor <= 0) return;
    d.linea("NOTA: El factor de mejora desde ", Anio(caso.MuerteFechaPension), " es, en este caso, de ",
            TextoPlano(Redondeado(factor, 2)));
}

void informaDeCuotas(const RegistroMuerte& caso, Dictamen& d) {
    if (situacionDe(caso) != kAgrario) return;
    d.linea();
    d.linea("NOTA: En este régimen tiene que acreditar que está al corriente de pago de");
    d.linea("las cuotas de la Seguridad Social.");
}

}  // namespace

void MuerteCalcula(const RegistroMuerte& caso, Dictamen& d) {
    d.vacia();
    if (!cumplePeriodos(caso, d)) return;
    const std::string mejora = mejoraDe(caso);
    const Base base = concluyeBase(caso, d);
    const Viudedad viudedad = calculaViudedad(caso, base.importe);
    concluyeViudedad(caso, base, viudedad.pension, mejora, d);
    const double orfandad = concluyeOrfandad(caso, base, viudedad, mejora, d);
    concluyeFamiliares(caso, base, viudedad, orfandad, mejora, d);
    concluyeSubsidio(caso, base.importe, d);
    informaDeAuxilio(d);
    informaDeFactor(caso, d);
    informaDeCuotas(caso, d);
    d.ConDerecho = true;
}

}  // namespace orvemo::muerte
