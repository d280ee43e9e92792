#include "tax/retenciones.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "foundations/values/numeros.h"
#include "tax/pasos_retencion.h"

namespace orvemo::irpf {

namespace {

// Figures of the withholding rules of 2004, euros a year unless said otherwise.
constexpr double kReduccionTrabajoMaxima = 3500;
constexpr double kReduccionTrabajoMinima = 2400;
constexpr double kNetoReduccionMaxima = 8200;
constexpr double kNetoReduccionMinima = 13000;
constexpr double kPendienteReduccion = 0.2291;  // euros less for each euro above the first of those
constexpr double kMinimoPersonal = 3400;
constexpr double kActivoDiscapacitado = 2800;
constexpr double kActivoMuyDiscapacitado = 6200;
constexpr double kMayorDe65 = 800;
constexpr double kMayorDe75 = 1000;
constexpr double kDiscapacidad33 = 2000;
constexpr double kDiscapacidad65 = 5000;
constexpr double kAsistencia = 2000;
constexpr double kPensionista = 600;
constexpr double kDesempleado = 1200;
constexpr double kRetribucionSujeta = 13135;     // nobody above it is exempt
constexpr double kRetribucionConTope = 22000;    // up to it the tax is capped
constexpr double kTopeSobreMinimoExento = 0.35;  // share of what passes the exempt minimum
constexpr double kTipoMaximo = 45;               // percent

// `SituacionLaboral`.
constexpr int kActivo = 0;
constexpr int kEsPensionista = 1;
constexpr int kEsDesempleado = 2;

// The disability of the taxpayer, none being 0.
constexpr int k33 = 1;
constexpr int k33Movilidad = 2;
constexpr int k65 = 3;

/// A row of the scale: bases below `hasta` pay `cuota` and a share of what passes `desde`. The upper limits
/// of the second and third row are not where the next row starts, which leaves a small step at each.
struct Escalon {
    double hasta;
    double desde;
    double tipo;
    double cuota;
};
constexpr std::array kEscala{
    Escalon{4080, 0, 0.15, 0},
    Escalon{13880, 4080, 0.24, 612},
    Escalon{26076, 14076, 0.28, 3011.04},
    Escalon{45900, 26316, 0.37, 6438.24},
};
constexpr Escalon kEscalonSuperior{0, 45900, 0.45, 13684.32};

double cuotaEn(const Escalon& e, double base) {
    return Redondeado((base - e.desde) * e.tipo + e.cuota, 2);
}

using Limite = std::optional<double>;
/// Exempt minimum by family situation (1 to 3) and descendants (none, one, two or more).
constexpr std::array<std::array<Limite, 3>, 3> kMinimoExento{{
    {Limite{}, Limite{10750}, Limite{12030}},
    {Limite{10600}, Limite{11825}, Limite{13135}},
    {Limite{7515}, Limite{8215}, Limite{8965}},
}};

int gradoDe(const DatosRetencion& datos) {
    return datos.Discapacidad == 0 ? 0 : datos.GradoDiscapacidad + 1;
}

double reduccionTrabajo(double RendimientoNeto) {
    if (RendimientoNeto <= kNetoReduccionMaxima) return kReduccionTrabajoMaxima;
    if (RendimientoNeto <= kNetoReduccionMinima) {
        return kReduccionTrabajoMaxima - (RendimientoNeto - kNetoReduccionMaxima) * kPendienteReduccion;
    }
    return kReduccionTrabajoMinima;
}

double porSerActivo(const DatosRetencion& datos, int Disc) {
    if (datos.SituacionLaboral != kActivo) return 0;
    if (Disc == k33Movilidad || Disc == k65) return kActivoMuyDiscapacitado;
    return Disc == k33 ? kActivoDiscapacitado : 0;
}

double porDiscapacidad(int Disc) {
    if (Disc == k65) return kDiscapacidad65;
    return Disc == k33 || Disc == k33Movilidad ? kDiscapacidad33 : 0;
}

double porAsistencia(int Disc) {
    return Disc == k33Movilidad || Disc == k65 ? kAsistencia : 0;
}

double desempleo1200(const DatosRetencion& datos) {
    return datos.SituacionLaboral == kEsDesempleado ? kDesempleado : 0;
}

void reduceLaBase(const DatosRetencion& datos, ResultadoRetencion& r) {
    r.ReduccionTrabajo = Redondeado(reduccionTrabajo(r.RendimientoNeto), 2);
    const double ExtraProlon = datos.Prolon == 1 ? r.ReduccionTrabajo : 0;
    const double ExtraMovil = datos.Movil == 1 ? r.ReduccionTrabajo : 0;
    const int Disc = gradoDe(datos);
    const auto Edad = EdadDe(datos.AnioNacimiento);
    r.Pension600 = datos.SituacionLaboral == kEsPensionista ? kPensionista : 0;
    const MinimosDescendientes desc = CalculaDescendientes(datos, r);
    const MinimosAscendientes asc = CalculaAscendientes(datos, r);
    r.MayorDe65 = (Edad >= 65 ? kMayorDe65 : 0) + asc.MinAsc;
    r.MayorDe75 = (Edad >= 75 ? kMayorDe75 : 0) + asc.MinAsc75;
    r.PorDiscapacidad = porDiscapacidad(Disc) + desc.MinDiscDesc + asc.MinDiscAsc + porAsistencia(Disc) +
                        desc.AsistDesc + asc.AsistAsc;
    r.ReduccionesBase = r.Pension600 + r.ReduccionTrabajo + desempleo1200(datos) + ExtraMovil + ExtraProlon +
                        porSerActivo(datos, Disc) + kMinimoPersonal + desc.MinDesc + desc.MinMenor3 +
                        desc.Familia3 + r.MayorDe65 + r.MayorDe75 + r.PorDiscapacidad + datos.Pension;
}

/// The exempt minimum, raised for pensioners and the unemployed; nothing where the situation has none.
Limite minimoExento(const DatosRetencion& datos, const ResultadoRetencion& r) {
    const int situacion = datos.SituacionFamiliar;
    if (situacion < 1 || situacion > 3) return {};
    const auto fila = static_cast<std::size_t>(situacion - 1);
    const auto columna = static_cast<std::size_t>(Menor(r.NumDescendientes, 2));
    const Limite& limite = kMinimoExento.at(fila).at(columna);
    if (!limite) return {};
    return *limite + r.Pension600 + desempleo1200(datos);
}

bool estaExento(double Retribuciones, const Limite& minimo) {
    return !(Retribuciones > kRetribucionSujeta) && minimo && *minimo >= Retribuciones;
}

/// Maintenance paid to children is taxed apart from the rest.
double cuotaSinTope(const DatosRetencion& datos, double BaseRetencion) {
    if (datos.Anualidades <= 0 || BaseRetencion - datos.Anualidades <= 0)
        return CuotaRetencion(BaseRetencion);
    return CuotaRetencion(BaseRetencion - datos.Anualidades) + CuotaRetencion(datos.Anualidades);
}

double cuota(const DatosRetencion& datos, double BaseRetencion, const Limite& minimo) {
    const double Cuota = cuotaSinTope(datos, BaseRetencion);
    if (!(datos.Retribuciones <= kRetribucionConTope) || !minimo) return Cuota;
    const double Cap = (datos.Retribuciones - *minimo) * kTopeSobreMinimoExento;
    return Cap > 0 && Cuota > Cap ? Cap : Cuota;
}

double tipoDelAnio(const DatosRetencion& datos, const ResultadoRetencion& r, const Limite& minimo) {
    if (r.Exento) return 0;
    return TruncaDos(Divide(cuota(datos, r.BaseRetencion, minimo), datos.Retribuciones) * 100);
}

}  // namespace

double CuotaRetencion(double base) {
    for (const Escalon& e : kEscala) {
        if (base < e.hasta) return cuotaEn(e, base);
    }
    return cuotaEn(kEscalonSuperior, base);
}

/// No limit of 32 bits here: a rate is only cut, however large.
double TruncaDos(double x) {
    return std::floor(x * 100) / 100;
}

double TipoFinal(double x) {
    return Redondeado(Redondeado(x, 2) + 0.001, 2);
}

double LimitaPorContrato(double Rate, const DatosRetencion& datos) {
    if (Rate > kTipoMaximo) return kTipoMaximo;
    if (datos.TipoContrato == kRelacionEspecial)
        return Rate < kTipoMinimoEspecial ? kTipoMinimoEspecial : Rate;
    if (datos.TipoContrato == kContratoCorto) return Rate < kTipoMinimoCorto ? kTipoMinimoCorto : Rate;
    return Rate;
}

ResultadoRetencion CalculaRetencion(const DatosRetencion& datos, std::string LimitaTipo) {
    ResultadoRetencion r;
    r.LimitaTipo = std::move(LimitaTipo);
    const bool regulariza = datos.Regularizacion == 1;
    r.RendimientoNeto = datos.Retribuciones - datos.Reducciones - datos.Gastos;
    if (r.RendimientoNeto < 0) r.RendimientoNeto = 0;
    reduceLaBase(datos, r);
    const double base = r.RendimientoNeto - r.ReduccionesBase;
    r.BaseRetencion = base > 0 ? base : 0;
    const Limite minimo = minimoExento(datos, r);
    r.Exento = estaExento(datos.Retribuciones, minimo);
    // The floors hold for the exempt too, and Ceuta and Melilla halve after them.
    double Rate = LimitaPorContrato(tipoDelAnio(datos, r, minimo), datos);
    if (datos.CeutaMelilla == 1 && !regulariza) Rate = Rate / 2;
    r.TipoRetencion = TipoFinal(Rate);
    r.ImporteRetencion = Redondeado(r.TipoRetencion * datos.Retribuciones / 100, 2);
    if (regulariza) Regulariza(datos, r);
    return r;
}

}  // namespace orvemo::irpf
