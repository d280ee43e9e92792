#include "payroll/caso/datos_a_estado.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "payroll/contratos/contratos.h"
#include "payroll/contratos/lineas.h"

namespace orvemo::nomina {

namespace {

constexpr int kFebrero = 2;
/// Months whose last day is told as the 31st.
constexpr std::array kMesesDe31{1, 3, 5, 7, 8, 10, 12};

/// A text of the record as wide as its field, blanks where nothing was written.
template <std::size_t N>
std::string aSuAncho(const Texto<N>& texto) {
    return AlAncho(texto.utf8SinRecortar(), N);
}

/// The place in a list as a number from 1. Throws DesbordeNumerico.
std::uint8_t desdeUno(std::uint8_t indice) {
    return RedondeaPar8(indice + 1);
}

/// The share of a whole working day; whole when the field tells none.
double coefPluriempleo(const std::string& porcentaje) {
    return EsNumero(porcentaje) ? LeeNumeroRegional(porcentaje) / 100 : 1;
}

Fecha finDeMes(int Mes) {
    if (std::ranges::find(kMesesDe31, Mes) != kMesesDe31.end()) return FechaDMA(31, Mes, kAnioNomina);
    if (Mes == kFebrero) return SumaFecha(Intervalo::Dia, -1, FechaDMA(1, kFebrero + 1, kAnioNomina));
    return FechaDMA(30, Mes, kAnioNomina);
}

}  // namespace

Entradas DatosAEstado(const RegistroNomina& Registro) {
    Entradas e;
    e.Mes = desdeUno(Registro.Mes);
    e.Grupo = desdeUno(Registro.Categoria);
    e.Epigrafe = aSuAncho(Registro.Epigrafe);
    e.CodigoContrato = aSuAncho(Registro.CodigoContrato);
    e.ClaveContrato = PrimerosCaracteres(e.CodigoContrato, 3);
    e.ContratoParcial = EsContratoParcial(e.CodigoContrato);
    e.Edad = Registro.Edad;
    e.CoefPluriempleo = coefPluriempleo(Registro.Pluriempleo.utf8());
    e.CoefDesempleo = ValComa(Registro.Desempleo.utf8());
    e.Promedio6Meses = Registro.Promedio6Meses;
    e.BaseCCAnt = Registro.BaseCCAnt;
    e.BaseATEPAnt = Registro.BaseATEPAnt;
    e.HEMesAnt = Registro.HEAnt;
    e.HEAnioAnt = Registro.HEAnioAnt;
    e.DiasAnt = Registro.DiasAnt;
    e.FechaCese = aSuAncho(Registro.FechaCese);
    e.TipoPaga = Registro.TipoPaga;
    e.DiasSemana = aSuAncho(Registro.DiasSemana);
    e.HorasDiarias = Registro.HorasDiarias;
    e.Dias12 = Registro.Dias12;
    e.Base12 = Registro.Base12;
    return e;
}

void PonContrato(Entradas& entradas, const Contratos& contratos, const RegistroNomina& Registro) {
    entradas.IndiceContrato = contratos.indiceDe(entradas.CodigoContrato);
    entradas.ModoContrato = contratos.fila(entradas.IndiceContrato).Modo;
    if (entradas.ModoContrato == "D") entradas.ParcialDias = Registro.ParcialDias;
    if (entradas.ModoContrato == "H") entradas.ParcialHoras = Registro.ParcialHoras;
}

void PonFechas(Entradas& entradas, const RegistroNomina& Registro) {
    entradas.FechaInicio = LeeFecha(Registro.FechaInicio.utf8());
    entradas.FinMes = finDeMes(entradas.Mes);
}

}  // namespace orvemo::nomina
