#pragma once

#include <cstdio>
#include <cstdlib>

// A property that an input has broken ends the program, so that driver and fuzzer alike keep hold
// of the input.
#define CORVELLE_CHECK(property)                                                         \
  do {                                                                                   \
    if (!(property)) {                                                                   \
      std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #property); \
      std::abort();                                                                      \
    }                                                                                    \
  } while (false)
