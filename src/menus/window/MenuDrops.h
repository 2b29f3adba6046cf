#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/DragDrop.h"

namespace corvelle {

class Program;
class ShownItems;

/// What other programs drop on a menu: files that an item opens or that become entries, and
/// addresses. No window.
class MenuDrops {
 public:
  MenuDrops(Program& program, const ShownItems& items) : program_(program), items_(items) {}

  /// False for data of no use, and while the program cannot deal with a drop.
  [[nodiscard]] static bool Takes(const Program& program, const forms::DragData& data);

  /// Where a drop goes.
  struct Target {
    int Item = 0;          // 0: behind the last entry
    bool Enabled = false;  // whether the item can be chosen
    std::string File;      // that the menu on show was built from
  };

  /// Deals with what was dropped by the buttons of the drag (Program::Drag). `close` closes
  /// the menu before an item opens a file.
  void Drop(const forms::DragData& data, const Target& target, const std::function<void()>& close);

 private:
  void InsertFiles(const std::vector<std::string>& names, const Target& target);
  void OfferAddress(const forms::DragData& data, const Target& target);

  Program& program_;
  const ShownItems& items_;
};

}  // namespace corvelle
