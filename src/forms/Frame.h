#pragma once

#include <string>

#include "forms/Button.h"

namespace corvelle::forms {

/// A frame with a caption around other controls, which are placed in twips of its own corner. Its
/// access key goes to the first control in it.
class Frame final : public Button {
 public:
  Frame(Window& container, std::string name);

 protected:
  void Pressed() override {}
  KeyFacts Keys() const override { return {.AccessKey = AccessKey(Caption())}; }
  void PressByKey() override;
};

}  // namespace corvelle::forms
