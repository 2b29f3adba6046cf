#include "sim/SimFileAssociations.h"

#include "base/Text.h"

namespace corvelle::sim {

void SimFileAssociations::Set(std::string_view extension, std::string_view program) {
  programs_[UpperCase(extension)] = program;
}

std::optional<std::string> SimFileAssociations::ProgramFor(std::string_view file) {
  TellCall("ProgramFor", file);
  const auto bytes = files_.Get(file);
  if (!bytes) return std::nullopt;
  asked_.emplace_back(file, *bytes);
  const std::size_t dot = file.rfind('.');
  if (dot == std::string_view::npos) return std::nullopt;
  const auto program = programs_.find(UpperCase(file.substr(dot)));
  if (program == programs_.end() || program->second.empty()) return std::nullopt;
  return program->second;
}

}  // namespace corvelle::sim
