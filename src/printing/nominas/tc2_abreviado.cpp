#include <array>
#include <string>
#include <string_view>

#include "foundations/values/formatos.h"
#include "payroll/recibo/recibo.h"
#include "printing/nominas/formularios.h"
#include "printing/nominas/hoja_impresa.h"

namespace orvemo::nomina {
namespace {

using Datos = DatosFormularios;

constexpr auto kValor = Letra::Cuerpo;
constexpr auto kRotulo = Letra::RotuloNegrita;
constexpr auto kCentro = Ajuste::Centro;
constexpr auto kCabe = Ajuste::Cabe;

// clang-format off
constexpr std::array kTrazos{
    Trazo{ 2.2, 3.2, 17.6, 3.2},
    Trazo{ 2.2, 4.4, 17.6, 4.4},
    Trazo{ 2.2, 5.6, 17.6, 5.6},
    Trazo{ 2.2, 7.1, 17.6, 7.1},
    Trazo{ 2.2, 8.4, 17.6, 8.4},
    Trazo{ 2.2, 7.6, 10.0, 7.6},
    Trazo{ 2.2, 3.2,  2.2, 8.4},
    Trazo{17.6, 3.2, 17.6, 8.4},
    Trazo{10.2, 3.2, 10.2, 4.4},
    Trazo{14.9, 3.2, 14.9, 4.4},
    Trazo{ 4.2, 4.4,  4.2, 5.6},
    Trazo{ 6.3, 4.4,  6.3, 5.6},
    Trazo{ 8.6, 4.4,  8.6, 5.6},
    Trazo{10.6, 4.4, 10.6, 5.6},
    Trazo{13.1, 4.4, 13.1, 5.6},
    Trazo{15.3, 4.4, 15.3, 5.6},
    Trazo{ 6.9, 5.6,  6.9, 7.1},
    Trazo{12.2, 5.6, 12.2, 7.1},
    Trazo{10.0, 7.1, 10.0, 8.4},
    Trazo{13.8, 7.1, 13.8, 8.4},
    Trazo{ 3.5, 7.6,  3.5, 8.4},
    Trazo{ 4.8, 7.6,  4.8, 8.4},
    Trazo{ 6.1, 7.6,  6.1, 8.4},
    Trazo{ 7.4, 7.6,  7.4, 8.4},
    Trazo{ 8.7, 7.6,  8.7, 8.4},
};

constexpr std::array kTitulos{
    Rotulo{{9.9, 2.2,  Letra::CuerpoNegrita, kCentro}, "TC2-TC2/1 ABREVIADO"},
    Rotulo{{9.9, 2.65, kRotulo, kCentro},
           "SOLO VALIDO PARA CCC CON UN SOLO TRABAJADOR EN ALTA DURANTE EL PERIODO DE LIQUIDACION"},
};

constexpr std::array kRotulosTrabajador{
    Rotulo{{ 2.4, 3.3,  kRotulo}, "NOMBRE Y APELLIDOS:"},
    Rotulo{{10.4, 3.35, kRotulo}, "Nº AFILIACION"},
    Rotulo{{10.4, 3.65, kRotulo}, "SEG.SOCIAL"},
    Rotulo{{10.4, 3.95, kRotulo}, "(12 dígitos)"},
    Rotulo{{15.1, 3.3,  kRotulo}, "NIF:"},
};

constexpr std::array kRotulosDatos{
    Rotulo{{ 3.2,  4.5, kRotulo, kCentro}, "DIAS ALTA"},
    Rotulo{{ 5.25, 4.5, kRotulo, kCentro}, "GRUPO COT."},
    Rotulo{{ 7.45, 4.5, kRotulo, kCentro}, "CL CONTRATO"},
    Rotulo{{ 9.6,  4.5, kRotulo, kCentro}, "Nº HORAS"},
    Rotulo{{11.85, 4.5, kRotulo, kCentro}, "EPIGRAFE AT/EP"},
    Rotulo{{14.2,  4.5, kRotulo, kCentro}, "NºDIAS IT"},
    Rotulo{{16.45, 4.5, kRotulo, kCentro}, "Nº DIAS MAT"},
    Rotulo{{ 4.55, 5.7, kRotulo, kCentro}, "EPIGRAFE DE AT Y EP EN"},
    Rotulo{{ 4.55, 6.0, kRotulo, kCentro}, "SITUACION DE I.T. MAT"},
    Rotulo{{ 9.55, 5.7, kRotulo, kCentro}, "BASES DE AT y EP DURANTE LA"},
    Rotulo{{ 9.55, 6.0, kRotulo, kCentro}, "SITUACION DE I.T/MATERNIDAD"},
    Rotulo{{14.9,  5.7, kRotulo, kCentro}, "FECHA DE CONCESION"},
    Rotulo{{14.9,  6.0, kRotulo, kCentro}, "DE LA BONIFICACION/REDUCCION"},
    Rotulo{{14.9,  6.3, kRotulo, kCentro}, "(DDMMAAAA)"},
};

constexpr std::array kRotulosSituaciones{
    Rotulo{{ 6.1, 7.22, kRotulo, kCentro}, "SITUACIONES ESPECIALES DEL TRABAJADOR"},
};
constexpr std::array kRotulosVacios{
    Rotulo{{11.9, 7.2, kRotulo, kCentro}, "CATEGORIA PROF."},
    Rotulo{{15.7, 7.2, kRotulo, kCentro}, "DIAS PENOSOS"},
};
// clang-format on

/// Of the rates of accidents, the one that leave and maternity bear.
constexpr const char* kEpigrafeDeBaja = "126";
/// A contract that doesn't count its hours tells those of a day.
constexpr const char* kHorasDeJornada = "8";

/// A cell of days with none stays empty.
std::string dias(int cuantos) {
    return cuantos == 0 ? "" : TextoPlano(cuantos);
}

bool estaDeBaja(const Dias& d) {
    return d.DiasBaja + d.DiasMat > 0;
}

std::string horas(const Entradas& e) {
    return e.ModoContrato == "H" ? TextoPlano(e.ParcialHoras) : kHorasDeJornada;
}

// clang-format off
constexpr std::array<Valor<Datos>, 3> kTrabajador{{
    {{ 2.4, 3.8,  kValor, kCabe, 10.0}, [](const Datos& d) { return d.registro.Nombre.utf8(); }},
    {{12.4, 3.65, kValor, kCabe, 14.8}, [](const Datos& d) { return d.registro.CuentaSS.utf8(); }},
    {{15.1, 3.8,  kValor, kCabe, 17.5}, [](const Datos& d) { return d.registro.NIF.utf8(); }},
}};

constexpr std::array<Valor<Datos>, 9> kDatos{{
    {{ 3.2,  5.05, kValor, kCentro}, [](const Datos& d) { return dias(d.estado.dias.DiasCotizados); }},
    {{ 5.25, 5.05, kValor, kCentro}, [](const Datos& d) { return TextoPlano(d.estado.entradas.Grupo); }},
    {{ 7.45, 5.05, kValor, kCentro}, [](const Datos& d) { return d.estado.entradas.CodigoContrato; }},
    {{ 9.6,  5.05, kValor, kCentro}, [](const Datos& d) { return horas(d.estado.entradas); }},
    {{11.85, 5.05, kValor, kCentro}, [](const Datos& d) { return d.estado.entradas.Epigrafe; }},
    {{14.2,  5.05, kValor, kCentro}, [](const Datos& d) { return dias(d.estado.dias.DiasBaja); }},
    {{16.45, 5.05, kValor, kCentro}, [](const Datos& d) { return dias(d.estado.dias.DiasMat); }},
    {{ 4.55, 6.6,  kValor, kCentro}, [](const Datos& d) { return std::string{estaDeBaja(d.estado.dias) ? kEpigrafeDeBaja : ""}; }},
    {{ 9.55, 6.6,  kValor, kCentro}, [](const Datos& d) { return TextoPlano(d.estado.bases.BaseParo); }},
}};
// clang-format on

constexpr double kPrimeraCelda = 2.85, kAnchoCelda = 1.3, kYCeldas = 7.85;

/// The codes of what makes the month a special one, each in a cell of its own.
void escribeSituaciones(HojaImpresa& hoja, const Datos& datos) {
    double x = kPrimeraCelda;
    for (const char codigo : SituacionesEspeciales(datos.estado, datos.registro)) {
        hoja.escribe({x, kYCeldas, kValor, kCentro}, std::string_view{&codigo, 1});
        x += kAnchoCelda;
    }
}

}  // namespace

void ImprimeTC2(DestinoImpresion& destino, const DatosFormularios& datos) {
    HojaImpresa hoja{destino};
    hoja.traza(kTrazos);
    hoja.escribe(kTitulos);
    hoja.escribe(kRotulosTrabajador);
    hoja.escribe<Datos>(kTrabajador, datos);
    hoja.escribe(kRotulosDatos);
    hoja.escribe<Datos>(kDatos, datos);
    hoja.escribe(kRotulosSituaciones);
    escribeSituaciones(hoja, datos);
    hoja.escribe(kRotulosVacios);
    hoja.termina();
}

}  // namespace orvemo::nomina
