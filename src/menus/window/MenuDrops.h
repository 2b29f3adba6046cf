#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/LaunchParts.h"
#include "forms/DragDrop.h"
#include "launch/FileDrops.h"

namespace corvelle {

class ShownItems;
struct EntryEdit;
struct GuardFlags;
struct WindowPorts;

/// What drops on a menu work with. All of it outlives them.
struct MenuDropParts {
  FileDrops Files;
  LaunchParts Launch;
  const WindowPorts& Ports;
  EntryEdit& Entry;
};

/// What other programs drop on a menu: files that an item opens or that become entries, and
/// addresses. No window.
class MenuDrops {
 public:
  MenuDrops(const MenuDropParts& with, const ShownItems& items) : with_(with), items_(items) {}

  /// False for data of no use, and while the program cannot deal with a drop.
  [[nodiscard]] static bool Takes(const GuardFlags& guards, const forms::DragData& data);

  /// Where a drop goes.
  struct Target {
    int Item = 0;          // 0: behind the last entry
    bool Enabled = false;  // whether the item can be chosen
    std::string File;      // that the menu on show was built from
  };

  /// Deals with what was dropped by the buttons of the drag. `close` closes the menu before an item
  /// opens a file.
  void Drop(const forms::DragData& data, forms::MouseButton buttons, const Target& target,
            const std::function<void()>& close);

 private:
  void InsertFiles(const std::vector<std::string>& names, const Target& target);
  void OfferAddress(const forms::DragData& data, const Target& target);

  MenuDropParts with_;
  const ShownItems& items_;
};

}  // namespace corvelle
