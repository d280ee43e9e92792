#pragma once

#include <string_view>

#include "foundations/values/dictamen.h"
#include "pensions/muerte/muerte_base.h"

namespace orvemo::muerte {

struct Viudedad {
    double porcentaje;  ///< of the regulatory base, as a fraction
    double pension;     ///< euros a month
};

/// The widow's pension. It is worked out for every case, since those of the others depend on it. Throws
/// DesbordeNumerico.
[[nodiscard]] Viudedad calculaViudedad(const RegistroMuerte& caso, double base);

/// The widow's lines. `mejora` is what a pension has grown since it was granted, as a text that may be empty.
void concluyeViudedad(const RegistroMuerte& caso, const Base& base, double pension, std::string_view mejora,
                      Dictamen& dictamen);

/// One orphan's pension, euros a month, and its lines; 0 and none without orphans.
[[nodiscard]] double concluyeOrfandad(const RegistroMuerte& caso, const Base& base, const Viudedad& viudedad,
                                      std::string_view mejora, Dictamen& dictamen);

/// The lines of the pension of other relatives; none without them.
void concluyeFamiliares(const RegistroMuerte& caso, const Base& base, const Viudedad& viudedad,
                        double orfandad, std::string_view mejora, Dictamen& dictamen);

/// The lines of the subsidy of relatives without a pension; none without them.
void concluyeSubsidio(const RegistroMuerte& caso, double base, Dictamen& dictamen);

}  // namespace orvemo::muerte
