#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "EntryLedger.h"
#include "MonkeyTally.h"
#include "TreeLedger.h"
#include "program/Parts.h"
#include "sim/Complain.h"
#include "sim/World.h"

namespace corvelle::fuzz {

/// One life of the monkey: an installation of random menus, single buttons and options, a start,
/// random events, an end. The same seed gives the same life.
class MonkeyLife {
 public:
  /// `tell`: every event is printed before it happens. `slowPlaces`: places answer late, or not.
  MonkeyLife(std::uint64_t seed, bool tell, MonkeyTally& tally, bool slowPlaces = false);
  ~MonkeyLife();
  MonkeyLife(const MonkeyLife&) = delete;
  MonkeyLife& operator=(const MonkeyLife&) = delete;

  /// Lives through so many events. Empty when all was well, else what was wrong, with the events
  /// that led there.
  [[nodiscard]] std::string Live(int events);
  /// How many of them it came to: some lives end themselves.
  [[nodiscard]] int Lived() const noexcept { return lived_; }

 private:
  /// What the disk of a life is like.
  enum class Disk {
    Well,       // nothing fails
    Stumbling,  // one call fails now and then
    Failing,    // files are held, calls fail for good, the disk fills up
  };
  using Step = std::function<void()>;

  static constexpr std::string_view kMenus = "C:\\Corvelle\\Menus\\";
  static constexpr int kMenuFiles = 6;         // that the monkey writes
  static constexpr int kSingles = 7;           // that stand in the row at most when a life begins
  static constexpr int kAllAnswered = 10'000;  // milliseconds, more than any answer takes
  static constexpr std::string_view kFarFolder = "D:\\Docs\\";

  // ---- the world before the start, and the choice of events (MonkeyLife.cpp) ----

  void Furnish();
  void WriteMenu(int number);
  void WriteSingle(int number);
  [[nodiscard]] std::string RandomRecords(int count);
  void Act();
  void Begin();
  void ActAtRandom();
  [[nodiscard]] std::string MenuPath(int number) const;
  [[nodiscard]] std::string SinglePath(int number) const;

  // ---- single gestures (MonkeyHand.cpp) ----

  void MoveTo(PixelPoint at);
  void MoveSomewhere();
  void PressOrRelease();
  void ClickAt(PixelPoint at, forms::MouseButton button);
  void DoubleClickAt(PixelPoint at);
  void ClickSomewhere();
  void UseKeys();
  void HoldControl(bool down);
  void LetTimePass();
  void LetPass(int milliseconds);
  void Press(forms::MouseButton button);
  void Release(forms::MouseButton button);
  /// Lets go of everything.
  void LetGo();

  // Places, in pixels of the screen.
  [[nodiscard]] PixelPoint InWindow(std::string_view className, float x, float y) const;
  [[nodiscard]] PixelPoint PointIn(std::string_view className);
  [[nodiscard]] PixelPoint SomePoint();
  [[nodiscard]] PixelPoint OnScreen();
  [[nodiscard]] PixelPoint ButtonPoint(int index) const;
  [[nodiscard]] PixelPoint SinglePoint(int index) const;
  [[nodiscard]] PixelPoint ItemPoint(int index) const;
  [[nodiscard]] PixelPoint GripPoint() const;
  [[nodiscard]] PixelPoint DatePoint() const;
  [[nodiscard]] PixelPoint EdgePoint(Edge edge);
  [[nodiscard]] PixelPoint DropPoint();
  [[nodiscard]] int AnyButton();
  [[nodiscard]] int AnySingle();
  [[nodiscard]] int AnyItem();

  // ---- gestures in several steps (MonkeyPlans.cpp) ----

  void Plan(Step step) { plan_.push_back(std::move(step)); }
  void PlanMove(std::function<PixelPoint()> place);
  void PlanStripInSight();
  void PlanMenu(int button);
  void PlanPull();
  void PlanMainMenu();
  void PlanPopup();
  void PlanCarry();
  void PlanPutDown();
  void PlanSingle();
  void PlanDrag();
  void PlanDragEnd();
  void PlanHint();
  void PlanReturn();
  void Rest();
  void ChooseFrom(const sim::Popup& popup);
  [[nodiscard]] std::string PickFrom(const std::vector<const forms::PopupItem*>& offered);
  void WhileUp(std::string_view what);

  // ---- the windows with controls (MonkeyWindows.cpp) ----

  /// Those that are loaded.
  [[nodiscard]] std::vector<forms::Form*> OpenWindows() const;
  /// One that takes input, the foreground one before others; null when there is none.
  [[nodiscard]] forms::Form* WindowInFront();
  [[nodiscard]] PixelPoint PointInControl(const forms::Form& form);
  /// One gesture in it.
  void UseWindow(forms::Form& form);
  void PressWith(int held, int key);
  void TypeInWindow();
  void DragInWindow(const forms::Form& form);
  void ChooseFromBar(const forms::Form& form);
  void CloseInFront(forms::Form& form);
  void ThinkOfAnswers();
  [[nodiscard]] forms::FileChoice ChooseFiles(const forms::FileQuestion& question);
  [[nodiscard]] forms::FolderChoice ChooseFolder();
  void ChooseInWindow(const sim::Popup& popup);
  [[nodiscard]] std::string WrongLink();
  [[nodiscard]] std::string WrongTree();
  [[nodiscard]] bool MayBeDisabled(const sim::SimWindow& window) const;
  /// The entries of the tree of Customize, as they would be saved.
  [[nodiscard]] EntryLedger TreeEntries() const;
  /// True if keys or the pointer reach Customize.
  [[nodiscard]] bool TreeIsAtHand() const;
  /// What the tree holds before an event.
  void NoteTree();
  /// Notes that the tree has changed, and by whom.
  void FollowTree();
  void NoteSave(const EntryLedger& filesBefore, const EntryLedger& saved);

  // ---- what happens without the user (MonkeyWorld.cpp) ----

  void ChangeFiles();
  void ChangeMenuFile();
  void SpoilDisk();
  void ChangeFolders();
  void ChangeWindows();
  void ChangeSystem();
  void ChangeBars();
  void EndFromOutside();

  // ---- places that are slow, dead or dying (MonkeySlow.cpp) ----

  void FurnishSlowPlaces();
  void ChangePlaces();
  void HealPlaces();
  void NoteMenu();
  [[nodiscard]] std::string WrongTurns() const;
  [[nodiscard]] std::string WrongRows() const;

  // ---- what must hold when nothing runs (MonkeyOrder.cpp); empty when it does ----

  [[nodiscard]] std::string WhatIsWrong();
  [[nodiscard]] std::string WrongRest();
  [[nodiscard]] std::string WrongState() const;
  [[nodiscard]] std::string WrongMenu() const;
  [[nodiscard]] std::string WrongCarry();
  [[nodiscard]] std::string WrongHold();
  [[nodiscard]] bool IsOffScreen() const;
  [[nodiscard]] std::string WrongDrag();
  [[nodiscard]] std::string WrongWindows() const;
  [[nodiscard]] std::string WrongPicture() const;
  [[nodiscard]] std::string WrongForeground() const;
  [[nodiscard]] std::string WrongPlace() const;
  [[nodiscard]] std::string WrongBars() const;
  [[nodiscard]] std::string WrongOptions() const;
  [[nodiscard]] std::string WrongFiles();
  [[nodiscard]] std::string DiskCalls() const;
  [[nodiscard]] std::string WrongQuiet() const;
  [[nodiscard]] std::string WrongEnd();
  [[nodiscard]] bool LostByProperties(int lost) const;
  // What becomes of the files (MonkeyFiles.cpp).
  /// Reads what the files hold now. What the monkey changes on the disk itself is no loss.
  void TakeStock();
  void NoteMonkeysChange();
  /// The program is about to do this with the disk.
  void BeforeDiskCall(const sim::SimFiles::Call& call);
  /// Notes a save of Customize that is done.
  void SettleSave();
  /// Notes what the program has changed since the stock was taken.
  void SettleFiles();
  void NoteProgramsChange(const EntryLedger& before, const EntryLedger& after);
  void NotePlace();

  [[nodiscard]] int Number(int below);
  [[nodiscard]] bool Chance(int percent) { return Number(100) < percent; }
  void Tell(std::string event);
  [[nodiscard]] bool StripStands() const;
  [[nodiscard]] bool MenuUp() const;
  [[nodiscard]] bool IsDown(forms::MouseButton button) const;

  std::mt19937_64 random_;
  bool tell_;
  MonkeyTally& tally_;
  bool slowPlaces_;
  std::vector<std::string> complaints_;
  sim::ComplaintHandler handlerBefore_;
  std::unique_ptr<sim::World> world_;
  std::unique_ptr<Parts> parts_;
  WindowId strip_ = kNoWindow;
  Disk disk_ = Disk::Well;
  std::map<std::string, int> troubles_;  // lanes, and what a call costs who waits for it
  std::int64_t wellSince_ = 0;           // no place is in trouble
  std::int64_t farChangedAt_ = 0;
  std::int64_t menuUpSince_ = -1;
  std::vector<WindowId> others_;
  std::vector<WindowId> bars_;
  bool taskBar_ = false;
  std::set<int> keysDown_;
  std::deque<Step> plan_;
  bool quiet_ = false;  // everything was let go a while ago
  bool insideUp_ = false;
  EntryLedger entries_;
  int stockTaken_ = -1;     // SimFiles::Changes when entries_ was read
  int filesLookedAt_ = -1;  // likewise when their bytes were looked at
  int lossesAllowed_ = 0;   // in this event
  EntryLedger lost_;        // in this event by anything but a save of Customize
  EntryLedger new_;         // likewise
  int moreEntries_ = 0;     // likewise
  int moreRecords_ = 0;     // likewise, with damaged ones
  std::string wrongSave_;
  std::string wrongTree_;
  long treeNoted_ = 0;     // the revision that the next one knows
  TreeLedger treeLedger_;  // of Customize
  /// A change of the menu files that has begun while Customize is up: what was there before it.
  struct Change {
    EntryLedger Files;
    EntryLedger Tree;
    int Changes = 0;  // SimFiles::Changes
  };
  std::optional<Change> change_;
  bool conflictAsked_ = false;       // in this event
  bool propertiesUp_ = false;        // before this event
  bool windowUsed_ = false;          // in this event
  bool filesChangedInside_ = false;  // while something asked, in this event
  std::string deleting_;             // the file that goes with its button in this event
  std::string placeBefore_;
  std::size_t boxesBefore_ = 0;
  int lived_ = 0;
  std::deque<std::string> last_;  // events
};

}  // namespace corvelle::fuzz
