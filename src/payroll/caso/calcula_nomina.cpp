#include "payroll/caso/calcula_nomina.h"

#include "foundations/values/fallos.h"
#include "payroll/caso/datos_a_estado.h"
#include "payroll/salario/prorrata.h"

namespace orvemo::nomina {

void CalculaNomina(const RegistroNomina& Registro, const TablasNomina& tablas, EstadoNomina& Estado) {
    PonContrato(Estado.entradas, tablas.contratos, Registro);
    PonFechas(Estado.entradas, Registro);
    Estado.dias = CalculaDias(Estado, Registro);
    Estado.reguladoras = CalculaBasesReguladoras(Estado);
    Estado.prestaciones = CalculaPrestaciones(Estado);
    Estado.Prorrata = CalculaProrrata(Estado, Registro);
    Estado.SalarioMensual = CalculaSalarioMensual(Estado, Registro);
    Estado.finiquito = CalculaFiniquito(Estado, Registro);
    Estado.devengos = CalculaDevengos(Estado, Registro);
    Estado.bases = CalculaBases(Estado);
    CalculaCuotas(Estado, tablas);
}

std::string_view CalculaSupuesto(const RegistroNomina& Registro, const TablasNomina& tablas,
                                 EstadoNomina& Estado) {
    Estado = {};
    try {
        Estado.entradas = DatosAEstado(Registro);
    } catch (const Fallo&) {
        return kErrorEnLosDatos;
    }
    try {
        CalculaNomina(Registro, tablas, Estado);
    } catch (const Fallo&) {
        return kDatoIncorrecto;
    }
    return {};
}

}  // namespace orvemo::nomina
