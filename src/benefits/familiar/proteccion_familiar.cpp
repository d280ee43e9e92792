#include "benefits/familiar/proteccion_familiar.h"

#include <string>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::familiar {

namespace {

// Figures of the law for 2005, euros a year unless said otherwise.
constexpr double kAsignacionPorHijo = 291;
constexpr double kMinimoPagado = 24.25;  // per child; less isn't paid
constexpr double kTecho = 8793.03;       // ceiling of income, first child
constexpr double kTechoPorHijoMas = 1318.9545;
constexpr double kTechoNumerosa = 14990.94;  // ceiling of income, three children
constexpr double kTechoNumerosaPorHijoMas = 2428.11;
constexpr int kHijosNumerosa = 3;  // children that make a large family
constexpr double kMinusvalia75 = 5141.52;
constexpr double kMinusvalia65 = 3427.68;
constexpr double kMinusvalia33 = 581.66;
constexpr double kPorNacimiento = 450.76;  // once, per child
constexpr double kPartoDoble = 2052;       // once
constexpr double kPartoTriple = 4104;      // once
constexpr double kPartoMayor = 6156;       // once, four children or more
constexpr int kMeses = 12;

constexpr int kNacimiento = 1;  // `Ayuda`

using Caso = RegistroFamiliar;

double techoNumerosa(int hijos) {
    return (hijos - double{kHijosNumerosa}) * kTechoNumerosaPorHijoMas + kTechoNumerosa;
}

double techoNoNumerosa(double hijosDeMas) {
    return hijosDeMas * kTechoPorHijoMas + kTecho;
}

// --- Road 1: dependent children ---

double techoPorHijosACargo(const Caso& caso) {
    const int T = EnteroDe(0.0 + caso.Hijos + caso.HMin3 + caso.HMin2 + caso.HMin1);
    if (T >= kHijosNumerosa) return techoNumerosa(T);
    return caso.Hijos > 0 ? techoNoNumerosa(Mayor(caso.Hijos - 1, 0)) : 0;
}

/// The allowance per child and year: whole up to the ceiling, above it what the income leaves of it.
double asignacionPorHijo(const Caso& caso, double L, Dictamen& d) {
    if (LimiteDe(caso.Ingresos) <= static_cast<float>(L)) return kAsignacionPorHijo;
    const double A = caso.Hijos * kAsignacionPorHijo;
    const double B = caso.Hijos * kAsignacionPorHijo + L - caso.Ingresos;
    const double P = Menor(A, B) / caso.Hijos;
    if (P >= kMinimoPagado) return P;
    d.linea("La prestación por los hijos no minusválidos es inferior al límite de ",
            TextoPlano(kMinimoPagado), " € por hijo y año.");
    return 0;
}

/// Gives the yearly total for the children without disability.
double asignaPorHijos(const Caso& caso, Dictamen& d) {
    const double P = asignacionPorHijo(caso, techoPorHijosACargo(caso), d);
    const double mensual = P / kMeses;
    if (mensual <= 0) {
        d.linea("No corresponde prestación por los hijos no minusválidos.");
        return 0;
    }
    d.linea("El importe mensual es de: ", FormatoNumero(mensual, "###,###,##0.00"),
            " € por hijo no minusválido, equivalentes");
    d.linea("a  ", FormatoNumero(P, "###,###,##0.00"), " € por hijo al año.");
    if (mensual * kMeses < kMinimoPagado) d.linea("NO CORRESPONDE la prestación.");
    return caso.Hijos * mensual * kMeses;
}

void asignaPorMinusvalia(int hijos, const char* grado, double asignacion, Dictamen& d) {
    if (hijos < 1) return;
    d.linea("La asignación por cada hijo minusválido ", grado, " es de ", TextoPlano(asignacion),
            " € anuales.");
}

void calculaHijosACargo(const Caso& caso, Dictamen& d) {
    d.linea("El interesado/a desea solicitar una prestación por hijo a cargo.");
    double total = caso.Hijos > 0 ? asignaPorHijos(caso, d) : 0;
    asignaPorMinusvalia(caso.HMin1, ">75%", kMinusvalia75, d);
    asignaPorMinusvalia(caso.HMin2, ">65%", kMinusvalia65, d);
    asignaPorMinusvalia(caso.HMin3, ">33%", kMinusvalia33, d);
    total = total + caso.HMin1 * kMinusvalia75 + caso.HMin2 * kMinusvalia65 + caso.HMin3 * kMinusvalia33;
    if (total != 0)
        d.linea("La asignación total es de ", FormatoNumero(total, "##,###,##0.00"), " € anuales");
    // Whatever the lines say.
    d.ConDerecho = true;
}

// --- Road 2: birth ---

double techoPorNacimiento(int T) {
    return T < kHijosNumerosa ? techoNoNumerosa(T - 1.0) : techoNumerosa(T);
}

void concedePagoUnico(int T, double importe, Dictamen& d) {
    if (T < kHijosNumerosa) {
        d.linea("No tiene derecho a la prestación por tratarse del primer o segundo hijo.");
        return;
    }
    d.linea("Cumple la condición sobre rentas de la unidad familiar.");
    d.linea("La prestación económica consistirá en un pago único de ",
            FormatoNumero(kPorNacimiento, "###,###,##0.00"), " € por hijo,");
    d.linea("a partir del tercer nacimiento, es decir ", FormatoNumero(importe, "###,###,##0.00"), " €.");
    d.ConDerecho = true;
}

void concedeDiferencia(double diferencia, int N, double L, Dictamen& d) {
    d.linea("Aunque superando los ingresos el límite anual de ", FormatoNumero(L, "#,###,##0.00"),
            " € tiene derecho a ");
    d.linea("una prestación de ", FormatoNumero(diferencia, "###,##0"), " € totales (",
            FormatoNumero(Cociente(diferencia, N), "###,##0.00"), " €/Hijo)");
    d.linea(
        "diferencia entre los ingresos anuales y el límite anual más el importe de la prestación por hijo");
    d.ConDerecho = true;
}

/// The ceiling told is that of a small family whatever the children: it can differ from the one that was
/// tested.
void deniegaPorRentas(int T, Dictamen& d) {
    d.linea("No tiene derecho a la prestación por ser las rentas de la unidad");
    d.linea("familiar superiores al máximo anual de ",
            FormatoNumero(techoNoNumerosa(T - 1.0), "###,###,##0.00"), " €.");
}

/// Only the third and later children, N of the birth, count.
void calculaNacimiento(const Caso& caso, int N, Dictamen& d) {
    const int T = caso.TotalHijos;
    const double L = techoPorNacimiento(T);
    const double importe = N * kPorNacimiento;
    d.linea("El interesado/a puede solicitar una prestación por nacimiento de hijo(s).");
    if (caso.Ingresos2 <= L) return concedePagoUnico(T, importe, d);
    if (L + importe > caso.Ingresos2) return concedeDiferencia(L + importe - caso.Ingresos2, N, L, d);
    deniegaPorRentas(T, d);
}

double pagoPorPartoMultiple(int HijosParto) {
    if (HijosParto == 2) return kPartoDoble;
    return HijosParto == 3 ? kPartoTriple : kPartoMayor;
}

void calculaPartoMultiple(int HijosParto, Dictamen& d) {
    d.linea("Al ser parto múltiple, tiene derecho a una prestación sin condiciones sobre rentas.");
    d.linea("Esta prestación económica consistirá en un pago único de ",
            FormatoNumero(pagoPorPartoMultiple(HijosParto), "###,###,##0.00"), " €");
    d.ConDerecho = true;
}

}  // namespace

void CalculaProteccionFamiliar(const RegistroFamiliar& caso, Dictamen& dictamen) {
    dictamen.vacia();
    if (caso.Ayuda != kNacimiento) return calculaHijosACargo(caso, dictamen);
    const int N = RedondeaPar(Menor(caso.HijosParto + 0.0, caso.TotalHijos - 2.0));
    // From three such children on, the multiple birth stands alone.
    if (N < kHijosNumerosa) calculaNacimiento(caso, N, dictamen);
    if (caso.HijosParto >= 2) calculaPartoMultiple(caso.HijosParto, dictamen);
}

}  // namespace orvemo::familiar
