#include "foundations/frame/datos_informe.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "pensions/jubilacion/pension_frm.h"
#include "printing/informe.h"

namespace orvemo {

void PensionFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    constexpr const char* kPatronFecha = "dd-mm-yyyy";
    Informe informe{rutinas, "PENSIÓN DE JUBILACIÓN"};
    lineaNombre(informe, JubiNombre);
    informe.linea("Fecha de nacimiento del solicitante: " + fechaDe(JubiFechaNac, kPatronFecha));
    informe.linea("Fecha de efectiva de la jubilación: " + fechaDe(JubiFechaJub, kPatronFecha));
    informe.linea("Régimen de la Seguridad Social: " + JubiRegimen.texto());
    informe.linea("$SPeriodos cotizados:$s");
    periodos.imprime(informe);
    imprimeBases(informe);
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

void PensionFrm::imprimeBases(Informe& informe) const {
    const std::string meses = TextoPlano(bases.meses());
    if (!JubiBasesDesglosadas.marcado()) {
        informe.linea("Suma de las Bases de Cotización por C.Comunes en los últimos " + meses +
                      " meses: " + numeroDe(JubiSumaBases, "###,###,##0.00"));
        return;
    }
    informe.linea("$SBases de cotización de los últimos " + meses + " meses:$s");
    bases.imprime(informe);
}

}  // namespace orvemo
