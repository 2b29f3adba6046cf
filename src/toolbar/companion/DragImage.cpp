#include "toolbar/companion/DragImage.h"

#include <algorithm>
#include <memory>
#include <string>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/IconState.h"
#include "core/ProgramPaths.h"
#include "forms/Graphic.h"
#include "forms/WindowSystem.h"
#include "icons/Glyphs.h"
#include "icons/IconForm.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "platform/ShellIcons.h"

namespace corvelle {
namespace {

constexpr int kFollowMilliseconds = 100;
constexpr int kLeastSize = 32;  // pixels
constexpr int kGlyphSize = 16;
constexpr int kPictureAtOnce = 40;  // milliseconds for which a carry waits for its picture
constexpr Rgb kBlack = 0x00000000;
constexpr Rgb kWhite = 0x00FFFFFF;

}  // namespace

DragImage::DragImage(const DragImageParts& with)
    : Timer1(with.Icons.Windows), with_(with), icons_(with.Icons) {
  Timer1.SetInterval(kFollowMilliseconds);
  Timer1.SetEnabled(false);
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void DragImage::SetDragImage(std::string_view icon) {
  icons_.Drop();
  Carry(MakePicture(Trim(icon)));
  with_.Icons.Windows.SetMousePointer(forms::MousePointer::Custom);
  DragCursorOk = true;
  Timer1.SetEnabled(true);
}

void DragImage::Carry(const Picture& picture) {
  const PixelSize size = picture ? picture->Size() : PixelSize{};
  with_.Icons.Windows.SetMouseIcon(picture, {size.width / 2, size.height / 2});
}

void DragImage::RemoveDragImage() {
  icons_.Drop();
  Timer1.SetEnabled(false);
  DragCursorOk = false;
  with_.Icons.Windows.SetMousePointer(forms::MousePointer::Default);
  with_.Icons.Windows.SetMouseIcon(nullptr, {});
}

int DragImage::PictureSize() const {
  return std::max(with_.Icons.Shell.IconWidth(IconList::Large), kLeastSize);
}

Picture DragImage::MakePicture(std::string_view icon) {
  const int scale = PictureSize() / kGlyphSize;
  const IconForm form = ClassifyIcon(icon,
                                     {.AppPath = with_.Icons.Paths.AppPath,
                                      .IconsPath = with_.Icons.Paths.IconsPath,
                                      .WebLinkIcon = with_.Icons.Icons.WebLinkIcon},
                                     IconCaller::Menu);
  const Picture hand = MakeGlyph(with_.Icons.Windows, "hand", scale);
  if (form.Kind == IconKind::BuiltIn) {
    const Picture own = MakeGlyph(with_.Icons.Windows, form.Text, scale);
    return own ? own : hand;
  }
  const Picture cut =
      CutOut(icons_.Ask(icon, PictureSize(), kPictureAtOnce, [this, hand](const IconLook& look) {
        const Picture late = CutOut(look);
        Carry(late ? late : hand);
        ShowPointer();
      }));
  return cut ? cut : hand;
}

// Icons have soft edges, and a pointer has none: each pixel is shown whole or not at all. Null for
// what is no icon.
Picture DragImage::CutOut(const IconLook& look) const {
  if (!look.Glyph.empty()) return nullptr;
  forms::WindowSystem& windows = with_.Icons.Windows;
  const int side = PictureSize();
  const PixelRect whole{0, 0, side, side};
  const std::unique_ptr<Canvas> onBlack = windows.CreateCanvas(whole.Size());
  const std::unique_ptr<Canvas> onWhite = windows.CreateCanvas(whole.Size());
  onBlack->FillBox(whole, kBlack);
  onWhite->FillBox(whole, kWhite);
  if (!icons_.Draw(*onBlack, look, side) || !icons_.Draw(*onWhite, look, side)) return nullptr;
  std::shared_ptr<Canvas> picture = windows.CreateCanvas(whole.Size());
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const Rgb pixel =
          corvelle::CutOut(onBlack->PixelAt({x, y}), onWhite->PixelAt({x, y}), forms::Image::kMask);
      picture->FillBox({x, y, x + 1, y + 1}, pixel);
    }
  }
  return picture;
}

void DragImage::Timer1_Timer() {
  // What is being put down is followed no more, and whoever does it takes the picture away.
  if (with_.Carry.IsDropping()) return;
  ToolbarPort* const strip = with_.Ports.Toolbar;
  // Tells of a release that went to another program, and opens the menus on the way.
  const int button = with_.Carry.IsCarrying() && strip != nullptr ? strip->dragCurButton() : 0;
  if (!with_.Carry.IsCarrying()) {
    RemoveDragImage();
    return;
  }
  const CarryScene scene = Scene(button);
  if (scene.Over == CarryOver::Buttons) strip->SetPointerWatch(true);
  const bool may = MayDrop(scene);
  if (may == DragCursorOk) return;
  DragCursorOk = may;
  ShowPointer();
}

CarryScene DragImage::Scene(int button) const {
  const WindowId under = with_.Desktop.WindowAt(with_.Pointer.PointerPosition());
  CarryScene scene{.Button = button};
  if (under == kNoWindow) return scene;
  const StripCarryPort* const strip = with_.Ports.Toolbar;
  const QMenuPort* const menu = with_.Ports.QMenu;
  if (menu != nullptr && menu->MenuVisible() && under == menu->WindowHandle()) {
    scene.Over = CarryOver::Menu;
    scene.MainMenu = menu->OwnerTag() == "1";
  } else if (strip != nullptr && under == strip->ButtonBoxHandle()) {
    scene.Over = CarryOver::Buttons;
  } else if (strip != nullptr && under == strip->SingleBoxHandle()) {
    scene.Over = CarryOver::SingleButtons;
  }
  return scene;
}

void DragImage::ShowPointer() {
  with_.Icons.Windows.SetMousePointer(DragCursorOk ? forms::MousePointer::Custom
                                                   : forms::MousePointer::NoDrop);
}

}  // namespace corvelle
