#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menus/window/frmQMenu.h"
#include "toolbar/StripDesk.h"
#include "toolbar/companion/Popup.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {

/// Two menus with the program's own menu window and the popup of right clicks. Button 2 has the
/// items "One", "Two" and, below a separator, "Three"; button 3 has "Other".
struct PopupDesk : StripDesk {
  explicit PopupDesk(const sim::WorldOptions& options = {})
      : StripDesk(options), RealMenu(TheProgram), ThePopup(PopupPartsOf(TheProgram)) {
    TheProgram.Ports.QMenu = &RealMenu;
    TheProgram.Ports.Popup = &ThePopup;
    World.Files.Put("C:\\Tools\\tool.exe", "x");
    PutMenu(1, {Entry("Letters", "Button"), Entry("One", "", "C:\\Tools\\tool.exe"),
                Entry("Two", "two.ico", "C:\\Tools\\tool.exe two"),
                Entry("Separator", "MenuLineSeparator"),
                Entry("Three", "", "C:\\Tools\\tool.exe three")});
    PutMenu(2, {Entry("Others", "Button"), Entry("Other", "", "C:\\Tools\\tool.exe other")});
    Start();
  }
  ~PopupDesk() { Exit(); }

  void PutMenu(int number, const std::vector<MenuRecord>& records) {
    World.Files.Put(FileOf(number), Records(records));
  }
  [[nodiscard]] static std::string FileOf(int number) {
    return "C:\\Corvelle\\Menus\\" + MenuFileName(number);
  }
  /// The titles of a menu file's records, each followed by a bar; nothing without the file.
  [[nodiscard]] std::string Titles(int number) const {
    std::string titles;
    const std::string bytes = World.Files.Get(FileOf(number)).value_or("");
    for (std::size_t at = 0; at < bytes.size(); at += kRecordLength) {
      titles += ParseRecord(std::string_view(bytes).substr(at), World.Ansi).FTitle + "|";
    }
    return titles;
  }
  [[nodiscard]] MenuRecord RecordOf(int number, int record) const {
    const std::string bytes = World.Files.Get(FileOf(number)).value_or("");
    return ParseRecord(
        std::string_view(bytes).substr(kRecordLength * static_cast<std::size_t>(record - 1)),
        World.Ansi);
  }

  /// Middle of an item of the open menu.
  [[nodiscard]] PixelPoint Item(int index) const {
    const PixelRect menu = World.Desktop.BoundsOf(RealMenu.hWnd());
    const forms::Label& label = RealMenu.Lbl[index];
    const int top = static_cast<int>((label.Top() + label.Height() / 2) / Strip.TwipsY);
    return {menu.left + 40, menu.top + 3 + top};
  }
  void OpenMenuOf(int button) {
    Click(button);
    Wait(200);
  }
  /// From one open menu to another, as along the strip.
  void GoToMenuOf(int button) {
    PointAtButton(button);
    Wait(300);
    ASSERT_EQ(RealMenu.OwnerTag(), std::to_string(button));
  }
  /// The captions of the menu on show.
  [[nodiscard]] std::string Shown() const {
    std::string shown;
    if (!RealMenu.MenuVisible()) return shown;
    for (int i = RealMenu.Pages().FirstLabel(); i <= RealMenu.Pages().LastLabel(); ++i) {
      shown += RealMenu.Lbl[i].Caption() + "|";
    }
    return shown;
  }

  /// A right click, on an item of the open menu, on a button, on the bare frame of the strip, and
  /// the choice of a line of the popup that comes; without a choice the popup is left alone.
  void RightClick(PixelPoint at, std::string choice = {}) {
    if (!choice.empty()) World.Desktop.ChooseFromPopup(std::move(choice));
    PointAt(at);
    Wait();
    World.Desktop.Click(forms::MouseButton::Right);
  }
  void RightClickItem(int index, std::string choice = {}) {
    RightClick(Item(index), std::move(choice));
  }
  void RightClickButton(int button, std::string choice = {}) {
    RightClick(Middle(button), std::move(choice));
  }
  void RightClickFrame(std::string choice = {}) {
    const PixelRect strip = World.Desktop.BoundsOf(Strip.hWnd());
    RightClick({strip.left, strip.bottom - 2}, std::move(choice));
  }
  /// The popup for the entry that the test has put together.
  void ChooseFor(const EntryEdit& entry, std::string choice) {
    TheProgram.Entry = entry;
    World.Desktop.ChooseFromPopup(std::move(choice));
    ThePopup.ShowToolbarPopup(entry);
  }
  [[nodiscard]] const sim::Popup& LastPopup() const { return World.Desktop.Popups().back(); }

  frmQMenu RealMenu;
  Popup ThePopup;
};

}  // namespace corvelle
