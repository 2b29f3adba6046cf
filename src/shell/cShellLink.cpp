#include "shell/cShellLink.h"

#include <memory>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

// The length of the buffers that take a link's texts.
constexpr std::size_t kLongestText = 255;  // characters

// Quietly: without a window there is nobody to ask.
constexpr unsigned kResolveFlags = kResolveUpdate | kResolveQuietly;

std::string ReadText(std::string_view text) {
  const std::string_view rest = SkipCharacters(text, kLongestText);
  return StripAtNull(text.substr(0, text.size() - rest.size()));
}

/// Sets what is given; a part that is not leaves the new link as it is.
bool SetFields(ShellLinkObject& link, const ShellLinkFields& fields) {
  if (!link.SetPath(fields.ExeFile)) return false;
  if (!fields.WorkDir.empty() && !link.SetWorkingDirectory(fields.WorkDir)) return false;
  if (!fields.ExeArgs.empty() && !link.SetArguments(fields.ExeArgs)) return false;
  if (fields.wHotKey != 0 && !link.SetHotkey(fields.wHotKey)) return false;
  if (!fields.IconFile.empty() && !link.SetIconLocation(fields.IconFile, fields.IconIdx)) {
    return false;
  }
  return link.SetShowCmd(fields.ShowCmd);
}

}  // namespace

std::optional<std::string> cShellLink::GetSystemFolderPath(WindowId window, int folder) {
  const auto item = system_.SpecialFolderLocation(window, folder);
  if (!item) return std::nullopt;
  const auto path = system_.PathFromIDList(*item);
  if (!path) return std::nullopt;
  std::string text = StripAtNull(*path);
  if (text.empty()) return std::nullopt;
  return text;
}

bool cShellLink::CreateShellLink(std::string_view LnkFile, const ShellLinkFields& fields) {
  if (LnkFile.empty() || fields.ExeFile.empty()) return false;
  const std::unique_ptr<ShellLinkObject> link = system_.CreateLinkObject();
  return link != nullptr && SetFields(*link, fields) && link->Resolve(kResolveFlags) &&
         link->Save(LnkFile);
}

bool cShellLink::ShellLinkToObject(std::string_view LnkFile, const ItemIdList& item,
                                   std::int32_t ShowCmd) {
  if (LnkFile.empty() || item.IsEmpty()) return false;
  const std::unique_ptr<ShellLinkObject> link = system_.CreateLinkObject();
  return link != nullptr && link->SetIDList(item) && link->SetShowCmd(ShowCmd) &&
         link->Resolve(kResolveFlags) && link->Save(LnkFile);
}

std::optional<ShellLinkInfo> cShellLink::GetShellLinkInfo(std::string_view LnkFile) {
  if (LnkFile.empty()) return std::nullopt;
  const std::unique_ptr<ShellLinkObject> link = system_.CreateLinkObject();
  if (link == nullptr || !link->Load(LnkFile)) return std::nullopt;
  const auto path = link->GetPath();
  if (!path) return std::nullopt;
  const auto folder = link->GetWorkingDirectory();
  if (!folder) return std::nullopt;
  const auto arguments = link->GetArguments();
  if (!arguments) return std::nullopt;
  const auto description = link->GetDescription();
  if (!description) return std::nullopt;
  const auto hotKey = link->GetHotkey();
  if (!hotKey) return std::nullopt;
  const auto icon = link->GetIconLocation();
  if (!icon) return std::nullopt;
  auto item = link->GetIDList();
  if (!item) return std::nullopt;
  const auto showCmd = link->GetShowCmd();
  if (!showCmd) return std::nullopt;
  return ShellLinkInfo{.Fields = {.ExeFile = ReadText(*path),
                                  .WorkDir = ReadText(*folder),
                                  .ExeArgs = ReadText(*arguments),
                                  .IconFile = ReadText(icon->File),
                                  .IconIdx = icon->Index,
                                  .ShowCmd = *showCmd,
                                  .wHotKey = *hotKey},
                       .Description = ReadText(*description),
                       .Item = *std::move(item)};
}

}  // namespace corvelle
