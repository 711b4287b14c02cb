#pragma once

#include <cstdio>
#include <cstdlib>

/// Stops the fuzzer, which then keeps the input, unless `holds`.
inline void expect(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "expected: %s\n", what);
        std::abort();
    }
}
