#include "icons/RecycleIcon.h"

#include <string>
#include <utility>

#include "base/Text.h"
#include "core/Program.h"
#include "platform/Registry.h"

namespace corvelle {

namespace {

constexpr std::string_view kRecycleBinIconKey =
    "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon";

}  // namespace

void CheckRecycleIcon(Program& program) {
  const auto value = program.Services.Keys.Text(RegistryRoot::ClassesRoot, kRecycleBinIconKey, {});
  // A bin whose icon is not told keeps the one it had.
  if (!value) return;
  std::string path = Trim(*value);
  if (path.empty() || path == program.RecycleIconPath) return;
  program.RecycleIconPath = std::move(path);
  program.RecycleIconChanged = true;
}

}  // namespace corvelle
