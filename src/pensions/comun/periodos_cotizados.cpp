#include "pensions/comun/periodos_cotizados.h"

#include "foundations/frame/datos_informe.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo::pensiones {

namespace {

constexpr std::size_t kCaracteresFecha = 10;
constexpr std::size_t kCaracteresEmpresa = 20;

std::string_view motivoDeDesde(const std::string& desde) {
    if (EsVacio(desde) || EsFecha(desde)) return {};
    return "La fecha no es correcta. Debe ser de tipo dd-mm-aaaa";
}

std::string_view motivoDeHasta(const std::string& desde, const std::string& hasta) {
    if (EsVacio(hasta)) return EsVacio(desde) ? "" : "La fecha no puede quedar en blanco.";
    if (!EsFecha(hasta)) return "La fecha no es correcta. Debe ser de tipo dd-mm-aaaa";
    if (EsVacio(desde) || FechaDe(hasta) >= FechaDe(desde)) return {};
    return "La fecha de finalización del periodo no puede ser anterior a la inicial.";
}

}  // namespace

PeriodosCotizados::PeriodosCotizados(Formulario& formulario, const DefPeriodos& def)
    : Bloque{formulario},
      grupo_{nuevoGrupo({.nombre = def.grupo,
                         .titulo = def.titulo,
                         .pantalla = def.pantalla,
                         .disposicion = Disposicion::Tabla,
                         .columnas = 3,
                         .encabezados = {"Desde", "Hasta", "Empresa"}})} {
    filas_.reserve(static_cast<std::size_t>(def.filas));
    for (int fila = 1; fila <= def.filas; ++fila) filas_.push_back(nuevaFila(def, fila));
}

FilaPeriodo PeriodosCotizados::nuevaFila(const DefPeriodos& def, int fila) {
    const auto campo = [&](const char* nombre, Clase clase, std::size_t largo, Reaccion alSalir) -> Campo& {
        return nuevo({.nombre = def.prefijo + nombre,
                      .indice = fila,
                      .clase = clase,
                      .pantalla = def.pantalla,
                      .grupo = &grupo_,
                      .largo = largo,
                      .alSalir = std::move(alSalir)});
    };
    const auto compruebaDesde = [this](Campo& desde) { rechaza(desde, motivoDeDesde(desde.texto())); };
    const auto compruebaHasta = [this, i = static_cast<std::size_t>(fila - 1)](Campo& hasta) {
        rechaza(hasta, motivoDeHasta(filas_[i].PerDesde.texto(), hasta.texto()));
    };
    return {campo("PerDesde", Clase::FechaEscrita, kCaracteresFecha, compruebaDesde),
            campo("PerHasta", Clase::FechaEscrita, kCaracteresFecha, compruebaHasta),
            campo("PerEmpresa", Clase::Texto, kCaracteresEmpresa, {})};
}

bool PeriodosCotizados::valida() {
    for (const FilaPeriodo& fila : filas_) {
        const std::string& desde = fila.PerDesde.texto();
        if (rechaza(fila.PerDesde, motivoDeDesde(desde))) return false;
        if (rechaza(fila.PerHasta, motivoDeHasta(desde, fila.PerHasta.texto()))) return false;
    }
    return true;
}

std::vector<std::string> PeriodosCotizados::ultimosDias() const {
    std::vector<std::string> dias;
    for (const FilaPeriodo& fila : filas_) dias.push_back(fila.PerHasta.texto());
    return dias;
}

void PeriodosCotizados::imprime(Informe& informe) const {
    constexpr const char* kPatron = "dd-mm-yyyy";
    for (const FilaPeriodo& fila : filas_) {
        if (EsVacio(fila.PerDesde.texto())) continue;
        informe.linea("Del " + fechaDe(fila.PerDesde, kPatron) + " al " + fechaDe(fila.PerHasta, kPatron) +
                      " en " + fila.PerEmpresa.texto());
    }
}

std::vector<Campo*> PeriodosCotizados::columna(Columna columna) const {
    std::vector<Campo*> campos;
    for (const FilaPeriodo& fila : filas_) {
        campos.push_back(columna == kDesde   ? &fila.PerDesde
                         : columna == kHasta ? &fila.PerHasta
                                             : &fila.PerEmpresa);
    }
    return campos;
}

}  // namespace orvemo::pensiones
