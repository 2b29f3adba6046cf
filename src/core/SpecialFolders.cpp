#include "core/SpecialFolders.h"

#include <algorithm>
#include <iterator>

#include "base/FieldText.h"
#include "base/Text.h"
#include "core/MenuRecord.h"

namespace corvelle {

namespace {

struct NamedFolder {
  std::string_view Name;
  int Value;
};

// The constants of the same names.
constexpr NamedFolder kFolders[] = {
    {"CSIDL_DESKTOP", 0},
    {"CSIDL_PROGRAMS", 2},
    {"CSIDL_CONTROLS", 3},
    {"CSIDL_PRINTERS", 4},
    {"CSIDL_PERSONAL", 5},
    {"CSIDL_FAVORITES", 6},
    {"CSIDL_STARTUP", 7},
    {"CSIDL_RECENT", 8},
    {"CSIDL_SENDTO", 9},
    {"CSIDL_BITBUCKET", 10},
    {"CSIDL_STARTMENU", 11},
    {"CSIDL_DESKTOPDIRECTORY", 16},
    {"CSIDL_DRIVES", 17},
    {"CSIDL_NETWORK", 18},
    {"CSIDL_NETHOOD", 19},
    {"CSIDL_FONTS", 20},
    {"CSIDL_TEMPLATES", 21},
    {"CSIDL_COMMON_STARTMENU", 22},
    {"CSIDL_COMMON_PROGRAMS", 23},
    {"CSIDL_COMMON_STARTUP", 24},
    {"CSIDL_COMMON_DESKTOPDIRECTORY", 25},
    {"CSIDL_APPDATA", 26},
    {"CSIDL_PRINTHOOD", 27},
};

// The control panel, the printers, the bin, the drives and the network.
constexpr int kShellFolders[] = {3, 4, 10, 17, 18};

constexpr char kEntryMark = '\\';
constexpr char kOptionsMark = '/';
constexpr char kNotExpanded = 'X';

// The shortest that a name can have been cut to. A title holds 50 bytes, of which a generated menu
// file of earlier versions left 45 to the name, and a character that does not fit can take three
// more with it.
constexpr std::size_t kShortestCutTitle = 42;

/// Where a title before the folder ends in a command; npos when there is none.
std::size_t TitleEnd(std::string_view command) noexcept {
  const std::size_t mark = command.rfind(kEntryMark);
  if (mark == std::string_view::npos ||
      !StartsWithNoCase(command.substr(mark + 1), kSpecialFolderStart)) {
    return std::string_view::npos;
  }
  return mark;
}

/// True for a path that begins with its drive or its machine.
bool IsWholePath(std::string_view text) noexcept {
  return text.substr(0, 2) == "\\\\" || (text.size() > 2 && text.substr(1, 2) == ":\\");
}

std::string_view WithoutOptions(std::string_view folder) noexcept {
  return folder.substr(0, folder.find(kOptionsMark));
}

// How well a name fits a title, the less the better.
enum Fit { kSame, kSameLetters, kBegins, kNoFit };

Fit TitleFit(std::string_view name, std::string_view title) {
  if (name == title) return kSame;
  if (EqualNoCase(Trim(name), title)) return kSameLetters;
  return title.size() >= kShortestCutTitle && StartsWithNoCase(Trim(name), title) ? kBegins
                                                                                  : kNoFit;
}

}  // namespace

bool IsKnownSpecialFolder(std::string_view name) noexcept {
  return std::any_of(std::begin(kFolders), std::end(kFolders),
                     [name](const NamedFolder& folder) { return EqualNoCase(name, folder.Name); });
}

int CsidlValue(std::string_view name) noexcept {
  for (const NamedFolder& folder : kFolders) {
    if (EqualNoCase(name, folder.Name)) return folder.Value;
  }
  return 0;
}

SpecialFolderKind KindOfSpecialFolder(int value) noexcept {
  if (value == kDesktopFolder) return SpecialFolderKind::Desktop;
  if (std::find(std::begin(kShellFolders), std::end(kShellFolders), value) !=
      std::end(kShellFolders)) {
    return SpecialFolderKind::Shell;
  }
  const bool known =
      std::any_of(std::begin(kFolders), std::end(kFolders),
                  [value](const NamedFolder& folder) { return folder.Value == value; });
  return known ? SpecialFolderKind::Disk : SpecialFolderKind::None;
}

SpecialFolderText ParseSpecialFolder(std::string_view command, std::string_view title) {
  std::string_view folder = command;
  std::string_view entry = title;
  if (!StartsWithNoCase(Trim(command), kSpecialFolderStart) &&
      TitleEnd(command) != std::string_view::npos) {
    entry = command.substr(0, TitleEnd(command));
    folder = command.substr(entry.size() + 1);
  } else if (const std::size_t mark = command.find(kEntryMark); mark != std::string_view::npos) {
    folder = command.substr(0, mark);
    entry = command.substr(mark + 1);
  }
  SpecialFolderText text{.Name = Trim(WithoutOptions(folder)), .Title = Trim(entry), .Options = {}};
  text.Options = UpperCase(Trim(folder.substr(WithoutOptions(folder).size())));
  if (text.Options.find(kNotExpanded) != std::string::npos) text.Title.clear();
  return text;
}

bool IsSpecialFolderEntry(std::string_view command) noexcept {
  const std::size_t end = TitleEnd(command);
  return end != std::string_view::npos && end > 0 && !IsWholePath(command) &&
         IsKnownSpecialFolder(WithoutOptions(command.substr(end + 1)));
}

std::string SpecialFolderEntryCommand(std::string_view name, std::string_view folder,
                                      const CodePage& ansi) {
  const std::size_t taken = std::min(folder.size() + 1, kNameWidth);
  return DecodeField(EncodeField(name, kNameWidth - taken, ansi), ansi) + kEntryMark +
         std::string(folder);
}

int FindEntryByTitle(const std::vector<std::string>& names, std::string_view title) {
  int best = -1;
  Fit bestFit = kNoFit;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const Fit fit = TitleFit(names[i], title);
    if (fit >= bestFit) continue;
    best = static_cast<int>(i);
    bestFit = fit;
  }
  return best;
}

}  // namespace corvelle
