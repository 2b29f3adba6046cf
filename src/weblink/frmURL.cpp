#include "weblink/frmURL.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/Program.h"
#include "platform/DesktopWindows.h"
#include "weblink/WebLinkLayout.h"
#include "weblink/WebLinkTarget.h"

namespace corvelle {

namespace {

// The drop returns to its source at once; this is time enough for the source to let go.
constexpr int kAfterDrop = 50;      // milliseconds
constexpr float kBoxOfCheck = 330;  // twips beside the caption of a check box

template <class T>
void Place(T& control, const TwipRect& at) {
  control.Move(at.Left, at.Top, at.Width, at.Height);
}

}  // namespace

frmURL::frmURL(Program& program)
    : Form(program.Windows, "frmURL", forms::BorderStyle::Fixed, true),
      Label2(*this, "Label2"),
      txtTitle(*this, "txtTitle"),
      Label3(*this, "Label3"),
      txtAddress(*this, "txtAddress"),
      Check1(*this, "Check1"),
      cmdOK(*this, "cmdOK"),
      cmdCancel(*this, "cmdCancel"),
      program_(program),
      tmrStep_(program.Windows) {
  tmrStep_.Tick = [this] { tmrStep_Timer(); };
  cmdOK.SetDefault(true);
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.SetCancel(true);
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  Check1.Click = [this] { Check1_Click(); };
}

void frmURL::Form_Load() {
  SetCaption("Create Web Link");
  SetBackColor(forms::color::ButtonFace);
  Label2.SetCaption("Title:");
  Label3.SetCaption("Address:");
  Check1.SetCaption("Don't show this dialog box again");
  Check1.SetValue(0);
  cmdOK.SetCaption("OK");
  cmdCancel.SetCaption("Cancel");
  LayOut();
  Center();
}

void frmURL::LayOut() {
  const forms::ScreenInfo screen = Screen();
  const auto widthOf = [&](const std::string& text) {
    return static_cast<float>(MeasureText(text).width) * screen.TwipsPerPixelX;
  };
  const auto height = static_cast<float>(MeasureText("X").height);
  const WebLinkLayout layout =
      LayOutWebLink({.LabelWidth = std::max(widthOf(Label2.Caption()), widthOf(Label3.Caption())),
                     .TextHeight = height * screen.TwipsPerPixelY,
                     .CheckWidth = widthOf(Check1.Caption()) + kBoxOfCheck});
  Place(Label2, layout.TitleLabel);
  Place(txtTitle, layout.Title);
  Place(Label3, layout.AddressLabel);
  Place(txtAddress, layout.Address);
  Place(Check1, layout.Check);
  Place(cmdOK, layout.Ok);
  Place(cmdCancel, layout.Cancel);
  const forms::FrameMargins frame = Margins();
  Move(Left(), Top(),
       layout.Inside.Width + static_cast<float>(frame.Left + frame.Right) * screen.TwipsPerPixelX,
       layout.Inside.Height + static_cast<float>(frame.Top + frame.Bottom) * screen.TwipsPerPixelY);
}

// ---- from the drop to the entry ----

void frmURL::OfferWebLink(std::string_view url, std::string_view title, std::string_view tag,
                          std::string_view file) {
  // One at a time. Drops are refused meanwhile.
  if (step_ != Step::Idle) return;
  step_ = Step::Offered;
  WebLinkPending = true;
  ++program_.Guards.OpenQuestions;
  target_ = program_.Entry;
  if (IsSinglesTag(tag)) target_.CurFile = std::string(file);
  txtTitle.SetText(std::string(title));
  txtAddress.SetText(std::string(url));
  Tag = LinkTag(tag, file, NewSingleFile());
  tmrStep_.SetInterval(kAfterDrop);
  tmrStep_.SetEnabled(true);
}

void frmURL::tmrStep_Timer() {
  // Nobody else works on a menu or waits for an answer then; this one is the one question.
  if (program_.Guards.IsWorking() || program_.Guards.OpenQuestions > 1) return;
  tmrStep_.SetEnabled(false);
  if (step_ == Step::Confirmed) return Write();
  if (step_ != Step::Offered) return;
  // An address that has to be shortened is shown in any case.
  const bool fits = FitsRecord(Trim(txtAddress.Text()), program_.Services.Ansi);
  if (program_.OptionFlags.Is(Option::NoWebLinkDialog) && fits) return Write();
  OpenDialog();
}

void frmURL::OpenDialog() {
  step_ = Step::Open;
  if (!Load()) return Finish();
  HoldOthers();
  Show();
  if (!IsLoaded()) return;
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
  // The program that the address came from is in front.
  program_.Services.Desktop.BringForward(hWnd());
  if (!IsLoaded()) return;
  txtTitle.SetFocus();
  txtTitle.SelectAll();
}

void frmURL::cmdOK_Click() {
  const std::string address = Trim(txtAddress.Text());
  if (!FitsRecord(address, program_.Services.Ansi)) {
    program_.Messages.Say(hWnd(), kAddressTooLong, forms::msgbox::IconInformation);
    if (IsLoaded()) txtAddress.SetFocus();
    return;
  }
  step_ = Step::Confirmed;
  ReleaseOthers();
  Unload();
  // The timer tries again while something else is under way.
  tmrStep_.SetEnabled(true);
  tmrStep_Timer();
}

void frmURL::cmdCancel_Click() {
  SetClipboard(program_.Entry);
  Finish();
}

void frmURL::Check1_Click() {
  program_.OptionFlags.Set(Option::NoWebLinkDialog, Check1.Value() == 1);
  program_.Options.SaveOptionFlags();
}

void frmURL::Write() {
  UpdateToolbar();
  Finish();
}

void frmURL::Finish() {
  // The program may have ended inside a step.
  if (std::exchange(step_, Step::Idle) == Step::Idle) return;
  tmrStep_.SetEnabled(false);
  Tag.clear();
  target_ = {};
  ReleaseOthers();
  Unload();
  WebLinkPending = false;
  --program_.Guards.OpenQuestions;
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (strip != nullptr && strip->WindowLoaded()) strip->ResetMenu();
}

void frmURL::HoldOthers() {
  holdsOthers_ = true;
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->HoldForMessage(false);
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->HoldForMessage(false);
}

void frmURL::ReleaseOthers() {
  if (!std::exchange(holdsOthers_, false)) return;
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->ReleaseAfterMessage();
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->ReleaseAfterMessage();
}

}  // namespace corvelle
