#include "forms/Menu.h"

#include <string>

#include "base/Text.h"

namespace corvelle::forms {

namespace {

struct KeyName {
  std::string_view Name;
  int KeyCode;
};

constexpr KeyName kKeyNames[] = {{"INS", key::Insert}, {"DEL", key::Delete}, {"ENTER", key::Enter},
                                 {"ESC", key::Escape}, {"UP", key::Up},      {"DOWN", key::Down},
                                 {"HOME", key::Home},  {"END", key::End}};

std::optional<int> KeyOf(const std::string& name) {
  constexpr int kF1 = 112;
  constexpr int kFunctionKeys = 24;
  if (name.size() == 1 &&
      ((name[0] >= 'A' && name[0] <= 'Z') || (name[0] >= '0' && name[0] <= '9'))) {
    return name[0];
  }
  if (name.size() > 1 && name[0] == 'F') {
    const auto number = ParseNumber(std::string_view(name).substr(1));
    if (number && *number >= 1 && *number <= kFunctionKeys) return kF1 + *number - 1;
  }
  for (const KeyName& known : kKeyNames) {
    if (known.Name == name) return known.KeyCode;
  }
  return std::nullopt;
}

/// Counts on in `number` until a line fits; true when one did.
template <class Fits>
bool Search(const std::vector<PopupItem>& items, bool offered, int& number, const Fits& fits) {
  for (const PopupItem& item : items) {
    const bool here = offered && item.Visible && item.Enabled;
    if (fits(item, here, number)) return true;
    ++number;
    if (Search(item.Items, here, number, fits)) return true;
  }
  return false;
}

}  // namespace

std::optional<Accelerator> AcceleratorOf(std::string_view caption) {
  const std::size_t tab = caption.find('\t');
  if (tab == std::string_view::npos) return std::nullopt;
  std::string rest = UpperCase(caption.substr(tab + 1));
  Accelerator found;
  const auto take = [&rest](std::string_view prefix) {
    if (rest.rfind(prefix, 0) != 0) return false;
    rest.erase(0, prefix.size());
    return true;
  };
  for (bool more = true; more;) {
    more = false;
    if (take("CTRL+")) found.Shift.Ctrl = more = true;
    if (take("SHIFT+")) found.Shift.Shift = more = true;
    if (take("ALT+")) found.Shift.Alt = more = true;
  }
  const auto keyCode = KeyOf(rest);
  if (!keyCode) return std::nullopt;
  found.KeyCode = *keyCode;
  return found;
}

int LineOf(const std::vector<PopupItem>& items, const Accelerator& pressed) {
  int number = 0;
  const bool found = Search(items, true, number, [&](const PopupItem& item, bool offered, int) {
    return offered && item.Items.empty() && AcceleratorOf(item.Caption) == pressed;
  });
  return found ? number : popup::kNothing;
}

int CountLines(const std::vector<PopupItem>& items) {
  int count = 0;
  Search(items, true, count, [](const PopupItem&, bool, int) { return false; });
  return count;
}

const PopupItem* LineAt(const std::vector<PopupItem>& items, int number) {
  const PopupItem* line = nullptr;
  int at = 0;
  Search(items, true, at, [&](const PopupItem& item, bool, int here) {
    if (here == number) line = &item;
    return line != nullptr;
  });
  return line;
}

}  // namespace corvelle::forms
