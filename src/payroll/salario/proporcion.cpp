#include "payroll/salario/proporcion.h"

#include "foundations/values/numeros.h"

namespace orvemo::nomina {
namespace {

/// Months touched from one date to another.
int mesesIncluidos(Fecha desde, Fecha hasta) {
    return DiferenciaFechas(Intervalo::Mes, desde, hasta) + 1;
}

}  // namespace

int DiasIncluidos(Fecha desde, Fecha hasta) {
    return DiferenciaFechas(Intervalo::Dia, desde, hasta) + 1;
}

bool EsPrimeroDeMes(Fecha fecha) {
    return Dia(fecha) == 1;
}

bool EsUltimoDeMes(Fecha fecha) {
    return EsPrimeroDeMes(SumaFecha(Intervalo::Dia, 1, fecha));
}

double ProporcionExtra(Fecha Desde, Fecha Hasta, Fecha Inicio, std::optional<Fecha> Cese) {
    const Fecha desde = Mayor(Desde, Inicio);
    const Fecha hasta = Menor(Hasta, Cese.value_or(Hasta));
    if (desde > hasta) return 0;
    const bool mesesEnteros =
        EsPrimeroDeMes(desde) && EsUltimoDeMes(hasta) && EsPrimeroDeMes(Desde) && EsUltimoDeMes(Hasta);
    if (mesesEnteros) return Cociente(mesesIncluidos(desde, hasta), mesesIncluidos(Desde, Hasta));
    return Cociente(DiasIncluidos(desde, hasta), DiasIncluidos(Desde, Hasta));
}

}  // namespace orvemo::nomina
