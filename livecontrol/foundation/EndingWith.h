#pragma once

/// Runs `calls`, then `end`, which a failure of the calls doesn't leave out. Either may throw; of two
/// failures the first one counts.
template <class Calls, class End>
auto endingWith(const Calls& calls, const End& end) -> decltype(calls()) {
    const auto run = [&] {
        try {
            return calls();
        } catch (...) {
            try {
                end();
            } catch (...) { // follows from the first one
            }
            throw;
        }
    };
    const auto result = run();
    end();
    return result;
}
