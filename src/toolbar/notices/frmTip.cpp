#include "toolbar/notices/frmTip.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Text.h"
#include "core/OptionFile.h"
#include "core/ProgramPaths.h"
#include "platform/ShellIcons.h"
#include "toolbar/notices/TipLayout.h"

namespace corvelle {
namespace {

// Pixels of a screen of 96 dots an inch; all grow with the scale of the screen.
constexpr float kTipMargin = 14;
constexpr float kSpacing = 10;
constexpr float kTextWidth = 330;
constexpr float kButtonWidth = 80;
constexpr float kButtonHeight = 25;
constexpr float kBoxHeight = 20;
constexpr float kTwipsOfOne = 15;
constexpr int kPicture = 32;  // pixels of any screen
constexpr float kTitlePoints = 9.75F;
constexpr int kBorder = 3;  // pixels of the window's own frame

}  // namespace

frmTip::frmTip(const TipParts& with)
    : Form(with.Windows, "frmTip", forms::BorderStyle::Raised),
      Picture1(*this, "Picture1"),
      lblTitle(*this, "lblTitle"),
      Check1(*this, "Check1"),
      cmdOK(*this, "cmdOK"),
      with_(with) {
  // A picture takes no focus.
  Picture1.SetEnabled(false);
  lblTitle.SetAutoSize(true);
  lblTitle.SetFont({.Points = kTitlePoints, .Bold = true});
  Check1.SetCaption("&Don't show this message again");
  cmdOK.SetCaption("OK");
  cmdOK.SetDefault(true);
  cmdOK.SetCancel(true);
  cmdOK.Click = [this] { cmdOK_Click(); };
}

void frmTip::Form_Load() {
  SetCaption("");
  SetBackColor(forms::color::ButtonFace);
  TipField.reset();
  Check1.SetValue(0);
  const forms::ScreenInfo screen = Screen();
  Move((screen.Width - Width()) / 2, (screen.Height - Height()) / 2, Width(), Height());
}

void frmTip::ShowTip(std::string_view title, std::string_view text, std::optional<Option> field) {
  if (field && with_.Options.Flags.Is(*field)) return;
  // Another notice takes the place of one that is still up.
  Unload();
  lblTitle.SetCaption(DoubleAmpersands(title));
  LayOut(text);
  if (!Load()) return;
  FieldNum(field);
  DrawPicture();
  Show();
  if (!IsLoaded()) return;
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
  cmdOK.SetFocus();
}

void frmTip::LayOut(std::string_view text) {
  const forms::ScreenInfo screen = Screen();
  const float left = 2 * kTipMargin * kTwipsOfOne + kPicture * screen.TwipsPerPixelX;
  std::vector<std::string> lines =
      WrapText(text, kTextWidth * kTwipsOfOne, [&](std::string_view line) {
        return static_cast<float>(MeasureText(line).width) * screen.TwipsPerPixelX;
      });
  // What follows has its own distance.
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  lblTitle.Move(left, kTipMargin * kTwipsOfOne, lblTitle.Width(), lblTitle.Height());
  float bottom = lblTitle.Bottom() + kSpacing * kTwipsOfOne / 2;
  float right = std::max(lblTitle.Right(), left + kTextWidth * kTwipsOfOne);
  lblTip.clear();
  for (const std::string& line : lines) {
    auto& label = lblTip.emplace_back(std::make_unique<forms::Label>(*this, "lblTip"));
    label->SetAutoSize(true);
    label->SetCaption(DoubleAmpersands(line));
    label->Move(left, bottom, label->Width(), label->Height());
    bottom = label->Bottom();
    right = std::max(right, label->Right());
  }
  Picture1.Move(kTipMargin * kTwipsOfOne, kTipMargin * kTwipsOfOne,
                kPicture * screen.TwipsPerPixelX, kPicture * screen.TwipsPerPixelY);
  bottom = std::max(bottom, Picture1.Bottom()) + kSpacing * kTwipsOfOne;
  Check1.Move(left, bottom, right - left, kBoxHeight * kTwipsOfOne);
  cmdOK.Move(right - kButtonWidth * kTwipsOfOne, Check1.Bottom() + kSpacing * kTwipsOfOne,
             kButtonWidth * kTwipsOfOne, kButtonHeight * kTwipsOfOne);
  const float frameX = 2 * kBorder * screen.TwipsPerPixelX;
  const float frameY = 2 * kBorder * screen.TwipsPerPixelY;
  Move(Left(), Top(), right + kTipMargin * kTwipsOfOne + frameX,
       cmdOK.Bottom() + kTipMargin * kTwipsOfOne + frameY);
}

void frmTip::DrawPicture() {
  Picture1.SetAutoRedraw(true);
  Picture1.Cls();
  Picture1.DrawPixels({0, 0, kPicture, kPicture}, [this](Canvas& canvas) {
    // Without the program's icon the place stays empty.
    static_cast<void>(with_.Icons.DrawFileIcon(canvas, with_.Paths.ShippedFile("corvelle.exe"), 0,
                                               {0, 0}, kPicture));
  });
}

void frmTip::cmdOK_Click() {
  if (TipField) {
    with_.Options.Flags.Set(*TipField, Check1.Value() == 1);
    with_.Options.SaveOptionFlags();
  }
  Unload();
}

}  // namespace corvelle
