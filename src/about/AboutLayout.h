#pragma once

#include "base/Twips.h"

namespace corvelle {

/// What the places of the controls of About depend on. All in twips.
struct AboutScene {
  float TextHeight = 195;    // one line
  float TitleHeight = 480;   // the program's name
  float LogoSize = 720;      // the picture beside it
  float CaptionWidth = 400;  // of the widest button's caption
  float FrameWidth = 90;     // what the window's frame takes, both sides together
  float FrameHeight = 435;   // likewise, with the caption
};

/// Places in the window.
struct AboutLayout {
  TwipRect Window;  // its size
  TwipRect TabStrip1;
  TwipRect cmdCopy;
  TwipRect cmdOK;
};

/// The window has room for the pages whatever the screen's scale.
[[nodiscard]] AboutLayout LayOutAbout(const AboutScene& scene) noexcept;

/// Places in a panel of the size of a page.
struct AboutPanels {
  TwipRect Drive1;
  TwipRect InfoBelowDrives;  // picInfo on the page of drives
  TwipRect InfoAlone;        // and on that of the system
  TwipRect picCorvelle;
  TwipRect picLogo;   // in picCorvelle
  TwipRect picTitle;  // likewise
  TwipRect lblVersion;
  TwipRect lblCompany;
  TwipRect lblCopyright;
  TwipRect picArrow;
  TwipRect lblMail;
  TwipRect lblURL;
  TwipRect Frame1;
  TwipRect txtCopyright;  // in Frame1
};

[[nodiscard]] AboutPanels LayOutPanels(TwipSize page, const AboutScene& scene) noexcept;

}  // namespace corvelle
