#include "toolbar/layout/StripFiles.h"

#include <optional>

#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/ProgramPaths.h"
#include "core/StartupProgress.h"

namespace corvelle {

std::vector<StripFiles::Button> StripFiles::MenuButtons() const {
  std::vector<Button> buttons;
  const auto names = OrderedMenuFiles(with_.Files, with_.Paths.MenusPath);
  if (!names) return buttons;
  for (const std::string& name : *names) {
    with_.Progress.ShowStartupProgress();
    const std::string path = with_.Paths.MenusPath + name;
    const std::optional<MenuRecord> record = ReadButtonRecord(with_.Files, with_.Ansi, path);
    if (record) buttons.push_back({path, *record});
  }
  return buttons;
}

std::vector<StripFiles::Button> StripFiles::SingleButtons() const {
  std::vector<Button> buttons;
  const auto names = OrderedSingleFiles(with_.Files, with_.Paths.MenusPath);
  if (!names) return buttons;
  for (const std::string& name : *names) {
    const std::string path = with_.Paths.MenusPath + name;
    const std::optional<MenuRecord> record = ReadButtonRecord(with_.Files, with_.Ansi, path);
    if (!record) continue;
    with_.Progress.ShowStartupProgress();
    buttons.push_back({path, *record});
  }
  return buttons;
}

MenuRecord StripFiles::RecordOf(std::string_view path) const {
  return ReadButtonRecord(with_.Files, with_.Ansi, path).value_or(MenuRecord{});
}

MenuRecord StripFiles::MainMenuRecord() const {
  return {with_.Title, with_.Paths.ShippedFile("corvelle.exe"), ""};
}

std::string StripFiles::MainMenuFile() const {
  return with_.Paths.AppPath + std::string(kMainMenuFileName);
}

}  // namespace corvelle
