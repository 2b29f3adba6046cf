#pragma once

#include <string>
#include <string_view>

#include "base/Result.h"

namespace corvelle {

class CodePage;

// Menu files as text that people read and write. Each record is a block of lines, blocks are apart
// by an empty line, a line that starts with "#" says nothing:
//
//   title: Notes
//   icon: C:\\Windows\\notepad.exe
//   command: C:\\Windows\\notepad.exe
//
// A missing line leaves its field blank. "\\" is a backslash, "\n" a line feed, "\xNN" the byte NN.
// A line with a byte of 80 or above written so stands for its bytes as they are; any other is text,
// stored as the program stores it. A last line "tail:" holds bytes that follow the last whole
// record.

/// Why a text is no menu.
struct MenuTextError {
  int Line = 0;  // from 1
  std::string What;

  friend bool operator==(const MenuTextError&, const MenuTextError&) = default;
};

/// The bytes of the menu file that the text describes.
[[nodiscard]] Result<std::string, MenuTextError> PackMenu(std::string_view text,
                                                          const CodePage& ansi);

/// The text that describes these bytes. PackMenu gives exactly the same bytes back.
[[nodiscard]] std::string UnpackMenu(std::string_view bytes, const CodePage& ansi);

}  // namespace corvelle
