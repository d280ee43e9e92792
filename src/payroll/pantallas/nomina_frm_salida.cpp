#include <utility>

#include "foundations/frame/declaraciones.h"
#include "foundations/values/numeros.h"
#include "foundations/values/textos.h"
#include "payroll/pantallas/nomina_frm.h"
#include "payroll/pantallas/pagina_previa.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/recibo/recibo.h"
#include "printing/informe.h"
#include "printing/nominas/formularios.h"

namespace orvemo {

using namespace nomina;

void NominaFrm::declaraSalida() {
    Grupo& empresa = nuevoGrupo({.nombre = "Empresa", .titulo = "Datos de la empresa", .pantalla = kSalida});
    const auto linea = [this](Grupo& g, const char* nombre, const char* rotulo, std::size_t largo) {
        nuevo({.nombre = nombre, .rotulo = rotulo, .pantalla = kSalida, .grupo = &g, .largo = largo});
    };
    linea(empresa, "DatosEmpresa", "Empresa:", 40);
    linea(empresa, "DatosDomicilio", "Domicilio:", 40);
    linea(empresa, "DatosCif", "CIF:", 11);
    linea(empresa, "DatosCuentaSS", "Cuenta de cotización a la S.S.:", 14);
    Grupo& trabajador =
        nuevoGrupo({.nombre = "Trabajador", .titulo = "Datos del trabajador", .pantalla = kSalida});
    linea(trabajador, "NomiTrabajador", "Trabajador:", 80);
    linea(trabajador, "NomiNIF", "NIF:", 10);
    linea(trabajador, "NomiNumMatricula", "Nº libro de matrícula:", 15);
    linea(trabajador, "NomiCuentaSS", "Nº de afiliación a la S.S.:", 14);
    linea(trabajador, "NomiGrupoProfesional", "Categoría o grupo profesional:", 30);
    DefCampo opciones = lista("ImpresionOpciones",
                              "Documento:", {"Imprimir TC2/TC2-1 abreviado", "Imprimir recibo de salario"});
    opciones.pantalla = kSalida;
    opciones.defecto = "1";
    nuevo(std::move(opciones));
    nuevo({.nombre = "ImpresionImprime",
           .rotulo = "Imprimir",
           .clase = Clase::Boton,
           .pantalla = kSalida,
           .alPulsar = [this](Campo&) { ImpresionImprime(); },
           .mismaLinea = true});
    nuevo({.nombre = "ImpresionVuelve",
           .rotulo = "(Pantalla Anterior...)",
           .clase = Clase::Boton,
           .pantalla = kSalida,
           .alPulsar = [this](Campo&) { MuestraPantalla(kRecibo); }});
}

/// The forms tell the company and the worker: they are asked for first.
void NominaFrm::alImprimir() {
    const bool trasElRecibo = EntreLimites(PantallaActual(), kRecibo, kSalida);
    if (!trasElRecibo) CalculaSupuesto();
    Campo& trabajador = campo("NomiTrabajador");
    if (EsVacio(trabajador.texto())) trabajador.ponTexto(campo("NomiNombre").texto());
    MuestraPantalla(kSalida);
}

OpcionesImpresion NominaFrm::opcionesDeLaPantalla() {
    OpcionesImpresion opciones;
    opciones.DatosEmpresa.asigna(campo("DatosEmpresa").texto());
    opciones.DatosDomicilio.asigna(campo("DatosDomicilio").texto());
    opciones.DatosCif.asigna(campo("DatosCif").texto());
    opciones.DatosCuentaSS.asigna(campo("DatosCuentaSS").texto());
    return opciones;
}

/// Where the company's data can't be kept it says so, and prints.
void NominaFrm::ImpresionImprime() {
    protegido([this] { GrabaOpciones(entorno().almacen, opcionesDeLaPantalla()); });
    if (!DatosTomaPantalla()) return;
    conTC2_ = campo("ImpresionOpciones").indice() == 0;
    conRecibo_ = !conTC2_;
    imprime();
    conTC2_ = conRecibo_ = true;
}

void NominaFrm::escribeDocumento(DestinoImpresion& destino) {
    const OpcionesImpresion empresa = opcionesDeLaPantalla();
    const std::string trabajador = campo("NomiTrabajador").texto();
    const DatosFormularios datos{.estado = estado_,
                                 .registro = caso_,
                                 .empresa = empresa,
                                 .Trabajador = trabajador.empty() ? caso_.Nombre.utf8() : trabajador,
                                 .hoy = hoy()};
    if (conRecibo_ && conTC2_) {
        PaginaPrevia primera{destino};
        ImprimeReciboSalarios(primera, datos);
    } else if (conRecibo_) {
        ImprimeReciboSalarios(destino, datos);
    }
    if (conTC2_) ImprimeTC2(destino, datos);
}

void NominaFrm::ImprimeInforme(RutinasImpresion& rutinas) {
    Informe informe{rutinas, "NÓMINA"};
    std::string texto = TextoRecibo(estado_, caso_);
    while (!texto.empty()) informe.linea(CortaCampo(texto, "\n"));
}

void NominaFrm::cargaOpciones() {
    const OpcionesImpresion opciones = LeeOpciones(entorno().almacen);
    campo("DatosEmpresa").ponTexto(opciones.DatosEmpresa.utf8());
    campo("DatosDomicilio").ponTexto(opciones.DatosDomicilio.utf8());
    campo("DatosCif").ponTexto(opciones.DatosCif.utf8());
    campo("DatosCuentaSS").ponTexto(opciones.DatosCuentaSS.utf8());
}

}  // namespace orvemo
