#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileAssociations.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"

namespace corvelle::sim {

/// Programs by the extensions of files, as a test sets them up. A file must be on the disk to be
/// asked about.
class SimFileAssociations final : public FileAssociations, public Priced {
 public:
  explicit SimFileAssociations(const SimFiles& files) : files_(files) {}

  /// Files with this extension (".htm") open with that program; with none when it is empty.
  void Set(std::string_view extension, std::string_view program);
  /// The files that were asked about, in order, each with the bytes that it had then.
  [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& Asked() const noexcept {
    return asked_;
  }

  std::optional<std::string> ProgramFor(std::string_view file) override;

 private:
  const SimFiles& files_;
  std::map<std::string, std::string> programs_;
  std::vector<std::pair<std::string, std::string>> asked_;
};

}  // namespace corvelle::sim
