#pragma once

#include <string>
#include <vector>

namespace orvemo::nomina {

/// What the law grants for a cause of leaving.
struct PropuestaCese {
    int DiasInd = 0;  ///< legal days of severance a year worked
    int DiasCom = 0;  ///< days of additional compensation a year worked
    int MaxInd = 0;   ///< ceiling in months; 0 is no ceiling
};

/// Items of the list `NomiFTipoDes`.
[[nodiscard]] std::vector<std::string> CausasCese();

/// The proposal of the cause of that place in the list, from 0; zeros for a place outside it.
[[nodiscard]] PropuestaCese PropuestaDeCese(int Indice);

}  // namespace orvemo::nomina
