// Frames that the system puts around forms.

#include <algorithm>
#include <utility>

#include "sim/Complain.h"
#include "sim/SimControlPainting.h"

namespace corvelle::sim {

namespace {

constexpr int kCaption = 19;
constexpr int kButton = 16;
constexpr int kMenuBar = 19;

}  // namespace

forms::FrameMargins SimDesktop::MarginsOf(forms::FrameStyle frame, bool menuBar,
                                          int /*dpi*/) const {
  if (frame == forms::FrameStyle::None) return {};
  const int side = frame == forms::FrameStyle::Sizable ? 4 : 3;
  return {side, side + kCaption + (menuBar ? kMenuBar : 0), side, side};
}

void SimDesktop::SetMenuBar(WindowId window, const std::vector<forms::PopupItem>& items) {
  SimWindow& form = *Get(window);
  form.MenuBar = items;
  form.Margins = MarginsOf(form.Frame, !items.empty(), form.Dpi);
  if (form.Content->Size() != InsideOf(form)) form.Content->Resize(InsideOf(form));
  InvalidateTree(window);
}

void SimDesktop::ChooseFromMenuBar(WindowId window, std::string_view path) {
  ChooseFromMenuBar(window, path.substr(0, path.find('>')),
                    [wanted = std::string(path)](const Popup&) { return wanted; });
}

void SimDesktop::ChooseFromMenuBar(WindowId window, std::string_view menu,
                                   const std::function<std::string(const Popup& bar)>& choose) {
  UserEvent([this, window, choose, opened = std::string(menu)] {
    const SimWindow* form = Look(window);
    if (form == nullptr || form->Events == nullptr || !form->Enabled) {
      return Complain("no form with a menu bar that takes input");
    }
    Activate(window);
    // The menu comes up, and may be changed by that.
    const Popup before{.Items = form->MenuBar};
    const int top = before.NumberOf(opened);
    if (top >= 0) form->Events->OnMenuOpening(top);
    form = Look(window);
    if (form == nullptr || form->Events == nullptr) return;
    const Popup bar{.Items = form->MenuBar};
    const std::string wanted = choose(bar);
    if (wanted.empty()) return;
    if (!bar.Offers(wanted)) return Complain("the menu bar does not offer \"" + wanted + "\"");
    form->Events->OnMenuChosen(bar.NumberOf(wanted));
  });
}

PixelSize SimDesktop::InsideOf(const SimWindow& window) const {
  const PixelSize size = window.Bounds.Size();
  const forms::FrameMargins& margins = window.Margins;
  return {std::max(size.width - margins.Left - margins.Right, 0),
          std::max(size.height - margins.Top - margins.Bottom, 0)};
}

SimDesktop::FramePart SimDesktop::FramePartAt(const SimWindow& window, PixelPoint at) {
  if (window.Frame == forms::FrameStyle::None) return FramePart::None;
  const PixelRect& bounds = window.Bounds;
  const forms::FrameMargins& margins = window.Margins;
  const bool right = at.x >= bounds.right - margins.Right;
  const bool bottom = at.y >= bounds.bottom - margins.Bottom;
  if (right || bottom) {
    if (window.Frame != forms::FrameStyle::Sizable) return FramePart::Caption;
    if (right && bottom) return FramePart::Corner;
    return right ? FramePart::Right : FramePart::Bottom;
  }
  if (at.y >= bounds.top + margins.Top) return FramePart::None;
  if (at.y >= bounds.top + margins.Left + kCaption) return FramePart::Menu;
  const int boxes = bounds.right - margins.Right - at.x;
  if (boxes <= kButton) return FramePart::Close;
  return boxes <= 2 * kButton && window.MinimizeBox ? FramePart::Minimize : FramePart::Caption;
}

bool SimDesktop::FramePressed(WindowId target, PixelPoint at) {
  const SimWindow& window = *Look(target);
  const FramePart part = FramePartAt(window, at);
  if (part == FramePart::None) return false;
  // The two sides without a part of their own do nothing.
  framePart_ = part;
  framePressed_ = target;
  framePoint_ = at;
  frameBounds_ = window.Bounds;
  return true;
}

bool SimDesktop::FrameDragged(PixelPoint at) {
  const SimWindow* const window = Look(framePressed_);
  if (window == nullptr) return false;
  PixelRect bounds = frameBounds_;
  const int x = at.x - framePoint_.x;
  const int y = at.y - framePoint_.y;
  const auto widen = [&] {
    bounds.right = std::max(bounds.right + x, bounds.left + window->LeastSize.width);
  };
  const auto lengthen = [&] {
    bounds.bottom = std::max(bounds.bottom + y, bounds.top + window->LeastSize.height);
  };
  switch (framePart_) {
    case FramePart::Caption:
      bounds = RectAt({bounds.left + x, bounds.top + y}, bounds.Size());
      break;
    case FramePart::Right:
      widen();
      break;
    case FramePart::Bottom:
      lengthen();
      break;
    case FramePart::Corner:
      widen();
      lengthen();
      break;
    default:
      return true;
  }
  const bool sized = bounds.Size() != window->Bounds.Size();
  SetBounds(framePressed_, bounds);
  if (sized) InvalidateTree(framePressed_);
  return true;
}

bool SimDesktop::FrameReleased(PixelPoint at) {
  const WindowId target = std::exchange(framePressed_, kNoWindow);
  const SimWindow* const window = Look(target);
  if (window == nullptr) return false;
  if (FramePartAt(*window, at) != framePart_) return true;
  if (framePart_ == FramePart::Close && window->Events != nullptr) {
    window->Events->OnClose();
  } else if (framePart_ == FramePart::Minimize) {
    Show(target, forms::ShowKind::Minimized);
  }
  return true;
}

void SimDesktop::PaintFrame(SimCanvas& screen, const SimWindow& window) const {
  if (window.Frame == forms::FrameStyle::None) return;
  const PixelRect bounds = BoundsOf(window.Id);
  const int side = window.Margins.Left;
  screen.FillBox(bounds, SystemColor(15));
  PaintEdge(*this, screen, bounds, true);
  const PixelRect caption{bounds.left + side, bounds.top + side, bounds.right - side,
                          bounds.top + side + kCaption - 1};
  screen.FillBox(caption, SystemColor(window.Id == foreground_ ? 2 : 3));
  screen.DrawString({caption.left + 3, caption.top + 3}, window.Text, {{}, window.Dpi},
                    SystemColor(9));
  int left = caption.left + 6;
  for (const forms::PopupItem& item : window.MenuBar) {
    if (!item.Visible) continue;
    const std::string text = WithoutAccessKey(item.Caption);
    screen.DrawString({left, caption.bottom + 4}, text, {{}, window.Dpi},
                      SystemColor(item.Enabled ? 7 : 17));
    left += TextSize(text, {{}, window.Dpi}).width + 12;
  }
  for (int box = 1; box <= (window.MinimizeBox ? 2 : 1); ++box) {
    const PixelRect place = RectAt({caption.right - box * kButton, caption.top + 2}, {14, 14});
    screen.FillBox(place, SystemColor(15));
    PaintEdge(*this, screen, place, true);
  }
}

}  // namespace corvelle::sim
