#include "tax/conclusiones_irpf.h"

#include "foundations/values/formatos.h"

namespace orvemo::irpf {

namespace {

constexpr std::array<std::string_view, 3> kTextosContrato{
    "Régimen General",
    "Contratos de Duración inferior al año y peonadas o jornales diarios",
    "Relación laboral especial de caracter dependiente",
};
constexpr std::array<std::string_view, 3> kGradosDiscapacidad{
    ">= 33% Y <65%",
    ">= 33% Y <65%, necesita ayuda",
    ">= 65%",
};

/// Nothing for a place that the list doesn't have, as a damaged record may tell.
template <std::size_t N>
std::string_view textoDe(const std::array<std::string_view, N>& textos, std::size_t i) {
    return i < N ? textos.at(i) : std::string_view{};
}

std::string importe(double euros) {
    return FormatoNumero(euros, "##,###,##0.00");
}

std::string_view discapacidad(const DatosRetencion& datos) {
    return datos.Discapacidad == 0 ? "Sin discapacidad"
                                   : textoDe(kGradosDiscapacidad, datos.GradoDiscapacidad);
}

void situacion(const DatosRetencion& datos, Dictamen& d) {
    d.linea("- Situación Familiar ................................ ", datos.SituacionFamiliar);
    d.linea("- Situación Laboral ................................ ",
            textoDe(kSituacionesLaborales, datos.SituacionLaboral));
    d.linea("- Tipo de contrato .................................. ",
            textoDe(kTextosContrato, datos.TipoContrato));
    d.linea("- Rendimientos obtenidos en Ceuta y Melilla ......... ", datos.CeutaMelilla == 1 ? "Sí" : "No");
    d.linea("- Discapacidad ...................................... ", discapacidad(datos));
}

void importes(const DatosRetencion& datos, const ResultadoRetencion& r, Dictamen& d) {
    d.linea("- Ingresos Anuales .................................. ", importe(datos.Retribuciones));
    d.linea("- Reducciones Art. 17.2 ............................. ", importe(datos.Reducciones));
    d.linea("- Gastos Anuales <<art. 17.3 a), b) y c)>> .......... ", importe(datos.Gastos));
    // Not the pension paid to the spouse but the 600 of a pensioner.
    d.linea("- Pensión compensatoria en favor del cónyuge......... ", importe(r.Pension600));
    d.linea("- Anualidades a favor de los hijos .................. ", importe(datos.Anualidades));
}

void familiares(const ResultadoRetencion& r, Dictamen& d) {
    d.linea("- Descendientes menores de 3 años ................... ", r.NumMenores3);
    d.linea("- Descendientes entre 3 y 25 años ................... ", r.NumDe3a25);
    d.linea("- Descendientes discapacitados (>=33% y <65%)........ ", r.NumDescDisc33);
    d.linea("- Descendientes discapacitados (>=65%) .............. ", r.NumDescDisc65);
    d.linea("- Descendientes discapacitados movilidad reducida.... ", r.NumDescMovilidad);
    d.linea("- Descendientes adoptados en los últimos 3 años ..... ", r.NumAdoptados);
    d.linea("- Descendientes totales ............................. ", r.NumDescendientes);
    d.linea("- Descendientes totales computados por entero ....... ", r.NumEnteros);
    d.linea("- Ascendientes discapacitados (>=33% y <65%)........ ", r.NumAscDisc33);
    d.linea("- Ascendientes discapacitados (>=65%) .............. ", r.NumAscDisc65);
    d.linea("- Ascendientes discapacitados movilidad reducida.... ", r.NumAscMovilidad);
    d.linea("- Ascendientes totales ............................. ", r.NumAscendientes);
    d.linea("- Ascendientes totales computados por entero ....... ", r.NumAscEnteros);
}

void reducciones(const ResultadoRetencion& r, Dictamen& d) {
    const double otras = r.ReduccionesBase - r.MayorDe65 - r.MayorDe75 - r.PorDiscapacidad;
    d.linea("- Reducciones por personas mayores de 65 años ...... ", importe(r.MayorDe65));
    d.linea("- Reducciones por personas mayores de 75 años ...... ", importe(r.MayorDe75));
    d.linea("- Reducciones por personas con discapacidad ........ ", importe(r.PorDiscapacidad));
    d.linea("- Reducciones por otros conceptos .................. ", importe(otras));
    d.linea("- RENDIMIENTOS NETOS TOTALES ....................... ", importe(r.RendimientoNeto));
    d.linea("- REDUCCIONES TOTALES DE LA BASE ................... ", importe(r.ReduccionesBase));
    d.linea("- BASE PARA LA RETENCIÓN ........................... ", importe(r.BaseRetencion));
}

void retencion(const ResultadoRetencion& r, Dictamen& d) {
    d.linea(" LE CORRESPONDEN EL TIPO E IMPORTE ANUAL DE RETENCIÓN SIGUIENTES:");
    d.linea("- Tipo de Retención ................................. ",
            FormatoNumero(r.TipoRetencion, "##0.00"));
    d.linea("- Importe anual de la retención ..................... ", importe(r.ImporteRetencion));
}

}  // namespace

void EscribeConclusiones(const DatosRetencion& datos, const ResultadoRetencion& resultado,
                         Dictamen& dictamen) {
    dictamen.vacia();
    situacion(datos, dictamen);
    importes(datos, resultado, dictamen);
    familiares(resultado, dictamen);
    reducciones(resultado, dictamen);
    retencion(resultado, dictamen);
    dictamen.ConDerecho = true;
}

}  // namespace orvemo::irpf
