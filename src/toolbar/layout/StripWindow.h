#pragma once

#include "base/Edge.h"
#include "base/Twips.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {

namespace forms {
class Form;
}

/// Where the strip is and how large its buttons are.
struct StripShape {
  Placement Where = Placement::TopHugging;
  Edge At = Edge::Top;
  StripScale Scale;
  TwipSize Button;  // of the template
  int TopCut = 4;   // pixels by which a top-hugging window is pulled above the screen
};

/// The strip as all parts of it see it: its window, and its shape at this moment.
class StripWindow {
 public:
  virtual ~StripWindow() = default;
  [[nodiscard]] virtual forms::Form& AsForm() noexcept = 0;
  [[nodiscard]] virtual StripShape Shape() const = 0;
};

}  // namespace corvelle
