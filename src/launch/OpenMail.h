#pragma once

#include <string_view>

namespace corvelle {

class Program;

/// Opens a "mailto:" address with the user's mail program; says so when there is none.
void OpenMail(Program& program, std::string_view address);

}  // namespace corvelle
