#pragma once

#include <string_view>

#include "core/WindowPorts.h"
#include "forms/Timer.h"
#include "icons/AskedIcons.h"
#include "platform/Canvas.h"
#include "toolbar/layout/CarryRules.h"

namespace corvelle {

class DesktopWindows;
class EntryCarry;
class Input;

/// What the carried picture works with. All of it outlives it.
struct DragImageParts {
  IconSources Icons;
  const EntryCarry& Carry;
  const WindowPorts& Ports;
  const DesktopWindows& Desktop;
  const Input& Pointer;
};

/// The picture that the pointer carries while an entry is dragged: the entry's icon where it may be
/// put down, the "no drop" sign elsewhere.
class DragImage final : public DragImagePort {
 public:
  explicit DragImage(const DragImageParts& with);

  void SetDragImage(std::string_view icon) override;
  void RemoveDragImage() override;

  /// Ten times a second while something is carried: looks where the pointer is.
  forms::Timer Timer1;
  /// The carried entry may be put down here; the pointer shows its picture.
  bool DragCursorOk = false;

 private:
  void Timer1_Timer();
  [[nodiscard]] CarryScene Scene(int button) const;
  void ShowPointer();
  /// The side of the picture in pixels: that of the shell's large icons, which follows the scale.
  [[nodiscard]] int PictureSize() const;
  /// The icon without its background. A hand while the icon is being fetched, or if the entry has
  /// no icon.
  [[nodiscard]] Picture MakePicture(std::string_view icon);
  [[nodiscard]] Picture CutOut(const IconLook& look) const;
  void Carry(const Picture& picture);

  DragImageParts with_;
  AskedIcons icons_;
};

}  // namespace corvelle
