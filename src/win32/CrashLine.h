#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace corvelle::win32 {

/// Codes of crashes that are no exception of the system, in the range that programs may use.
inline constexpr unsigned long kUncaughtException = 0xE0C0FFE1;
/// A C++ exception on its way through the system's own kind of exceptions, where the compiler uses
/// them.
inline constexpr unsigned long kThrown = 0x20474343;
inline constexpr unsigned long kAborted = 0xE0C0FFE2;

/// What a crashed process tells the one that writes its report.
struct CrashLine {
  std::uint32_t Process = 0;
  std::uint32_t Thread = 0;
  std::uintptr_t Pointers = 0;  // its EXCEPTION_POINTERS, in its own memory
  std::uintptr_t Bar = 0;       // the window that holds an edge of the screen, 0 for none

  friend bool operator==(const CrashLine&, const CrashLine&) = default;
};

inline constexpr std::size_t kLongestProgram = 1024;  // characters
inline constexpr std::size_t kLongestCrashLine = kLongestProgram + 128;

/// The command line, with the program's path in quotes. Asks for no memory.
void FormatCrashLine(const wchar_t* program, const CrashLine& facts,
                     wchar_t (&line)[kLongestCrashLine]) noexcept;

/// Reads a command line of that form; nothing for any other.
[[nodiscard]] std::optional<CrashLine> ParseCrashLine(std::wstring_view line) noexcept;

}  // namespace corvelle::win32
