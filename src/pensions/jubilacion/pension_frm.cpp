#include "pensions/jubilacion/pension_frm.h"

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/jubilacion.h"
#include "pensions/jubilacion/jubilacion_base.h"
#include "pensions/jubilacion/jubilacion_cuantia.h"

namespace orvemo {

namespace {

using jubilacion::kAnioDelPrograma;
using jubilacion::Regimen;

constexpr double kMaximaBaseActual = 999'999;
constexpr double kMaximaSuma = 99'999'999;

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
      JubiFechaNac{nuevo(fechaElegida("JubiFechaNac", "Fecha de nacimiento:"))},
      JubiFechaJub{nuevo({.nombre = "JubiFechaJub",
                          .rotulo = "Fecha efectiva de la jubilación:",
                          .clase = Clase::FechaSelector,
                          .alSalir = [this](Campo&) { compruebaFechaJub(); },
                          .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      JubiRegimen{nuevo(lista("JubiRegimen", "Régimen de la Seguridad Social:",
                              {"R. General", "R.E. Autónomos", "R.E. Agrario", "R.E. Empleados de hogar",
                               "Sustitución a los 64 años", "Jubilación Parcial"},
                              [this](Campo&) { ajustaVisibles(); }))},
      JubiConyuge{nuevo(casilla("JubiConyuge", "Tiene cónyuge que mantener"))},
      JubiVoluntario{nuevo(casilla("JubiVoluntario", "Marque si el cese es voluntario"))},
      JubiNoImputable{nuevo(casilla("JubiNoImputable", "Marque si no le es imputable "))},
      JubiRedJor{nuevoNumero("JubiRedJor", "% Reducción de Jornada:", kDatos)},
      JubiBaseActual{
          nuevo({.nombre = "JubiBaseActual",
                 .rotulo = "Base Mensual Actual de cotización (para estimar bases futuras):",
                 .defecto = "0",
                 .contenido = Contenido::Decimal,
                 .formato = "###,##0.00",
                 .alSalir = [this](Campo& base) { compruebaImporte(base, kMaximaBaseActual, "999,999"); },
                 .visible = false})},
      HorasTP{nuevoNumero("HorasTP", "Horas totales cotizadas en contratos a tiempo parcial:", kPeriodos)},
      HorasTP15{nuevoNumero("HorasTP15",
                            "Horas cotizadas en contratos a tiempo parcial los últimos 15 años:", kPeriodos)},
      periodos{*this,
               {.prefijo = "Jubi",
                .grupo = "Periodos",
                .filas = jubilacion::kFilasPeriodos,
                .pantalla = kPeriodos}},
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
      bases{*this,
            {.nombre = "JubiBase",
             .marco = "JubiBases",
             .lineas = jubilacion::kLineasGuardadas,
             .primeraPantalla = kPrimerMarco}} {
    enlazaCampos();
}

Campo& PensionFrm::nuevoNumero(std::string nombre, std::string rotulo, int pantalla) {
    return nuevo({.nombre = std::move(nombre),
                  .rotulo = std::move(rotulo),
                  .pantalla = pantalla,
                  .defecto = "0",
                  .contenido = Contenido::Decimal});
}

/// In the order of the record. What can't be read counts 0.
void PensionFrm::enlazaCampos() {
    using Caso = RegistroDelCaso;
    enlaza(JubiNombre, &Caso::JubiNombre);
    enlaza(JubiFechaNac, &Caso::JubiFechaNac, vias::kFechaOCero);
    enlaza(JubiFechaJub, &Caso::JubiFechaJub, vias::kFechaOCero);
    enlaza(JubiRegimen, &Caso::JubiRegimen);
    enlaza(JubiConyuge, &Caso::JubiConyuge);
    enlaza(JubiVoluntario, &Caso::JubiVoluntario);
    enlaza(JubiNoImputable, &Caso::JubiNoImputable);
    periodos.enlaza(enlaces(), &Caso::JubiPerDesde, &Caso::JubiPerHasta, &Caso::JubiPerEmpresa);
    enlaza(JubiBasesDesglosadas, &Caso::JubiBasesDesglosadas);
    bases.enlaza(enlaces(), &Caso::JubiBase);
    enlaza(JubiSumaBases, &Caso::JubiSumaBases, vias::kImporteOCero);
    enlaza(JubiBaseActual, &Caso::JubiBaseActual, vias::kImporteOCero);
    enlaza(JubiRedJor, &Caso::JubiRedJor, vias::kNumeroOCero);
    enlaza(HorasTP, &Caso::HorasTP, vias::kNumeroOCero);
    enlaza(HorasTP15, &Caso::HorasTP15, vias::kNumeroOCero);
    enlaza([](Caso& caso) { caso.marca.asigna("DP"); }, [](const Caso&) {});
}

// --- Panels

void PensionFrm::Inicia() {
    tablas_ = pensiones::IniciaPensiones(entorno().almacen);
    AsistenteDe::Inicia();
}

void PensionFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    bases.olvida();
    ajustaVisibles();
    preparaSerie();
}

void PensionFrm::trasCargar() {
    // Unchanged data must not offer a new projection.
    bases.olvida(DobleDe(JubiBaseActual.texto()));
    ajustaVisibles();
    preparaSerie();
}

bool PensionFrm::ValidaPantalla() {
    return PantallaActual() != kPeriodos || periodos.valida();
}

int PensionFrm::ultimoMarco() const {
    return kPrimerMarco + bases.pantallas() - 1;
}

int PensionFrm::pantallaSiguiente(int pantalla) const {
    const int ultimaDeBases = JubiBasesDesglosadas.marcado() ? ultimoMarco() : kModoBases;
    return pantalla >= ultimaDeBases ? kConclusiones : pantalla + 1;
}

int PensionFrm::pantallaAnterior(int pantalla) const {
    if (pantalla != kConclusiones) return pantalla - 1;
    return JubiBasesDesglosadas.marcado() ? ultimoMarco() : kModoBases;
}

void PensionFrm::dejaPantalla(int pantalla) {
    if (pantalla == kDatos) PreparaBasesJubilacion();
    if (pantalla == kPeriodos) preparaSerie();
}

/// A frame of bases bears its own caption there.
std::string PensionFrm::subtituloDe(int pantalla) const {
    const int marco = pantalla - kPrimerMarco + 1;
    if (marco < 1 || marco > kMarcos) return AsistenteDe::subtituloDe(pantalla);
    return "Bases de cotización de los últimos " + TextoPlano(bases.meses()) + "  meses (" +
           TextoPlano(marco) + ")";
}

void PensionFrm::calcula(Dictamen& dictamen) {
    jubilacion::CalculaJubilacion(caso_, tablas_.value(), hoy(), dictamen);
}

// --- Series of bases

void PensionFrm::PreparaBasesJubilacion() {
    preparaSerie();
    bases.proyecta(DobleDe(JubiBaseActual.texto()));
}

void PensionFrm::preparaSerie() {
    const Fecha jubilacion = FechaDe(JubiFechaJub.texto());
    const auto regimen = static_cast<Regimen>(JubiRegimen.indice() + 1);
    bases.prepara(jubilacion::FechaReferencia(regimen, jubilacion, periodos.ultimosDias()),
                  pensiones::SerieBasesDe(Anio(jubilacion)).MesesBases);
}

// --- Reactions and checks

bool PensionFrm::esFuturo() const {
    return Anio(FechaDe(JubiFechaJub.texto())) > kAnioDelPrograma;
}

void PensionFrm::ajustaVisibles() {
    JubiBaseActual.ponVisible(entorno().valores.VerBaseActual && esFuturo());
    JubiRedJor.ponVisible(JubiRegimen.indice() + 1 == static_cast<int>(Regimen::Parcial));
    JubiSumaBases.ponVisible(!JubiBasesDesglosadas.marcado());
}

void PensionFrm::compruebaFechaJub() {
    if (esFuturo() && !entorno().valores.VerBaseActual) {
        mensajes().ComunicaError("La fecha debe ser del año en curso");
        JubiFechaJub.ponTexto("31-12-" + TextoPlano(kAnioDelPrograma));
        JubiFechaJub.pideFoco();
    }
    ajustaVisibles();
}

void PensionFrm::compruebaImporte(Campo& campo, double maximo, std::string_view maximoEscrito) {
    if (DatoMal || NumeroEntre(campo.texto(), 0, maximo)) return;
    rechaza(campo,
            "El número no es correcto. Debe introducir un número entre 0 y " + std::string{maximoEscrito});
}

}  // namespace orvemo
