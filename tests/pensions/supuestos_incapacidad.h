#pragma once

#include <string>
#include <string_view>

#include "foundations/values/dictamen.h"
#include "pensions/casos_jubilacion.h"
#include "pensions/incapacidad/incapacidad.h"

namespace orvemo::pruebas {

using incapacidad::Causa;
using incapacidad::Grado;
using incapacidad::RegistroIncapacidad;

template <typename Entrada>
[[nodiscard]] std::uint8_t enLista(Entrada entrada) {
    return static_cast<std::uint8_t>(static_cast<int>(entrada) - 1);
}

inline void clasifica(RegistroIncapacidad& caso, Grado grado, Causa causa,
                      incapacidad::Regimen regimen = incapacidad::Regimen::General) {
    caso.InvaInvalidez = enLista(grado);
    caso.InvaCausa = enLista(causa);
    caso.InvaRegimen = enLista(regimen);
}

inline void cotiza(RegistroIncapacidad& caso, std::string_view desde, std::string_view hasta) {
    caso.InvaPerDesde[0].asigna(desde);
    caso.InvaPerHasta[0].asigna(hasta);
}

inline void nace(RegistroIncapacidad& caso, std::string_view fecha) {
    caso.InvaFechaNac = LeeFecha(fecha);
}

/// A person of 50 of the general scheme, in alta, who contributed since 1990 and whom a common illness leaves
/// unfit for their trade on 15-06-2005: 90 months are asked for, and the sum of theirs gives a base of 1000.
[[nodiscard]] inline RegistroIncapacidad enfermoDe50() {
    RegistroIncapacidad caso;
    nace(caso, "15-06-1955");
    caso.InvaFechaInv = LeeFecha("15-06-2005");
    caso.InvaAltaSS = 1;
    clasifica(caso, Grado::Total, Causa::EnfermedadComun);
    cotiza(caso, "01-01-1990", "31-05-2005");
    caso.InvaSumaBases = 104994;
    return caso;
}

// Sentences that many conclusions share.

inline const std::string kSinPension =
    "\r\n*** NO TIENE DERECHO A PENSIÓN ***\r\n"
    "(Pruebe la opción de PENSIÓN NO CONTRIBUTIVA derivada de invalidez\r\n"
    " ya que a lo mejor cumple los demás requisitos sobre renta anual.)";
inline const std::string kSinPrestacion = "\r\n*** NO TIENE DERECHO A PRESTACIÓN ***\r\n";
inline const std::string kSinPeriodo = "No se exige ningún periodo previo de cotización.\r\n";
inline const std::string kSeAsumeAlta =
    "Se asume alta en S.S. de pleno derecho por ser accidente de carácter profesional.\r\n";
inline const std::string k14Pagas =
    "(14 pagas al año, una por cada mes del año más una extraordinaria en junio y otra en noviembre).\r\n";
inline const std::string k12Pagas = "(12 pagas al año).\r\n";
inline const std::string kRecargo =
    "Puede solicitar recargo de 30 a 50% por haber sido provocada por \r\n"
    "maquinaria sin dispositivos de precaución reglamentarios.\r\n";
inline const std::string kComplemento =
    "Puede además solicitar un complemento de 20% del subsidio para recuperación.\r\n";
inline const std::string kRecienteSinAlta = "dentro de los 10 años anteriores al hecho causante.\r\n";

[[nodiscard]] inline std::string solicita(const std::string& edad, const std::string& sufre) {
    return "El interesado solicita la pensión a los " + edad + ".\r\nSufre " + sufre;
}
inline const std::string kTotalPor =
    "Incapacidad Permanente total para la profesión habitual derivada de \r\n";
inline const std::string kAbsolutaPor = "Incapacidad Permanente absoluta para todo trabajo derivada de \r\n";
inline const std::string kParcialPor =
    "Incapacidad Permanente parcial para la profesión habitual derivada de ";

[[nodiscard]] inline std::string hanCotizado(const std::string& dias) {
    return "Ha cotizado " + dias + ", \r\n";
}
[[nodiscard]] inline std::string quinta(const std::string& como, const std::string& meses) {
    return como +
           " el requisito de haber cotizado una quinta parte \r\n"
           "del periodo mínimo dentro de los 10 años anteriores al hecho causante \r\n(" +
           meses + ") meses.\r\n";
}
[[nodiscard]] inline std::string baseDe(const std::string& euros) {
    return "La base reguladora es de " + euros + " €.\r\n";
}
[[nodiscard]] inline std::string vitalicia(const std::string& euros) {
    return "Le corresponde una PENSIÓN VITALICIA de " + euros + " € mensuales \r\n";
}
[[nodiscard]] inline std::string indemnizacion(const std::string& meses, const std::string& euros,
                                               const std::string& solicitud) {
    return "Alternativamente, puede optar a una indemnización de " + meses + " mensualidades \r\nde " +
           euros +
           " €, hasta cumplir los 60 años, en que pasará a \r\nrecibir la pensión vitalicia anterior.\r\n"
           "(Para ello debe formalizar la solicitud " +
           solicitud + ")\r\n";
}

}  // namespace orvemo::pruebas
