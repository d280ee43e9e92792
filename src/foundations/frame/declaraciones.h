#pragma once

#include <string>
#include <vector>

#include "foundations/frame/campo.h"

namespace orvemo {

// The kinds of field that the screens of the calculators are made of, so that each takes one line there.
// `rotulo` is the label, `alSalir` the check on leaving, `grupo` the frame that holds the field.

/// A line of free text.
[[nodiscard]] DefCampo texto(std::string nombre, std::string rotulo, std::string defecto = {},
                             Grupo* grupo = nullptr);

/// An amount in euros, "0" in a new case.
[[nodiscard]] DefCampo decimal(std::string nombre, std::string rotulo, Reaccion alSalir,
                               Grupo* grupo = nullptr);

/// A whole number, "0" in a new case unless told otherwise.
[[nodiscard]] DefCampo entero(std::string nombre, std::string rotulo, Reaccion alSalir,
                              Grupo* grupo = nullptr, std::string defecto = "0");

/// A drop-down list, its first entry in a new case.
[[nodiscard]] DefCampo lista(std::string nombre, std::string rotulo, std::vector<std::string> opciones,
                             Reaccion alCambiar = {});

/// The same, for long entries: each on a line of its own, all on view.
[[nodiscard]] DefCampo opciones(std::string nombre, std::string rotulo, std::vector<std::string> entradas,
                                Reaccion alCambiar = {});

/// A result that only the program writes, shown by the pattern, as many characters wide.
[[nodiscard]] DefCampo resultado(std::string nombre, std::string rotulo, std::string formato, int caracteres,
                                 Grupo* grupo = nullptr);

/// The small "?" beside a field.
[[nodiscard]] DefCampo interrogacion(std::string nombre, std::string ayuda, Reaccion alPulsar);

/// A check box, off in a new case.
[[nodiscard]] DefCampo casilla(std::string nombre, std::string rotulo, Reaccion alCambiar = {});

/// A date picker, today in a new case.
[[nodiscard]] DefCampo fechaElegida(std::string nombre, std::string rotulo, Reaccion alCambiar = {},
                                    Grupo* grupo = nullptr);

/// A typed date, which may be blank or bad. The screen itself sets today in a new case.
[[nodiscard]] DefCampo fechaEscrita(std::string nombre, std::string rotulo, Reaccion alCambiar = {});

/// The same field, as many characters wide.
[[nodiscard]] DefCampo conAnchura(DefCampo def, int caracteres);

/// The same field beside the one before it.
[[nodiscard]] DefCampo alLado(DefCampo def);

}  // namespace orvemo
