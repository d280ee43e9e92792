#include "payroll/contratos/epigrafes.h"

#include <algorithm>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/contratos/lineas.h"

namespace orvemo::nomina {

namespace {

constexpr std::string_view kSeparador = "#";
constexpr std::size_t kAnchoCodigo = 3;
constexpr std::size_t kAnchoTexto = 50;

Epigrafe leeEpigrafe(std::string linea) {
    Epigrafe epigrafe;
    const std::string Codigo = FormatoNumero(ValComa(CortaCampo(linea, kSeparador)), "000");
    epigrafe.Codigo = PrimerosCaracteres(Codigo, kAnchoCodigo);
    epigrafe.TipoIT = ValComa(CortaCampo(linea, kSeparador));
    epigrafe.TipoIMS = ValComa(CortaCampo(linea, kSeparador));
    epigrafe.Texto = PrimerosCaracteres(CortaCampo(linea, kSeparador), kAnchoTexto);
    return epigrafe;
}

double cuota(double Base, double tipo) {
    return Redondeado(Base * tipo / 100, 2);
}

}  // namespace

Epigrafes::Epigrafes(std::string_view contenido) {
    CadaLinea(kFicheroEpigrafes, contenido,
              [&](std::string linea) { filas_.push_back(leeEpigrafe(std::move(linea))); });
}

std::vector<std::string> Epigrafes::lista() const {
    std::vector<std::string> items;
    for (const Epigrafe& epigrafe : filas_) items.push_back(epigrafe.Codigo + "-" + epigrafe.Texto);
    return items;
}

const Epigrafe* Epigrafes::busca(std::string_view Codigo) const {
    const auto fila = std::ranges::find(filas_, Codigo, &Epigrafe::Codigo);
    return fila == filas_.end() ? nullptr : &*fila;
}

double Epigrafes::CuotaIT(double Base, std::string_view Codigo) const {
    const Epigrafe* epigrafe = busca(Codigo);
    return epigrafe == nullptr ? 0 : cuota(Base, epigrafe->TipoIT);
}

double Epigrafes::CuotaIMS(double Base, std::string_view Codigo) const {
    const Epigrafe* epigrafe = busca(Codigo);
    return epigrafe == nullptr ? 0 : cuota(Base, epigrafe->TipoIMS);
}

}  // namespace orvemo::nomina
