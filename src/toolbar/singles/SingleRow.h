#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "core/LaunchParts.h"
#include "core/MenuRecord.h"
#include "core/WindowPorts.h"
#include "forms/Graphic.h"
#include "forms/Timer.h"
#include "forms/Types.h"
#include "toolbar/layout/StripFiles.h"
#include "toolbar/layout/StripIcons.h"
#include "toolbar/singles/DateLabel.h"
#include "toolbar/singles/RowHost.h"
#include "toolbar/singles/SingleLayout.h"

namespace corvelle {

class DesktopWindows;
class EntryCarry;
class Input;
class OptionFlags;
struct GuardFlags;
struct MenuState;
class StripPull;

/// What the row of single buttons works with. All of it outlives it.
struct SingleRowParts {
  StripFiles Files;
  const IconSources& Icons;
  const OptionFlags& Options;
  DesktopWindows& Desktop;
  Input& Pointer;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  MenuState& Menu;
  EntryEdit& Entry;
  EntryCarry& Carry;
  const LaunchParts& Launch;
};

/// The single buttons of the strip: what is in its second box, and what the mouse does there.
/// Each button is a file of its own; what changes them is SingleDrops. Measures are twips of the
/// box. The strip outlives it.
class SingleRow {
 public:
  SingleRow(const SingleRowParts& with, const DateParts& date, RowHost& strip, StripPull& pull,
            const RowControls& controls);
  SingleRow(const SingleRow&) = delete;
  SingleRow& operator=(const SingleRow&) = delete;

  // ---- the row (SingleRow.cpp) ----

  /// Reads the files in their order, makes every entry again and draws them.
  void DoSingleButtons();
  /// Reads the same files again and draws their icons; every size stays.
  void RefreshSingleButtons();
  /// Empties the row, without drawing.
  void Unload();
  /// The strip gets the size that the row asks for.
  void FitStrip();
  /// End of the last entry along the strip; that of the template without entries.
  [[nodiscard]] float LastEnd() const;

  // ---- the pointer (SingleRowPointer.cpp) ----

  /// Sets MenuState::CurSingle by the pointer's place on the screen, and returns it.
  int GetCurIndex() noexcept;
  /// A copy of the entry under the pointer; its File is empty when the pointer is over no entry.
  [[nodiscard]] SingleRect Under();
  /// Full path of the button or separator under the pointer; empty when the pointer is over
  /// neither.
  [[nodiscard]] std::string FileUnderPointer() { return Under().File; }
  void CloseMenus();
  /// The strip ends: nobody looks after the pointer any more.
  void StopWatching() { watch_.SetEnabled(false); }
  /// Shows which button is under the pointer, by its look and its title as a hint.
  void sMouseMove();
  /// Starts the button of CurSingle.
  void RunSingleButton();
  void picSingleButton_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x,
                                 float y);
  void picSingleButton_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x,
                                 float y);
  void picSingleButton_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x,
                               float y);
  void picSingleButton_DblClick();
  void picSingleButton_CaptureLost();
  /// The pointer has come to the date.
  void EnterDate() { ShowHover(0); }

  /// Entry 0 is the template; SingleCount others are in the order of their files.
  std::vector<SingleRect> SingleButtons;
  int SingleCount = 0;
  /// Separators in the row: their lines are Line1 and Line2 from 1 on.
  int LineCount = 0;
  /// The last press was one on the date.
  bool OnDate = false;
  /// At the far end of the row.
  DateLabel Date;

 private:
  /// What a press in the box began.
  enum class PressOn {
    Nothing,
    Frame,   // the strip itself is held
    Single,  // a button
    Spent,   // what it began is over, though a mouse button may still be down
  };
  struct Press {
    PressOn On = PressOn::Nothing;
    int Index = 0;
    float X = 0;
    float Y = 0;
    bool Moved = false;
  };

  [[nodiscard]] SingleScene Scene() const;
  void PlaceBox();
  void ShowLineLeft();
  [[nodiscard]] std::vector<SingleRect> ReadSingles();
  /// True for the same files and kinds as the row has.
  [[nodiscard]] bool FitsRow(const std::vector<SingleRect>& read) const;
  [[nodiscard]] static SingleRect EntryOf(const MenuRecord& record, std::string path);
  void DrawSingleButton(const std::string& command, const std::string& icon,
                        const std::string& title);
  void DrawSepLine(float position);
  void AddSeparator();
  void DrawIcons();
  void SizeBox();

  [[nodiscard]] bool Has(int index) const;
  [[nodiscard]] bool IsButton(int index) const;
  [[nodiscard]] bool MenuUp() const;
  void ShowHover(int index);
  void LookAround();
  void NoteCurrent(int index);
  void BeginCarry(int index);
  void FollowCarry(forms::MouseButton down, forms::ShiftState shift);
  void EndCarry(const Press& press, forms::MouseButton released, forms::ShiftState shift);
  void DropCarried(forms::MouseButton released, forms::ShiftState shift);
  void StopCarry();
  void LoseCarry();
  [[nodiscard]] bool OffersPopup(const Press& press) const;
  void ShowSinglePopup(int index, bool ctrl);
  void ShowRowPopup();
  [[nodiscard]] bool IsBesidePull(forms::MouseButton button) const;
  void ToFrame(forms::MouseButton button, float x, float y);

  SingleRowParts with_;
  RowHost& strip_;
  forms::Form& window_;
  StripPull& pull_;
  RowControls controls_;
  StripIcons icons_;
  /// The two lines at the sides of the button under the pointer.
  forms::Line hover1_;
  forms::Line hover2_;
  /// Runs while the pointer is over a button or the date: nobody tells that it left.
  forms::Timer watch_;
  int hovered_ = 0;
  Press press_;
  bool carrying_ = false;  // the entry that is carried began here
  bool running_ = false;
};

}  // namespace corvelle
