#pragma once

#include <string>
#include <string_view>

namespace corvelle {

/// Who draws an icon. Callers differ in the words that they have pictures of their own for, in the
/// order of the tests, and in whether case counts.
enum class IconCaller {
  Toolbar,     // menu buttons and single buttons
  Tree,        // the tree of the Customize window
  Menu,        // the menu window
  Properties,  // the preview of the Properties window
};

enum class IconKind {
  Empty,          // no text: the fallback
  BuiltIn,        // Text: key of a picture that the caller has
  SpecialFolder,  // Text: name of a special folder
  SystemIndex,    // Index: an icon of the shell's list
  FileIndex,      // Index: an icon inside File; Text: the whole, when the file has no such icon
  File,           // Text: a file, as the shell shows it
};

/// What an icon text means.
struct IconForm {
  IconKind Kind = IconKind::Empty;
  std::string Text;
  std::string File;
  int Index = 0;
  /// The file lies in the program's own folder of icons.
  bool OwnIcon = false;

  friend bool operator==(const IconForm&, const IconForm&) = default;
};

/// What the texts refer to. Folders end in a backslash.
struct IconPlaces {
  std::string_view AppPath;
  std::string_view IconsPath;
  std::string_view WebLinkIcon;
};

/// The meaning of an icon text, which is trimmed already. Asks nothing but the text itself.
[[nodiscard]] IconForm ClassifyIcon(std::string_view text, const IconPlaces& places,
                                    IconCaller caller);

/// Splits "file|number" at the last "|". Returns the number and sets `file` to the trimmed text
/// before it; without a number returns 0 and leaves `file` alone.
int SplitIconRef(std::string_view ref, std::string& file);

}  // namespace corvelle
