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
                              rango("0", "99999999"), &Nacimiento))} {}

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

void FamiliarFrm::tomaCampos() {
    caso_.Nombre.asigna(Recorta(Nombre.texto()));
    caso_.Hijos = LeeEnteroRegional(Hijos.texto());
    caso_.HMin1 = LeeEnteroRegional(HMin1.texto());
    caso_.HMin2 = LeeEnteroRegional(HMin2.texto());
    caso_.HMin3 = LeeEnteroRegional(HMin3.texto());
    caso_.Ingresos = LeeNumeroRegional(Ingresos.texto());
    caso_.Ayuda = static_cast<std::int16_t>(Ayuda.indice());
    caso_.Ingresos2 = LeeNumeroRegional(Ingresos2.texto());
    caso_.HijosParto = LeeEnteroRegional(HijosParto.texto());
    caso_.TotalHijos = LeeEnteroRegional(TotalHijos.texto());
}

void FamiliarFrm::cargaCampos() {
    Nombre.ponTexto(caso_.Nombre.utf8());
    Hijos.ponTexto(TextoPlano(caso_.Hijos));
    HMin1.ponTexto(TextoPlano(caso_.HMin1));
    HMin2.ponTexto(TextoPlano(caso_.HMin2));
    HMin3.ponTexto(TextoPlano(caso_.HMin3));
    Ingresos.ponTexto(TextoPlano(caso_.Ingresos));
    Ayuda.ponIndice(Menor(Mayor(int{caso_.Ayuda}, 0), kIndiceNacimiento));
    Ingresos2.ponTexto(TextoPlano(caso_.Ingresos2));
    HijosParto.ponTexto(TextoPlano(caso_.HijosParto));
    TotalHijos.ponTexto(TextoPlano(caso_.TotalHijos));
}

/// The calculation looks at the fields themselves, and there a blank one counts 0.
void FamiliarFrm::calcula(Dictamen& dictamen) {
    familiar::RegistroFamiliar campos;
    campos.Hijos = EnteroDe(Hijos.texto());
    campos.HMin1 = EnteroDe(HMin1.texto());
    campos.HMin2 = EnteroDe(HMin2.texto());
    campos.HMin3 = EnteroDe(HMin3.texto());
    campos.Ingresos = DobleDe(Ingresos.texto());
    campos.Ayuda = static_cast<std::int16_t>(Ayuda.indice());
    campos.Ingresos2 = DobleDe(Ingresos2.texto());
    campos.HijosParto = EnteroDe(HijosParto.texto());
    campos.TotalHijos = EnteroDe(TotalHijos.texto());
    familiar::CalculaProteccionFamiliar(campos, dictamen);
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
