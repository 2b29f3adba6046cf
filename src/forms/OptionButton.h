#pragma once

#include <string>

#include "forms/Button.h"

namespace corvelle::forms {

/// One of several: the options of one container are a group, of which at most one is chosen. The
/// arrows choose its neighbours, the Tab key stops at the one that is chosen, or at the first.
/// Click is told when a press, an arrow or the access key has chosen it.
class OptionButton final : public Button {
 public:
  OptionButton(Window& container, std::string name)
      : Button(container, std::move(name), ButtonLook::Option) {}

  [[nodiscard]] bool Value() const noexcept { return value_; }
  /// Choosing it takes the choice from the others of its group.
  void SetValue(bool value);
  OptionButton* AsOption() noexcept override { return this; }

 protected:
  void Pressed() override;
  void PeerMade() override;
  KeyFacts Keys() const override;
  bool StopsTab() const noexcept override;
  void MoveInGroup(int step) override;

 private:
  [[nodiscard]] std::vector<OptionButton*> Group() const;

  bool value_ = false;
};

}  // namespace corvelle::forms
