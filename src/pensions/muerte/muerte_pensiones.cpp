#include "pensions/muerte/muerte_pensiones.h"

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/limites.h"

namespace orvemo::muerte {

namespace {

using pensiones::kPensionMaxima;

// Figures of the law for 2005, euros a month.
constexpr int kAnio = 2005;
constexpr double kPorcentajeViudedad = 0.52;
constexpr double kPorcentajeConCargas = 0.7;
constexpr double kMinimoViudaDesde65 = 438.71;
constexpr double kMinimoViudaDesde60 = 408.78;  // also of a younger one with orphans
constexpr double kMinimoViudaMasJoven = 326.20;
constexpr double kPorcentajeOrfandad = 0.2;         // also of a relative and of the subsidy
constexpr double kMinimoHuerfano = 132.62;          // also of a relative beside others and of the subsidy
constexpr double kMinimoOrfandadAbsoluta = 326.20;  // that orphans without a widow share
constexpr int kPocosHuerfanos = 3;                  // from which all that is left of the base is shared
constexpr int kMuchosHuerfanos = 6;                 // from which the base is shared whole
constexpr double kMensualidadesIndemnizacion = 6;
constexpr double kMinimoFamiliar = 326.20;
constexpr double kMinimoOtrosFamiliares = 193.58;  // that relatives share on top of it
constexpr double kFamiliarDesde65 = 341.42;
constexpr double kFamiliarHasta65 = 321.46;

bool dejaViuda(const RegistroMuerte& caso) {
    return caso.MuerteDejaViuda == 1;
}

double quintaParte(double base) {
    return Redondeado(base * kPorcentajeOrfandad, 2);
}

double minimoViudedad(const RegistroMuerte& caso) {
    if (caso.MuerteEdadViuda >= 65) return kMinimoViudaDesde65;
    if (caso.MuerteEdadViuda >= 60 || caso.MuerteHijos > 0) return kMinimoViudaDesde60;
    return kMinimoViudaMasJoven;
}

bool esProfesional(const RegistroMuerte& caso) {
    return esta(causaDe(caso), kCausasProfesionales);
}

double pensionDeHuerfano(const RegistroMuerte& caso, double base, const Viudedad& viudedad) {
    const double p20 = quintaParte(base);
    const int H = caso.MuerteHijos;
    if (dejaViuda(caso) || situacionDe(caso) == kDesempleo) {
        return Mayor(Menor(p20, (base - viudedad.pension) / H), kMinimoHuerfano);
    }
    const double q = kMinimoOrfandadAbsoluta / H + kMinimoHuerfano;
    if (H < kPocosHuerfanos) return Mayor(p20 + Redondeado(base * viudedad.porcentaje / H, 2), q);
    if (H >= kMuchosHuerfanos) return Mayor(Redondeado(base / H, 2), q);
    return Mayor(p20 + Redondeado((base - p20 * H) / H, 2), q);
}

void informaDeIndemnizacionDeHuerfanos(const RegistroMuerte& caso, double base, Dictamen& d) {
    if (!esta(situacionDe(caso), kConIndemnizacionHuerfanos) || !esProfesional(caso)) return;
    const double cadaUno =
        dejaViuda(caso) ? base : base * kMensualidadesIndemnizacion / caso.MuerteHijos + base;
    d.linea("Los huérfanos tienen derecho además a una indemnización a tanto alzado");
    d.linea(TextoPlano(cadaUno), " € cada uno (por una sola vez).");
}

double pensionDeFamiliarSolo(const RegistroMuerte& caso, double base, double porcentaje) {
    const int F = caso.MuerteFamiliares;
    const double familiar =
        Menor(quintaParte(base) + Redondeado(base * porcentaje, 2), Redondeado(base / F, 2));
    if (F == 1) return Mayor(familiar, kMinimoFamiliar);
    return Mayor(familiar, kMinimoFamiliar + Redondeado(kMinimoOtrosFamiliares / F, 2));
}

/// A single relative gets more when the law has a higher figure for the age. True when it may.
bool informaDeEdades(double familiar, Dictamen& d) {
    if (familiar < kFamiliarDesde65) {
        d.linea("Si tiene 65 años cumplidos, el familiar tiene derecho a una pensión de ",
                importe(kFamiliarDesde65), " €.");
    }
    if (familiar < kFamiliarHasta65) {
        d.linea("Si no tiene 65 años cumplidos, el familiar tiene derecho a una pensión de ",
                importe(kFamiliarHasta65), " €.");
    }
    return familiar < kFamiliarDesde65 || familiar < kFamiliarHasta65;
}

/// Relatives who are the only ones left. Two of these lines end as those of the payments do, with a point
/// more, and the last runs on into what follows.
void concluyeFamiliaresSolos(const RegistroMuerte& caso, const Base& base, double porcentaje,
                             std::string_view mejora, Dictamen& d) {
    const double familiar = pensionDeFamiliarSolo(caso, base.importe, porcentaje);
    if (caso.MuerteFamiliares == 1 && informaDeEdades(familiar, d)) {
        d.linea("En los demás casos, el familiar tiene derecho a una pensión de ", importe(familiar),
                " €, repartidas en ", base.pagas, ".");
        return;
    }
    d.AddConc("Cada familiar tiene derecho a una pensión de ", importe(familiar), " € ", mejora,
              " repartidas en ", base.pagas, ".");
}

}  // namespace

Viudedad calculaViudedad(const RegistroMuerte& caso, double base) {
    const double porcentaje = caso.MuerteHayCargas == 1 ? kPorcentajeConCargas : kPorcentajeViudedad;
    const double pension = Mayor(Redondeado(base * porcentaje, 2), minimoViudedad(caso));
    return {porcentaje, Menor(pension, kPensionMaxima)};
}

void concluyeViudedad(const RegistroMuerte& caso, const Base& base, double pension, std::string_view mejora,
                      Dictamen& d) {
    if (!dejaViuda(caso)) return;
    d.AddConc("El(La) viudo(a) tiene derecho a una pensión vitalicia de ", importe(pension), " € ", mejora,
              ", ");
    if (pension == kPensionMaxima) d.AddConc("pensión máxima en ", kAnio, ", ");
    d.linea("repartidas en ", base.pagas);
    if (esta(situacionDe(caso), kConIndemnizacion) && esProfesional(caso)) {
        d.linea("Tiene derecho además a una indemnización a tanto alzado de ",
                importe(base.importe * kMensualidadesIndemnizacion), " € (por una sola vez).");
    }
    if (caso.MuerteVariosConyuges == 1) {
        d.linea("Esta pensión se pagará completa al último cónyuge del causante.");
        d.linea("Al haber varios ex-cónyuges se les pagará la parte proporcional de su periodo");
        d.linea("de convivencia respecto al tiempo transcurrido desde su matrimonio, restando ");
        d.linea("esta cantidad a la pensión del último cónyuge.");
    }
    d.linea("Si el beneficiario, antes de cumplir los 60 años, contrae nuevas nupcias, ");
    d.linea("la pensión se sustituye por una cantidad igual al importe de 24 mensualidades ");
    d.linea("de la pensión.");
}

double concluyeOrfandad(const RegistroMuerte& caso, const Base& base, const Viudedad& viudedad,
                        std::string_view mejora, Dictamen& d) {
    if (caso.MuerteHijos == 0) return 0;
    const double huerfano = Redondeado(pensionDeHuerfano(caso, base.importe, viudedad), 2);
    d.linea("Cada huérfano tiene derecho a una pensión de ", importe(huerfano), " €", mejora);
    // There is no blank between these two pieces.
    d.linea("hasta que cumpla", "los 18 años, (o el máximo que corresponda en circunstancias excepcionales,");
    d.linea("según nota aclaratoria de la pantalla de parámetros del supuesto.)");
    d.linea("o vitalicia si es declarado inválido absoluto, repartidas en ", base.pagas);
    informaDeIndemnizacionDeHuerfanos(caso, base.importe, d);
    return huerfano;
}

void concluyeFamiliares(const RegistroMuerte& caso, const Base& base, const Viudedad& viudedad,
                        double orfandad, std::string_view mejora, Dictamen& d) {
    const int F = caso.MuerteFamiliares;
    if (F == 0) return;
    if (!dejaViuda(caso) && caso.MuerteHijos == 0 && situacionDe(caso) != kDesempleo) {
        return concluyeFamiliaresSolos(caso, base, viudedad.porcentaje, mejora, d);
    }
    const double resto = (base.importe - viudedad.pension - orfandad) / F;
    const double familiar = Mayor(Menor(quintaParte(base.importe), resto), kMinimoHuerfano);
    d.AddConc("Cada familiar tiene derecho a una pensión de ", importe(familiar), " €, ");
}

void concluyeSubsidio(const RegistroMuerte& caso, double base, Dictamen& d) {
    if (caso.MuerteFami2 == 0) return;
    d.linea("Cada familiar con derecho a subsidio percibirá un máximo de 12 mensualidades");
    d.linea("de ", importe(Mayor(quintaParte(base), kMinimoHuerfano)), " €.");
}

}  // namespace orvemo::muerte
