#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "foundations/values/almacen.h"
#include "foundations/values/mensajes.h"
#include "printing/destino_impresion.h"
#include "printing/rutinas_impresion.h"

namespace orvemo {

/// The program-wide values, set at start and read by the calculators.
struct ValoresPrograma {
    std::string TituloPrograma;
    bool VerBaseActual = false;          ///< the retirement screen estimates future bases
    std::int32_t LiquidoAnterior = 915;  ///< last net figure entered, euros per month
    std::uint8_t PagasAnterior = 2;      ///< extra pays offered with it
    bool FinPrograma = false;
    std::string LimitaTipo{};  ///< "S" once a regularisation of the withholding was capped
};

/// Where printed documents go.
class Impresora {
  public:
    virtual ~Impresora() = default;
    /// Lets the user choose a printer or a PDF; null when the choice is cancelled.
    [[nodiscard]] virtual std::unique_ptr<DestinoImpresion> elige(const std::string& documento) = 0;
};

/// The world outside a calculator, injected once.
struct Entorno {
    Mensajes& mensajes;
    const Reloj& reloj;
    Almacen& almacen;
    Impresora& impresora;
    RutinasImpresion& rutinas;
    ValoresPrograma& valores;
};

}  // namespace orvemo
