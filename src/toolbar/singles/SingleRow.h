#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "core/LaunchParts.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/Graphic.h"
#include "forms/Timer.h"
#include "forms/Types.h"
#include "toolbar/layout/StripFiles.h"
#include "toolbar/layout/StripIcons.h"
#include "toolbar/singles/DateLabel.h"
#include "toolbar/singles/RowHost.h"
#include "toolbar/singles/SingleEdits.h"
#include "toolbar/singles/SingleLayout.h"

namespace corvelle {

class DesktopWindows;
class EntryCarry;
class Input;
class OptionFlags;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
class StripPull;

/// What the row of single buttons works with. All of it outlives it.
struct SingleRowParts {
  StripFiles Files;
  SingleEdits Edits;
  IconSources Icons;
  const OptionFlags& Options;
  const StripPlacement& Strip;
  DesktopWindows& Desktop;
  Input& Pointer;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  MenuState& Menu;
  EntryEdit& Entry;
  EntryCarry& Carry;
  LaunchParts Launch;
};

/// The single buttons of the strip: what is in its second box, and what the mouse does there.
/// Each button is a file of its own; every change rewrites files, and the row is read again.
/// Measures are twips of the box. The strip outlives it.
class SingleRow final : public SingleButtonsPort {
 public:
  SingleRow(const SingleRowParts& with, const DateParts& date, RowHost& strip, StripPull& pull,
            const RowControls& controls);

  // ---- the row (SingleRow.cpp) ----

  /// Reads the files in their order, makes every entry again and draws them.
  void DoSingleButtons();
  /// Reads the same files again and draws their icons; every size stays.
  void RefreshSingleButtons();
  /// Empties the row, without drawing.
  void Unload();
  /// End of the last entry along the strip; that of the template without entries.
  [[nodiscard]] float LastEnd() const;

  // ---- the pointer (SingleRowPointer.cpp) ----

  /// Sets MenuState::CurSingle by the pointer's place on the screen, and returns it.
  int GetCurIndex() noexcept;
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

  // ---- drops and edits (SingleRowDrop.cpp) ----

  void DoItemDrag(forms::MouseButton released) override;
  void DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) override;
  FileStatus DeleteSingle(std::string_view file) override { return DeletePasteSB(file, kDelete); }
  FileStatus PasteSingle(std::string_view file) override { return DeletePasteSB(file, kPaste); }
  FileStatus UndoDeleteSB(std::string_view file) override;
  /// Full path of the button or separator under the pointer; empty when the pointer is over
  /// neither.
  [[nodiscard]] std::string FileUnderPointer() { return Under().File; }
  /// Rewrites the files without the button of `file`, or with the clipboard's entry before it.
  /// Whoever calls it reads the row again. A disk that refuses leaves the row as it was.
  FileStatus DeletePasteSB(std::string_view file, int action);

  static constexpr int kDelete = 0;
  static constexpr int kPaste = 1;

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
  void CloseMenus();
  [[nodiscard]] bool OffersPopup(const Press& press) const;
  void ShowSinglePopup(int index, bool ctrl);
  void ShowRowPopup();
  [[nodiscard]] bool IsBesidePull(forms::MouseButton button) const;
  void ToFrame(forms::MouseButton button, float x, float y);

  bool MoveFromMenu(const std::string& before, const EntryEdit& carried);
  /// A copy of the entry under the pointer; its File is empty when the pointer is over no entry.
  [[nodiscard]] SingleRect Under();
  void FitStrip();
  /// Puts records before the button of the file `before`, behind the last one when it is empty.
  void AddDropped(const std::vector<MenuRecord>& records, const std::string& before);

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
