#include "capital/capitalizacion/capit_frm.h"

#include "capital/capitalizacion/beneficiarios.h"
#include "capital/capitalizacion/capitalizacion.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/json.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

using capital::kCausas;
using capital::kPapeles;
using capital::TipoBeneficiarios;

constexpr const char* kTope = "99999999";  // euros or days
constexpr const char* kPatronFecha = "dd-MM-yyyy";
/// A blank field is a marriage without days.
constexpr Via<std::int32_t> kDias{[](std::string_view dias) { return EnteroDe(dias); }, vias::escribeEntero};

std::vector<std::string> textosDePapeles() {
    std::vector<std::string> textos;
    textos.reserve(kPapeles.size());
    for (const TipoBeneficiarios& papel : kPapeles) textos.emplace_back(papel.texto);
    return textos;
}

}  // namespace

CapitFrm::CapitFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "CAPITALIZACION DE PENSIONES",
                   .caption = "Capitalización de pensiones",
                   .fichero = "Capit.nom",
                   .primerLibre = 9,
                   .subtitulos = {"Datos del solicitante",
                                  "CONCLUSIONES SOBRE CAPITALIZACION DE PENSIONES"}}},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      Situacion{nuevo(lista("Situacion", "Causa de la pensión:", {kCausas.begin(), kCausas.end()},
                            [this](Campo&) { AjustaPantalla(); }))},
      Papel{nuevo(lista("Papel", "Tipo de beneficiario(s):", textosDePapeles(),
                        [this](Campo&) { AjustaPantalla(); }))},
      Capital{nuevo(decimal("Capital", "Base Reguladora:", rango("0", kTope)))},
      Dias1{nuevo(entero("Dias1", "Días casado con el/la primer/a viudo/a:", rango("0", kTope)))},
      Dias2{nuevo(alLado(entero("Dias2", "Días segundo/a:", rango("0", kTope))))},
      fConce{nuevo(fechaElegida("fConce", "Fecha del accidente:"))},
      fCapi{nuevo(fechaElegida("fCapi", "Fecha de declaración de la invalidez:"))},
      Edad{nuevo(fechaElegida("Edad", "Fecha de nacimiento del primer viudo/a:"))},
      EdadB{nuevo(alLado(fechaElegida("EdadB", "Del segundo/a:")))},
      Edad1{nuevo(fechaElegida("Edad1", "Fecha de nacimiento del Primer beneficiario:"))},
      Edad2{nuevo(fechaElegida("Edad2", "Fecha de nacimiento del Segundo beneficiario:"))},
      Edad3{nuevo(fechaElegida("Edad3", "Fecha de nacimiento del Tercer beneficiario:"))} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Situacion, &Caso::Situacion);
    enlaza(Capital, &Caso::Capital, vias::kImporteOCero);
    enlaza(Edad, &Caso::Edad);
    enlaza(EdadB, &Caso::EdadB);
    enlaza(Dias1, &Caso::Dias1, kDias);
    enlaza(Dias2, &Caso::Dias2, kDias);
    enlaza(Edad1, &Caso::Edad1);
    enlaza(Edad2, &Caso::Edad2);
    enlaza(Edad3, &Caso::Edad3);
    enlaza(fConce, &Caso::fConce);
    enlaza(fCapi, &Caso::fCapi);
}

// --- Reactions ---

bool CapitFrm::esMuerte() const {
    return Situacion.indice() == capital::kMuerte;
}

void CapitFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    AjustaPantalla();
}

void CapitFrm::AjustaPantalla() {
    const bool muerte = esMuerte();
    const TipoBeneficiarios& papel = kPapeles.at(static_cast<std::size_t>(Papel.indice()));
    Papel.ponVisible(muerte);
    for (Campo* dias : {&Dias1, &Dias2}) dias->ponVisible(muerte && papel.dias);
    fConce.ponRotulo(muerte ? "Fecha de reconocimiento de la pensión" : "Fecha del accidente:");
    fCapi.ponVisible(!muerte);
    Edad.ponRotulo(muerte ? "Fecha de nacimiento del viudo/a:" : "Fecha de nacimiento del beneficiario:");
    Edad.ponVisible(!muerte || papel.viudos);
    EdadB.ponVisible(muerte && papel.viudos);
    Edad1.ponVisible(muerte && papel.hijos >= 1);
    Edad2.ponVisible(muerte && papel.hijos >= 2);
    Edad3.ponVisible(muerte && papel.hijos >= 3);
}

// --- Case ---

void CapitFrm::preparaCaso() {
    DatosTomaPantalla();
    if (esMuerte()) return;
    // An invalid is kept as the second beneficiary too.
    Edad2.ponTexto(Edad.texto());
    caso_.Edad2 = caso_.Edad;
}

void CapitFrm::calcula(Dictamen& dictamen) {
    CapitalCoste_ =
        capital::CalculaCapital(caso_, Papel.indice(), Capital.texto(), entorno().almacen, dictamen);
}

void CapitFrm::agregaResultados(std::string& json) const {
    AgregaCampoJson(json, "capital_coste", CapitalCoste_);
}

// --- Report ---

void CapitFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "CAPITALIZACION DE PENSIONES"};
    lineaNombre(informe, Nombre);
    informe.linea("Causa de la pensión: " + Situacion.texto());
    informe.linea("Base Reguladora: " + numeroDe(Capital, "###,###,##0.00"));
    if (esMuerte()) {
        informe.linea("Beneficiarios: " + Papel.texto());
        for (const Campo* nacimiento : {&Edad, &EdadB, &Edad1, &Edad2, &Edad3}) {
            lineaSiSeVe(informe, *nacimiento, " " + fechaDe(*nacimiento, kPatronFecha));
        }
    }
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
