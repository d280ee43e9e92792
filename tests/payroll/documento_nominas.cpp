#include "payroll/documento_nominas.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <sstream>

#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"

namespace orvemo::nomina {
namespace {

using Palabras = std::vector<std::string>;

Palabras parte(const std::string& texto, char separador = ' ') {
    Palabras partes;
    std::istringstream entrada{texto};
    for (std::string parte; std::getline(entrada, parte, separador);)
        if (!Recorta(parte).empty()) partes.emplace_back(Recorta(parte));
    return partes;
}

/// The rows of a repeated field are filled in order.
template <typename T>
std::size_t libre(const T& fila) {
    return static_cast<std::size_t>(std::ranges::find(fila, typename T::value_type{}) - fila.begin());
}

double numero(const std::string& texto) {
    return LeeNumeroRegional(texto);
}

std::uint8_t octeto(const std::string& texto) {
    return static_cast<std::uint8_t>(numero(texto));
}

int entero(const std::string& texto) {
    return static_cast<int>(numero(texto));
}

using Verbo = std::function<void(RegistroNomina&, const Palabras&)>;

const std::map<std::string, Verbo> kVerbos{
    {"mes", [](auto& r, const auto& p) { r.Mes = octeto(p[1]) - 1; }},
    {"alta", [](auto& r, const auto& p) { r.FechaInicio.asigna(p[1]); }},
    {"cese", [](auto& r, const auto& p) { r.FechaCese.asigna(p[1]); }},
    {"paga", [](auto& r, const auto& p) { r.TipoPaga = p[1] == "extraordinaria" ? 1 : 0; }},
    {"grupo", [](auto& r, const auto& p) { r.Categoria = octeto(p[1]) - 1; }},
    {"contrato", [](auto& r, const auto& p) { r.CodigoContrato.asigna(p[1]); }},
    {"epigrafe", [](auto& r, const auto& p) { r.Epigrafe.asigna(p[1]); }},
    {"edad", [](auto& r, const auto& p) { r.Edad = octeto(p[1]); }},
    {"irpf", [](auto& r, const auto& p) { r.IRPFExtra = static_cast<float>(numero(p[1])); }},
    {"jornada", [](auto& r, const auto& p) { r.Pluriempleo.asigna(p[1]); }},
    {"horas", [](auto& r, const auto& p) { r.ParcialHoras = entero(p[1]); }},
    {"dias", [](auto& r, const auto& p) { r.ParcialDias = octeto(p[1]); }},
    {"semana",
     [](auto& r, const auto& p) {  // its letters and the daily hours
         r.DiasSemana.asigna(p[1]);
         r.HorasDiarias = numero(p[2]);
     }},
    {"pagas",
     [](auto& r, const auto& p) {
         const auto i = libre(r.NumPagas);
         r.NumPagas.at(i) = octeto(p[1]);
         r.PagaExtra.at(i) = numero(p[2]);
     }},
    {"concepto",
     [](auto& r, const auto& p) {
         const auto i = libre(r.ImporteConcepto);
         r.CodigoConcepto.at(i).asigna(p[1]);
         r.UnidadConcepto.at(i).asigna(p[2]);
         r.ImporteConcepto.at(i) = numero(p[3]);
     }},
    {"incidencia",
     [](auto& r, const auto& p) {
         const auto i = libre(r.CodigoIncidencia);
         r.CodigoIncidencia.at(i).asigna(p[1]);
         r.DiaInicioInci.at(i) = octeto(p[2]);
         r.DiaFinInci.at(i) = octeto(p[3]);
     }},
    {"devengo",
     [](auto& r, const auto& p) {  // the period that earns the extra pay
         r.FechaExtra1.asigna(p[1]);
         r.FechaExtra2.asigna(p[2]);
     }},
    {"desempleo",
     [](auto& r, const auto& p) {  // coefficient and average of six months
         r.Desempleo.asigna(p[1]);
         r.Promedio6Meses = numero(p[2]);
     }},
    {"antes",
     [](auto& r, const auto& p) {  // bases, overtime and days before the leave
         r.BaseCCAnt = numero(p[1]);
         r.BaseATEPAnt = numero(p[2]);
         r.HEAnt = entero(p[3]);
         r.HEAnioAnt = entero(p[4]);
         r.DiasAnt = octeto(p[5]);
     }},
    {"doce", [](auto& r, const auto& p) { r.Dias12 = numero(p[1]); }},
    {"vacaciones",
     [](auto& r, const auto& p) {
         r.FVac1.asigna(p[1]);
         r.FVac2.asigna(p[2]);
         r.ImpVac = entero(p[3]);
         r.DiasVac = octeto(p[4]);
     }},
    {"extra",
     [](auto& r, const auto& p) {
         const auto i = libre(r.FFec1);
         r.FFec1.at(i).asigna(p[1]);
         r.FFec2.at(i).asigna(p[2]);
         r.FImporte.at(i) = numero(p[3]);
     }},
    {"indemniza",
     [](auto& r, const auto& p) {  // legal days, ceiling in months, additional days
         r.FExtincion = -1;
         r.DiasInd = entero(p[1]);
         r.MaxInd = entero(p[2]);
         r.DiasCom = static_cast<std::int16_t>(numero(p[3]));
     }},
    {"preaviso", [](auto& r, const auto&) { r.FPreaviso = -1; }},
};

void espera(Historia& historia, const std::string& cifras) {
    for (const std::string& cifra : parte(cifras, ';')) {
        const auto blanco = cifra.find(' ');
        historia.espera[cifra.substr(0, blanco)] = cifra.substr(blanco + 1);
    }
}

void leeLinea(const std::string& linea, Documento& documento, RegistroNomina& siempre) {
    const Palabras palabras = parte(linea);
    if (palabras.empty() || linea.starts_with('#')) return;
    const std::string resto = linea.substr(linea.find(palabras[0]) + palabras[0].size());
    const bool enHistoria = linea.starts_with("  ") && !documento.historias.empty();
    if (palabras[0] == "fila") {
        documento.contratos += std::string{Recorta(resto)} + "\n";
    } else if (palabras[0] == "prima") {
        documento.epigrafes += std::string{Recorta(resto)} + "\n";
    } else if (palabras[0] == "nomina") {
        documento.historias.push_back({.titulo = resto, .registro = siempre});
    } else if (palabras[0] == "->") {
        espera(documento.historias.back(), resto);
    } else if (palabras[0] == "fallo") {
        documento.historias.back().fallo = true;
    } else {
        kVerbos.at(palabras[0])(enHistoria ? documento.historias.back().registro : siempre, palabras);
    }
}

}  // namespace

Documento leeDocumento() {
    std::ifstream fichero{ORVEMO_NOMINAS};
    Documento documento;
    RegistroNomina siempre;
    for (std::string linea; std::getline(fichero, linea);) leeLinea(linea, documento, siempre);
    return documento;
}

}  // namespace orvemo::nomina
