#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/PopupMenu.h"

namespace corvelle {

/// A menu with what each of its lines does.
class MenuMaker {
 public:
  using Action = std::function<void()>;

  void Add(std::string caption, Action action, bool enabled = true, bool checked = false) {
    Lines().push_back({.Caption = std::move(caption), .Enabled = enabled, .Checked = checked});
    actions_.push_back(std::move(action));
  }
  void AddGap() { Add("-", {}); }
  /// Hides the line that was added last, or shows it. It is counted in any case, so that the other
  /// lines of a menu that is up keep their numbers.
  void ShowLast(bool visible) { Lines().back().Visible = visible; }
  /// The lines up to End are those of a menu of its own.
  void Begin(std::string caption) {
    Add(std::move(caption), {});
    inside_ = true;
  }
  void End() noexcept { inside_ = false; }

  [[nodiscard]] const std::vector<forms::PopupItem>& Items() const noexcept { return items_; }
  /// What the line with this number does (see WindowSystem::ShowPopup). Empty for a line that does
  /// nothing by itself and for a number that no line has.
  [[nodiscard]] Action ActionOf(int line) const {
    return line >= 0 && static_cast<std::size_t>(line) < actions_.size()
               ? actions_[static_cast<std::size_t>(line)]
               : Action();
  }

 private:
  std::vector<forms::PopupItem>& Lines() { return inside_ ? items_.back().Items : items_; }

  std::vector<forms::PopupItem> items_;
  std::vector<Action> actions_;  // in the order in which lines are counted
  bool inside_ = false;
};

}  // namespace corvelle
