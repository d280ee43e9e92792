#pragma once

#include <chrono>
#include <ostream>
#include <string>

namespace orvemo::lote {

/// How far a long run has come, on one line of a terminal that is drawn over and wiped at the end: "Caso
/// 1.200 de 32.767". A run that soon ends draws nothing.
class Progreso {
  public:
    using Instante = std::chrono::steady_clock::time_point;

    /// Without a terminal nothing is drawn.
    Progreso(std::ostream* terminal, int total, Instante comienzo);
    ~Progreso() { borra(); }
    Progreso(const Progreso&) = delete;
    Progreso& operator=(const Progreso&) = delete;

    /// The run has come to that record.
    void llega(int registro, Instante ahora);

  private:
    void borra();

    std::ostream* terminal_;
    std::string de_;  ///< the end of the line, which never changes
    Instante siguiente_;
    std::size_t escrito_ = 0;  ///< characters that stand on the line
};

}  // namespace orvemo::lote
