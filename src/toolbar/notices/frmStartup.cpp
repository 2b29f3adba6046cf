#include "toolbar/notices/frmStartup.h"

#include <memory>
#include <string>
#include <utility>

#include "base/Version.h"
#include "core/ProgramPaths.h"
#include "forms/WindowSystem.h"
#include "platform/ShellIcons.h"

namespace corvelle {
namespace {

constexpr int kPictureSize = 32;  // pixels
constexpr int kFaceColour = 15;   // of the system's colours: the window's own
constexpr std::size_t kMostDots = 50;
constexpr float kWidth = 5000;
constexpr float kPictureTop = 600;  // before the window has its height
constexpr float kRoomBelow = 360;
constexpr float kMargin = 120;

// The first icon of a file on the window's colour, as its edge may be half transparent; empty when
// it has none to show.
Picture FilePicture(const StartupParts& with, std::string_view file) {
  std::unique_ptr<Canvas> canvas = with.Windows.CreateCanvas({kPictureSize, kPictureSize});
  canvas->FillBox({0, 0, kPictureSize, kPictureSize}, with.Windows.SystemColor(kFaceColour));
  if (!with.Icons.DrawFileIcon(*canvas, file, 0, {0, 0}, kPictureSize)) return {};
  return Picture(std::move(canvas));
}

}  // namespace

frmStartup::frmStartup(const StartupParts& with)
    : Form(with.Windows, "frmStartup", forms::BorderStyle::Raised),
      Label2(*this, "Label2"),
      Image1(*this, "Image1"),
      Label1(*this, "Label1"),
      with_(with) {
  Label1.SetAutoSize(true);
  Label2.SetAutoSize(true);
}

void frmStartup::Form_Load() {
  SetCaption("");
  const forms::ScreenInfo screen = Screen();
  const float picture = static_cast<float>(kPictureSize);
  const float height = kPictureTop + kRoomBelow;
  Move((screen.Width - kWidth) / 2, screen.Height / 2 - height, kWidth, height);

  Image1.Move(kMargin, (ScaleHeight() - picture * screen.TwipsPerPixelY) / 2,
              picture * screen.TwipsPerPixelX, picture * screen.TwipsPerPixelY);
  Image1.SetPicture(FilePicture(with_, with_.Paths.ShippedFile("corvelle.exe")));
  Label1.SetCaption("");
  Label2.SetCaption("Initializing ");
  Label2.Move(Image1.Right() + kMargin, Image1.Bottom() - Label2.Height(), Label2.Width(),
              Label2.Height());
  Label1.Move(Label2.Right(), Label2.Top(), Label1.Width(), Label1.Height());

  SetAutoRedraw(true);
  Print(Label2.Left(), Image1.Top(), with_.Title + " " + std::string(kVersion),
        forms::color::ButtonText);
}

void frmStartup::AddDot() {
  if (!Load()) return;
  std::string dots = Label1.Caption() + ".";
  if (dots.size() > kMostDots) dots = ".";
  Label1.SetCaption(std::move(dots));
  if (!Visible()) ShowNoActivate();
  Refresh();
}

void frmStartup::ShowProgress(std::string_view text, std::string_view iconFile) {
  if (!Load()) return;
  Image1.SetPicture(FilePicture(with_, iconFile));
  Label2.SetCaption(std::string(text));
  Label1.SetCaption("");
  Label1.SetLeft(Label2.Right());
  ShowNoActivate();
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
  Refresh();
}

}  // namespace corvelle
