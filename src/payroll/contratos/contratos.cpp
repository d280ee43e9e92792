#include "payroll/contratos/contratos.h"

#include <algorithm>

#include "foundations/values/fallos.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/contratos/lineas.h"

namespace orvemo::nomina {

namespace {

constexpr std::string_view kSeparador = "#";
constexpr std::size_t kAnchoCodigo = 4;
constexpr std::size_t kAnchoTexto = 80;
constexpr std::size_t kAnchoClave = 10;
constexpr std::size_t kAnchoFlags = 3;
/// What identifies the group of a contract, at the start of both texts.
constexpr std::size_t kAnchoGrupo = 3;

/// An incentive without term lasts longer than any contract.
constexpr std::int32_t kSinPlazo = 100;

/// Percentage points on unemployment, by the class of the group: temporary full-time and temporary part-time
/// contracts cost more (2005).
struct Recargo {
    std::string_view clase;
    double empresa, trabajador;
};
constexpr Recargo kRecargos[] = {{"1", 0.7, 0.05}, {"2", 1.7, 0.05}};

Recargo recargoDe(std::string_view clase) {
    const auto* recargo = std::ranges::find(kRecargos, clase, &Recargo::clase);
    return recargo == std::end(kRecargos) ? Recargo{} : *recargo;
}

std::int32_t plazo(std::int32_t anios) {
    return anios == 0 ? kSinPlazo : anios;
}

TramoIncentivo tomaTramo(std::string& linea) {
    const double Pct = ValComa(CortaCampo(linea, kSeparador));
    return {Pct, RedondeaPar(ValComa(CortaCampo(linea, kSeparador)))};
}

ContratoNomina leeContrato(std::string Codigo, std::string linea, const Recargo& recargo) {
    ContratoNomina fila;
    fila.Codigo = std::move(Codigo);
    fila.Texto = PrimerosCaracteres(CortaCampo(linea, kSeparador), kAnchoTexto);
    fila.Clave = PrimerosCaracteres(CortaCampo(linea, kSeparador), kAnchoClave);
    fila.Modo = AlAncho(CortaCampo(linea, kSeparador), 1);
    fila.TipoIncentivo = AlAncho(CortaCampo(linea, kSeparador), 1);
    // Two more were meant, for training and unemployment, and have no room.
    fila.Flags = PrimerosCaracteres(CortaCampo(linea, kSeparador) + "NNN", kAnchoFlags);
    fila.tramo1 = tomaTramo(linea);
    fila.tramo2 = tomaTramo(linea);
    fila.tramo3 = tomaTramo(linea);
    fila.tramo1.Anios = plazo(RedondeaPar8(fila.tramo1.Anios));
    fila.tramo2.Anios = plazo(fila.tramo2.Anios);
    fila.tramo3.Anios = plazo(fila.tramo3.Anios);
    fila.RecargoEmpresa = recargo.empresa;
    fila.RecargoTrab = recargo.trabajador;
    return fila;
}

[[noreturn]] void faltaContrato(std::string_view Codigo) {
    throw TextoIlegible{std::string{Codigo}, "tipo de contrato"};
}

}  // namespace

Contratos::Contratos(std::string_view contenido) {
    std::string clase;
    CadaLinea(kFicheroContratos, contenido, [&](std::string linea) { leeLinea(std::move(linea), clase); });
}

void Contratos::leeLinea(std::string linea, std::string& clase) {
    const std::string Codigo = AlAncho(Recorta(CortaCampo(linea, kSeparador)), kAnchoCodigo);
    if (!Codigo.starts_with('*')) {
        filas_.push_back(leeContrato(Codigo, std::move(linea), recargoDe(clase)));
        return;
    }
    grupos_.push_back(CortaCampo(linea, kSeparador));
    clase = CortaCampo(linea, kSeparador);
}

const ContratoNomina& Contratos::fila(std::int32_t indice) const {
    if (!EntreLimites<std::int64_t>(indice, 1, static_cast<std::int64_t>(filas_.size()))) {
        faltaContrato(TextoPlano(indice));
    }
    return filas_[static_cast<std::size_t>(indice - 1)];
}

std::int32_t Contratos::indiceDe(std::string_view Codigo) const {
    const auto fila = std::ranges::find(filas_, Codigo, &ContratoNomina::Codigo);
    if (fila == filas_.end()) faltaContrato(Codigo);
    return static_cast<std::int32_t>(fila - filas_.begin()) + 1;
}

std::vector<ItemContrato> Contratos::delGrupo(std::string_view Texto) const {
    const std::string_view grupo = PrimerosCaracteres(Texto, kAnchoGrupo);
    std::vector<ItemContrato> items;
    for (std::size_t i = 0; i < filas_.size(); ++i) {
        if (PrimerosCaracteres(filas_[i].Texto, kAnchoGrupo) == grupo) {
            items.push_back({filas_[i].Texto, static_cast<std::int32_t>(i) + 1});
        }
    }
    return items;
}

bool EsContratoParcial(std::string_view Codigo) {
    return Codigo.starts_with('5') || Codigo.starts_with('2');
}

}  // namespace orvemo::nomina
