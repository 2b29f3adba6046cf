#include "icons/IconForm.h"

#include <array>
#include <optional>

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr std::string_view kIconsStart = "\\icons\\";
constexpr std::string_view kWebLink = "http";
constexpr std::string_view kSpecialStart = "CSIDL_";
constexpr std::string_view kPictureStart = "imgIcons";

enum class Test { IconsFolder, WebLink, SpecialFolder };

struct CallerRules {
  std::array<Test, 3> Order;
  bool ExactCase;
};

/// A word that a caller has a picture for, and the picture's key.
struct BuiltInWord {
  IconCaller Caller;
  std::string_view Word;
  std::string_view Key;
};

constexpr BuiltInWord kBuiltIns[] = {
    {IconCaller::Toolbar, "button", "button"}, {IconCaller::Tree, "MenuLineSeparator", "sep"},
    {IconCaller::Tree, "new", "new"},          {IconCaller::Tree, "button", "button"},
    {IconCaller::Tree, "unknown", "unknown"},  {IconCaller::Menu, "xCircle", "circle"},
    {IconCaller::Menu, "new", "new"},          {IconCaller::Properties, "button", "button"},
};

constexpr CallerRules RulesOf(IconCaller caller) noexcept {
  switch (caller) {
    case IconCaller::Tree:
    case IconCaller::Menu:
      return {{Test::SpecialFolder, Test::IconsFolder, Test::WebLink}, false};
    case IconCaller::Properties:
      return {{Test::WebLink, Test::IconsFolder, Test::SpecialFolder}, true};
    case IconCaller::Toolbar:
      break;
  }
  return {{Test::IconsFolder, Test::WebLink, Test::SpecialFolder}, false};
}

/// Comparison of words as a caller makes it. Folders are the disk's, where case never counts.
class Comparer {
 public:
  explicit Comparer(bool exactCase) : exactCase_(exactCase) {}

  [[nodiscard]] bool Equal(std::string_view a, std::string_view b) const noexcept {
    return exactCase_ ? a == b : EqualNoCase(a, b);
  }
  [[nodiscard]] bool Starts(std::string_view text, std::string_view start) const noexcept {
    return exactCase_ ? text.starts_with(start) : StartsWithNoCase(text, start);
  }

 private:
  bool exactCase_;
};

std::string PictureKey(std::string_view text, IconCaller caller, const Comparer& compare) {
  for (const BuiltInWord& word : kBuiltIns) {
    if (word.Caller == caller && compare.Equal(text, word.Word)) return std::string(word.Key);
  }
  if (caller == IconCaller::Menu && compare.Starts(text, kPictureStart)) {
    return Trim(text.substr(kPictureStart.size()));
  }
  return {};
}

bool EndsInDigit(std::string_view text) noexcept {
  return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

/// The meaning of a text in which nothing is left to replace.
IconForm ClassifyFile(std::string text) {
  IconForm form{.Kind = IconKind::File, .Text = std::move(text)};
  if (form.Text.find('|') != std::string::npos && EndsInDigit(form.Text)) {
    form.Kind = IconKind::FileIndex;
    form.Index = SplitIconRef(form.Text, form.File);
  } else if (const std::optional<int> index = ParseNumber(form.Text)) {
    form.Kind = IconKind::SystemIndex;
    form.Index = *index;
  }
  return form;
}

}  // namespace

IconForm ClassifyIcon(std::string_view text, const IconPlaces& places, IconCaller caller) {
  if (text.empty()) return {};
  const CallerRules rules = RulesOf(caller);
  const Comparer compare(rules.ExactCase);
  if (std::string key = PictureKey(text, caller, compare); !key.empty()) {
    return {.Kind = IconKind::BuiltIn, .Text = std::move(key)};
  }
  // Each test works on what the ones before it left.
  std::string rest(text);
  bool ownIcon = false;
  for (const Test test : rules.Order) {
    switch (test) {
      case Test::IconsFolder:
        // Only a leading "\icons\" moves with the program; "c:\icons\" is a folder like any other.
        if (compare.Starts(rest, kIconsStart)) rest = std::string(places.AppPath) + rest.substr(1);
        ownIcon = !places.IconsPath.empty() && ContainsNoCase(rest, places.IconsPath);
        break;
      case Test::WebLink:
        if (compare.Equal(rest, kWebLink)) rest = places.WebLinkIcon;
        break;
      case Test::SpecialFolder:
        if (compare.Starts(rest, kSpecialStart) && rest.find('\\') == std::string::npos) {
          return {.Kind = IconKind::SpecialFolder, .Text = std::move(rest)};
        }
        break;
    }
  }
  IconForm form = ClassifyFile(std::move(rest));
  form.OwnIcon = ownIcon;
  return form;
}

int SplitIconRef(std::string_view ref, std::string& file) {
  const std::size_t bar = ref.rfind('|');
  if (bar == std::string_view::npos) return 0;
  const std::optional<int> index = ParseNumber(ref.substr(bar + 1));
  if (!index) return 0;
  file = Trim(ref.substr(0, bar));
  return *index;
}

}  // namespace corvelle
