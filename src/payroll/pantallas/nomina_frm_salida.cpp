#include "foundations/values/textos.h"
#include "payroll/pantallas/nomina_frm.h"
#include "payroll/pantallas/paneles.h"
#include "payroll/recibo/recibo.h"
#include "printing/informe.h"

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
    boton("ImpresionImprime", "Imprimir", kSalida, &NominaFrm::ImpresionImprime);
    nuevo({.nombre = "ImpresionVuelve",
           .rotulo = "(Pantalla Anterior...)",
           .clase = Clase::Boton,
           .pantalla = kSalida,
           .alPulsar = [this](Campo&) { MuestraPantalla(kRecibo); }});
}

/// The forms tell the company and the worker: they are asked for first.
void NominaFrm::alImprimir() {
    Campo& trabajador = campo("NomiTrabajador");
    if (EsVacio(trabajador.texto())) trabajador.ponTexto(campo("NomiNombre").texto());
    MuestraPantalla(kSalida);
}

void NominaFrm::ImpresionImprime() {
    OpcionesImpresion opciones;
    opciones.DatosEmpresa.asigna(campo("DatosEmpresa").texto());
    opciones.DatosDomicilio.asigna(campo("DatosDomicilio").texto());
    opciones.DatosCif.asigna(campo("DatosCif").texto());
    opciones.DatosCuentaSS.asigna(campo("DatosCuentaSS").texto());
    GrabaOpciones(entorno().almacen, opciones);
    imprime();
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
