#include "payroll/grupos/grupos.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "foundations/values/numeros.h"

namespace orvemo::grupos {
namespace {

// A row a group; the last one serves the group 4 and all above it.
// clang-format off
constexpr std::array kMinimas{
    BasesMinimas{836.1, 27.86, 4.19},
    BasesMinimas{693.6, 23.12, 3.47},
    BasesMinimas{603.8, 20.13, 3.02},
    BasesMinimas{598.5, 19.95, 2.98},
};
// clang-format on

bool existe(int grupo) {
    return EntreLimites(grupo, kPrimerGrupo, kUltimoGrupo);
}

}  // namespace

BasesMinimas MinimasComunes(int grupo) {
    if (!existe(grupo)) return {};
    return kMinimas.at(std::min(static_cast<std::size_t>(grupo), kMinimas.size()) - 1);
}

double MaximaComun(int grupo) {
    return existe(grupo) ? kBaseMaxima : 0;
}

}  // namespace orvemo::grupos
