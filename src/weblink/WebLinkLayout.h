#pragma once

#include "base/Twips.h"

namespace corvelle {

/// What the layout of the dialog for web links depends on, in twips.
struct WebLinkScene {
  float LabelWidth = 600;   // of the wider label
  float TextHeight = 195;   // of one line
  float CheckWidth = 3000;  // of the check box with its caption

  friend bool operator==(const WebLinkScene&, const WebLinkScene&) = default;
};

/// Places in the inside of the window, twips.
struct WebLinkLayout {
  TwipRect TitleLabel;
  TwipRect Title;
  TwipRect AddressLabel;
  TwipRect Address;
  TwipRect Check;
  TwipRect Ok;
  TwipRect Cancel;
  TwipSize Inside;

  friend bool operator==(const WebLinkLayout&, const WebLinkLayout&) = default;
};

[[nodiscard]] WebLinkLayout LayOutWebLink(const WebLinkScene& scene) noexcept;

}  // namespace corvelle
