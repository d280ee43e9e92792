#include "payroll/caso/datos_a_estado.h"

#include <array>
#include <limits>
#include <string_view>

#include "foundations/values/fallos.h"
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
    const std::string bytes{texto.bytes().begin(),
                            std::find(texto.bytes().begin(), texto.bytes().end(), '\0')};
    return AlAncho(De1252(bytes), N);
}

/// The place in a list as a number from 1, in a byte.
std::uint8_t desdeUno(std::uint8_t indice) {
    constexpr auto kMaximo = std::numeric_limits<std::uint8_t>::max();
    if (indice == kMaximo) throw DesbordeNumerico{kMaximo + 1.0};
    return static_cast<std::uint8_t>(indice + 1);
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

Entradas DatosAEstado(const RegistroNomina& Registro, const Contratos& contratos) {
    Entradas e;
    e.Mes = desdeUno(Registro.Mes);
    e.Grupo = desdeUno(Registro.Categoria);
    e.Epigrafe = aSuAncho(Registro.Epigrafe);
    e.CodigoContrato = aSuAncho(Registro.CodigoContrato);
    e.ClaveContrato = e.CodigoContrato.substr(0, 3);
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
    e.IndiceContrato = contratos.indiceDe(e.CodigoContrato);
    e.ModoContrato = contratos.fila(e.IndiceContrato).Modo;
    if (e.ModoContrato == "D") e.ParcialDias = Registro.ParcialDias;
    if (e.ModoContrato == "H") e.ParcialHoras = Registro.ParcialHoras;
    e.FechaCese = aSuAncho(Registro.FechaCese);
    e.TipoPaga = Registro.TipoPaga;
    e.DiasSemana = aSuAncho(Registro.DiasSemana);
    e.HorasDiarias = Registro.HorasDiarias;
    e.Dias12 = Registro.Dias12;
    e.Base12 = Registro.Base12;
    return e;
}

void PonFechas(Entradas& entradas, const RegistroNomina& Registro) {
    entradas.FechaInicio = LeeFecha(Registro.FechaInicio.utf8());
    entradas.FinMes = finDeMes(entradas.Mes);
}

}  // namespace orvemo::nomina
