#pragma once

#include <string>
#include <string_view>

#include "foundations/values/mensajes.h"

namespace orvemo {

/// What the field checks need of a text field.
class ControlTexto {
  public:
    virtual ~ControlTexto() = default;
    [[nodiscard]] virtual const std::string& texto() const = 0;
    virtual void ponTexto(std::string texto) = 0;
    /// Asks for the focus, all the text selected.
    virtual void pideFoco() = 0;
};

/// Whether the number at the head of a text, read by LeeNumero, lies between the limits. One too large for a
/// double lies beyond every limit.
[[nodiscard]] bool NumeroEntre(std::string_view texto, double minimo, double maximo);

/// A date, rewritten as "dd-MM-yyyy". A bad one is told, today's date takes its place and the focus comes
/// back. Does nothing while `DatoMal` is set.
void CompruebaFecha(ControlTexto& campo, bool& DatoMal, Mensajes& mensajes, const Reloj& reloj);

/// A number between limits, read by LeeNumero (a comma ends it); the limits are told in the message as given.
/// Does nothing while `DatoMal` is set.
void CompruebaRango(ControlTexto& campo, std::string_view minimo, std::string_view maximo, bool& DatoMal,
                    Mensajes& mensajes);

}  // namespace orvemo
