#include "about/AboutLayout.h"

#include <algorithm>

namespace corvelle {

namespace {

constexpr float kWidth = 6600;  // of the window's inside
constexpr float kMargin = 120;
constexpr float kGap = 90;
constexpr float kLines = 18;           // of text that the tabs and their page are high
constexpr float kButtonPadding = 180;  // besides its text, above and below together
constexpr float kLeastButton = 1125;
constexpr float kCaptionRoom = 300;  // beside a button's caption
constexpr float kBoxPadding = 120;
constexpr float kDriveWidth = 1500;
constexpr float kArrowWidth = 240;

}  // namespace

AboutLayout LayOutAbout(const AboutScene& scene) noexcept {
  AboutLayout l;
  l.TabStrip1 = {kMargin, kMargin, kWidth - 2 * kMargin, kLines * scene.TextHeight};
  const float buttonTop = l.TabStrip1.Bottom() + kMargin;
  const float buttonWidth = std::max(kLeastButton, scene.CaptionWidth + kCaptionRoom);
  const float buttonHeight = scene.TextHeight + kButtonPadding;
  l.cmdOK = {kWidth - kMargin - buttonWidth, buttonTop, buttonWidth, buttonHeight};
  l.cmdCopy = {l.cmdOK.Left - kGap - buttonWidth, buttonTop, buttonWidth, buttonHeight};
  l.Window = {0, 0, kWidth + scene.FrameWidth, l.cmdOK.Bottom() + kMargin + scene.FrameHeight};
  return l;
}

AboutPanels LayOutPanels(TwipSize page, const AboutScene& scene) noexcept {
  const float width = page.Width - 2 * kMargin;
  const float line = scene.TextHeight;
  AboutPanels l;
  l.Drive1 = {kMargin, kMargin, kDriveWidth, line + kBoxPadding};
  const float below = l.Drive1.Bottom() + kGap;
  l.InfoBelowDrives = {kMargin, below, width, page.Height - below - kMargin};
  l.InfoAlone = {kMargin, kMargin, width, page.Height - 2 * kMargin};

  l.picCorvelle = {kMargin, kMargin, width, std::max(scene.LogoSize, scene.TitleHeight) + 2 * kGap};
  const auto middle = [&](float height) { return (l.picCorvelle.Height - height) / 2; };
  l.picLogo = {kMargin, middle(scene.LogoSize), scene.LogoSize, scene.LogoSize};
  const float titleLeft = l.picLogo.Right() + kMargin;
  l.picTitle = {titleLeft, middle(scene.TitleHeight), width - titleLeft - kMargin,
                scene.TitleHeight};

  l.lblVersion = {kMargin, l.picCorvelle.Bottom() + kGap, width, line};
  l.lblCompany = {kMargin, l.lblVersion.Bottom(), width, line};
  l.lblCopyright = {kMargin, l.lblCompany.Bottom(), width, line};
  l.picArrow = {kMargin, l.lblCopyright.Bottom(), kArrowWidth, line};
  l.lblMail = {kMargin + kArrowWidth, l.picArrow.Top, (width - kArrowWidth) / 2, line};
  l.lblURL = {l.lblMail.Right(), l.picArrow.Top, l.lblMail.Width, line};

  const float frameTop = l.lblMail.Bottom() + kGap / 2;
  l.Frame1 = {kMargin, frameTop, width, page.Height - frameTop - kMargin};
  l.txtCopyright = {kGap, line, width - 2 * kGap, l.Frame1.Height - line - kGap};
  return l;
}

}  // namespace corvelle
