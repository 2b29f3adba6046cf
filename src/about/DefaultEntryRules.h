#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

// What a new user finds on the strip. All comparisons ignore case.

/// What a machine and this build of the program can do.
struct MachineFacts {
  bool HasFileSearch = true;
  bool HasNetSearch = true;
};

/// The single buttons that every machine gets which can do what they say, in their order.
[[nodiscard]] std::vector<MenuRecord> FixedSingles(const MachineFacts& facts);
/// The one that makes an odd row even when nothing else does.
[[nodiscard]] MenuRecord MyComputerSingle();

/// A program that opens files of some kind.
struct ProgramFacts {
  std::string_view Path;
  std::string_view FileTitle;  // the title of its file
};

/// A single button for the user's browser, which two browsers give their own names to.
[[nodiscard]] MenuRecord BrowserSingle(const ProgramFacts& program);
/// The same for the mail program.
[[nodiscard]] MenuRecord MailSingle(const ProgramFacts& program);
/// The same for any other program: the title begins with a capital.
[[nodiscard]] MenuRecord ProgramSingle(const ProgramFacts& program);

/// True if an answer of the system to "which program opens this?" is a program that a button can
/// start. False for programs that only start others (the dialog that asks the user for a program,
/// hosts of libraries and of packaged programs), for files that are not programs, and for programs
/// in a folder whose name changes with each update.
[[nodiscard]] bool IsProgramAnswer(std::string_view path);

/// Extensions whose programs become single buttons, in their order, after browser and mail.
[[nodiscard]] const std::vector<std::string_view>& ProgramExtensions();
/// The one whose program is there only to make an odd row even.
inline constexpr std::string_view kEvenExtension = "bmp";

/// True for a row that needs one more button to fill its second line.
[[nodiscard]] constexpr bool IsOdd(int singles) noexcept { return singles % 2 != 0; }

/// The records of a menu: its button, then nothing yet.
[[nodiscard]] MenuRecord DesktopButton();
[[nodiscard]] MenuRecord ProgramsButton();
[[nodiscard]] MenuRecord DocumentsButton();
[[nodiscard]] MenuRecord AccessoriesButton();
[[nodiscard]] MenuRecord SettingsButton();
[[nodiscard]] std::vector<MenuRecord> DesktopMenu();
[[nodiscard]] std::vector<MenuRecord> SettingsMenu();
/// `recentFolder` without a trailing backslash; empty for a machine without one.
[[nodiscard]] std::vector<MenuRecord> DocumentsMenu(std::string_view recentFolder);

/// An item for a file, which is its own icon.
[[nodiscard]] MenuRecord FileItem(std::string_view folder, std::string_view name);
/// The name of a file without an extension of three letters.
[[nodiscard]] std::string TitleOfName(std::string_view name);

/// Which files and folders of the Start menu are left out: the program's own files; folders that
/// have a menu or a button already; files that nobody starts by choice; links to what merely shows
/// a text, and to what is no program.
[[nodiscard]] bool IsOwnFile(std::string_view name);
[[nodiscard]] bool IsSkippedFolder(std::string_view name);
[[nodiscard]] bool IsSkippedFile(std::string_view name);
[[nodiscard]] bool IsSkippedTarget(std::string_view target);

}  // namespace corvelle
