#include "benefits/familiar/familiar_frm.h"

#include "benefits/familiar/proteccion_familiar.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

namespace {

constexpr int kIndiceNacimiento = 1;

}  // namespace

FamiliarFrm::FamiliarFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "PRESTACIONES FAMILIARES NO CONTRIBUTIVAS",
                   .caption = "Prestaciones familiares no contributivas",
                   .fichero = "Familiar.nom",
                   .subtitulos = {"Datos del solicitante",
                                  "CONCLUSIONES SOBRE PRESTACION POR HIJO A CARGO"}}},
      HijosACargo{nuevoGrupo({.nombre = "Supuestos0"})},
      Nacimiento{nuevoGrupo({.nombre = "Supuestos1", .visible = false})},
      Nombre{nuevo(texto("Nombre", "Nombre completo:"))},
      Ayuda{nuevo(lista("Ayuda", "Tipo de prestación solicitada:",
                        {"1. Prestación por hijo a cargo", "2. Prestación por nacimiento de hijo(s)"},
                        [this](Campo&) { ajustaSupuestos(); }))},
      Hijos{nuevo(entero("Hijos", "Número de hijos no minusválidos:", rango("0", "20"), &HijosACargo))},
      HMin1{nuevo(entero("HMin1", "Nº de hijos MAYORES de 18 años con grado de minusvalía superior a 75%: ",
                         rango("0", "20"), &HijosACargo))},
      HMin2{nuevo(entero("HMin2", "Nº de hijos MAYORES de 18 años con grado de minusvalía superior a 65%: ",
                         rango("0", "20"), &HijosACargo))},
      HMin3{nuevo(entero("HMin3", "Nº de hijos MENORES de 18 años con grado de minusvalía superior a 33%:",
                         rango("0", "20"), &HijosACargo))},
      Ingresos{nuevo(decimal("Ingresos", "Ingresos totales anuales:", rango("0", "99999999"), &HijosACargo))},
      HijosParto{nuevo(entero(
          "HijosParto", "Número de hijos habidos en el parto:",
          [this](Campo& campo) { compruebaHijosParto(campo); }, &Nacimiento))},
      TotalHijos{nuevo(entero(
          "TotalHijos", "Número total  de hijos (incluidos los habidos en el parto):",
          [this](Campo& campo) { compruebaTotalHijos(campo); }, &Nacimiento))},
      Ingresos2{nuevo(decimal("Ingresos2", "Ingresos totales anuales de la unidad familiar:",
                              rango("0", "99999999"), &Nacimiento))} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Hijos, &Caso::Hijos);
    enlaza(HMin1, &Caso::HMin1);
    enlaza(HMin2, &Caso::HMin2);
    enlaza(HMin3, &Caso::HMin3);
    enlaza(Ingresos, &Caso::Ingresos, vias::kNumero);
    enlaza(
        [this](Caso& caso) { caso.Ayuda = static_cast<std::int16_t>(Ayuda.indice()); },
        [this](const Caso& caso) { Ayuda.ponIndice(Menor(Mayor(int{caso.Ayuda}, 0), kIndiceNacimiento)); });
    enlaza(Ingresos2, &Caso::Ingresos2, vias::kNumero);
    enlaza(HijosParto, &Caso::HijosParto);
    enlaza(TotalHijos, &Caso::TotalHijos);
}

bool FamiliarFrm::esNacimiento() const {
    return Ayuda.indice() == kIndiceNacimiento;
}

void FamiliarFrm::ajustaSupuestos() {
    HijosACargo.ponVisible(!esNacimiento());
    Nacimiento.ponVisible(esNacimiento());
}

void FamiliarFrm::compruebaHijosParto(Campo& campo) {
    CompruebaRango(campo, esNacimiento() ? "1" : "2", "10", DatoMal, mensajes());
}

void FamiliarFrm::compruebaTotalHijos(Campo& campo) {
    CompruebaRango(campo, HijosParto.texto(), "20", DatoMal, mensajes());
}

std::string FamiliarFrm::subtituloDe(int pantalla) const {
    if (pantalla == ultimaPantalla() && esNacimiento()) {
        return "CONCLUSIONES SOBRE PRESTACION POR NACIMIENTO DE HIJO(S)";
    }
    return AsistenteDe::subtituloDe(pantalla);
}

void FamiliarFrm::LimpiaDatos() {
    AsistenteDe::LimpiaDatos();
    ajustaSupuestos();
}

/// The calculation looks at the fields and not at the case: there a blank one counts 0.
void FamiliarFrm::preparaCaso() {
    aLaVista_.Hijos = EnteroDe(Hijos.texto());
    aLaVista_.HMin1 = EnteroDe(HMin1.texto());
    aLaVista_.HMin2 = EnteroDe(HMin2.texto());
    aLaVista_.HMin3 = EnteroDe(HMin3.texto());
    aLaVista_.Ingresos = DobleDe(Ingresos.texto());
    aLaVista_.Ayuda = static_cast<std::int16_t>(Ayuda.indice());
    aLaVista_.Ingresos2 = DobleDe(Ingresos2.texto());
    aLaVista_.HijosParto = EnteroDe(HijosParto.texto());
    aLaVista_.TotalHijos = EnteroDe(TotalHijos.texto());
}

void FamiliarFrm::calcula(Dictamen& dictamen) {
    familiar::CalculaProteccionFamiliar(aLaVista_, dictamen);
}

void FamiliarFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    // The income printed is that of the dependent children on both roads.
    const std::string ingresos = "Ingresos totales anuales: " + numeroDe(Ingresos, "##,###,##0");
    Informe informe{rutinas, "PROTECCION FAMILIAR"};
    lineaNombre(informe, Nombre);
    if (esNacimiento()) {
        informe.linea("Número de nacimientos habidos: " + HijosParto.texto());
        informe.linea("Nº total de hijos: " + TotalHijos.texto());
    } else {
        informe.linea("Número de hijos: " + Hijos.texto());
        informe.linea("Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 75%: " +
                      HMin1.texto());
        informe.linea("Número de hijos MAYORES de 18 años con grado de minsuvalía superior a 65%: " +
                      HMin2.texto());
        informe.linea("Número de hijos MENORES de 18 años con grado de minsuvalía superior a 33%: " +
                      HMin3.texto());
    }
    informe.linea(ingresos);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
