#include "payroll/bases/topes.h"

#include "payroll/caso/importes.h"
#include "payroll/grupos/grupos.h"

namespace orvemo::nomina {
namespace {

double enSuModo(const grupos::BasesMinimas& minimas, const Entradas& e) {
    if (e.ModoContrato == "D") return minimas.diaria * e.ParcialDias;
    if (e.ModoContrato == "H") return minimas.horaria * e.ParcialHoras;
    return minimas.mensual;
}

}  // namespace

double Sujeta(double base, const Topes& topes) {
    if (base < topes.minimo) return topes.minimo;
    return base > topes.maximo ? topes.maximo : base;
}

double Topada(double base, const Topes& topes) {
    const double sujeta = Sujeta(base, topes);
    return sujeta == base ? Centimos(base) : sujeta;
}

Topes DeUnosDias(const Topes& mensuales, int dias) {
    return {Centimos(dias * mensuales.minimo / kDiasPorMes), Centimos(dias * mensuales.maximo / kDiasPorMes)};
}

double MinimoCC(const Entradas& entradas) {
    return enSuModo(grupos::MinimasComunes(entradas.Grupo), entradas);
}

double MinimoAT(const Entradas& entradas) {
    return enSuModo(grupos::kMinimasProfesionales, entradas);
}

Topes TopesMensualesCC(const Entradas& entradas) {
    return {MinimoCC(entradas) * entradas.CoefPluriempleo,
            grupos::MaximaComun(entradas.Grupo) * entradas.CoefPluriempleo};
}

Topes TopesMensualesAT(const Entradas& entradas) {
    return {MinimoAT(entradas) * entradas.CoefPluriempleo, grupos::kBaseMaxima * entradas.CoefPluriempleo};
}

Topes TopesDiariosCC(const Entradas& entradas) {
    const Topes mensuales = TopesMensualesCC(entradas);
    return {mensuales.minimo / kDiasPorMes, mensuales.maximo / kDiasPorMes};
}

Topes TopesDiariosAT(const Entradas& entradas) {
    return {Centimos(MinimoAT(entradas) / kDiasPorMes) * entradas.CoefPluriempleo,
            Centimos(grupos::kBaseMaxima / kDiasPorMes) * entradas.CoefPluriempleo};
}

}  // namespace orvemo::nomina
