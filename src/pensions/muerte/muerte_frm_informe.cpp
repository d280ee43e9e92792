#include "foundations/frame/datos_informe.h"
#include "pensions/muerte/muerte_frm.h"

namespace orvemo {

namespace {

constexpr const char* kPatronFecha = "dd-mm-yyyy";
/// The amount is told in whole euros here, though the pension is worked out with its cents.
constexpr const char* kPatronBase = "###,###,##0";

}  // namespace

void MuerteFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "MUERTE Y SUPERVIVENCIA"};
    lineaNombre(informe, MuerteNombre);
    informe.linea("Fecha de fallecimiento del causante: " + fechaDe(MuerteFechaMuerte, kPatronFecha));
    informe.linea("Causa de la muerte: " + MuerteCausa.texto());
    informe.linea("Situacion del causante: " + MuerteSituacion.texto());
    imprimeSupervivientes(informe);
    informe.linea(MuerteUltimaBase.rotulo() + " " + numeroDe(MuerteUltimaBase, kPatronBase) + " €");
    if (MuerteFrmPer.grupo().visible()) {
        informe.linea("$SPeriodos cotizados:$s");
        MuerteFrmPer.imprime(informe);
    }
    informe.separa();
    informe.tituloConclusiones();
    informe.conclusiones(textoConclusion());
}

void MuerteFrm::imprimeSupervivientes(Informe& informe) const {
    if (MuerteDejaViuda.marcado()) informe.linea("Deja viuda/o de " + MuerteEdadViuda.texto() + " años");
    if (MuerteVariosConyuges.marcado()) informe.linea("Hay viudas/os adicionales de matrimonios anteriores");
    if (MuerteHayCargas.marcado()) {
        // The report still tells the 45 % of before, where the pension takes 52.
        informe.linea("Se cumplen los requisitos (que elevan de 45% a 70% el porcentaje a aplicar):");
        informe.linea("- Que la pensión de viudedad constituye la principal o única fuente de ingresos ");
        informe.linea("del pensionista.");
        informe.linea("- Que los rendimientos anuales del pensionista por todos los conceptos");
        informe.linea("no superen el importe máximo anual de la pensión que por edad le corresponde.");
        informe.linea("- Que el pensionista tenga cargas familiares.");
    }
    lineaSiSeVe(informe, MuerteFechaPension,
                MuerteFechaPension.rotulo() + " " + fechaDe(MuerteFechaPension, kPatronFecha));
    for (const Campo* cuenta : {&MuerteHijos, &MuerteFamiliares, &MuerteFami2}) {
        informe.linea(cuenta->rotulo() + " " + cuenta->texto());
    }
}

}  // namespace orvemo
