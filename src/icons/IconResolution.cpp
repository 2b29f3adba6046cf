#include "icons/IconResolution.h"

#include <optional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
#include "platform/Canvas.h"
#include "platform/FileSystem.h"

namespace corvelle {

namespace {

constexpr std::string_view kFallbackFile = "W95MBX02.ICO";
constexpr int kSmallSize = 16;

bool DrawSystemIcon(Program& program, Canvas& canvas, int index, PixelPoint at, int size) {
  return program.Services.Icons.DrawSystemIcon(canvas, IconListOf(size), index, at,
                                               IconStyle::Normal);
}

/// As the shell shows the file.
bool DrawShellIcon(Program& program, Canvas& canvas, std::string_view file, PixelPoint at,
                   int size) {
  const auto info = program.Services.Icons.FileInfo(file, IconListOf(size));
  return info && DrawSystemIcon(program, canvas, info->SystemIndex, at, size);
}

bool DrawSpecialFolder(Program& program, Canvas& canvas, std::string_view name, PixelPoint at,
                       int size) {
  SpecialFoldersPort* folders = program.Ports.SpecialFolders;
  if (folders == nullptr) return false;
  return DrawSystemIcon(program, canvas, folders->SpecialFolderIconIndex(name), at, size);
}

bool DrawFile(Program& program, Canvas& canvas, const IconForm& form, PixelPoint at, int size) {
  const auto info = program.Services.Icons.FileInfo(form.Text, IconListOf(size));
  if (!info) return false;
  if (form.OwnIcon && DrawIconFile(program, canvas, form.Text, at, size)) return true;
  return DrawSystemIcon(program, canvas, info->SystemIndex, at, size);
}

bool DrawForm(Program& program, Canvas& canvas, const IconForm& form, PixelPoint at, int size) {
  switch (form.Kind) {
    case IconKind::Empty:
    case IconKind::BuiltIn:
      break;
    case IconKind::SpecialFolder:
      return DrawSpecialFolder(program, canvas, form.Text, at, size);
    case IconKind::SystemIndex:
      return DrawSystemIcon(program, canvas, form.Index, at, size);
    case IconKind::FileIndex:
      return DrawIconIndex(program, canvas, form.File, at, size, form.Index) ||
             DrawFile(program, canvas, form, at, size);
    case IconKind::File:
      return DrawFile(program, canvas, form, at, size);
  }
  return false;
}

/// Paths of the first two icon files of the program; fewer when there are fewer.
std::vector<std::string> TwoIconFiles(Program& program, const std::string& folder) {
  std::vector<std::string> paths;
  const auto entries = program.Services.Files.List(folder, "*.ico");
  // A folder that cannot be listed shows no icon files to look at.
  if (!entries) return paths;
  for (const FileEntry& entry : *entries) {
    if (!entry.IsFolder && paths.size() < 2) paths.push_back(folder + entry.Name);
  }
  return paths;
}

/// True if the shell gives two icon files different icons.
bool ShellTellsApart(Program& program, const std::vector<std::string>& paths) {
  if (paths.size() < 2) return false;
  ShellIcons& icons = program.Services.Icons;
  const auto first = icons.FileInfo(paths[0], IconList::Small);
  const auto second = icons.FileInfo(paths[1], IconList::Small);
  return first && second && first->SystemIndex != second->SystemIndex;
}

}  // namespace

void DetectShellIcons(Program& program) {
  // The registry's "icofile" says nothing: the user may have given icon files to another program,
  // and the shell then shows that program's picture for all of them.
  program.Icons.ShellDrawsIcons =
      ShellTellsApart(program, TwoIconFiles(program, program.Paths.AppPath + "Icons\\"));
}

IconList IconListOf(int size) noexcept {
  return size == kSmallSize ? IconList::Small : IconList::Large;
}

bool ResolveAndDraw(Program& program, Canvas& canvas, std::string_view text, PixelPoint at,
                    int size, IconCaller caller) {
  const IconPlaces places{.AppPath = program.Paths.AppPath,
                          .IconsPath = program.Paths.IconsPath,
                          .WebLinkIcon = program.Icons.WebLinkIcon};
  const IconForm form = ClassifyIcon(text, places, caller);
  if (form.Kind == IconKind::BuiltIn) return false;
  return DrawForm(program, canvas, form, at, size) || DrawFallbackIcon(program, canvas, at, size);
}

bool DrawFallbackIcon(Program& program, Canvas& canvas, PixelPoint at, int size) {
  const std::string file = program.Paths.IconsPath + std::string(kFallbackFile);
  return DrawIconFile(program, canvas, file, at, size) ||
         DrawShellIcon(program, canvas, file, at, size);
}

bool DrawIconFile(Program& program, Canvas& canvas, std::string_view file, PixelPoint at,
                  int size) {
  return !program.Icons.ShellDrawsIcons && DrawIconIndex(program, canvas, file, at, size, 0);
}

bool DrawIconIndex(Program& program, Canvas& canvas, std::string_view file, PixelPoint at, int size,
                   int index) {
  return program.Services.Icons.DrawFileIcon(canvas, file, index, at, size);
}

}  // namespace corvelle
