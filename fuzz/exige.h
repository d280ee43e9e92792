#pragma once

#include <cstdio>
#include <cstdlib>

/// The largest doubles, rounded to the fifteen digits of their texts, are beyond a double: up to here a text
/// reads back as its number.
inline constexpr double kReleible = 1e308;

/// Stops the fuzzer, which then keeps the input, when something that always holds doesn't.
inline void exige(bool cierto, const char* que) {
    if (cierto) return;
    std::fprintf(stderr, "does not hold: %s\n", que);
    std::abort();
}
