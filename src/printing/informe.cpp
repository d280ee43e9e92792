#include "printing/informe.h"

namespace orvemo {

namespace {

// Centimetres.
constexpr float kMargen = 1.0F;
constexpr float kAlturaFuente = 2.0F;  // where the letters of the body are set
constexpr float kPasoDatos = 0.5F;
constexpr float kPasoConclusiones = 0.6F;
constexpr float kSeparacion = 1.0F;
constexpr float kAnchoColumna = 6.5F;
constexpr float kFinImporte = 5.0F;  // from the start of its column

}  // namespace

Informe::Informe(RutinasImpresion& rutinas, std::string_view titulo, const CuerpoInforme& cuerpo)
    : rutinas_{rutinas} {
    rutinas_.ImprimeCabecera(1, titulo);
    salta(kAlturaFuente);
    rutinas_.PonFuente(cuerpo.fuente, cuerpo.tamano, "");
    salta(cuerpo.comienzo);
}

void Informe::salta(float y) {
    rutinas_.PonPosicion(kMargen, y);
}

void Informe::linea(std::string_view texto) {
    rutinas_.ImprimeTexto(texto, kMargen, kPasoDatos);
}

void Informe::columnas(std::span<const CeldaInforme> celdas) {
    float x = kMargen;
    for (const CeldaInforme& celda : celdas) {
        rutinas_.ImprimeTexto(celda.rotulo, x, 0);
        const auto ancho = static_cast<float>(rutinas_.destino().TextWidth(celda.importe));
        rutinas_.ImprimeTexto(celda.importe, x + kFinImporte - ancho, 0);
        x += kAnchoColumna;
    }
    rutinas_.AvanzaLinea(kPasoDatos);
}

void Informe::separa() {
    rutinas_.ImprimeTexto(" ", kMargen, kSeparacion);
}

void Informe::tituloConclusiones() {
    rutinas_.ImprimeTexto("$N$SCONCLUSIONES$n$s", kMargen, kPasoConclusiones);
}

void Informe::conclusiones(std::string_view texto) {
    rutinas_.ImprimeConclusion(texto);
}

}  // namespace orvemo
