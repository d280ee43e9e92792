#pragma once

#include <array>
#include <string>
#include <string_view>

#include "foundations/values/dictamen.h"
#include "pensions/muerte/muerte_registro.h"

namespace orvemo::muerte {

/// Situations of the dead person, numbered from 1 in list order.
inline constexpr std::array<std::string_view, 10> kSituaciones{
    "Alta/Asimilado en Régimen General de la Seguridad Social",
    "Pensionista por jubilación",
    "Pensionista por Incapacidad Total",
    "Pensionista por Incapacidad Absoluta",
    "Pensionista por Gran Invalidez",
    "R.E. Agrario",
    "R.E.Empleados de Hogar ó Autónomos",
    "No en alta en o asimilada en Seguridad Social",
    "Perceptor de subsidio de desempleo",
    "Alta en R.G. Contrato a Tiempo Parcial"};
inline constexpr int kAgrario = 6;
inline constexpr int kDesempleo = 9;
inline constexpr int kTiempoParcial = 10;

/// Causes of death, numbered from 1 in list order.
inline constexpr std::array<std::string_view, 5> kCausas{
    "Enfermedad Común", "Enfermedad profesional", "Accidente no laboral", "Accidente de trabajo",
    "Accidente de trabajo por falta de medidas de seguridad"};

/// Sets of situations and causes, each written as the numbers that it holds, one after the other. A number
/// belongs to a set when its digits are found in it: 10 is in those that end in "10" and in no other.
using Conjunto = std::string_view;
[[nodiscard]] bool esta(int numero, Conjunto conjunto);

inline constexpr Conjunto kPensionistas = "2345";
inline constexpr Conjunto kNoEnAlta = "8";
inline constexpr Conjunto kConQuinientosDias = "1679,10";  ///< asked for when the cause is a common illness
inline constexpr Conjunto kAgrarioYAutonomos = "67";
inline constexpr Conjunto kPorCuentaAjena = "189,10";
inline constexpr Conjunto kConIndemnizacion = "123456789";          ///< of the widow, by an accident at work
inline constexpr Conjunto kConIndemnizacionHuerfanos = "12345678";  ///< of the orphans
inline constexpr Conjunto kCausasComunes = "13";
inline constexpr Conjunto kCausasProfesionales = "24";

[[nodiscard]] int situacionDe(const RegistroMuerte& caso);
[[nodiscard]] int causaDe(const RegistroMuerte& caso);

/// Whether the right depends on the periods contributed.
[[nodiscard]] bool exigePeriodos(int situacion, int causa);

/// An amount, as all the lines tell it that don't ask for another way.
[[nodiscard]] std::string importe(double euros);

/// Whether the dead person had contributed long enough, told in lines that end in a refusal if not. Throws
/// DesbordeNumerico for hours of part-time work beyond measure.
[[nodiscard]] bool cumplePeriodos(const RegistroMuerte& caso, Dictamen& dictamen);

/// What the pensions of the survivors rest on.
struct Base {
    double importe = 0;      ///< regulatory base, euros a month
    std::string_view pagas;  ///< payments a year, as the lines tell them
};

/// The regulatory base by situation and cause, told in its lines. Throws DesbordeNumerico.
[[nodiscard]] Base concluyeBase(const RegistroMuerte& caso, Dictamen& dictamen);

}  // namespace orvemo::muerte
