#include "pensions/jubilacion/pension_frm.h"

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/jubilacion.h"
#include "pensions/jubilacion/jubilacion_cuantia.h"

namespace orvemo {

namespace {

using jubilacion::kAnioDelPrograma;
using jubilacion::kFilasPeriodos;
using jubilacion::Regimen;

constexpr double kMaximaBaseActual = 999'999;
constexpr double kMaximaSuma = 99'999'999;

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

// --- Declaration

PensionFrm::PensionFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "PENSIONES DE JUBILACIÓN",
                   .caption = "Cálculo de pensiones de jubilación",
                   .fichero = "jubila.nom",
                   .subtitulos = {"Datos del solicitante", "Periodos cotizados", "Bases de cotización", "",
                                  "", "", "", "", "CONCLUSIONES SOBRE PENSIÓN DE JUBILACIÓN"},
                   .campoNombre = "JubiNombre"}},
      JubiNombre{nuevo({.nombre = "JubiNombre", .rotulo = "Nombre completo:", .largo = 80})},
      JubiFechaNac{
          nuevo({.nombre = "JubiFechaNac", .rotulo = "Fecha de nacimiento:", .clase = Clase::FechaSelector})},
      JubiFechaJub{nuevo({.nombre = "JubiFechaJub",
                          .rotulo = "Fecha efectiva de la jubilación:",
                          .clase = Clase::FechaSelector,
                          .alSalir = [this](Campo&) { compruebaFechaJub(); },
                          .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      JubiRegimen{
          nuevo({.nombre = "JubiRegimen",
                 .rotulo = "Régimen de la Seguridad Social:",
                 .clase = Clase::Lista,
                 .opciones = {"R. General", "R.E. Autónomos", "R.E. Agrario", "R.E. Empleados de hogar",
                              "Sustitución a los 64 años", "Jubilación Parcial"},
                 .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      JubiRedJor{nuevo({.nombre = "JubiRedJor",
                        .rotulo = "% Reducción de Jornada:",
                        .defecto = "0",
                        .contenido = Contenido::Decimal,
                        .visible = false})},
      JubiConyuge{
          nuevo({.nombre = "JubiConyuge", .rotulo = "Tiene cónyuge que mantener", .clase = Clase::Casilla})},
      JubiVoluntario{nuevo({.nombre = "JubiVoluntario",
                            .rotulo = "Marque si el cese es voluntario",
                            .clase = Clase::Casilla})},
      JubiNoImputable{nuevo(
          {.nombre = "JubiNoImputable", .rotulo = "Marque si no le es imputable ", .clase = Clase::Casilla})},
      JubiBaseActual{
          nuevo({.nombre = "JubiBaseActual",
                 .rotulo = "Base Mensual Actual de cotización (para estimar bases futuras):",
                 .defecto = "0",
                 .contenido = Contenido::Decimal,
                 .formato = kFormatoBase,
                 .alSalir = [this](Campo& base) { compruebaImporte(base, kMaximaBaseActual, "999,999"); },
                 .visible = false})},
      periodos{nuevasFilas()},
      HorasTP{nuevasHoras("HorasTP", "Horas totales cotizadas en contratos a tiempo parcial:")},
      HorasTP15{
          nuevasHoras("HorasTP15", "Horas cotizadas en contratos a tiempo parcial los últimos 15 años:")},
      JubiBasesDesglosadas{nuevo({.nombre = "JubiBasesDesglosadas",
                                  .rotulo = "Introducir las bases de cotización una a una",
                                  .clase = Clase::Casilla,
                                  .pantalla = kModoBases,
                                  .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      JubiSumaBases{
          nuevo({.nombre = "JubiSumaBases",
                 .rotulo = "Suma ponderada de las bases de cotización:",
                 .pantalla = kModoBases,
                 .defecto = "0",
                 .contenido = Contenido::Decimal,
                 .formato = "##,###,##0.00",
                 .alSalir = [this](Campo& suma) { compruebaImporte(suma, kMaximaSuma, "99,999,999"); }})},
      bases_{nuevasBases()} {}

Campo& PensionFrm::nuevasHoras(std::string nombre, std::string rotulo) {
    return nuevo({.nombre = std::move(nombre),
                  .rotulo = std::move(rotulo),
                  .pantalla = kPeriodos,
                  .defecto = "0",
                  .contenido = Contenido::Decimal});
}

PensionFrm::FilaPeriodo PensionFrm::nuevaFila(Grupo& grupo, int fila) {
    const auto i = static_cast<std::size_t>(fila - 1);
    return {nuevo({.nombre = "JubiPerDesde",
                   .indice = fila,
                   .clase = Clase::FechaEscrita,
                   .pantalla = kPeriodos,
                   .grupo = &grupo,
                   .largo = 10,
                   .alSalir = [this](Campo& desde) { rechaza(desde, motivoDeDesde(desde.texto())); }}),
            nuevo({.nombre = "JubiPerHasta",
                   .indice = fila,
                   .clase = Clase::FechaEscrita,
                   .pantalla = kPeriodos,
                   .grupo = &grupo,
                   .largo = 10,
                   .alSalir =
                       [this, i](Campo& hasta) {
                           rechaza(hasta, motivoDeHasta(periodos[i].JubiPerDesde.texto(), hasta.texto()));
                       }}),
            nuevo({.nombre = "JubiPerEmpresa",
                   .indice = fila,
                   .pantalla = kPeriodos,
                   .grupo = &grupo,
                   .largo = 20})};
}

std::vector<PensionFrm::FilaPeriodo> PensionFrm::nuevasFilas() {
    Grupo& tabla = nuevoGrupo({.nombre = "Periodos",
                               .pantalla = kPeriodos,
                               .disposicion = Disposicion::Tabla,
                               .columnas = 3,
                               .encabezados = {"Desde", "Hasta", "Empresa"}});
    std::vector<FilaPeriodo> filas;
    for (int fila = 1; fila <= kFilasPeriodos; ++fila) filas.push_back(nuevaFila(tabla, fila));
    return filas;
}

// --- Panels

void PensionFrm::Inicia() {
    tablas_ = pensiones::IniciaPensiones(entorno().almacen);
    AsistenteDe::Inicia();
}

void PensionFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    baseActualProyectada_ = 0;
    BaseEditada_ = false;
    ajustaVisibles();
    preparaSerie();
}

bool PensionFrm::ValidaPantalla() {
    if (PantallaActual() != kPeriodos) return true;
    for (const FilaPeriodo& fila : periodos) {
        const std::string& desde = fila.JubiPerDesde.texto();
        if (rechaza(fila.JubiPerDesde, motivoDeDesde(desde))) return false;
        if (rechaza(fila.JubiPerHasta, motivoDeHasta(desde, fila.JubiPerHasta.texto()))) return false;
    }
    return true;
}

int PensionFrm::pantallaSiguiente(int pantalla) const {
    const int ultimoMarco = kPrimerMarco + serie_.PantallasBases - 1;
    const bool terminanLasBases =
        JubiBasesDesglosadas.marcado() ? pantalla >= ultimoMarco : pantalla >= kModoBases;
    return terminanLasBases ? kConclusiones : pantalla + 1;
}

int PensionFrm::pantallaAnterior(int pantalla) const {
    if (pantalla != kConclusiones) return pantalla - 1;
    return JubiBasesDesglosadas.marcado() ? kPrimerMarco + serie_.PantallasBases - 1 : kModoBases;
}

void PensionFrm::dejaPantalla(int pantalla) {
    if (pantalla == kDatos) PreparaBasesJubilacion();
    if (pantalla == kPeriodos) preparaSerie();
}

/// A frame of bases bears its own caption there.
std::string PensionFrm::subtituloDe(int pantalla) const {
    const int marco = pantalla - kPrimerMarco + 1;
    if (marco < 1 || marco > kMarcos) return AsistenteDe::subtituloDe(pantalla);
    return "Bases de cotización de los últimos " + TextoPlano(serie_.MesesBases) + "  meses (" +
           TextoPlano(marco) + ")";
}

void PensionFrm::calcula(Dictamen& dictamen) {
    jubilacion::CalculaJubilacion(caso_, tablas_.value(), hoy(), dictamen);
}

// --- Reactions and checks

void PensionFrm::ajustaVisibles() {
    const bool esFuturo = Anio(FechaDe(JubiFechaJub.texto())) > kAnioDelPrograma;
    JubiBaseActual.ponVisible(entorno().valores.VerBaseActual && esFuturo);
    JubiRedJor.ponVisible(JubiRegimen.indice() + 1 == static_cast<int>(Regimen::Parcial));
    JubiSumaBases.ponVisible(!JubiBasesDesglosadas.marcado());
}

void PensionFrm::compruebaFechaJub() {
    const bool esFuturo = Anio(FechaDe(JubiFechaJub.texto())) > kAnioDelPrograma;
    if (esFuturo && !entorno().valores.VerBaseActual) {
        mensajes().ComunicaError("La fecha debe ser del año en curso");
        JubiFechaJub.ponTexto("31-12-" + TextoPlano(kAnioDelPrograma));
        JubiFechaJub.pideFoco();
    }
    ajustaVisibles();
}

void PensionFrm::compruebaImporte(Campo& campo, double maximo, std::string_view maximoEscrito) {
    if (DatoMal || EntreLimites(LeeNumero(campo.texto()), 0.0, maximo)) return;
    rechaza(campo,
            "El número no es correcto. Debe introducir un número entre 0 y " + std::string{maximoEscrito});
}

/// Tells what is wrong with a field and takes the focus back to it; nothing when there is no reason.
bool PensionFrm::rechaza(Campo& campo, std::string_view motivo) {
    if (motivo.empty()) return false;
    mensajes().ComunicaError(motivo);
    DatoMal = true;
    campo.pideFoco();
    return true;
}

}  // namespace orvemo
