#include "foundations/frame/datos_informe.h"
#include "foundations/values/formatos.h"
#include "tax/rirpf_frm.h"

namespace orvemo {

namespace {

constexpr const char* kSinCentimos = "##,###,##0";
// Centimetres.
constexpr float kMargen = 1.0F;
constexpr float kPaso = 0.5F;
constexpr float kPasoConclusiones = 0.6F;

}  // namespace

void RetIrpfFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    const auto linea = [&](const std::string& texto) { rutinas.ImprimeTexto(texto, kMargen, kPaso); };
    const double pension600 = resultado_ ? resultado_->Pension600 : 0;
    rutinas.ImprimeCabecera(1, "RETENCIONES - RENTA 2003");
    rutinas.PonPosicion(1.0F, 2.0F);
    rutinas.PonFuente("Courier New", 10, "");
    rutinas.PonPosicion(1.0F, 4.0F);
    linea("Fecha: " + FormatoFecha(hoy(), "dd-mm-yyyy"));
    rutinas.PonPosicion(1.0F, 6.0F);
    linea("- Nombre: $N" + Nombre.texto() + "$n");
    linea("- NIF ............................................... " + NIF.texto());
    linea("- Año Nacimiento .................................... " + AnioNacimiento.texto());
    linea("- Retribuciones Anuales ............................. " + numeroDe(Retribuciones, kSinCentimos));
    linea("- Reducciones Art. 17.2 ............................. " + numeroDe(Reducciones, kSinCentimos));
    linea("- Gastos Anuales <<art. 17.3 a), b) y c)>> .......... " + numeroDe(Gastos, kSinCentimos));
    linea("- Pensión compensatoria en favor del cónyuge......... " + FormatoNumero(pension600, kSinCentimos));
    linea("- Anualidades a favor de los hijos .................. " +
          numeroDe(circunstancias.Anualidades, kSinCentimos));
    rutinas.ImprimeTexto(" ", kMargen, 1.0F);
    rutinas.ImprimeTexto("$N$SCONCLUSIONES$n$s", kMargen, kPasoConclusiones);
    rutinas.ImprimeConclusion(textoConclusion());
    // Told of a regularisation too.
    rutinas.ImprimeTexto("Régimen Normal", kMargen, kPasoConclusiones);
}

}  // namespace orvemo
