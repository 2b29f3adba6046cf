#include "sim/SimShellExec.h"

#include <algorithm>

#include "base/Text.h"

namespace corvelle::sim {

namespace {

constexpr std::string_view kPrograms[] = {".EXE", ".COM", ".BAT", ".CMD", ".PIF", ".SCR"};
constexpr std::string_view kSchemeCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-.";
constexpr std::string_view kRunnable[] = {".EXE", ".COM", ".BAT", ".CMD", ".SCR"};

/// The extension in capitals with its dot; empty without one.
std::string ExtensionOf(std::string_view file) {
  const std::size_t dot = file.rfind('.');
  const std::size_t slash = file.rfind('\\');
  if (dot == std::string_view::npos || (slash != std::string_view::npos && dot < slash)) return {};
  return UpperCase(file.substr(dot));
}

template <std::size_t N>
bool IsOneOf(const std::string& extension, const std::string_view (&all)[N]) {
  return std::find(std::begin(all), std::end(all), extension) != std::end(all);
}

/// "http:", "mailto:"... but no drive letter.
bool IsAddress(std::string_view file) {
  const std::size_t colon = file.find(':');
  if (colon == std::string_view::npos || colon < 2) return false;
  return file.substr(0, colon).find_first_not_of(kSchemeCharacters) == std::string_view::npos;
}

bool HasBadCharacter(std::string_view file) {
  return file.empty() || file.find_first_of("\"<>|?*") != std::string_view::npos;
}

}  // namespace

void SimShellExec::Associate(std::string_view extension, std::string_view program) {
  associations_[UpperCase(extension)] = program;
}

void SimShellExec::AddToPath(std::string_view program) { path_.insert(UpperCase(program)); }

void SimShellExec::Fail(std::string_view file, RunError error) {
  failures_[UpperCase(file)] = error;
}

void SimShellExec::FailToOpen(std::string_view file, OpenError error) {
  openFailures_[UpperCase(file)] = error;
}

std::vector<std::string> SimShellExec::Started() const {
  std::vector<std::string> started;
  for (const Launch& launch : log_) {
    if (launch.Started) started.push_back(launch.File);
  }
  return started;
}

void SimShellExec::Note(const Launch& launch) {
  TellCall(launch.How == Launch::Kind::Open ? "Open" : "Run", launch.File);
  log_.push_back(launch);
  if (whileAsked_) whileAsked_(launch);
}

bool SimShellExec::Exists(std::string_view file) const {
  if (path_.contains(UpperCase(file)) || path_.contains(UpperCase(file) + ".EXE")) return true;
  return !HasBadCharacter(file) && files_.Has(file);
}

bool SimShellExec::CanOpen(std::string_view file) const {
  if (failures_.contains(UpperCase(file))) return false;
  if (IsAddress(file)) return true;
  if (!Exists(file)) return false;
  const std::string extension = ExtensionOf(file);
  if (extension == ".LNK") return CanFollow(file);
  const bool folder = !extension.empty() || files_.Get(file).has_value() ? false : files_.Has(file);
  return folder || IsOneOf(extension, kPrograms) || associations_.contains(extension) ||
         path_.contains(UpperCase(file) + ".EXE");
}

bool SimShellExec::CanFollow(std::string_view link) const {
  const auto content = links_.Get(link);
  return content && (content->Path.empty() ? !content->Item.IsEmpty() : Exists(content->Path));
}

std::optional<OpenError> SimShellExec::WhyNotOpened(std::string_view file) const {
  const auto scripted = openFailures_.find(UpperCase(file));
  if (scripted != openFailures_.end()) return scripted->second;
  if (CanOpen(file)) return std::nullopt;
  return OpenError::Other;
}

Result<Done, OpenError> SimShellExec::Open(std::string_view file,
                                           std::optional<std::string_view> parameters,
                                           std::optional<std::string_view> folder) {
  const std::optional<OpenError> error = WhyNotOpened(file);
  Launch launch{.How = Launch::Kind::Open, .File = std::string(file), .Started = !error};
  if (parameters) launch.Parameters = std::string(*parameters);
  if (folder) launch.Folder = std::string(*folder);
  Note(launch);
  if (error) return *error;
  return Done{};
}

std::optional<RunError> SimShellExec::WhyNotRun(std::string_view commandLine) const {
  const auto scripted = failures_.find(UpperCase(commandLine));
  if (scripted != failures_.end()) return scripted->second;
  const std::string line = Trim(commandLine);
  if (line.empty()) return RunError::BadFileName;
  // Without quotes each blank may end the program's name, tried from the left.
  std::vector<std::string> names;
  if (line.front() == '"') {
    const std::size_t end = line.find('"', 1);
    names.push_back(line.substr(1, end == std::string::npos ? end : end - 1));
  } else {
    for (std::size_t blank = line.find(' '); blank != std::string::npos;
         blank = line.find(' ', blank + 1)) {
      names.push_back(line.substr(0, blank));
    }
    names.push_back(line);
  }
  for (const std::string& name : names) {
    for (const std::string& file : {name, name + ".exe"}) {
      if (!Exists(file) || (!files_.Get(file) && !path_.contains(UpperCase(file)))) continue;
      if (IsOneOf(ExtensionOf(file), kRunnable)) return std::nullopt;
      return RunError::Other;
    }
  }
  const std::string whole = names.back();
  if (files_.Has(whole) && !files_.Get(whole)) return RunError::AccessDenied;  // a folder
  const bool bad = std::all_of(names.begin(), names.end(),
                               [](const std::string& name) { return HasBadCharacter(name); });
  return bad ? RunError::BadFileName : RunError::FileNotFound;
}

Result<Done, RunError> SimShellExec::Run(std::string_view commandLine) {
  const std::optional<RunError> error = WhyNotRun(commandLine);
  Note({.How = Launch::Kind::Run, .File = std::string(commandLine), .Started = !error.has_value()});
  if (error) return *error;
  return Done{};
}

}  // namespace corvelle::sim
