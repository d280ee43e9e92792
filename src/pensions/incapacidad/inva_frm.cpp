#include "pensions/incapacidad/inva_frm.h"

#include <algorithm>
#include <iterator>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/incapacidad/incapacidad.h"
#include "tax/liquidos_frm.h"

namespace orvemo {

namespace {

using incapacidad::Causa;
using incapacidad::Grado;
using incapacidad::kFilasPeriodos;
using incapacidad::kLineasBases;
using incapacidad::RegistroIncapacidad;

constexpr const char* kFormatoImporte = "###,###,##0.00";

/// Hours, whole; a blank field has none. Throws TextoIlegible, DesbordeNumerico.
constexpr Via<std::int32_t> kHoras{
    [](std::string_view texto) { return EsVacio(texto) ? 0 : LeeEnteroRegional(texto); },
    vias::escribeEntero};

template <typename Entrada>
Entrada elegida(const Campo& lista) {
    return static_cast<Entrada>(lista.indice() + 1);
}

}  // namespace

// --- Declaration

InvaFrm::InvaFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "INCAPACIDAD PERMANENTE",
                   .caption = "Cálculo de pensiones de incapacidad permanente",
                   .fichero = "invalid.nom",
                   .subtitulos = {"Datos del solicitante", "Periodos cotizados", "Bases de cotización",
                                  "Bases de cotización de los últimos 96 meses (1)",
                                  "Bases de cotización de los últimos 96 meses (2)",
                                  "CONCLUSIONES SOBRE INCAPACIDAD PERMANENTE"},
                   .campoNombre = "InvaNombre"}},
      InvaNombre{nuevo({.nombre = "InvaNombre", .rotulo = "Nombre completo:", .largo = 80})},
      InvaFechaNac{nuevo(fechaElegida("InvaFechaNac", "Fecha de nacimiento:"))},
      InvaFechaInv{nuevo(fechaElegida(
          "InvaFechaInv", "Fecha del dictamen médico  (o de solicitud de pensión, si es baja): "))},
      InvaInvalidez{nuevaLista("InvaInvalidez", "Grado de la incapacidad:", incapacidad::kGrados)},
      InvaCausa{nuevaLista("InvaCausa", "Causa de la incapacidad:", incapacidad::kCausas)},
      InvaRegimen{nuevo(lista("InvaRegimen", "Régimen de la Seg.Social:",
                              {incapacidad::kRegimenes.begin(), incapacidad::kRegimenes.end()}))},
      InvaAltaSS{nuevo(casilla("InvaAltaSS",
                               "Se encuentra en alta o situación asimilada a alta en la Seguridad Social:",
                               [this](Campo&) { ajustaVisibles(); }))},
      InvaConyuge{nuevo(casilla("InvaConyuge", "Tiene cónyuge que mantener"))},
      InvaPersona{nuevo(casilla("InvaPersona", "Tiene que remunerar una persona para atenderle:"))},
      InvaRecargo{nuevo(casilla(
          "InvaRecargo",
          "Marque esta casilla si la lesión fué producida por maquinaria, artefactos, etc... que carecieran "
          "de los dispositivos de precaución reglamentarios:"))},
      InvaUltimaBase{nuevo({.nombre = "InvaUltimaBase",
                            .defecto = "0",
                            .contenido = Contenido::Decimal,
                            .formato = kFormatoImporte})},
      InvaCalcularSalario{nuevo({.nombre = "InvaCalcularSalario",
                                 .rotulo = "&Obtener Salario Anual",
                                 .clase = Clase::Boton,
                                 .alPulsar = [this](Campo&) { calculaSalario(); }})},
      InvaFrmPer{*this,
                 {.prefijo = "Inva", .grupo = "InvaFrmPer", .filas = kFilasPeriodos, .pantalla = kPeriodos}},
      HorasTP{nuevasHoras("HorasTP", "Total de Horas cotizadas en contratos a tiempo parcial:")},
      HorasTP10{nuevasHoras("HorasTP10", "Total Horas cotizadas en los últimos 10 años en T.P.:")},
      InvaBasesDesglosadas{nuevo({.nombre = "InvaBasesDesglosadas",
                                  .rotulo = "Introducir las bases de cotización una a una",
                                  .clase = Clase::Casilla,
                                  .pantalla = kModoBases,
                                  .alCambiar = [this](Campo&) { ajustaVisibles(); }})},
      InvaSumaBases{nuevo({.nombre = "InvaSumaBases",
                           .pantalla = kModoBases,
                           .defecto = "0",
                           .contenido = Contenido::Decimal,
                           .formato = kFormatoImporte})},
      bases_{*this,
             {.nombre = "InvaBase",
              .marco = "InvaBases",
              .lineas = kLineasBases,
              .primeraPantalla = kPrimerMarco}} {
    ponPanel(kDatos, {.denso = true});
    enlazaCampos();
}

Campo& InvaFrm::nuevaLista(const char* nombre, const char* rotulo,
                           std::span<const std::string_view> entradas) {
    return nuevo(
        opciones(nombre, rotulo, {entradas.begin(), entradas.end()}, [this](Campo&) { ajustaVisibles(); }));
}

Campo& InvaFrm::nuevasHoras(const char* nombre, const char* rotulo) {
    return nuevo({.nombre = nombre,
                  .rotulo = rotulo,
                  .pantalla = kPeriodos,
                  .defecto = "0",
                  .contenido = Contenido::Entero});
}

void InvaFrm::enlazaCampos() {
    using Caso = RegistroIncapacidad;
    enlaza(InvaNombre, &Caso::InvaNombre);
    enlaza(InvaFechaNac, &Caso::InvaFechaNac, vias::kFechaOCero);
    enlaza(InvaFechaInv, &Caso::InvaFechaInv, vias::kFechaOCero);
    enlaza(InvaInvalidez, &Caso::InvaInvalidez);
    enlaza(InvaCausa, &Caso::InvaCausa);
    enlaza(InvaRegimen, &Caso::InvaRegimen);
    enlaza(InvaConyuge, &Caso::InvaConyuge);
    enlaza(InvaUltimaBase, &Caso::InvaUltimaBase, vias::kImporteOCero);
    enlaza(InvaRecargo, &Caso::InvaRecargo);
    enlaza(InvaAltaSS, &Caso::InvaAltaSS);
    enlaza(InvaPersona, &Caso::InvaPersona);
    InvaFrmPer.enlaza(enlaces(), &Caso::InvaPerDesde, &Caso::InvaPerHasta, &Caso::InvaPerEmpresa);
    enlaza(InvaBasesDesglosadas, &Caso::InvaBasesDesglosadas);
    bases_.enlaza(enlaces(), &Caso::InvaBase);
    enlaza(InvaSumaBases, &Caso::InvaSumaBases, vias::kImporteOCero);
    enlaza(HorasTP, &Caso::HorasTP, kHoras);
    enlaza(HorasTP10, &Caso::HorasTP10, kHoras);
}

// --- Panels

void InvaFrm::Inicia() {
    tablas_ = pensiones::IniciaPensiones(entorno().almacen);
    AsistenteDe::Inicia();
}

void InvaFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    bases_.olvida();
    ajustaVisibles();
}

void InvaFrm::trasCargar() {
    bases_.olvida();
    ajustaVisibles();
}

bool InvaFrm::ValidaPantalla() {
    return PantallaActual() != kPeriodos || InvaFrmPer.valida();
}

void InvaFrm::dejaPantalla(int pantalla) {
    if (pantalla == kDatos) ajustaVisibles();
}

void InvaFrm::calcula(Dictamen& dictamen) {
    incapacidad::InvaCalcula(caso_, tablas_.value(), dictamen);
}

/// The panels of the case, in order: what is not asked for has none.
std::vector<int> InvaFrm::recorrido() const {
    std::vector<int> pantallas{kDatos};
    if (lecturas().periodos) pantallas.push_back(kPeriodos);
    if (lecturas().bases) {
        pantallas.push_back(kModoBases);
        const int marcos = InvaBasesDesglosadas.marcado() ? bases_.pantallas() : 0;
        for (int marco = 0; marco < marcos; ++marco) pantallas.push_back(kPrimerMarco + marco);
    }
    pantallas.push_back(kConclusiones);
    return pantallas;
}

int InvaFrm::pantallaSiguiente(int pantalla) const {
    const auto pantallas = recorrido();
    return *std::ranges::upper_bound(pantallas, pantalla);
}

int InvaFrm::pantallaAnterior(int pantalla) const {
    const auto pantallas = recorrido();
    return *std::prev(std::ranges::lower_bound(pantallas, pantalla));
}

// --- Reactions

incapacidad::Lecturas InvaFrm::lecturas() const {
    return incapacidad::LecturasDe(elegida<Grado>(InvaInvalidez), elegida<Causa>(InvaCausa),
                                   InvaAltaSS.marcado());
}

void InvaFrm::ajustaVisibles() {
    const incapacidad::Lecturas lee = lecturas();
    InvaAltaSS.ponVisible(lee.alta);
    InvaConyuge.ponVisible(lee.conyuge);
    InvaPersona.ponVisible(lee.persona);
    InvaUltimaBase.ponVisible(lee.ultimaBase);
    InvaUltimaBase.ponRotulo(
        std::string{incapacidad::RotuloUltimaBase(elegida<Grado>(InvaInvalidez), elegida<Causa>(InvaCausa))});
    InvaCalcularSalario.ponVisible(lee.ultimaBase && elegida<Grado>(InvaInvalidez) != Grado::Parcial &&
                                   elegida<Causa>(InvaCausa) == Causa::Profesional);
    InvaFrmPer.grupo().ponVisible(lee.periodos);
    HorasTP.ponVisible(lee.periodos);
    HorasTP10.ponVisible(lee.periodos);
    InvaBasesDesglosadas.ponVisible(lee.bases);
    InvaSumaBases.ponVisible(lee.bases && !InvaBasesDesglosadas.marcado());
    InvaSumaBases.ponRotulo("Suma ponderada de las bases de cotización de los últimos " +
                            TextoPlano(InvaMinimoBases()) + " meses");
}

/// A template for who knows the net pay alone: the salary that it shows is written on the field by hand.
void InvaFrm::calculaSalario() {
    LiquidosFrm plantilla{entorno()};
    abreModal(plantilla);
}

int InvaFrm::InvaMinimoBases() {
    RegistroIncapacidad provisional;
    provisional.InvaFechaNac = FechaDe(InvaFechaNac.texto());
    provisional.InvaFechaInv = FechaDe(InvaFechaInv.texto());
    provisional.InvaCausa = static_cast<std::uint8_t>(InvaCausa.indice());
    provisional.InvaAltaSS = InvaAltaSS.marcado() ? 1 : 0;
    const int meses = Mayor(0, incapacidad::InvaMinimoBases(incapacidad::Expediente{provisional}));
    bases_.prepara(provisional.InvaFechaInv, meses, pensiones::LineasBases::Rotulo::MesYAnio);
    return meses;
}

}  // namespace orvemo
