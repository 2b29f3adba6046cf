#include "e2e/Times.h"

#include <algorithm>
#include <cstdlib>

namespace corvelle::e2e {

int Times() {
  const char* const given = std::getenv("CORVELLE_TEST_TIMES");
  return given != nullptr ? std::max(std::atoi(given), 1) : 1;
}

}  // namespace corvelle::e2e
