#include "payroll/validaciones/fechas_nomina.h"

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/caso/entradas.h"
#include "payroll/dias/calendario.h"

namespace orvemo::nomina {

namespace {

constexpr std::string_view kFechaMala = "La fecha no es correcta. El formato válido es día-mes-año";
constexpr std::string_view kEnBlanco = "La fecha no puede quedar en blanco.";
constexpr std::string_view kSinInicio = "La fecha inicial no se ha indicado";

constexpr int kMesesDeUnaPaga = 6;

/// A text that is neither blank nor a date.
bool esFechaMala(std::string_view texto) {
    Valor valor{texto};
    return !FormateaCampo(valor, "D");
}

Revision falla(std::string_view mensaje, std::optional<std::string> propuesta = {}) {
    return {std::string{mensaje}, std::move(propuesta)};
}

/// What no month has.
constexpr int kDiaImposible = 255;

/// The day that a field tells, 0 when it tells none. What no byte could hold is no day of any month.
int diaDe(std::string_view texto) {
    try {
        return RedondeaPar8(ValComa(texto));
    } catch (const DesbordeNumerico&) {
        return kDiaImposible;
    }
}

bool enElMes(int dia, int Mes) {
    return EntreLimites(dia, 1, DiasDelMes(Mes));
}

}  // namespace

Revision CompruebaCese(std::string_view texto, std::string_view inicio, int Mes) {
    if (esFechaMala(texto)) return falla("La fecha de cese no es correcta. El formato válido es día-mes-año");
    if (EsVacio(texto)) return {};
    const Fecha cese = FechaDe(texto);
    if (Anio(cese) != kAnioNomina)
        return falla("La fecha de cese debe ser del año " + TextoPlano(kAnioNomina));
    if (orvemo::Mes(cese) != Mes)
        return falla("La fecha de cese, si existe, debe ser del mes de la nómina a calcular.");
    if (cese < FechaDe(inicio)) return falla("La fecha de cese no puede ser anterior a la de ingreso");
    return {};
}

Revision CompruebaFechaAlta(std::string_view texto) {
    if (esFechaMala(texto)) return falla(kFechaMala, std::string{kPrimerDiaAnio});
    if (EsVacio(texto)) return falla(kEnBlanco, std::string{kPrimerDiaAnio});
    return {};
}

Revision CompruebaFechaIniExtra(std::string_view texto) {
    if (!esFechaMala(texto)) return {};
    return falla(
        "La fecha de inicio del período para paga extraordinaria no es correcta. El formato válido es "
        "día-mes-año",
        std::string{kPrimerDiaAnio});
}

Revision CompruebaFechaFinExtra(std::string_view texto, std::string_view inicio) {
    if (EsVacio(texto)) return EsVacio(inicio) ? falla(kSinInicio) : Revision{{}, FinExtraPropuesto(inicio)};
    if (esFechaMala(texto)) {
        return falla(
            "La fecha de finalización del período de paga extraordinaria no es correcta. El formato válido "
            "es día-mes-año",
            FinExtraPropuesto(inicio));
    }
    if (FechaDe(texto) < FechaDe(inicio)) {
        return falla("La fecha de finalización no puede ser anterior a la de inicio.",
                     FinExtraPropuesto(inicio));
    }
    return {};
}

std::optional<std::string> FinExtraPropuesto(std::string_view inicio) {
    if (!EsFecha(inicio)) return std::nullopt;
    try {
        return FormatoFecha(SumaFecha(Intervalo::Mes, kMesesDeUnaPaga, FechaDe(inicio)), "dd-mm-yyyy");
    } catch (const DesbordeNumerico&) {
        return std::nullopt;
    }
}

Revision CompruebaFechaPeriodo1(std::string_view texto) {
    if (esFechaMala(texto)) return falla(kFechaMala);
    return EsVacio(texto) ? falla(kEnBlanco) : Revision{};
}

Revision CompruebaFechaPeriodo2(std::string_view texto, std::string_view primera) {
    Revision revision = CompruebaFechaPeriodo1(texto);
    if (!revision.vale()) return revision;
    if (EsVacio(primera)) return falla(kSinInicio);
    if (FechaDe(texto) > FechaDe(primera)) return {};
    return falla("La fecha debe ser posterior a " + std::string{primera});
}

RevisionDia1 CompruebaDiaInci1(std::string_view codigo, std::string_view dia1, std::string_view dia2,
                               int Mes) {
    const int primero = diaDe(dia1);
    if (primero == 0) {
        if (EsVacio(codigo)) return {};
        return {falla("Debe indicar el día del mes en el que comienza la incidencia")};
    }
    if (!enElMes(primero, Mes)) return {falla("El día de inicio de la incidencia no es válido.")};
    if (diaDe(dia2) >= primero) return {};
    return {{}, TextoPlano(primero)};
}

Revision CompruebaDiaInci2(std::string_view codigo, std::string_view dia1, std::string_view dia2, int Mes) {
    const int ultimo = diaDe(dia2);
    if (ultimo == 0) {
        return EsVacio(codigo) ? Revision{}
                               : falla("Debe indicar el día del mes en el que finaliza la incidencia");
    }
    if (!enElMes(ultimo, Mes)) return falla("El día de finalización de la incidencia no es válido.");
    const int primero = diaDe(dia1);
    if (ultimo >= primero) return {};
    return falla(
        "El final de la incidencia no puede ser anterior al comienzo. Se ajusta el día de finalización.",
        TextoPlano(primero));
}

}  // namespace orvemo::nomina
