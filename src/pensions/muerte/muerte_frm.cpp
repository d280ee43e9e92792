#include "pensions/muerte/muerte_frm.h"

#include <string_view>
#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/fallos.h"
#include "foundations/values/numeros.h"
#include "pensions/comun/tablas_pensiones.h"
#include "pensions/muerte/muerte.h"
#include "pensions/muerte/muerte_base.h"

namespace orvemo {

namespace {

using muerte::RegistroMuerte;

constexpr std::string_view kQuienEsHuerfano =
    "Se debe cumplir que los hijos beneficiarios sean menores de 18 años o estén incapacitados para todo "
    "trabajo, con una incapacidad permanente absoluta o gran invalidez.\r\n"
    "No obstante, en los casos en que el hijo del causante no efectúe un trabajo lucrativo por cuenta ajena "
    "o propia, o cuando realizándolo, los ingresos que obtenga en cómputo anual resulten inferiores al 75 "
    "por 100 del salario mínimo interprofesional que se fije en cada momento, también en cómputo anual, "
    "podrá ser beneficiario de la pensión de orfandad siempre que, a la fecha del fallecimiento del "
    "causante, fuera menor de 22 años de edad, o de 24 años si no sobreviviera ninguno de los padres.";

constexpr std::string_view kQuienEsFamiliar =
    "Pueden ser beneficiarios de las prestaciones en favor de familiares los consaguíneos siguientes:\r\n"
    "- Los nietos y hermanos, húerfanos de padre o madre, que sean menores de 18 años o incapacitados "
    "absolutos para todo trabajo desde antes de cumplir dicha edad.\r\n"
    "No obstante, en los casos en que el nieto o hermano del causante no efectúe un trabajo lucrativo por "
    "cuenta ajena o propia, o cuando realizándolo, los ingresos que obtenga en cómputo anual resulten "
    "inferiores al 75 por 100 del salario mínimo interprofesional que se fije en cada momento, también en "
    "cómputo anual, se podrá ser beneficiario de la pensión en favor de familiares siempre que, a la fecha "
    "del fallecimiento del causante, fuera menor de 22 años de edad.";

constexpr int kAnchoOpciones = 40;  // characters of a line

/// A whole number up to a comma, that may be blank. Throws DesbordeNumerico for one that the record can't
/// hold.
template <typename Entero>
Entero lee(std::string_view texto) {
    const double numero = LeeNumero(texto);
    const auto entero = RedondeaPar(numero);
    if (!std::in_range<Entero>(entero)) throw DesbordeNumerico{numero};
    return static_cast<Entero>(entero);
}
constexpr Via<std::uint8_t> kCuenta{lee<std::uint8_t>,
                                    [](std::uint8_t valor) { return vias::escribeEntero(valor); }};
constexpr Via<std::int32_t> kHoras{lee<std::int32_t>, vias::escribeEntero};

std::string rotuloSalario(int situacion, int causa) {
    if (muerte::esta(situacion, muerte::kPensionistas)) {
        return "Base reguladora que sirvió para determinar la pensión:";
    }
    if (muerte::esta(causa, muerte::kCausasComunes)) {
        return "Suma de cotizaciones de 24 meses elegidos dentro de 15 años anteriores:";
    }
    return "Salario real del año anterior";
}

}  // namespace

// --- Declaration

MuerteFrm::MuerteFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "MUERTE Y SUPERVIVENCIA",
                   .caption = "Supuestos de Muerte - Orfandad - Ayudas a Familiares",
                   .fichero = "muerte.nom",
                   .primerLibre = 3,
                   .subtitulos = {"Datos del causante", "Supervivientes", "Periodos cotizados",
                                  "CONCLUSIONES SOBRE MUERTE Y SUPERVIVENCIA"},
                   .campoNombre = "MuerteNombre"}},
      MuerteNombre{nuevo({.nombre = "MuerteNombre", .rotulo = "Nombre completo:", .largo = 80})},
      MuerteFechaMuerte{nuevo(fechaElegida("MuerteFechaMuerte", "Fecha de fallecimiento del causante:"))},
      MuerteFechaPension{
          nuevo(alLado(fechaElegida("MuerteFechaPension", "Fecha de concesión de la pensión:")))},
      MuerteSituacion{nuevasOpciones("MuerteSituacion", "Situación del causante:",
                                     {muerte::kSituaciones.begin(), muerte::kSituaciones.end()}, false)},
      MuerteCausa{nuevasOpciones(
          "MuerteCausa", "Causa de la muerte:", {muerte::kCausas.begin(), muerte::kCausas.end()}, true)},
      MuerteUltimaBase{nuevo({.nombre = "MuerteUltimaBase",
                              .defecto = "0",
                              .contenido = Contenido::Decimal,
                              .formato = "###,###,##0.00"})},
      MuerteDejaViuda{nuevo({.nombre = "MuerteDejaViuda",
                             .rotulo = "Marque esta casilla en caso de dejar viuda(o):",
                             .clase = Clase::Casilla,
                             .pantalla = kSupervivientes,
                             .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      MuerteEdadViuda{nuevaCuenta("MuerteEdadViuda", "Edad del viudo(a):", "99")},
      MuerteVariosConyuges{nuevo({.nombre = "MuerteVariosConyuges",
                                  .rotulo = "Marque si hay más de un cónyuge:",
                                  .clase = Clase::Casilla,
                                  .pantalla = kSupervivientes})},
      MuerteHayCargas{nuevo({.nombre = "MuerteHayCargas",
                             .rotulo = "Marque si hay cargas y pensión único ingreso",
                             .clase = Clase::Casilla,
                             .pantalla = kSupervivientes})},
      MuerteHijos{nuevaCuenta("MuerteHijos", "Número de huérfanos con derecho a pensión:")},
      Observaciones{nuevaNota("Observaciones", "Quiénes son huérfanos", kQuienEsHuerfano)},
      MuerteFamiliares{nuevaCuenta("MuerteFamiliares", "Número de familiares con derecho a pensión:")},
      Observacion2{nuevaNota("Observacion2", "Quiénes son familiares", kQuienEsFamiliar)},
      MuerteFami2{nuevaCuenta("MuerteFami2", "Número de familiares con derecho a subsidio:")},
      MuerteFrmPer{*this,
                   {.prefijo = "Muerte",
                    .grupo = "MuerteFrmPer",
                    .titulo = "Periodos cotizados:",
                    .filas = muerte::kFilasPeriodos,
                    .pantalla = kPeriodos}},
      HorasTP{nuevo({.nombre = "HorasTP",
                     .rotulo = "Horas trabajadas al año en contrato a tiempo parcial:",
                     .pantalla = kPeriodos,
                     .defecto = "0",
                     .contenido = Contenido::Entero})} {
    enlazaCampos();
}

/// The two long lists stand side by side, each in a frame that bears its label.
Campo& MuerteFrm::nuevasOpciones(const char* nombre, const char* rotulo, std::vector<std::string> entradas,
                                 bool alLado) {
    Grupo& marco = nuevoGrupo(
        {.nombre = std::string{nombre} + "Frm", .titulo = rotulo, .pantalla = kDatos, .alLado = alLado});
    DefCampo def = opciones(nombre, rotulo, std::move(entradas), [this](Campo&) { ajustaVisibles(); });
    def.grupo = &marco;
    return nuevo(conAnchura(std::move(def), kAnchoOpciones));
}

Campo& MuerteFrm::nuevaCuenta(const char* nombre, const char* rotulo, const char* defecto) {
    return nuevo({.nombre = nombre,
                  .rotulo = rotulo,
                  .pantalla = kSupervivientes,
                  .defecto = defecto,
                  .largo = 3,
                  .contenido = Contenido::Entero});
}

Campo& MuerteFrm::nuevaNota(const char* nombre, const char* ayuda, std::string_view nota) {
    DefCampo def = interrogacion(nombre, ayuda, [this, nota](Campo&) { mensajes().Informa(nota); });
    def.pantalla = kSupervivientes;
    return nuevo(def);
}

void MuerteFrm::enlazaCampos() {
    using Caso = RegistroMuerte;
    enlaza(MuerteNombre, &Caso::MuerteNombre);
    enlaza(MuerteFechaMuerte, &Caso::MuerteFechaMuerte, vias::kFechaOCero);
    enlaza(MuerteFechaPension, &Caso::MuerteFechaPension, vias::kFechaOCero);
    enlaza(MuerteCausa, &Caso::MuerteCausa);
    enlaza(MuerteSituacion, &Caso::MuerteSituacion);
    enlaza(MuerteDejaViuda, &Caso::MuerteDejaViuda);
    enlaza(MuerteHayCargas, &Caso::MuerteHayCargas);
    enlaza(MuerteEdadViuda, &Caso::MuerteEdadViuda, kCuenta);
    enlaza(MuerteVariosConyuges, &Caso::MuerteVariosConyuges);
    enlaza(MuerteHijos, &Caso::MuerteHijos, kCuenta);
    enlaza(MuerteFamiliares, &Caso::MuerteFamiliares, kCuenta);
    enlaza(MuerteFami2, &Caso::MuerteFami2, kCuenta);
    enlaza(MuerteUltimaBase, &Caso::MuerteUltimaBase, vias::kImporteOCero);
    MuerteFrmPer.enlaza(enlaces(), &Caso::MuertePerDesde, &Caso::MuertePerHasta, &Caso::MuertePerEmpresa);
    enlaza(HorasTP, &Caso::HorasTP, kHoras);
}

// --- Panels

void MuerteFrm::Inicia() {
    // The death reads no month of the tables, but no pension opens with a bad price index.
    static_cast<void>(pensiones::IniciaPensiones(entorno().almacen));
    AsistenteDe::Inicia();
}

void MuerteFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    ajustaVisibles();
}

bool MuerteFrm::ValidaPantalla() {
    return PantallaActual() != kPeriodos || MuerteFrmPer.valida();
}

void MuerteFrm::calcula(Dictamen& dictamen) {
    muerte::MuerteCalcula(caso_, dictamen);
}

bool MuerteFrm::pidePeriodos() const {
    return muerte::exigePeriodos(situacion(), causa());
}

int MuerteFrm::pantallaSiguiente(int pantalla) const {
    if (pantalla == kSupervivientes && !pidePeriodos()) return kConclusiones;
    return pantalla + 1;
}

int MuerteFrm::pantallaAnterior(int pantalla) const {
    if (pantalla == kConclusiones && !pidePeriodos()) return kSupervivientes;
    return pantalla - 1;
}

// --- Reactions

void MuerteFrm::ajustaVisibles() {
    MuerteFechaPension.ponVisible(muerte::esta(situacion(), muerte::kPensionistas));
    MuerteUltimaBase.ponRotulo(rotuloSalario(situacion(), causa()));
    MuerteEdadViuda.ponVisible(MuerteDejaViuda.marcado());
    MuerteVariosConyuges.ponVisible(MuerteDejaViuda.marcado());
    MuerteHayCargas.ponVisible(MuerteDejaViuda.marcado());
    MuerteFrmPer.grupo().ponVisible(pidePeriodos());
    HorasTP.ponVisible(pidePeriodos() && situacion() == muerte::kTiempoParcial);
}

}  // namespace orvemo
