// The windows with controls: Customize, Properties, the icon library, the dialog for web links, Net
// Search and About. What a user does in them, and what must hold while they are up.

#include <algorithm>
#include <array>
#include <functional>

#include "MonkeyLife.h"
#include "base/Text.h"
#include "core/MenuRecord.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

using forms::MouseButton;

constexpr int kShiftKey = 16;
constexpr int kControlKey = 17;
constexpr int kAlt = 18;
constexpr int kAnswerCancel = 2;

constexpr std::array<int, 21> kWindowKeys = {9,  9,  9,  13, 13, 32, 33, 34,  35,  36, 37,
                                             38, 38, 39, 40, 40, 46, 93, 113, 114, 115};
// With Ctrl: commands of the tree and of a text box, and the tabs.
constexpr std::array<int, 20> kWithControl = {'A', 'B', 'C', 'D', 'E', 'F', 'H', 'I', 'L', 'M',
                                              'N', 'S', 'U', 'V', 'X', 'Y', 'Z', 9,   33,  34};
const std::array<std::string, 12> kTyped = {"a",
                                            "zebra",
                                            " ",
                                            "\xC3\x84",
                                            "http://b.example/",
                                            "C:\\Tools\\tool.exe",
                                            "/h",
                                            "C:\\Docs\\*.*/U",
                                            "\\icons\\folder.ico",
                                            "NetSearch",
                                            "-",
                                            "a text that is longer than any field of a record "
                                            "holds, so that it has to be cut or refused"};

std::string CallOf(const forms::PopupItem& item, const std::string& before) {
  return before.empty() ? item.Caption : before + ">" + item.Caption;
}

/// The lines of a menu that can be chosen, each with the captions on the way to it.
void CollectLines(const std::vector<forms::PopupItem>& items, const std::string& before,
                  std::vector<std::string>& lines) {
  for (const forms::PopupItem& item : items) {
    if (!item.Visible || !item.Enabled || item.IsSeparator()) continue;
    if (item.Items.empty()) {
      lines.push_back(CallOf(item, before));
    } else {
      CollectLines(item.Items, CallOf(item, before), lines);
    }
  }
}

}  // namespace

std::vector<forms::Form*> MonkeyLife::OpenWindows() const {
  std::vector<forms::Form*> open;
  for (forms::Form* form : std::initializer_list<forms::Form*>{
           &parts_->Customize, &parts_->Properties, &parts_->Library, &parts_->WebLink,
           &parts_->NetSearch, &parts_->About}) {
    if (form->IsLoaded()) open.push_back(form);
  }
  return open;
}

forms::Form* MonkeyLife::WindowInFront() {
  std::vector<forms::Form*> free;
  for (forms::Form* form : OpenWindows()) {
    const sim::SimWindow* const window = world_->Desktop.Look(form->hWnd());
    if (window == nullptr || !window->Enabled || !window->Visible) continue;
    if (world_->Desktop.ForegroundWindow() == form->hWnd()) return form;
    free.push_back(form);
  }
  return free.empty() ? nullptr
                      : free[static_cast<std::size_t>(Number(static_cast<int>(free.size())))];
}

PixelPoint MonkeyLife::PointInControl(const forms::Form& form) {
  std::vector<WindowId> controls;
  const std::function<void(WindowId)> collect = [&](WindowId id) {
    const sim::SimWindow* const window = world_->Desktop.Look(id);
    if (window == nullptr || !window->Visible) return;
    if (window->Children.empty()) controls.push_back(id);
    for (const WindowId child : window->Children) collect(child);
  };
  collect(form.hWnd());
  if (controls.empty()) return world_->Desktop.PointerPosition();
  const PixelRect at = world_->Desktop.BoundsOf(
      controls[static_cast<std::size_t>(Number(static_cast<int>(controls.size())))]);
  return {at.left + Number(std::max(at.Width(), 1)), at.top + Number(std::max(at.Height(), 1))};
}

void MonkeyLife::PressWith(int held, int key) {
  Tell("key " + std::to_string(held) + "+" + std::to_string(key));
  world_->Desktop.KeyDown(held);
  FollowTree();
  world_->Desktop.PressKey(key);
  world_->Desktop.KeyUp(held);
}

void MonkeyLife::TypeInWindow() {
  const std::string& text = kTyped[static_cast<std::size_t>(Number(kTyped.size()))];
  Tell("type \"" + text + "\"");
  world_->Desktop.Type(text);
}

void MonkeyLife::DragInWindow(const forms::Form& form) {
  MoveTo(PointInControl(form));
  Press(MouseButton::Left);
  for (int moves = 1 + Number(3); moves > 0; --moves) {
    MoveTo(Chance(80) && form.IsLoaded() ? PointInControl(form) : OnScreen());
    if (Chance(20)) LetPass(Number(300));
    if (Chance(5)) world_->Desktop.PressKey(27);
  }
  Release(MouseButton::Left);
}

void MonkeyLife::ChooseFromBar(const forms::Form& form) {
  const sim::SimWindow* const window = world_->Desktop.Look(form.hWnd());
  if (window == nullptr || window->MenuBar.empty()) return TypeInWindow();
  const std::vector<forms::PopupItem> bar = window->MenuBar;
  const std::string menu =
      bar[static_cast<std::size_t>(Number(static_cast<int>(bar.size())))].Caption;
  const std::string name = form.Name();
  // What the menu offers is known when it is open.
  world_->Desktop.ChooseFromMenuBar(form.hWnd(), menu, [&](const sim::Popup& open) -> std::string {
    FollowTree();
    std::vector<std::string> lines;
    CollectLines(open.Items, {}, lines);
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(menu + ">"); });
    if (lines.empty()) return {};
    std::string line = lines[static_cast<std::size_t>(Number(static_cast<int>(lines.size())))];
    Tell("menu bar: " + line);
    tally_.Note(name + ": " + line);
    return line;
  });
}

void MonkeyLife::CloseInFront(forms::Form& form) {
  switch (Number(3)) {
    case 0:
      Tell("Esc");
      world_->Desktop.PressKey(27);
      break;
    case 1:
      PressWith(kAlt, 115);
      break;
    default:
      Tell("close " + form.Name());
      world_->Desktop.Post(form.hWnd(), forms::message::Close, 0, 0);
      world_->Desktop.Pump();
  }
}

// The answers of this gesture. Whether the window has a dialog for files at all it decides itself.
void MonkeyLife::ThinkOfAnswers() {
  const std::array<int, 4> answers = {forms::msgbox::AnswerYes, forms::msgbox::AnswerNo,
                                      forms::msgbox::AnswerOk, kAnswerCancel};
  world_->Desktop.AnswerAnyOther(answers[static_cast<std::size_t>(Number(4))]);
}

void MonkeyLife::UseWindow(forms::Form& form) {
  const std::string name = form.Name();
  tally_.Note("used " + name);
  windowUsed_ = true;
  ThinkOfAnswers();
  if (world_->Desktop.ForegroundWindow() != form.hWnd() && Chance(70)) {
    Tell(name + " comes to the foreground");
    world_->Desktop.TakeForeground(form.hWnd());
    world_->Desktop.Pump();
    if (!form.IsLoaded()) return;
    FollowTree();
  }
  const int what = Number(100);
  if (what < 32) {
    const PixelPoint at = PointInControl(form);
    if (Chance(12)) {
      DoubleClickAt(at);
    } else {
      ClickAt(at, Chance(88) ? MouseButton::Left : MouseButton::Right);
    }
  } else if (what < 54) {
    const int key = kWindowKeys[static_cast<std::size_t>(Number(kWindowKeys.size()))];
    if (Chance(10)) return PressWith(kShiftKey, key);
    Tell("key " + std::to_string(key));
    world_->Desktop.PressKey(key);
  } else if (what < 66) {
    TypeInWindow();
  } else if (what < 74) {
    PressWith(kControlKey, kWithControl[static_cast<std::size_t>(Number(kWithControl.size()))]);
  } else if (what < 80) {
    PressWith(kAlt, 'A' + Number(26));
  } else if (what < 86) {
    ChooseFromBar(form);
  } else if (what < 88) {
    Tell("wheel");
    world_->Desktop.TurnWheel(Chance(50) ? 120 : -240);
  } else if (what < 93) {
    DragInWindow(form);
  } else if (what < 97 || Chance(40)) {
    LetTimePass();
  } else {
    CloseInFront(form);
  }
}

forms::FileChoice MonkeyLife::ChooseFiles(const forms::FileQuestion& question) {
  const std::array<std::string, 5> files = {"C:\\Docs\\letter.txt", "C:\\Tools\\tool.exe",
                                            "C:\\Docs\\sub\\other.txt", "C:\\Docs\\gone.doc",
                                            "C:\\Docs\\no link.lnk"};
  tally_.Note("dialog: " + question.Title);
  if (Chance(15)) WhileUp("dialog");
  if (Chance(30)) return {};
  forms::FileChoice choice;
  for (int count = question.Several ? 1 + Number(4) : 1; count > 0; --count)
    choice.Paths.push_back(files[static_cast<std::size_t>(Number(files.size()))]);
  return choice;
}

forms::FolderChoice MonkeyLife::ChooseFolder() {
  tally_.Note("dialog for a folder");
  if (Chance(15)) WhileUp("dialog");
  if (Chance(30)) return {};
  return {.Chosen = true, .Path = Chance(80) ? "C:\\Docs" : "C:\\Gone", .Name = "Docs"};
}

void MonkeyLife::ChooseInWindow(const sim::Popup& popup) {
  FollowTree();
  std::vector<std::string> lines;
  CollectLines(popup.Items, {}, lines);
  if (lines.empty() || Chance(15)) return;
  const std::string& line = lines[static_cast<std::size_t>(Number(static_cast<int>(lines.size())))];
  Tell("choose " + line);
  tally_.Note("popup in a window: " + line);
  world_->Desktop.ChooseFromPopup(line);
}

// ---- what must hold ----

// A dropped address is dealt with soon, or its dialog is up.
std::string MonkeyLife::WrongLink() {
  const auto waits = [this] {
    return parts_->WebLink.WebLinkPending && !parts_->WebLink.IsLoaded();
  };
  if (!waits()) return {};
  constexpr int kSoon = 2000;
  world_->Desktop.Advance(kSoon);
  if (!StripStands()) return {};
  return waits() ? "a dropped address waits and nobody asks about it" : "";
}

bool MonkeyLife::MayBeDisabled(const sim::SimWindow& window) const {
  // The dialog for an address holds the strip and its menu.
  if (parts_->WebLink.IsLoaded() &&
      (window.ClassName == "frmToolbar" || window.ClassName == "frmQMenu")) {
    return true;
  }
  // The library is modal to whoever opened it.
  if (!parts_->Library.IsLoaded()) return false;
  const sim::SimWindow* const library = world_->Desktop.Look(parts_->Library.hWnd());
  return library != nullptr && library->Owner == window.Id;
}

EntryLedger MonkeyLife::TreeEntries() const {
  return EntryLedger(parts_->Customize.Editor.Tree.ToMenuSet(), world_->Ansi);
}

bool MonkeyLife::TreeIsAtHand() const {
  const sim::SimDesktop& desktop = world_->Desktop;
  if (!parts_->Customize.IsLoaded()) return false;
  const WindowId window = parts_->Customize.hWnd();
  WindowId under = desktop.WindowAt(desktop.PointerPosition());
  for (; under != kNoWindow && under != window;) {
    const sim::SimWindow* const at = desktop.Look(under);
    under = at == nullptr ? kNoWindow : at->Parent;
  }
  return under == window || desktop.ForegroundWindow() == window;
}

void MonkeyLife::NoteTree() {
  FollowTree();
  if (!parts_->Customize.IsLoaded()) {
    treeLedger_.Close();
  } else if (!treeLedger_.IsOpen()) {
    treeLedger_.Open(TreeEntries());
    treeNoted_ = parts_->Customize.Editor.Tree.Revision();
  }
}

// What comes in from elsewhere when a gesture begins may be taken out by its end, and both are told
// apart.
void MonkeyLife::FollowTree() {
  // The first click of two may take a window away that was over it.
  windowUsed_ = windowUsed_ || TreeIsAtHand();
  if (!parts_->Customize.IsLoaded() || !treeLedger_.IsOpen()) return;
  const long revision = parts_->Customize.Editor.Tree.Revision();
  if (treeNoted_ == revision) return;
  treeNoted_ = revision;
  SettleFiles();
  const EntryLedger lost = treeLedger_.ChangeTree(TreeEntries(), windowUsed_);
  if (lost.Size() == 0 || disk_ == Disk::Failing || !wrongTree_.empty()) return;
  wrongTree_ = std::to_string(lost.Size()) + " entries are lost from the tree, one is\n" +
               lost.First() + DiskCalls();
}

// The tree changes by what the user does in the window; else only by what became of the files.
std::string MonkeyLife::WrongTree() {
  FollowTree();
  if (!parts_->Customize.IsLoaded() || treeLedger_.IsOpen()) return wrongTree_;
  const EntryLedger missing = entries_.Without(TreeEntries());
  if (missing.Size() == 0 || disk_ != Disk::Well || filesChangedInside_) return {};
  return std::to_string(missing.Size()) + " entries of the files are not in the tree, one is\n" +
         missing.First();
}

}  // namespace corvelle::fuzz
