#include "base/Version.h"

namespace corvelle {

std::string_view VersionText() noexcept { return CORVELLE_VERSION; }

}  // namespace corvelle
