#include "foundations/frame/datos_informe.h"
#include "foundations/values/formatos.h"
#include "pensions/incapacidad/inva_frm.h"

namespace orvemo {

namespace {

constexpr const char* kPatronFecha = "dd-mm-yyyy";
constexpr const char* kPatronImporte = "###,###,##0.00";

}  // namespace

void InvaFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "INCAPACIDAD PERMANENTE"};
    lineaNombre(informe, InvaNombre);
    informe.linea("Fecha de nacimiento del solicitante: " + fechaDe(InvaFechaNac, kPatronFecha));
    informe.linea("Fecha del dictamen médico (o de solicitud de pensión, si es baja): " +
                  fechaDe(InvaFechaInv, kPatronFecha));
    informe.linea("Grado de la incapacidad: " + InvaInvalidez.texto());
    informe.linea("Causa de la incapacidad: " + InvaCausa.texto());
    informe.linea("Régimen de la Seguridad Social: " + InvaRegimen.texto());
    imprimeMarcas(informe);
    if (InvaFrmPer.grupo().visible()) {
        informe.linea("$SPeriodos cotizados:$s");
        InvaFrmPer.imprime(informe);
    }
    if (InvaBasesDesglosadas.visible()) imprimeBases(informe);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

void InvaFrm::imprimeMarcas(Informe& informe) const {
    lineaSiSeVe(informe, InvaAltaSS,
                std::string{InvaAltaSS.marcado() ? "Está" : "$SNo$s está"} +
                    " en alta o asimilado a alta en la Seguridad Social");
    lineaSiSeVe(informe, InvaConyuge,
                std::string{InvaConyuge.marcado() ? "$STiene$s" : "$SNo$s tiene"} + " cónyuge que mantener");
    lineaSiSeVe(informe, InvaUltimaBase,
                InvaUltimaBase.rotulo() + " " + numeroDe(InvaUltimaBase, kPatronImporte));
    if (InvaRecargo.marcado()) {
        lineaSiSeVe(informe, InvaRecargo,
                    "La lesión fué producida por maquinaria, artefactos, etc... que carecían de los "
                    "dispositivos");
        lineaSiSeVe(informe, InvaRecargo, "de precaución reglamentarios");
    }
    if (InvaPersona.marcado()) {
        lineaSiSeVe(informe, InvaPersona, "Tiene que remunerar a una persona para atenderle");
    }
}

void InvaFrm::imprimeBases(Informe& informe) const {
    if (!InvaBasesDesglosadas.marcado()) {
        informe.linea(InvaSumaBases.rotulo() + ":" + numeroDe(InvaSumaBases, kPatronImporte));
        return;
    }
    informe.linea("$SBases de cotización de los últimos " + TextoPlano(bases_.meses()) + " meses:$s");
    bases_.imprime(informe);
}

}  // namespace orvemo
