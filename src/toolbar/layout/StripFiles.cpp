#include "toolbar/layout/StripFiles.h"

#include <optional>
#include <utility>

#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/ProgramPaths.h"
#include "core/StartupProgress.h"

namespace corvelle {

std::vector<StripFiles::Button> StripFiles::Read(const FileResult<std::vector<std::string>>& names,
                                                 Dot dot) const {
  std::vector<Button> buttons;
  if (!names) return buttons;
  for (const std::string& name : *names) {
    if (dot == Dot::EachFile) with_.Progress.ShowStartupProgress();
    std::string path = with_.Paths.MenusPath + name;
    std::optional<MenuRecord> record = ReadButtonRecord(with_.Files, with_.Ansi, path);
    if (!record) continue;
    if (dot == Dot::EachButton) with_.Progress.ShowStartupProgress();
    buttons.push_back({std::move(path), std::move(*record)});
  }
  return buttons;
}

std::vector<StripFiles::Button> StripFiles::MenuButtons() const {
  return Read(OrderedMenuFiles(with_.Files, with_.Paths.MenusPath), Dot::EachFile);
}

std::vector<StripFiles::Button> StripFiles::SingleButtons() const {
  return Read(OrderedSingleFiles(with_.Files, with_.Paths.MenusPath), Dot::EachButton);
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
