#include "benefits/desempleo/desemp_frm.h"

#include "benefits/desempleo/desempleo.h"
#include "foundations/frame/datos_informe.h"
#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"

namespace orvemo {

DesempFrm::DesempFrm(Entorno& entorno)
    : AsistenteDe{entorno,
                  {.titulo = "PRESTACIONES DE DESEMPLEO",
                   .caption = "Prestaciones de desempleo",
                   .fichero = "desemp.nom",
                   .subtitulos = {"Datos del solicitante", "CONCLUSIONES SOBRE PRESTACION DE DESEMPLEO"}}},
      Nombre{nuevo({.nombre = "Nombre", .rotulo = "Nombre completo:", .largo = 50})},
      Edad{nuevo(entero("Edad", "Edad del solicitante:", rango("1", "99")))},
      Fecha{nuevo(fechaElegida("Fecha", "Fecha de solicitud:"))},
      fIni{nuevo(fechaElegida("fIni", "Fecha de inicio de la situación:"))},
      Suma{nuevo(decimal("Suma", "Suma de cotizaciones de los últimos 180 días:", rango("0", "999999")))},
      Dias{nuevo(entero("Dias", "Días cotizados en los 6 años anteriores:", rango("0", "9999")))},
      Hijos{nuevo(entero("Hijos", "Número de hijos menores de 26 años o minusválidos:", rango("0", "20")))},
      Parcial{nuevo(casilla("Parcial", "Marque si es contrato a tiempo parcial ",
                            [this](Campo& parcial) { Horas.ponVisible(parcial.marcado()); }))},
      Horas{nuevo({.nombre = "Horas",
                   .rotulo = "Horas reales trabajadas durante la semana (1 a 39 horas):",
                   .defecto = "0",
                   .contenido = Contenido::Entero,
                   .alSalir = rango("1", "39"),
                   .visible = false})} {
    // In the order of the record: a text that can't be read stops the copy there.
    using Caso = RegistroDelCaso;
    enlaza(Nombre, &Caso::Nombre);
    enlaza(Edad, &Caso::Edad);
    enlaza(Fecha, &Caso::Fecha_);
    enlaza(fIni, &Caso::fIni);
    enlaza(Suma, &Caso::Suma, vias::kImporteOCero);
    enlaza(Dias, &Caso::Dias);
    enlaza(Hijos, &Caso::Hijos);
    enlaza(Horas, &Caso::Horas);
    enlaza(Parcial, &Caso::Parcial);
}

void DesempFrm::calcula(Dictamen& dictamen) {
    desempleo::CalculaDesempleo(caso_, dictamen);
}

void DesempFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "DESEMPLEO"};
    lineaNombre(informe, Nombre);
    informe.linea("Edad: " + Edad.texto());
    informe.linea("Fecha de solicitud: " + fechaDe(Fecha, "dd-mmm-yyyy"));
    informe.linea("Fecha de inicio de la situación: " + fechaDe(fIni, "dd-mmm-yyyy"));
    informe.linea("Suma de cotizaciones de los últimos 180 días: " + numeroDe(Suma, "##,###,##0.00") + "€");
    informe.linea("Número de hijos menores de 26 años o minusválidos: " + Hijos.texto());
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

}  // namespace orvemo
