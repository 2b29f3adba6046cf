#include "icons/IconLibrary.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/StartupProgress.h"
#include "forms/EventPump.h"
#include "icons/LibraryFile.h"
#include "platform/FileSystem.h"

namespace corvelle {

namespace {

constexpr int kEntriesPerDot = 5;
constexpr std::string_view kMissing =
    "Icon Library couldn't be found in your system. You need to reinstall the program to fix this "
    "error.";
constexpr unsigned kMissingFlags = forms::msgbox::IconStop | forms::msgbox::OnTop;

/// Writes one entry, and notes its path in `written`. A file that cannot be written keeps its old
/// content, and the others follow: one icon that is held open must not cost the rest.
void WriteEntry(FileSystem& files, const std::string& folder, const LibraryEntry& entry,
                std::string_view data, std::string& written) {
  if (!IsPlainFileName(entry.Name)) return;
  std::string path = folder + entry.Name;
  if (files.ReplaceUnflushed(path, data)) written = std::move(path);
}

/// Reads and writes the entry at `offset`. The offset behind it; nothing when the unpacking ends
/// there.
std::optional<std::uint64_t> ExtractEntry(const UnpackParts& with, const std::string& container,
                                          const std::string& folder, std::uint64_t offset,
                                          std::string& written) {
  const auto header = with.Files.Read(container, offset, kLibraryHeader);
  if (!header) return std::nullopt;
  const auto entry = ParseLibraryEntry(*header, with.Ansi);
  if (!entry) return std::nullopt;
  const std::uint64_t length = LibraryDataLength(*entry);
  if (length == 0) return std::nullopt;
  const auto data =
      with.Files.Read(container, offset + kLibraryHeader, static_cast<std::size_t>(length));
  if (!data || data->size() != length) return std::nullopt;
  WriteEntry(with.Files, folder, *entry, *data, written);
  return offset + kLibraryHeader + length;
}

}  // namespace

void ExtractIconLibrary(const UnpackParts& with, std::string_view target, std::string_view source) {
  const std::string folder = EnsureBackslash(target);
  const std::string container = EnsureBackslash(source) + std::string(kLibraryFile);
  if (!with.Files.FileExists(container)) {
    with.Messages.Say(with.Ports.ToolbarWindow(), kMissing, kMissingFlags);
    return;
  }
  const std::uint64_t end = with.Files.Length(container).ValueOr(0);
  std::optional<std::uint64_t> offset = 0;
  std::string written;
  for (int count = 1; offset && *offset < end; ++count) {
    with.Events.DoEvents();
    if (count % kEntriesPerDot == 0) with.Progress.ShowStartupProgress();
    offset = ExtractEntry(with, container, folder, *offset, written);
  }
  // The icons can be unpacked again, so that one wait for the disk is enough. Should even that
  // fail, the icons are there until the power goes.
  if (!written.empty()) static_cast<void>(with.Files.Flush(written));
}

void IconLibrary::ExtractIconLibrary() {
  corvelle::ExtractIconLibrary(with_, with_.Paths.IconsPath, with_.Paths.ShippedFile(""));
}

}  // namespace corvelle
