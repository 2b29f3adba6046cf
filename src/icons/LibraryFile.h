#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

// Formats of the icon library: the container "icon.lib", the lists of its categories, the list of
// other files with icons, and the record of the display values. Bytes in, values out, and back.

/// Bytes before the data of a container's entry.
inline constexpr std::size_t kLibraryHeader = 24;
/// Width of the name in it, bytes.
inline constexpr std::size_t kLibraryName = 20;

/// Name of an entry and the highest index of its bytes, as stored; 0 ends the container.
struct LibraryEntry {
  std::string Name;
  std::int32_t Highest = 0;

  friend bool operator==(const LibraryEntry&, const LibraryEntry&) = default;
};

/// The entry that starts with these bytes. Nothing when they are fewer than a header.
[[nodiscard]] std::optional<LibraryEntry> ParseLibraryEntry(std::string_view bytes,
                                                            const CodePage& ansi);

/// Length of an entry's data in bytes; 0 for the entry that ends the container, and for a length
/// that no data can have.
[[nodiscard]] std::uint64_t LibraryDataLength(const LibraryEntry& entry) noexcept;

/// True if a file of this name lands in the folder that it is written to, as a plain file: no
/// folder, drive, stream or device, and no name that Windows would read as another one.
[[nodiscard]] bool IsPlainFileName(std::string_view name);

/// The lines of a text file, without those that hold nothing but blanks. Lines are trimmed.
[[nodiscard]] std::vector<std::string> LibraryLines(std::string_view bytes, const CodePage& ansi);

/// The text file of these lines.
[[nodiscard]] std::string FormatLibraryLines(const std::vector<std::string>& lines,
                                             const CodePage& ansi);

/// The row of a file in the list of other files: its name, a blank, "|" and its path.
[[nodiscard]] std::string OtherFileRow(std::string_view path);

/// What a row shows, and the path that it stands for; both trimmed. Without a "|" there is no path.
[[nodiscard]] std::string OtherFileName(std::string_view row);
[[nodiscard]] std::string OtherFilePath(std::string_view row);

/// A path with its first letter upper and the rest lower.
[[nodiscard]] std::string PlainCase(std::string_view path);

/// What the pictures of the library were made under.
struct DisplayValues {
  std::int32_t WindowColour = 0;  // system colour 5
  std::int32_t BitsPerPixel = 0;

  friend bool operator==(const DisplayValues&, const DisplayValues&) = default;
};

/// Bytes of the record that holds them.
inline constexpr std::size_t kDisplayRecord = 16;

/// The values of a record; what is missing of it reads as 0.
[[nodiscard]] DisplayValues ParseDisplayRecord(std::string_view bytes) noexcept;
[[nodiscard]] std::string FormatDisplayRecord(const DisplayValues& values);

}  // namespace corvelle
