#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace orvemo {

/// What can go wrong while the program works. `what()` is a Spanish sentence without a full stop, in UTF-8,
/// fit to stand after "No se ha podido completar la operación: ".
class Fallo : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The text between quotation marks for a message: on one line, cut where it is too long for one.
[[nodiscard]] std::string EntreComillas(std::string_view texto);

/// A number does not fit the integer that has to hold it.
class DesbordeNumerico : public Fallo {
  public:
    explicit DesbordeNumerico(double valor);
    const double valor;

  protected:
    /// For a limit that has a story of its own to tell.
    DesbordeNumerico(double numero, const std::string& motivo) : Fallo{motivo}, valor{numero} {}
};

/// A divisor is zero.
class DivisionPorCero : public Fallo {
  public:
    DivisionPorCero();
};

/// A text cannot be read as what it should be ("número", "fecha").
class TextoIlegible : public Fallo {
  public:
    TextoIlegible(std::string texto, const std::string& clase);
    const std::string texto;
};

/// A day, month and year that are on no calendar.
class FechaInexistente : public Fallo {
  public:
    FechaInexistente(int dia, int mes, int anio);
    const int dia, mes, anio;
};

/// A file cannot be opened, read or written.
class FicheroInaccesible : public Fallo {
  public:
    FicheroInaccesible(std::string nombre, const std::string& motivo);
    const std::string nombre;
};

/// A text file does not have the form that it should; `linea` counts from 1 (0 when no line is to blame).
class FicheroMalFormado : public Fallo {
  public:
    FicheroMalFormado(std::string nombre, int linea, const std::string& motivo);
    const std::string nombre;
    const int linea;
};

/// The printer, or the file printed to, did not take the document.
class FalloImpresion : public Fallo {
  public:
    using Fallo::Fallo;
};

}  // namespace orvemo
