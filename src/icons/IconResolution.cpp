#include "icons/IconResolution.h"

#include <optional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
#include "icons/IconQuestions.h"
#include "platform/Canvas.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::string_view kFallbackFile = "W95MBX02.ICO";

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

}  // namespace

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
