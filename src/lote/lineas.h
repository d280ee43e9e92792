#pragma once

#include <istream>
#include <optional>
#include <string>

#include "cases/texto_caso.h"

namespace orvemo::lote {

/// Bytes of the longest line taken for a case: many times the text form of the largest record.
inline constexpr std::size_t kMaximoLinea = 1 << 20;

/// The lines of an input, one by one.
class Lineas {
  public:
    explicit Lineas(std::istream& entrada) : entrada_{entrada} {}

    /// The next line that isn't blank; nullopt at the end. Throws Fallo for one longer than kMaximoLinea.
    [[nodiscard]] std::optional<std::string> siguiente();
    /// The number of that line, from 1.
    [[nodiscard]] int numero() const { return numero_; }

  private:
    std::istream& entrada_;
    int numero_ = 0;
};

/// A line of JSON as the codec of records takes it. Throws Fallo for one that isn't an object.
[[nodiscard]] ValorDeCampo LeeJson(const std::string& linea);

}  // namespace orvemo::lote
