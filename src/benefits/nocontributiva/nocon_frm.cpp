#include "benefits/nocontributiva/nocon_frm.h"

#include "benefits/nocontributiva/nocontributiva.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

constexpr int kEdadDeJubilacion = 65;

}  // namespace

NoConFrm::NoConFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "JUBILACIÓN E INVALIDEZ NO CONTRIBUTIVAS",
                   .caption = "Jubilación e invalidez no contributivas",
                   .fichero = "nocont.nom",
                   .primerLibre = 2,
                   .subtitulos = {"Datos del solicitante", "CONCLUSIONES SOBRE LA PENSIÓN NO CONTRIBUTIVA"}}},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      FechaNac{nuevo(fechaElegida("FechaNac", "Fecha de nacimiento:"))},
      Estancia{nuevo(entero("Estancia", "Años de estancia en España (desde los 16 años):", rango("0", "99"),
                            nullptr, "10"))},
      NumMiembros{nuevo(entero(
          "NumMiembros", "Nº de miembros que componen la unidad familiar:", rango("0", "99"), nullptr, "1"))},
      NumBenef{nuevo(entero(
          "NumBenef", "Nº de beneficiarios de la pensión no contributiva:", rango("0", "99"), nullptr, "1"))},
      Renta{nuevo(decimal("Renta", "Renta ANUAL del que solicita la pensión:", rango("0", "99999999")))},
      RenBene{nuevo(decimal(
          "RenBene", "Renta ANUAL del conjunto de Beneficiarios (incluido este):", rango("0", "99999999")))},
      RGlobal{nuevo(decimal("RGlobal", "Renta Global ANUAL de la Unidad Familiar:", rango("0", "99999999")))},
      Minusvalia{nuevo(casilla("Minusvalia", "Tiene minusvalía mayor o igual a 65%"))},
      Convive{nuevo(casilla("Convive", "Convive con hijos o padres"))} {
    nuevo({.nombre = "Nota",
           .rotulo = "(Como integrantes de la unidad familiar se consideran el cónyuge, los abuelos, padres, "
                     "hijos, nietos y hermanos (no otros parientes)",
           .clase = Clase::Etiqueta});
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(FechaNac, &Caso::FechaNac);
    enlaza(Estancia, &Caso::Estancia);
    enlaza(NumMiembros, &Caso::NumMiembros);
    enlaza(NumBenef, &Caso::NumBenef);
    enlaza(Renta, &Caso::Renta, vias::kNumero);
    enlaza(RenBene, &Caso::RenBene, vias::kNumero);
    enlaza(RGlobal, &Caso::RGlobal, vias::kNumero);
    enlaza(Convive, &Caso::Convive);
    enlaza(Minusvalia, &Caso::Minusvalia);
}

void NoConFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    FechaNac.ponTexto(FormatoFecha(SumaFecha(Intervalo::Anio, -kEdadDeJubilacion, hoy()), "dd-mm-yyyy"));
}

void NoConFrm::calcula(Dictamen& dictamen) {
    nocontributiva::CalculaNoContributiva(caso_, hoy(), dictamen);
}

void NoConFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    constexpr const char* kCuenta = "##0";
    constexpr const char* kImporte = "##,###,##0.00";
    Informe informe{rutinas, "PENSIONES NO CONTRIBUTIVAS"};
    lineaNombre(informe, Nombre);
    informe.linea("Estancia en España (años): " + Estancia.texto());
    informe.linea("Número de miembros de la unidad familiar: " + numeroDe(NumMiembros, kCuenta));
    informe.linea("Número de beneficiarios de pensiones no contributivas: " + numeroDe(NumBenef, kCuenta));
    if (Convive.marcado()) informe.linea("Convive con abuelos, hijos, etc.");
    informe.linea("Renta ANUAL del que solicita la pensión " + numeroDe(Renta, kImporte) + " €");
    informe.linea("Renta ANUAL del conjunto de Beneficiarios (incluido este) " + numeroDe(RenBene, kImporte) +
                  " €");
    informe.linea("Renta GLOBAL ANUAL de la unidad familiar " + numeroDe(RGlobal, kImporte) + " €");
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
