#pragma once

#include <array>
#include <cstddef>

/// Bytes of the records of the case files; an input of fuzz_casos begins with the place of one here.
inline constexpr std::array<std::size_t, 12> kLongitudes{207, 239, 260, 274,  297,  307,
                                                         341, 482, 863, 1046, 1411, 2592};
