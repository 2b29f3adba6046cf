// Gestures that take several steps. Other events come between the steps now and then.

#include <algorithm>
#include <array>

#include "MonkeyLife.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

using forms::MouseButton;

constexpr int kMainMenuButton = 1;
constexpr int kMainMenuItems = 11;
constexpr int kCustomizeItem = 1;
constexpr int kExitItem = 11;
constexpr int kRest = 3000;   // milliseconds
constexpr int kReveal = 600;  // milliseconds in which a hidden strip has come out

const std::array<std::string, 7> kDragged = {"C:\\Docs\\letter.txt",
                                             "C:\\Tools\\tool.exe",
                                             "C:\\Docs\\sub",
                                             "C:\\Docs\\sub\\other.txt",
                                             "C:\\Docs\\no such file.doc",
                                             "C:\\Docs\\\xC3\x84rger & Co.lnk",
                                             "relative"};
const std::array<std::string, 5> kTexts = {"http://a.example/page", "HTTP://A.EXAMPLE/",
                                           "just a text", "", "http://"};

}  // namespace

void MonkeyLife::PlanMove(std::function<PixelPoint()> place) {
  Plan([this, place = std::move(place)] { MoveTo(place()); });
}

// A strip that hides comes out when the pointer touches its line.
void MonkeyLife::PlanStripInSight() {
  if (!parts_->TheProgram.Strip.AutoHide || parts_->Toolbar.picToolbar.Visible()) return;
  const auto edge = parts_->TheProgram.Strip.ToolbarEdge;
  PlanMove([this, edge] { return EdgePoint(edge); });
  Plan([this] {
    LetPass(kReveal);
    if (parts_->Toolbar.picToolbar.Visible()) tally_.Note("a hidden strip came out");
  });
}

void MonkeyLife::PlanMenu(int button) {
  PlanStripInSight();
  Plan([this, button] {
    if (!MenuUp() || parts_->Menu.OwnerTag() != std::to_string(button))
      ClickAt(ButtonPoint(button), MouseButton::Left);
  });
  if (Chance(40)) Plan([this] { LetTimePass(); });
}

void MonkeyLife::PlanPull() {
  PlanStripInSight();
  const bool grip = Chance(70);
  PlanMove([this, grip] { return grip ? GripPoint() : InWindow("frmToolbar", 20, 20); });
  Plan([this] { Press(MouseButton::Left); });
  for (int moves = 1 + Number(4); moves > 0; --moves) {
    const auto edge = static_cast<Edge>(Number(4));
    PlanMove([this, edge] { return Chance(90) ? EdgePoint(edge) : OnScreen(); });
    if (Chance(20)) Plan([this] { LetTimePass(); });
    if (Chance(5)) Plan([this] { ClickAt(world_->Desktop.PointerPosition(), MouseButton::Right); });
  }
  Plan([this] { Release(MouseButton::Left); });
}

void MonkeyLife::PlanMainMenu() {
  PlanMenu(kMainMenuButton);
  int item = 1 + Number(kMainMenuItems);
  if (item == kExitItem && Chance(90)) item = 1 + Number(kMainMenuItems - 1);
  if (Chance(20)) item = kCustomizeItem;
  PlanMove([this, item] { return ItemPoint(item); });
  Plan([this, item] {
    const bool there = MenuUp() && parts_->Menu.MenuKey == "Q1" && parts_->Menu.Lbl.Has(item) &&
                       parts_->TheProgram.Menu.SelectedItem == item;
    if (there) {
      Tell("main menu: " + parts_->Menu.Lbl[item].Caption());
      tally_.Note("main menu: " + parts_->Menu.Lbl[item].Caption());
    }
    ClickAt(ItemPoint(item), MouseButton::Left);
  });
}

void MonkeyLife::PlanPopup() {
  PlanStripInSight();
  const bool ctrl = Chance(25);
  if (ctrl) Plan([this] { HoldControl(true); });
  switch (Number(7)) {
    case 0:
    case 1:
    case 2:
    case 3:
      PlanMenu(Chance(10) ? kMainMenuButton : AnyButton());
      Plan([this] {
        const PixelPoint at = ItemPoint(AnyItem());
        MoveTo(at);
        ClickAt(at, MouseButton::Right);
      });
      break;
    case 4:
      Plan([this] { ClickAt(ButtonPoint(1 + Number(8)), MouseButton::Right); });
      break;
    case 5:
      Plan([this] { ClickAt(SinglePoint(AnySingle()), MouseButton::Right); });
      break;
    default:
      Plan([this] {
        const std::array<PixelPoint, 4> places = {
            GripPoint(), DatePoint(), PointIn("picSingleButton"), InWindow("frmToolbar", 20, 20)};
        ClickAt(places[static_cast<std::size_t>(Number(4))], MouseButton::Right);
      });
  }
  if (ctrl) Plan([this] { HoldControl(false); });
}

// What is always offered is chosen less often, what hardly ever is whenever it is there.
std::string MonkeyLife::PickFrom(const std::vector<const forms::PopupItem*>& offered) {
  for (const forms::PopupItem* item : offered) {
    const std::string& caption = item->Caption;
    const bool rare = caption == "Undo Delete" || caption == "Delete Separator" ||
                      caption == "Open Folder" || caption == "Close Folder" ||
                      caption == "Folder Properties";
    if (rare && Chance(70)) return caption;
  }
  std::string caption;
  for (int tries = 3; tries > 0; --tries) {
    caption = offered[static_cast<std::size_t>(Number(static_cast<int>(offered.size())))]->Caption;
    if (caption != "Refresh" && (caption != "Properties" || Chance(30))) break;
  }
  return caption;
}

// The user's choice while a popup is up. What it may take away from the files is no loss.
void MonkeyLife::ChooseFrom(const sim::Popup& popup) {
  for (const forms::Form* form : OpenWindows()) {
    if (popup.Owner == form->hWnd()) return ChooseInWindow(popup);
  }
  // The command is for what was clicked, whatever becomes of the current entry meanwhile.
  const EntryEdit entry = parts_->TheProgram.Entry;
  if (Chance(15)) WhileUp("popup");
  if (Chance(15) || !world_) return;
  std::vector<const forms::PopupItem*> offered;
  for (const forms::PopupItem& item : popup.Items) {
    if (item.Visible && item.Enabled && !item.IsSeparator()) offered.push_back(&item);
  }
  if (offered.empty()) return;
  const std::string caption = PickFrom(offered);
  const std::string& tag = entry.CurMenuTag;
  Tell("choose " + caption + " for " + tag);
  std::string kind = IsButtonTag(tag) || IsMenuTag(tag) ? tag.substr(0, 1) : tag;
  if (tag == "B1") kind = "the first button";
  tally_.Note("popup of " + kind + ": " + caption);
  world_->Desktop.ChooseFromPopup(caption);
  if (caption == "Delete Item" && IsButtonTag(tag)) {
    deleting_ = entry.CurFile;
    const auto bytes = world_->Files.Get(deleting_);
    lossesAllowed_ += bytes ? static_cast<int>(bytes->size() / kRecordLength) : 0;
  } else if (caption == "Delete Item" || caption == "Cut Item" || caption == "Delete Separator" ||
             caption == "Open Folder" || caption == "Close Folder") {
    ++lossesAllowed_;  // deleted, or written back with another text
  }
}

// The world does not wait for an answer.
void MonkeyLife::WhileUp(std::string_view what) {
  if (insideUp_) return;
  insideUp_ = true;
  Tell("while a " + std::string(what) + " is up:");
  switch (Number(8)) {
    case 0:
    case 1:
      LetTimePass();
      break;
    case 2:
      MoveSomewhere();
      break;
    case 3:
      ChangeWindows();
      break;
    case 4:
      ChangeMenuFile();
      break;
    case 5:
      ChangeBars();
      break;
    case 6:
      ClickSomewhere();
      break;
    default:
      ChangeSystem();
  }
  insideUp_ = false;
}

void MonkeyLife::PlanPutDown() {
  for (int moves = 1 + Number(3); moves > 0; --moves) {
    PlanMove([this] { return DropPoint(); });
    if (Chance(50)) Plan([this] { LetPass(20 + Number(300)); });
  }
  if (Chance(25)) {
    // A copy is put down by the right button while the left one still holds.
    Plan([this] { Press(MouseButton::Right); });
    Plan([this] { Release(MouseButton::Right); });
  }
  Plan([this] { Release(MouseButton::Left); });
}

void MonkeyLife::PlanCarry() {
  if (Chance(45)) {
    PlanStripInSight();
    PlanMove([this] { return SinglePoint(AnySingle()); });
    Plan([this] { Press(MouseButton::Left); });
    return PlanPutDown();
  }
  PlanMenu(AnyButton());
  PlanMove([this] { return ItemPoint(AnyItem()); });
  Plan([this] { HoldControl(true); });
  Plan([this] { Press(MouseButton::Left); });
  const bool copies = Chance(30);
  if (!copies) Plan([this] { HoldControl(false); });
  PlanPutDown();
  if (copies) Plan([this] { HoldControl(false); });
}

void MonkeyLife::PlanSingle() {
  PlanStripInSight();
  Plan([this] {
    const PixelPoint at = Chance(80) ? SinglePoint(AnySingle()) : DatePoint();
    const std::size_t before = world_->Shell.Log().size();
    if (Chance(50)) {
      ClickAt(at, MouseButton::Left);
    } else {
      DoubleClickAt(at);
    }
    if (world_->Shell.Log().size() > before) tally_.Note("a single button was run");
  });
}

void MonkeyLife::PlanDrag() {
  PlanStripInSight();
  PlanMove([this] { return OnScreen(); });
  sim::DragSource source;
  const bool address = Chance(15);
  if (address) {
    source.Data.Text = kTexts[0];
  } else if (Chance(75)) {
    source.Data.Files.emplace();
    for (int count = Number(4); count >= 0; --count)
      source.Data.Files->push_back(kDragged[static_cast<std::size_t>(Number(7))]);
    if (Chance(5)) source.Data.Files->clear();
  }
  if (!address && Chance(30)) source.Data.Text = kTexts[static_cast<std::size_t>(Number(5))];
  source.Button = Chance(65) ? MouseButton::Left : MouseButton::Right;
  if (Chance(20)) source.Allowed = static_cast<forms::DropEffect>(Number(8));
  Plan([this, source]() mutable {
    if (world_->Desktop.Dragging() || IsDown(MouseButton::Left) || IsDown(MouseButton::Right))
      return;
    if (!others_.empty()) source.Window = others_.front();
    Tell("another program drags");
    tally_.Note(source.Data.Files ? "drag of files" : "drag of text");
    world_->Desktop.StartDrag(source);
  });
  for (int moves = 1 + Number(4); moves > 0; --moves) {
    PlanMove([this] { return DropPoint(); });
    if (Chance(60)) Plan([this] { LetPass(20 + Number(300)); });
  }
  PlanDragEnd();
}

void MonkeyLife::PlanDragEnd() {
  const int how = Number(10);
  if (how == 0) {
    Plan([this] {
      if (!world_->Desktop.Dragging()) return;
      Tell("the source dies");
      tally_.Note("drag whose source died");
      world_->Desktop.KillDragSource();
    });
    if (Chance(50)) Plan([this] { LetPass(500); });
  } else if (how == 1) {
    Plan([this] {
      if (!world_->Desktop.Dragging()) return;
      Tell("the drag is given up");
      world_->Desktop.PressKey(27);
      tally_.Note("drag given up");
    });
  } else if (how == 2) {
    PlanMove([this] { return OnScreen(); });
    Plan([this] {
      LetPass(500);
      tally_.Note("drag that left");
    });
  }
  Plan([this] {
    Release(MouseButton::Left);
    Release(MouseButton::Right);
  });
}

void MonkeyLife::PlanHint() {
  PlanStripInSight();
  PlanMove([this] {
    switch (Number(3)) {
      case 0:
        return ButtonPoint(1 + Number(6));
      case 1:
        return SinglePoint(AnySingle());
      default:
        return DatePoint();
    }
  });
  Plan([this] { LetPass(400 + Number(1500)); });
  Plan([this] {
    const WindowId hint = parts_->Hint.WindowHandle();
    if (hint != kNoWindow && world_->Desktop.IsShown(hint)) tally_.Note("a hint was up");
    MoveSomewhere();
  });
}

// A strip in the task bar, or under other windows, comes back.
void MonkeyLife::PlanReturn() {
  Plan([this] {
    const bool was = parts_->TheProgram.Strip.ToolbarMinimized;
    switch (Number(3)) {
      case 0:
        Tell("its button in the task bar");
        world_->Desktop.TakeForeground(world_->Desktop.Find("frmMinimize"));
        world_->Desktop.RestoreMinimized(world_->Desktop.Find("frmMinimize"));
        break;
      case 1:
        Tell("a click in the tray");
        for (const std::intptr_t mouse : {512, 513, Chance(50) ? 514 : 515})
          world_->Desktop.Post(world_->Desktop.Find("frmMinimize"), forms::message::MouseMove, 1,
                               mouse);
        break;
      default:
        Tell("second start");
        world_->Desktop.Post(world_->Desktop.Find("frmMinimize"), forms::message::Size, 0, 0);
    }
    world_->Desktop.Pump();
    if (was && !parts_->TheProgram.Strip.ToolbarMinimized)
      tally_.Note("came back from the task bar");
  });
}

// Everything is let go, the user turns to another program, and some seconds pass.
void MonkeyLife::Rest() {
  plan_.clear();
  LetGo();
  if (others_.empty()) others_.push_back(world_->Desktop.AddOtherWindow({}));
  MoveTo({500, 400});
  HealPlaces();
  Tell("the user turns to another program");
  world_->Desktop.TakeForeground(others_.front());
  // What a slow place was asked before is answered or given up by then.
  LetPass(slowPlaces_ ? kAllAnswered : kRest);
  quiet_ = true;
  tally_.Note("rest");
}

}  // namespace corvelle::fuzz
