#include "tax/circunstancias.h"

#include <utility>

#include "foundations/values/numeros.h"

namespace orvemo::irpf {

namespace {

constexpr int kAnchoGrado = 22;  // characters
constexpr int kSi = 0;
constexpr int kPrimeraSituacion = 1;
constexpr int kGradoMayor = 2;  // the list begins with the highest degree, the record with the lowest

DefCampo importe(std::string nombre, std::string rotulo, int pantalla, Grupo* grupo) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .pantalla = pantalla,
            .grupo = grupo,
            .defecto = "0",
            .contenido = Contenido::Decimal,
            .formato = "##,###,##0.00"};
}

void ponSi(Campo& lista, bool si) {
    lista.ponIndice(si ? kSi : 1);
}

/// Chooses the entry, or none where the list has no such one.
void eligeSiEsta(Campo& lista, int entrada) {
    const int ultima = static_cast<int>(lista.opciones().size()) - 1;
    lista.ponIndice(EntreLimites(entrada, 0, ultima) ? entrada : -1);
}

}  // namespace

DefCampo siONo(std::string nombre, std::string rotulo, int pantalla, Grupo* grupo, Reaccion alCambiar) {
    return {.nombre = std::move(nombre),
            .rotulo = std::move(rotulo),
            .clase = Clase::Lista,
            .pantalla = pantalla,
            .grupo = grupo,
            .defecto = "1",
            .opciones = {"Sí", "No"},
            .alCambiar = std::move(alCambiar)};
}

bool dijoSi(const Campo& lista) {
    return lista.indice() == kSi;
}

void enlazaSi(Enlaces<DatosRetencion>& enlaces, Campo& lista, std::uint8_t DatosRetencion::*miembro) {
    enlaces.agrega([&lista, miembro](DatosRetencion& r) { r.*miembro = dijoSi(lista) ? 1 : 0; },
                   [&lista, miembro](const DatosRetencion& r) { ponSi(lista, r.*miembro == 1); });
}

void enlazaEntrada(Enlaces<DatosRetencion>& enlaces, Campo& lista, std::uint8_t DatosRetencion::*miembro,
                   int primero) {
    enlaces.agrega(
        [=, &lista](DatosRetencion& r) {
            if (lista.indice() >= 0) r.*miembro = static_cast<std::uint8_t>(lista.indice() + primero);
        },
        [=, &lista](const DatosRetencion& r) { eligeSiEsta(lista, r.*miembro - primero); });
}

Circunstancias::Circunstancias(const Declarador& declara, Grupo* importes, Grupo* persona, Grupo* familia)
    : Pension{declara.campo(importe("Pension", "Pensión Cónyuge:", declara.pantalla, importes))},
      Anualidades{declara.campo(importe("Anualidades", "Anualidades Hijos:", declara.pantalla, importes))},
      Discapacidad{declara.campo(
          siONo("Discapacidad", "Discapacidad:", declara.pantalla, persona, [this](Campo&) { ajusta(); }))},
      GradoDiscapacidad{
          declara.campo({.nombre = "GradoDiscapacidad",
                         .rotulo = "Grado de discapacidad:",
                         .clase = Clase::Lista,
                         .pantalla = declara.pantalla,
                         .grupo = persona,
                         .opciones = {"Mayor o igual que 65%",
                                      "Mayor o igual que 33% y menor que 65%, con necesidad de ayuda o "
                                      "movilidad reducida",
                                      "Mayor o igual a 33% y menor que 65%"},
                         .visible = false,
                         .anchura = kAnchoGrado})},
      CeutaMelilla{
          declara.campo(siONo("CeutaMelilla", "Rentas de Ceuta o Melilla:", declara.pantalla, persona))},
      Movil{declara.campo(siONo("Movil", "Movilidad geográfica:", declara.pantalla, persona))},
      Prolon{declara.campo(siONo("Prolon", "Prolonga la actividad laboral:", declara.pantalla, persona))},
      SituacionFamiliar{declara.campo(
          {.nombre = "SituacionFamiliar",
           .rotulo = "Situación familiar:",
           .clase = Clase::Opciones,
           .pantalla = declara.pantalla,
           .grupo = familia,
           .defecto = "2",
           .opciones = {
               "Soltero, viudo, divorciado o separado legalmente, con hijos menores de 18 años que convivan "
               "exclusivamente con Vd.",
               "Casado y no separado legalmente cuyo cónyuge no tiene rentas superiores a 1.500 €.",
               "Situación distinta a las anteriores o no desea manifestarla."}})} {}

void Circunstancias::ajusta() {
    GradoDiscapacidad.ponVisible(dijoSi(Discapacidad));
}

void Circunstancias::enlaza(Enlaces<DatosRetencion>& enlaces) {
    using D = DatosRetencion;
    enlaces.agrega([this](D& r) { r.Discapacidad = dijoSi(Discapacidad) ? 1 : 0; },
                   [this](const D& r) { ponSi(Discapacidad, r.Discapacidad != 0); });
    enlaces.agrega(
        [this](D& r) {
            const int grado = kGradoMayor - GradoDiscapacidad.indice();
            if (grado <= kGradoMayor) r.GradoDiscapacidad = static_cast<std::uint8_t>(grado);
        },
        [this](const D& r) { eligeSiEsta(GradoDiscapacidad, kGradoMayor - r.GradoDiscapacidad); });
    enlazaEntrada(enlaces, SituacionFamiliar, &D::SituacionFamiliar, kPrimeraSituacion);
    enlazaSi(enlaces, CeutaMelilla, &D::CeutaMelilla);
    enlaces.agrega(Pension, &D::Pension);
    enlaces.agrega(Anualidades, &D::Anualidades);
    enlazaSi(enlaces, Movil, &D::Movil);
    enlazaSi(enlaces, Prolon, &D::Prolon);
}

}  // namespace orvemo::irpf
