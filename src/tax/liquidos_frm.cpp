#include "tax/liquidos_frm.h"

#include <array>
#include <string>
#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/formatos.h"
#include "foundations/values/numeros.h"
#include "tax/curva_liquidos.h"

namespace orvemo {

namespace {

enum Panel { kDatos, kResultado };

constexpr int kAnchoGrupo = 24;  // characters
constexpr int kAnchoPagas = 3;

// The blanks behind some of the groups are part of their names.
const std::vector<std::string> kCategorias{
    "1. Ingenieros y licenciados",
    "2. Ing. técnicos, peritos y ayud. titul.",
    "3. Jefes administrativos y de taller    ",
    "4. Ayudantes no titulados               ",
    "5. Oficiales administrativos            ",
    "6. Subalternos                          ",
    "7. Auxiliares administrativos           ",
    "8. Oficiales de 1ª y 2ª                 ",
    "9. Oficiales de 3ª y especialistas      ",
    "10. Peones                               ",
    "11. Trabajadores menores de 18 años      ",
};

DefCampo deGrupo(DefCampo def, Grupo& grupo) {
    def.grupo = &grupo;
    return def;
}

}  // namespace

// --- Declaration

LiquidosFrm::LiquidosFrm(Entorno& entorno)
    : Formulario{entorno},
      FrmSalario{nuevoGrupo({.nombre = "FrmSalario"})},
      FrmPersona{nuevoGrupo({.nombre = "FrmPersona", .alLado = true})},
      FrmFamilia{nuevoGrupo({.nombre = "FrmFamilia"})},
      NomiCategoria{nuevo(conAnchura(
          deGrupo(lista("NomiCategoria", "Grupo de Cotización:", kCategorias), FrmSalario), kAnchoGrupo))},
      TipoContrato{
          nuevo(deGrupo(lista("TipoContrato", "Tipo de contrato:",
                              {"Contrato indefinido", "Duración Determinada", "Sin cuota del trabajador"}),
                        FrmSalario))},
      LiquidosLiquido{nuevo(
          {.nombre = "LiquidosLiquido",
           .rotulo = "Salario \"líquido\" mensual:",
           .grupo = &FrmSalario,
           .defecto = "1000",
           .contenido = Contenido::Decimal,
           .formato = "###,##0.00",
           .alSalir =
               [](Campo& campo) { campo.ponTexto(FormatoNumero(DobleDe(campo.texto()), "######0.00")); }})},
      LiquidosExtra{nuevo(
          alLado(conAnchura(entero("LiquidosExtra", "Nº Pagas Extra:", {}, &FrmSalario, "2"), kAnchoPagas)))},
      AnioNacimiento{nuevo(deGrupo(entero("AñoNacimiento", "Año de Nacimiento:", {}), FrmSalario))},
      circunstancias{enPantalla(kDatos), &FrmSalario, &FrmPersona, &FrmFamilia},
      familiares{enPantalla(kDatos)},
      LiquidosBruto{resultado("LiquidosBruto", "Salario Bruto:")},
      LiquidosAnual{resultado("LiquidosAnual", "Retribución anual bruta:")},
      Ret{resultado("Ret", "% Retención IRPF:")},
      iRet{resultado("iRet", "Retención mensual:")},
      IRetAnual{resultado("IRetAnual", "Retenciones totales:")},
      iSS{resultado("iSS", "Seguridad Social:")},
      iLiq{resultado("iLiq", "Líquido mensual:")},
      Curva{nuevo({.nombre = "Curva", .clase = Clase::Grafica, .pantalla = kResultado})},
      Anterior{nuevo({.nombre = "Anterior",
                      .rotulo = "(Pantalla Anterior...)",
                      .clase = Clase::Boton,
                      .pantalla = kPie,
                      .alPulsar = [this](Campo&) { MuestraPantalla(kDatos); },
                      .visible = false,
                      .ayuda = "Mostrar pantalla anterior"})},
      BotonCalcular{nuevo({.nombre = "BotonCalcular",
                           .rotulo = "Calcular",
                           .clase = Clase::Boton,
                           .pantalla = kPie,
                           .alPulsar = [this](Campo&) { LiquidosCalcular(); },
                           .ayuda = "Calcular el salario bruto"})},
      BotonExit{nuevo({.nombre = "BotonExit",
                       .rotulo = "Salir",
                       .clase = Clase::Boton,
                       .pantalla = kBarra,
                       .alPulsar = [this](Campo&) { oculta(); },
                       .ayuda = "Volver al menú principal",
                       .sinComprobacion = true})} {
    enlaces_.agrega(AnioNacimiento, &irpf::DatosRetencion::AnioNacimiento);
    circunstancias.enlaza(enlaces_);
    familiares.enlaza(enlaces_);
    ponNumPantallas(2);
    ponPanel(kDatos, {.denso = true});
    ponPanel(kResultado, {.denso = true});
    ponTitulos("CONVERSIÓN DE LÍQUIDOS EN BRUTOS", "Conversión de Salarios Líquidos en Brutos");
}

irpf::Declarador LiquidosFrm::enPantalla(int pantalla) {
    return {.campo = [this](DefCampo def) -> Campo& { return nuevo(std::move(def)); },
            .grupo = [this](DefGrupo def) -> Grupo& { return nuevoGrupo(std::move(def)); },
            .mensajes = mensajes(),
            .pantalla = pantalla};
}

Campo& LiquidosFrm::resultado(const char* nombre, const char* rotulo) {
    DefCampo def = orvemo::resultado(nombre, rotulo, {}, 14);
    def.pantalla = kResultado;
    return nuevo(std::move(def));
}

// --- Panels

void LiquidosFrm::Inicia() {
    {
        const MientrasCarga mientras{Cargando};
        for (Campo& campo : campos()) campo.ponDefecto();
        LiquidosLiquido.ponTexto(FormatoNumero(entorno().valores.LiquidoAnterior, "######0.00"));
        LiquidosExtra.ponTexto(TextoPlano(entorno().valores.PagasAnterior));
        familiares.limpia();
    }
    ajusta();
    MuestraPantalla(kDatos);
}

void LiquidosFrm::ajusta() {
    circunstancias.ajusta();
}

void LiquidosFrm::MuestraPantalla(int n) {
    BotonCalcular.ponVisible(n == kDatos);
    Anterior.ponVisible(n == kResultado);
    muestra(n);
    ponSubtitulo(n == kDatos ? "Datos del trabajador" : "CONCLUSIONES SOBRE EL SALARIO:");
    enfocaPrimero();
}

// --- The way there and back

void LiquidosFrm::carga(const irpf::DatosRetencion& datos) {
    const MientrasCarga mientras{Cargando};
    persona_ = datos;
    enlaces_.carga(datos);
    ajusta();
}

liquidos::DatosLiquidos LiquidosFrm::tomaCampos() {
    enlaces_.toma(persona_);
    return {.Neto = LeeNumeroRegional(LiquidosLiquido.texto()),
            .Extra = LeeEnteroRegional(LiquidosExtra.texto()),
            .Grupo = NomiCategoria.indice() + 1,
            .TipoContrato = TipoContrato.indice(),
            .persona = persona_};
}

void LiquidosFrm::LiquidosCalcular() {
    const liquidos::DatosLiquidos datos = tomaCampos();
    const liquidos::ResultadoLiquidos resultado = liquidos::LiquidosCalcular(datos);
    muestraResultado(datos, resultado);
    entorno().valores.LiquidoAnterior = RedondeaPar(datos.Neto);
    entorno().valores.PagasAnterior = RedondeaPar8(datos.Extra);
    MuestraPantalla(kResultado);
}

void LiquidosFrm::muestraResultado(const liquidos::DatosLiquidos& datos,
                                   const liquidos::ResultadoLiquidos& resultado) {
    const liquidos::TextosLiquidos textos = TextosDe(resultado);
    LiquidosBruto.ponTexto(textos.LiquidosBruto);
    LiquidosAnual.ponTexto(textos.LiquidosAnual);
    Ret.ponTexto(textos.Ret);
    iRet.ponTexto(textos.iRet);
    IRetAnual.ponTexto(textos.IRetAnual);
    iSS.ponTexto(textos.iSS);
    iLiq.ponTexto(textos.iLiq);
    Curva.ponGrafica(CurvaDe(datos, resultado));
}

}  // namespace orvemo
