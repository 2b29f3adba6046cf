#pragma once

#include <string_view>

namespace corvelle {

struct LaunchParts;

/// Opens a "mailto:" address with the user's mail program; says so when there is none.
void OpenMail(const LaunchParts& with, std::string_view address);

}  // namespace corvelle
