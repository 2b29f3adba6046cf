#include "sim/SimShellFiles.h"

#include <utility>

#include "base/Wildcard.h"
#include "sim/Complain.h"

namespace corvelle::sim {

namespace {

constexpr int kInvalidFiles = 0x7C;

}  // namespace

int SimShellFiles::ShFileOperation(const FileOperation& operation) {
  TellCall("ShFileOperation", operation.From);
  log_.push_back(operation);
  if (operation.Function != fileop::Delete) Complain("a file operation other than deleting");
  if ((operation.Flags & fileop::FilesOnly) == 0) Complain("a file operation on folders too");
  if (const int failure = std::exchange(failure_, 0); failure != 0) return failure;

  const std::size_t slash = operation.From.rfind('\\');
  if (slash == std::string::npos) return kInvalidFiles;
  const std::string folder = operation.From.substr(0, slash + 1);
  const std::string pattern = operation.From.substr(slash + 1);
  if (!files_.Has(folder)) return kInvalidFiles;
  for (const std::string& name : files_.Names(folder)) {
    const std::string path = folder + name;
    const bool isFile = files_.Get(path).has_value();
    if (!isFile || !FitsPattern(name, pattern)) continue;
    files_.Vanish(path);
    if ((operation.Flags & fileop::AllowUndo) != 0) bin_.push_back(path);
  }
  return 0;
}

}  // namespace corvelle::sim
