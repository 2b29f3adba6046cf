#pragma once

namespace corvelle::e2e {

/// How many times as often as usual the tests that repeat an act repeat it: 1, unless the runner
/// was given another number.
[[nodiscard]] int Times();

}  // namespace corvelle::e2e
