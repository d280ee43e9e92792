#include "pensions/pension_frm.h"

#include <cmath>
#include <utility>

#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion.h"

namespace orvemo {

namespace {

using jubilacion::kFilasPeriodos;
using jubilacion::kLineasGuardadas;
using jubilacion::Regimen;
using pensiones::AnioDelMesAnterior;
using pensiones::MesDelMesAnterior;

// Panels. There is a panel for each frame of bases.
constexpr int kDatos = 0;
constexpr int kPeriodos = 1;
constexpr int kModoBases = 2;
constexpr int kPrimerMarco = 3;
constexpr int kMarcos = 5;
constexpr int kConclusiones = kPrimerMarco + kMarcos;

constexpr int kLineasPorMarco = 48;  // four years
constexpr int kLineasPorColumna = 12;

constexpr int kAnioDelPrograma = 2005;
constexpr double kSubidaAnual = 1.02;  // of the bases still to come
constexpr double kMaximaBaseActual = 999'999;
constexpr double kMaximaSuma = 99'999'999;

constexpr const char* kFormatoBase = "###,##0.00";
constexpr const char* kTextoImporte = "#0.00";  // without thousands marks, as amounts are read
constexpr const char* kTextoFecha = "dd-MM-yyyy";

std::uint8_t unoSi(const Campo& casilla) {
    return casilla.marcado() ? 1 : 0;
}

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
    : CalculadoraDe{entorno,
                    {.titulo = "PENSIONES DE JUBILACIÓN",
                     .caption = "Cálculo de pensiones de jubilación",
                     .fichero = "jubila.nom",
                     .subtitulos = {"Datos del solicitante", "Periodos cotizados", "Bases de cotización",
                                    "Bases de cotización", "Bases de cotización", "Bases de cotización",
                                    "Bases de cotización", "Bases de cotización",
                                    "CONCLUSIONES SOBRE PENSIÓN DE JUBILACIÓN"}}},
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
                        .filtro = TeclaNumero,
                        .alSalir = rango("0", "100"),
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
                 .filtro = TeclaNumero,
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
                 .filtro = TeclaNumero,
                 .formato = "##,###,##0.00",
                 .alSalir = [this](Campo& suma) { compruebaImporte(suma, kMaximaSuma, "99,999,999"); }})},
      marcos_{nuevosMarcosDeBases()},
      bases_{nuevasBases()} {}

Campo& PensionFrm::nuevasHoras(std::string nombre, std::string rotulo) {
    return nuevo({.nombre = std::move(nombre),
                  .rotulo = std::move(rotulo),
                  .pantalla = kPeriodos,
                  .defecto = "0",
                  .filtro = TeclaNumero});
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

std::vector<Grupo*> PensionFrm::nuevosMarcosDeBases() {
    std::vector<Grupo*> marcos;
    for (int marco = 0; marco < kMarcos; ++marco) {
        marcos.push_back(&nuevoGrupo({.nombre = "JubiBases" + TextoPlano(marco + 1),
                                      .pantalla = kPrimerMarco + marco,
                                      .disposicion = Disposicion::Columnas,
                                      .columnas = kLineasPorMarco / kLineasPorColumna}));
    }
    return marcos;
}

std::vector<Campo*> PensionFrm::nuevasBases() {
    std::vector<Campo*> bases;
    bases.reserve(kLineasGuardadas);
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        const int marco = (i - 1) / kLineasPorMarco;
        bases.push_back(&nuevo({.nombre = "JubiBase",
                                .indice = i,
                                .pantalla = kPrimerMarco + marco,
                                .grupo = marcos_[static_cast<std::size_t>(marco)],
                                .defecto = "0",
                                .filtro = TeclaNumero,
                                .formato = kFormatoBase,
                                .alSalir = [this, i](Campo&) { dejaBase(i); },
                                .alEscribir = [this](Campo&) { BaseEditada_ = true; },
                                .anchura = 10}));
    }
    return bases;
}

// --- Panels

void PensionFrm::Inicia() {
    tablas_ = pensiones::IniciaPensiones(entorno().almacen);
    Calculadora::Inicia();
}

void PensionFrm::LimpiaDatos() {
    Calculadora::LimpiaDatos();
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

void PensionFrm::dejaBase(int i) {
    if (Cargando) return;
    CompruebaRango(JubiBase(i), "0", "999999", DatoMal, mensajes());
    if (DatoMal || i == serie_.MesesBases || !BaseEditada_) return;
    const int anio = anioDeBase(i);
    const int ultima = Menor(i + 12, serie_.MesesBases);
    for (int j = i + 1; j <= ultima; ++j) {
        if (anioDeBase(j) == anio) JubiBase(j).ponTexto(JubiBase(j - 1).texto());
    }
    BaseEditada_ = false;
}

// --- Series of bases

void PensionFrm::PreparaBasesJubilacion() {
    preparaSerie();
    proyectaBases();
}

void PensionFrm::preparaSerie() {
    const Fecha jubilacion = FechaDe(JubiFechaJub.texto());
    referencia_ = jubilacion::FechaReferencia(static_cast<Regimen>(JubiRegimen.indice() + 1), jubilacion,
                                              ultimosDias());
    serie_ = pensiones::SerieBasesDe(Anio(jubilacion));
    for (int marco = 1; marco <= kMarcos; ++marco) {
        marcos_[static_cast<std::size_t>(marco - 1)]->ponTitulo("Bases de cotización de los últimos " +
                                                                TextoPlano(serie_.MesesBases) + "  meses (" +
                                                                TextoPlano(marco) + ")");
    }
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        JubiBase(i).ponVisible(i <= serie_.MesesBases);
        if (i <= serie_.MesesBases) JubiBase(i).ponRotulo(rotuloDeBase(i));
    }
}

/// Estimates the months of 2005 and later from the present base. A month already filled is asked about, once;
/// one still empty is filled at once, and the filled ones after it are then filled too.
void PensionFrm::proyectaBases() {
    const double baseActual = DobleDe(JubiBaseActual.texto());
    if (baseActual == baseActualProyectada_) return;
    bool preguntado = false;
    bool recalcula = false;
    for (int i = 1; i <= serie_.MesesBases; ++i) {
        const int anios = anioDeBase(i) - kAnioDelPrograma;
        if (anios < 0) continue;
        if (DobleDe(JubiBase(i).texto()) == 0) {
            recalcula = true;
        } else if (!std::exchange(preguntado, true)) {
            recalcula = mensajes().Confirma("¿Recalcular bases futuras proyectadas?");
        }
        if (recalcula) {
            JubiBase(i).ponTexto(FormatoNumero(baseActual * std::pow(kSubidaAnual, anios), kTextoImporte));
        }
    }
    baseActualProyectada_ = baseActual;
}

std::string PensionFrm::rotuloDeBase(int i) const {
    const Fecha mes = pensiones::PrimeroDeMes(anioDeBase(i), MesDelMesAnterior(referencia_, i));
    return FormatoNumero(i, "0#") + ". " + FormatoFecha(mes, "mmm-yy");
}

int PensionFrm::anioDeBase(int i) const {
    return AnioDelMesAnterior(referencia_, i);
}

jubilacion::UltimosDias PensionFrm::ultimosDias() const {
    jubilacion::UltimosDias dias;
    for (std::size_t i = 0; i < dias.size(); ++i) dias[i] = periodos[i].JubiPerHasta.texto();
    return dias;
}

// --- Record

void PensionFrm::tomaCampos() {
    caso_.JubiNombre.asigna(Recorta(JubiNombre.texto()));
    caso_.JubiFechaNac = FechaDe(JubiFechaNac.texto());
    caso_.JubiFechaJub = FechaDe(JubiFechaJub.texto());
    caso_.JubiRegimen = static_cast<std::uint8_t>(JubiRegimen.indice());
    caso_.JubiConyuge = unoSi(JubiConyuge);
    caso_.JubiVoluntario = unoSi(JubiVoluntario);
    caso_.JubiNoImputable = unoSi(JubiNoImputable);
    tomaPeriodos();
    caso_.JubiBasesDesglosadas = unoSi(JubiBasesDesglosadas);
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        caso_.JubiBase[static_cast<std::size_t>(i - 1)] = DobleDe(JubiBase(i).texto());
    }
    caso_.JubiSumaBases = DobleDe(JubiSumaBases.texto());
    caso_.JubiBaseActual = DobleDe(JubiBaseActual.texto());
    caso_.JubiRedJor = DobleDe(JubiRedJor.texto());
    caso_.HorasTP = DobleDe(HorasTP.texto());
    caso_.HorasTP15 = DobleDe(HorasTP15.texto());
    caso_.marca.asigna("DP");
}

void PensionFrm::tomaPeriodos() {
    for (std::size_t i = 0; i < periodos.size(); ++i) {
        caso_.JubiPerDesde[i].asigna(Recorta(periodos[i].JubiPerDesde.texto()));
        caso_.JubiPerHasta[i].asigna(Recorta(periodos[i].JubiPerHasta.texto()));
        caso_.JubiPerEmpresa[i].asigna(Recorta(periodos[i].JubiPerEmpresa.texto()));
    }
}

void PensionFrm::cargaCampos() {
    JubiNombre.ponTexto(caso_.JubiNombre.utf8());
    JubiFechaNac.ponTexto(FormatoFecha(caso_.JubiFechaNac, kTextoFecha));
    JubiFechaJub.ponTexto(FormatoFecha(caso_.JubiFechaJub, kTextoFecha));
    JubiRegimen.ponIndice(caso_.JubiRegimen);
    JubiConyuge.ponMarcado(caso_.JubiConyuge == 1);
    JubiVoluntario.ponMarcado(caso_.JubiVoluntario == 1);
    JubiNoImputable.ponMarcado(caso_.JubiNoImputable == 1);
    cargaPeriodos();
    JubiBasesDesglosadas.ponMarcado(caso_.JubiBasesDesglosadas == 1);
    for (int i = 1; i <= kLineasGuardadas; ++i) {
        JubiBase(i).ponTexto(FormatoNumero(caso_.JubiBase[static_cast<std::size_t>(i - 1)], kTextoImporte));
    }
    JubiSumaBases.ponTexto(FormatoNumero(caso_.JubiSumaBases, kTextoImporte));
    JubiBaseActual.ponTexto(FormatoNumero(caso_.JubiBaseActual, kTextoImporte));
    JubiRedJor.ponTexto(TextoPlano(caso_.JubiRedJor));
    HorasTP.ponTexto(TextoPlano(caso_.HorasTP));
    HorasTP15.ponTexto(TextoPlano(caso_.HorasTP15));
}

void PensionFrm::cargaPeriodos() {
    for (std::size_t i = 0; i < periodos.size(); ++i) {
        periodos[i].JubiPerDesde.ponTexto(caso_.JubiPerDesde[i].utf8());
        periodos[i].JubiPerHasta.ponTexto(caso_.JubiPerHasta[i].utf8());
        periodos[i].JubiPerEmpresa.ponTexto(caso_.JubiPerEmpresa[i].utf8());
    }
}

void PensionFrm::trasCargar() {
    // Unchanged data must not offer a new projection.
    baseActualProyectada_ = DobleDe(JubiBaseActual.texto());
    BaseEditada_ = false;
    ajustaVisibles();
    preparaSerie();
}

}  // namespace orvemo
