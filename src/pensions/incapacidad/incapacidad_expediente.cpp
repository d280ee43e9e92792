#include "pensions/incapacidad/incapacidad_expediente.h"

#include <span>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/serie_bases.h"

namespace orvemo::incapacidad {

namespace {

constexpr double kHorasPorDia = 5;
constexpr double kDiasPorDiaTrabajado = 1.5;  // rest days included
constexpr int kEdadLaboral = 16;              // years from which a young person is asked for contributions
constexpr int kEdadAdulta = 20;               // years from which an older one is

int DiasDeHoras(std::int32_t horas) {
    return Suelo(static_cast<double>(LimiteDe(horas)) / kHorasPorDia * kDiasPorDiaTrabajado);
}

std::string_view entrada(std::span<const std::string_view> lista, std::size_t numero) {
    return EntreLimites<std::size_t>(numero, 1, lista.size()) ? lista[numero - 1] : std::string_view{};
}

}  // namespace

Expediente::Expediente(const RegistroIncapacidad& registro)
    : caso{registro},
      grado{registro.InvaInvalidez + 1},
      causa{registro.InvaCausa + 1},
      regimen{registro.InvaRegimen + 1},
      alta{registro.InvaAltaSS == 1},
      edad{AniosCumplidos(registro.InvaFechaNac, registro.InvaFechaInv)},
      fecha16{FechaEnQueCumple(kEdadLaboral, registro.InvaFechaNac)},
      fecha20{FechaEnQueCumple(kEdadAdulta, registro.InvaFechaNac)},
      periodos{pensiones::PeriodosDe(registro.InvaPerDesde, registro.InvaPerHasta)},
      diasTP{DiasDeHoras(registro.HorasTP)},
      diasTP10{DiasDeHoras(registro.HorasTP10)} {}

std::string_view textoDe(Grado grado) {
    return entrada(kGrados, static_cast<std::size_t>(grado));
}

std::string_view textoDe(Causa causa) {
    return entrada(kCausas, static_cast<std::size_t>(causa));
}

Fecha FechaEnQueCumple(int anios, Fecha nacimiento) {
    return FechaDe(TextoPlano(Dia(nacimiento)) + "-" + TextoPlano(Mes(nacimiento)) + "-" +
                   TextoPlano(Anio(nacimiento) + anios));
}

double DiasDesdeFecha(pensiones::Periodos periodos, double fecha) {
    double dias = 0;
    for (const pensiones::Periodo& p : periodos) {
        const double desde = SerieDeFecha(p.desde);
        const double hasta = SerieDeFecha(p.hasta);
        if (hasta < fecha) continue;
        dias += hasta - (EntreLimites(fecha, desde, hasta) ? fecha : desde) + 1;
    }
    return dias;
}

std::string importe(double euros) {
    return FormatoNumero(euros, "###,###,##0.00");
}

}  // namespace orvemo::incapacidad
