#include "benefits/it/incapacidad_temporal.h"

#include <algorithm>
#include <chrono>

#include "benefits/comun/meses.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::incapacidad_temporal {

namespace {

// Figures of the law for 2005.
constexpr double kBaseFormacion = 1496.25 / 100;  // euros a day, training contracts, whatever they contribute
constexpr int kDiasSinPrestacion = 3;             // first days of the leave
constexpr int kDiasDeEmpresa = 12;                // days 4 to 15, paid by the employer
constexpr int kDiasAlTipoReducido = 5;            // days 16 to 20, paid by the social security
constexpr int kEsperaEmpleadosHogar = 28;         // days without benefit, domestic employees
constexpr double kTipoReducido = 0.6;             // of the base, days 4 to 20
constexpr double kTipoPleno = 0.75;               // of the base, from day 21, and of accidents from the first
constexpr double kHorasJornadaAnual = 1826;       // hours of a full-time year
constexpr double kDiasPlazo = 1825;               // days: five years in which the 180 are looked for
constexpr double kHorasPorDia = 5;                // hours a year that count as a day contributed
constexpr double kDiasAnioMensual = 360;          // days of the year of those who contribute by the month
constexpr double kDiasAnio = 365;                 // and of those who contribute by the day
constexpr double kMesesAnio = 12;

enum class Regimen { Ordinario = 1, TiempoParcial, Autonomos, Agrario, EmpleadosHogar, Formacion };
enum class Causa { Enfermedad = 1, AccidenteNoLaboral, AccidenteLaboral };

Regimen regimenDe(const RegistroIncapacidad& caso) {
    return static_cast<Regimen>(caso.Situacion + 1);
}

Causa causaDe(const RegistroIncapacidad& caso) {
    return static_cast<Causa>(caso.TBaja + 1);
}

bool esCotizacionMensual(const RegistroIncapacidad& caso) {
    return caso.DM != 0;
}

bool esAutonomoOAgrario(const RegistroIncapacidad& caso) {
    return regimenDe(caso) == Regimen::Autonomos || regimenDe(caso) == Regimen::Agrario;
}

std::string importe(double euros) {
    return FormatoNumero(euros, "###,##0.00");
}

// --- Daily bases ---

/// Euros a day.
struct Bases {
    double bc;  ///< common contingencies
    double bp;  ///< occupational contingencies
};

int divisor(const RegistroIncapacidad& caso) {
    if (esCotizacionMensual(caso) || regimenDe(caso) > Regimen::TiempoParcial) return kDivisorFijo;
    return delMes(kDivisorIncapacidad, caso.f1);
}

Bases basesDelMesAnterior(const RegistroIncapacidad& caso) {
    const double anio = esCotizacionMensual(caso) ? kDiasAnioMensual : kDiasAnio;
    return {Redondeado(caso.Bccant / divisor(caso), 2),
            Redondeado((caso.Batant - caso.He) / divisor(caso) + caso.He12 / anio, 2)};
}

/// The worker who falls ill in the month of joining has no month before: salary and share of the extra pays.
Bases basesDelMesDeAlta(const RegistroIncapacidad& caso) {
    const int diasmes = delMes(kDiasDelMes, caso.f1);
    const double factor = esCotizacionMensual(caso) ? kMesesAnio : kDiasAnio / diasmes;
    const int dividendo = esCotizacionMensual(caso) ? kDivisorFijo : diasmes;
    double bc = (caso.Bact + caso.Extra * caso.IExtra / factor) / dividendo;
    // Rounding bp leaves its nudge on bc, which isn't rounded itself.
    const double bp = Redondea(bc, 2);
    return {bc, bp};
}

Bases unica(double base) {
    return {base, base};
}

Bases basesDiarias(const RegistroIncapacidad& caso) {
    switch (regimenDe(caso)) {
        case Regimen::Formacion:
            return unica(kBaseFormacion);
        case Regimen::TiempoParcial:
            return unica(Divide(caso.B12, caso.D12));
        case Regimen::Ordinario:
            return mismoMes(caso.fAlta, caso.f1) ? basesDelMesDeAlta(caso) : basesDelMesAnterior(caso);
        default:
            return unica(caso.Bccant / kDivisorFijo);
    }
}

// --- Contribution required ---

void exigeCotizacionATiempoParcial(int HorasAno, Dictamen& d) {
    const double parcialidad = (kHorasJornadaAnual - HorasAno) / kHorasJornadaAnual;
    const int plazo = RedondeaPar((parcialidad + 1) * kDiasPlazo);
    const int anual = RedondeaPar(HorasAno / kHorasPorDia);
    d.linea("El trabajador debe justificar un mínimo de 180 días de cotización,");
    d.linea("dentro de los últimos ", plazo, " días.");
    d.linea("Cada año que haya trabajado se contará como ", anual, " días cotizados.");
}

void informaDeCotizacion(const RegistroIncapacidad& caso, Dictamen& d) {
    if (causaDe(caso) != Causa::Enfermedad) {
        d.linea("El trabajador no debe justificar cotizaciones anteriores.");
    } else if (regimenDe(caso) == Regimen::TiempoParcial) {
        exigeCotizacionATiempoParcial(caso.HorasAno, d);
    } else {
        d.linea("El trabajador debe justificar un mínimo de 180 días de cotización,");
        d.linea("dentro de los últimos 5 años.");
    }
}

void informaDeBase(double base, Dictamen& d) {
    d.linea("Base Reguladora para la prestación:", importe(base), " €/diarios.");
}

void informaDeDias(int dias, std::string_view patron, Dictamen& d) {
    d.linea("El número de días a subsidiar es de ", FormatoNumero(dias, patron));
}

void informaDeTotal(double total, Dictamen& d) {
    d.linea("El importe total de la prestación es de ", importe(total), " €");
}

void informaDeTramo(std::string_view rotulo, int dias, double euros, Dictamen& d) {
    if (dias <= 0) return;
    d.linea(rotulo, FormatoNumero(dias, "##0"), " días, ", importe(euros), " €");
}

// --- Days of the leave ---

int diasHastaElAlta(const RegistroIncapacidad& caso) {
    return DiferenciaFechas(Intervalo::Dia, caso.f1, caso.f2);
}

/// The days of this leave, both ends included, on top of those of the earlier ones.
int diasConLosPrevios(const RegistroIncapacidad& caso) {
    return RedondeaPar(diasHastaElAlta(caso) + 1.0 + caso.Prev);
}

/// The days of the leave by what is paid for them.
struct Tramos {
    int b1;  ///< nothing
    int b2;  ///< reduced rate, by the employer
    int b3;  ///< reduced rate, by the social security
    int b4;  ///< full rate
};

/// Takes as many of `dias` off the stretch as it has, and gives those that are left to take off.
int descuenta(int& tramo, int dias) {
    const int quitados = std::clamp(dias, 0, std::max(tramo, 0));
    tramo -= quitados;
    return dias - quitados;
}

/// The days of earlier leaves use up the first stretches, so the worker starts further along the scale.
Tramos tramosDe(const RegistroIncapacidad& caso) {
    int resto = diasConLosPrevios(caso);
    const auto corta = [&resto](int tope) {
        const int tramo = Menor(resto, tope);
        resto -= tramo;
        return tramo;
    };
    Tramos t{};
    t.b1 = corta(kDiasSinPrestacion);
    t.b2 = corta(kDiasDeEmpresa);
    t.b3 = corta(kDiasAlTipoReducido);
    t.b4 = resto;
    int previos = caso.Prev;
    for (int* tramo : {&t.b1, &t.b2, &t.b3, &t.b4}) previos = descuenta(*tramo, previos);
    return t;
}

// --- The five paths ---

/// A: the self-employed and farm workers, by illness.
void enfermedadDeAutonomo(const RegistroIncapacidad& caso, double bc, Dictamen& d) {
    informaDeBase(bc, d);
    const Tramos t = tramosDe(caso);
    informaDeDias(t.b2 + t.b3 + t.b4, "#0", d);
    const int d60 = t.b2 + t.b3;
    const int d75 = t.b4;
    const double i60 = Redondeado(bc * kTipoReducido, 2) * d60;
    const double i75 = Redondeado(bc * kTipoPleno, 2) * d75;
    informaDeTramo("Indemnización de 60% (4º al 20º días):", d60, i60, d);
    informaDeTramo("Indemnización de 75% (2º día en adelante):", d75, i75, d);
    informaDeTotal(i60 + i75, d);
}

/// B: the self-employed and farm workers, by accident.
void accidenteDeAutonomo(const RegistroIncapacidad& caso, double bp, Dictamen& d) {
    const int n = diasHastaElAlta(caso) + 1;
    const double euros = Redondeado(bp * kTipoPleno, 2) * n;
    informaDeBase(bp, d);
    informaDeDias(n, "##0", d);
    d.linea("El importe de la prestación (75% de la B.R. x ", n, " días) es de ", importe(euros), " €");
}

/// C: domestic employees, by any cause.
void bajaDeEmpleadoDeHogar(const RegistroIncapacidad& caso, double bc, Dictamen& d) {
    informaDeBase(bc, d);
    const int n = diasConLosPrevios(caso);
    int espera = Menor(n, kEsperaEmpleadosHogar);
    int pagados = n - espera;
    // What the waiting days can't take comes off the paid ones, below nothing if need be.
    pagados -= std::max(descuenta(espera, caso.Prev), 0);
    informaDeDias(pagados, "##0", d);
    const double euros = Redondeado(bc * kTipoPleno, 2) * pagados;
    d.linea("La indemnización de 75% es de ", importe(euros), " €");
}

/// D: work accident and occupational disease; the first day falls to the employer.
void contingenciaProfesional(const RegistroIncapacidad& caso, double bp, Dictamen& d) {
    const int n = diasHastaElAlta(caso);
    const double euros = Redondeado(bp * kTipoPleno, 2) * n;
    informaDeBase(bp, d);
    informaDeDias(n, "##0", d);
    d.linea("El importe de la prestación es de ", importe(euros), " €");
    d.linea("Está a cargo del empresario el salario íntegro correspondiente al");
    d.AddConc("día de la baja.");
}

/// The days that are paid: of a part-time contract, only those of the week on which the worker works.
Tramos tramosPagados(const RegistroIncapacidad& caso, const Tramos& t, std::string_view dsem) {
    if (regimenDe(caso) != Regimen::TiempoParcial) return t;
    using std::chrono::days;
    const Fecha empresa = caso.f1 + days{t.b1};
    const Fecha inss = empresa + days{t.b2};
    const Fecha pleno = inss + days{t.b3};
    const Fecha fin = pleno + days{t.b4};
    return {t.b1, DiasEfectivos(empresa, inss, dsem), DiasEfectivos(inss, pleno, dsem),
            DiasEfectivos(pleno, fin, dsem)};
}

/// E: the rest, employees by illness or by an accident outside work.
void contingenciaComun(const RegistroIncapacidad& caso, double bc, std::string_view dsem, Dictamen& d) {
    informaDeBase(bc, d);
    const Tramos t = tramosDe(caso);
    // The calendar days, even if fewer are paid.
    informaDeDias(t.b2 + t.b3 + t.b4, "#0", d);
    const Tramos e = tramosPagados(caso, t, dsem);
    const double i1 = Redondeado(bc * kTipoReducido, 2) * e.b2;
    const double i2 = Redondeado(bc * kTipoReducido, 2) * e.b3;
    const double i3 = Redondeado(bc * kTipoPleno, 2) * e.b4;
    informaDeTramo("Indemnización de 60% (a cargo empresa):", e.b2, i1, d);
    informaDeTramo("Indemnización de 60% (a cargo INSS):", e.b3, i2, d);
    informaDeTramo("Indemnización de 75% (a cargo INSS):", e.b4, i3, d);
    informaDeTotal(i1 + i2 + i3, d);
}

void informaDePrestacion(const RegistroIncapacidad& caso, std::string_view dsem, const Bases& bases,
                         Dictamen& d) {
    const Causa causa = causaDe(caso);
    if (esAutonomoOAgrario(caso) && causa == Causa::Enfermedad) {
        enfermedadDeAutonomo(caso, bases.bc, d);
    } else if (esAutonomoOAgrario(caso) && causa == Causa::AccidenteNoLaboral) {
        accidenteDeAutonomo(caso, bases.bp, d);
    } else if (regimenDe(caso) == Regimen::EmpleadosHogar) {
        bajaDeEmpleadoDeHogar(caso, bases.bc, d);
    } else if (causa == Causa::AccidenteLaboral) {
        contingenciaProfesional(caso, bases.bp, d);
    } else {
        contingenciaComun(caso, bases.bc, dsem, d);
    }
}

}  // namespace

char MiDay(Fecha fecha) {
    return std::string_view{"DLMXJVS"}[std::chrono::weekday{fecha}.c_encoding()];
}

int DiasEfectivos(Fecha desde, Fecha hasta, std::string_view dsem) {
    int dias = 0;
    for (Fecha d = desde; d < hasta; d += std::chrono::days{1}) {
        if (dsem.find(MiDay(d)) != std::string_view::npos) ++dias;
    }
    return dias;
}

void CalculaIncapacidad(const RegistroIncapacidad& caso, std::string_view dsem, Dictamen& dictamen) {
    dictamen.vacia();
    dictamen.linea("El interesado/a desea solicitar una prestación por Incapacidad Temporal.");
    const Bases bases = basesDiarias(caso);
    informaDeCotizacion(caso, dictamen);
    informaDePrestacion(caso, dsem, bases, dictamen);
    dictamen.ConDerecho = true;
}

}  // namespace orvemo::incapacidad_temporal
