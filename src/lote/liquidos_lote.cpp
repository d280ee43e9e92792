#include "lote/liquidos_lote.h"

#include <optional>
#include <string>

#include "cases/archivo_supuestos.h"
#include "cases/texto_caso.h"
#include "foundations/values/fallos.h"
#include "foundations/values/json.h"
#include "lote/almacen_lote.h"
#include "lote/corrida.h"
#include "lote/mundo_lote.h"
#include "tax/liquidos_frm.h"
#include "toolkit/impresora_pdf.h"

namespace orvemo::lote {

namespace {

void escribe(LiquidosFrm& frm, Campo& campo, const std::string& texto) {
    frm.foco(campo);
    frm.escribe(campo, texto);
}

/// Fills the screen as its user would and presses the button.
void rellenaYCalcula(LiquidosFrm& frm, const OpcionesLiquidos& pedido, const irpf::DatosRetencion& persona) {
    frm.Inicia();
    frm.carga(persona);
    frm.elige(frm.NomiCategoria, pedido.grupo - 1);
    frm.elige(frm.TipoContrato, pedido.contrato);
    escribe(frm, frm.LiquidosLiquido, pedido.neto);
    escribe(frm, frm.LiquidosExtra, pedido.extra);
    frm.pulsa(frm.BotonCalcular);
}

bool esResultado(const Campo& campo) {
    return campo.def().clase == Clase::Resultado;
}

std::string conclusionDe(const LiquidosFrm& frm) {
    std::string texto = frm.Subtitulo() + "\r\n";
    for (const Campo& campo : frm.campos()) {
        if (esResultado(campo)) texto += campo.rotulo() + " " + campo.texto() + "\r\n";
    }
    return texto;
}

std::string miembrosDe(const LiquidosFrm& frm, std::string_view bytes) {
    std::string json = ",\"campos\":";
    EscribeCampos(json, kFormaDe<irpf::kDiseno>, bytes);
    std::string resultado = "{";
    for (const Campo& campo : frm.campos()) {
        if (esResultado(campo)) AgregaCampoJson(resultado, campo.def().nombre, campo.texto());
    }
    return json + ",\"resultado\":" + resultado + "}";
}

class LoteLiquidos final : public Calculo {
  public:
    LoteLiquidos(const Opciones& opciones, const std::filesystem::path& datos)
        : opciones_{opciones},
          almacen_{datos, opciones.fichero},
          archivo_{almacen_, opciones.fichero.string(), irpf::kDiseno.longitud()},
          reloj_{opciones.hoy} {}

    [[nodiscard]] int cuenta() const override { return archivo_.cuenta(); }
    [[nodiscard]] std::optional<EntradaSupuesto> entrada(int registro) const override {
        return archivo_.entrada(registro);
    }

    [[nodiscard]] Resultado calcula(const EntradaSupuesto& entrada) override {
        Resultado resultado;
        resultado.registro = entrada.registro;
        resultado.supuesto = entrada.nombre;
        try {
            recorre(resultado);
        } catch (const Fallo& fallo) {
            resultado.error = fallo.what();
        }
        return resultado;
    }

  private:
    void recorre(Resultado& resultado) {
        MensajesLote mensajes;
        RutinasImpresion rutinas;
        ValoresPrograma valores;
        ImpresoraPdf impresora{almacen_};
        Entorno entorno{mensajes, reloj_, almacen_, impresora, rutinas, valores};
        const std::string bytes = archivo_.lee(resultado.registro);
        irpf::DatosRetencion persona;
        irpf::kDiseno.lee(bytes, persona);
        LiquidosFrm frm{entorno};
        rellenaYCalcula(frm, opciones_.liquidos, persona);
        resultado.error = mensajes.error;
        resultado.nombre = persona.Nombre.utf8();
        resultado.derecho = true;
        resultado.conclusion = conclusionDe(frm);
        resultado.miembros = miembrosDe(frm, bytes);
    }

    const Opciones& opciones_;
    AlmacenLote almacen_;
    ArchivoSupuestos archivo_;
    RelojLote reloj_;
};

}  // namespace

int CalculaLiquidos(const Opciones& opciones, const std::filesystem::path& datos, std::ostream& salida,
                    std::ostream* terminal) {
    if (opciones.mandato != Mandato::Calcula) {
        throw ArgumentoInservible{"«" + opciones.calculadora +
                                  "» no tiene supuestos propios: usa los de «irpf»."};
    }
    if (opciones.pdf) throw ArgumentoInservible{"«" + opciones.calculadora + "» no imprime."};
    LoteLiquidos lote{opciones, datos};
    return calculaTodo(opciones, lote, salida, terminal);
}

}  // namespace orvemo::lote
