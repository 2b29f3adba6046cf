#pragma once

#include "base/CodePage.h"

namespace corvelle {

inline const Windows1252 kAnsi;

}  // namespace corvelle
