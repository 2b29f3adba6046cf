#include "toolbar/strip/frmToolbar.h"

#include <algorithm>
#include <memory>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/DataFolder.h"
#include "core/FileTransaction.h"
#include "core/MenuFolder.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"
#include "platform/SystemInfo.h"
#include "toolbar/docking/ForegroundScope.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

constexpr int kAutoHidePoll = 250;  // milliseconds
constexpr int kPointerPoll = 1;
constexpr int kLargeIcon = 32;

// True if the folder was not there before. One that cannot be made is met again as a folder that
// cannot be listed.
bool MakeMissingFolder(FileSystem& files, const std::string& path) {
  if (files.FolderExists(path)) return false;
  static_cast<void>(files.MakeFolder(path));
  return true;
}

// A folder that is there but cannot be listed now is no empty one.
bool HoldsAny(FileSystem& files, const std::string& folder, std::string_view pattern) {
  const auto found = files.List(folder, pattern);
  if (!found) return found.Error() != FileError::NotFound;
  return std::any_of(found->begin(), found->end(),
                     [](const FileEntry& entry) { return !entry.IsFolder; });
}

}  // namespace

frmToolbar::frmToolbar(Program& program)
    : Form(program.Windows, "frmToolbar"),
      tmrDragDrop(program.Windows),
      tmrRefused(program.Windows),
      picSingleButton(*this, "picSingleButton"),
      Line1([this](int) { return std::make_unique<forms::Line>(picSingleButton, "Line1"); }),
      Line2([this](int) { return std::make_unique<forms::Line>(picSingleButton, "Line2"); }),
      lblDate(picSingleButton, "lblDate"),
      LineLeft(picSingleButton, "LineLeft"),
      Timer2(program.Windows),
      Timer1(program.Windows),
      picToolbar(*this, "picToolbar"),
      lblSep([this](int index) { return MakeSeparator(index); }),
      LinTB1([this](int) { return std::make_unique<forms::Line>(picToolbar, "LinTB1"); }),
      LinTB2([this](int) { return std::make_unique<forms::Line>(picToolbar, "LinTB2"); }),
      bLineXY(*this, "bLineXY"),
      bLine4(*this, "bLine4"),
      bLine2(*this, "bLine2"),
      bLine3(*this, "bLine3"),
      bLine1(*this, "bLine1"),
      Buttons(ButtonRowPartsOf(program), *this, {picToolbar, lblSep, LinTB1, LinTB2}),
      Pull(PullPartsOf(program), *this),
      Hiding(HidingPartsOf(program), *this),
      Menus(TrackingPartsOf(program), *this, Buttons, Pull, picToolbar, Timer2),
      Singles(SingleRowPartsOf(program), DatePartsOf(program), *this, Pull,
              {picSingleButton, Line1, Line2, LineLeft, lblDate}),
      RowDrops(SingleDropPartsOf(program), *this, Singles),
      Carry(StripCarryPartsOf(program), *this, Buttons, Menus, picToolbar, Timer2),
      Refused(program.Messages, *this, tmrRefused),
      Drops(StripDropPartsOf(program), *this, Buttons, Menus, Singles, picToolbar, picSingleButton,
            Timer2, tmrDragDrop, Refused),
      program_(program) {
  WireEvents();
}

frmToolbar::~frmToolbar() = default;

// The grip lies on the window, between its boxes; the other separators between the buttons.
std::unique_ptr<forms::Label> frmToolbar::MakeSeparator(int index) {
  forms::Surface& container = index == 0 ? static_cast<forms::Surface&>(*this) : picToolbar;
  auto label = std::make_unique<forms::Label>(container, "lblSep");
  using forms::MouseButton;
  using forms::ShiftState;
  label->MouseDown = [this, index](MouseButton button, ShiftState, float x, float y) {
    lblSep_MouseDown(index, button, x, y);
  };
  label->MouseMove = [this, index](MouseButton down, ShiftState, float x, float y) {
    lblSep_MouseMove(index, down, x, y);
  };
  label->MouseUp = [this, index](MouseButton button, ShiftState, float x, float y) {
    lblSep_MouseUp(index, button, x, y);
  };
  if (index == 0) {
    label->DblClick = [this] { Form_DblClick(); };
    label->CaptureLost = [this] { Pull.LosePress(); };
  }
  return label;
}

void frmToolbar::WireEvents() {
  using forms::MouseButton;
  using forms::ShiftState;
  MouseDown = [this](MouseButton button, ShiftState, float x, float y) {
    Pull.MouseDown(button, x, y);
  };
  MouseMove = [this](MouseButton down, ShiftState, float x, float y) {
    FrameMouseMove(down, x, y);
  };
  MouseUp = [this](MouseButton button, ShiftState, float, float) { Pull.MouseUp(button); };
  DblClick = [this] { Form_DblClick(); };
  CaptureLost = [this] { Pull.LosePress(); };
  picToolbar.MouseDown = [this](MouseButton button, ShiftState, float x, float y) {
    Menus.picToolbar_MouseDown(button, x, y);
  };
  picToolbar.MouseMove = [this](MouseButton down, ShiftState, float x, float y) {
    Menus.picToolbar_MouseMove(down, x, y);
  };
  picToolbar.MouseUp = [this](MouseButton button, ShiftState shift, float x, float y) {
    Menus.picToolbar_MouseUp(button, shift, x, y);
  };
  picToolbar.DblClick = [this] { Menus.picToolbar_DblClick(); };
  WireRow();
  Timer1.Tick = [this] { Timer1_Timer(); };
  Timer2.Tick = [this] { Menus.Timer2_Timer(); };
}

void frmToolbar::WireRow() {
  using forms::MouseButton;
  using forms::ShiftState;
  using Handler = void (SingleRow::*)(MouseButton, ShiftState, float, float);
  const auto to = [this](Handler handler) {
    return [this, handler](MouseButton button, ShiftState shift, float x, float y) {
      (Singles.*handler)(button, shift, x, y);
    };
  };
  picSingleButton.MouseDown = to(&SingleRow::picSingleButton_MouseDown);
  picSingleButton.MouseMove = to(&SingleRow::picSingleButton_MouseMove);
  picSingleButton.MouseUp = to(&SingleRow::picSingleButton_MouseUp);
  picSingleButton.DblClick = [this] { Singles.picSingleButton_DblClick(); };
  picSingleButton.CaptureLost = [this] { Singles.picSingleButton_CaptureLost(); };
}

void frmToolbar::LoadWindow() { static_cast<void>(Load()); }

void frmToolbar::UnloadWindow() { Unload(); }

void frmToolbar::Form_Load() {
  program_.Strip.FullScreenApp = false;
  program_.Guards.ToolbarReady = true;
  program_.Title = "Corvelle";
  SetVisible(false);
  SetCaption("");
  Tag = "ToolbarWindow";
  MakeFolders();
  SetBackColor(forms::color::ButtonFace);
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->LoadWindow();
  if (!program_.Strip.NotOnTop) SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide);
  SetLeft(Screen().Width);
  picToolbar.SetAutoRedraw(true);
  picSingleButton.SetAutoRedraw(true);
  ReadPlacement();
  CacheDisplayMetrics();
  PlaceFirst();
  if (!IsLoaded()) return;
  subclassed_ = true;
  Timer1.SetEnabled(true);
}

void frmToolbar::MakeFolders() {
  FileSystem& files = program_.Services.Files;
  program_.Paths.MenusPath = program_.Paths.AppPath + std::string(kMenusFolder);
  program_.Paths.IconsPath = program_.Paths.AppPath + "Icons\\";
  program_.Paths.ShellLinkPath = program_.Paths.AppPath + "ShellLink\\";
  MakeMissingFolder(files, program_.Paths.MenusPath);
  const bool newIcons = MakeMissingFolder(files, program_.Paths.IconsPath);
  MakeMissingFolder(files, program_.Paths.ShellLinkPath);
  program_.Paths.ShellLinkPath = EnsureBackslash(files.LongPath(program_.Paths.ShellLinkPath));
  if ((newIcons || !program_.OptionFlags.Is(Option::DefaultEntriesOffered)) &&
      program_.Ports.IconLibrary != nullptr) {
    program_.Ports.IconLibrary->ExtractIconLibrary();
  }
}

void frmToolbar::ReadPlacement() {
  program_.Strip.AppBarDocked = false;
  program_.Strip.ToolbarEdge = Edge::Top;
  program_.Guards.AppBarBusy = false;
  if (program_.Ports.Docking != nullptr) program_.Ports.Docking->RegisterAppBar();
  corvelle::ReadEdgeFlags(program_.OptionFlags, program_.Strip);
  program_.Strip.AutoHide = program_.OptionFlags.Is(Option::AutoHide);
  if (!program_.Strip.AppBarRequested || program_.Ports.Docking != nullptr) return;
  program_.Strip.AppBarRequested = false;
  program_.Strip.ToolbarVertical = false;
  program_.Strip.ToolbarEdge = Edge::Top;
}

void frmToolbar::PlaceFirst() {
  if (!program_.Strip.AppBarRequested) {
    InitButtons();
    return;
  }
  DockingPort& docking = *program_.Ports.Docking;
  if (program_.Strip.AutoHide && !docking.AutoHideFree(program_.Strip.ToolbarEdge))
    program_.Strip.AutoHide = false;
  docking.SetAppBar(program_.Strip.ToolbarEdge, true);
  program_.Strip.AppBarRequested = false;
}

void frmToolbar::Form_Unload() {
  program_.Guards.ToolbarReady = false;
  subclassed_ = false;
  Drops.StopDrag();
  Singles.StopWatching();
  if (program_.Entry.ItemDragging) program_.Carry.AbandonCarry();
  Timer1.SetEnabled(false);
  corvelle::SaveEdgeFlags(program_.OptionFlags, program_.Strip);
  program_.Options.SaveOptionFlags();
  UpdateToolbarPosition();
  if (program_.Ports.Docking != nullptr) program_.Ports.Docking->EndAppBar();
  UnloadItems();
  program_.Events.DoEvents();
  StopTimers();
  // The pointer may have moved over the row meanwhile.
  Singles.StopWatching();
}

void frmToolbar::UnloadItems() {
  ResetMenu();
  if (CollectionsMarked) ResetCollections();
  CollectionsMarked = false;
  Buttons.Unload();
  Singles.Unload();
}

void frmToolbar::ResetCollections() {
  QMenuPort* const menu = program_.Ports.QMenu;
  if (menu == nullptr) return;
  Buttons.ForgetMenus();
  menu->ResetPicIcons();
}

void frmToolbar::InitButtons() {
  const forms::HourglassScope hourglass(program_.Windows);
  SetVisible(false);
  // A change that was cut short is taken back before anything looks into the folder. Where the disk
  // refuses, the next change of files tries again, and the next start.
  static_cast<void>(RecoverFiles(program_.Services.Files, program_.Paths.MenusPath));
  // What cannot be deleted is deleted another time.
  static_cast<void>(PurgeMenus(program_.Services.Files, program_.Paths.MenusPath));
  StopTimers();
  program_.Menu.CurButton = 0;
  ReadTwips();
  lblDate.SetVisible(false);
  ChooseIconSize();
  Buttons.MakeTemplates();
  OfferDefaultEntries();
  if (!IsLoaded()) return;
  ShowContents();
  DoToolbarButtons();
  DoSingleButtons();
  SetToolbar();
  if (!program_.Guards.AppBarBusy && !program_.Strip.AppBarRequested) ShowInFront();
  if (!program_.Strip.AppBarRequested && program_.Ports.QMenu != nullptr) {
    program_.Ports.QMenu->InitIcons();
  }
  StopTimers();
  Timer1.SetInterval(kAutoHidePoll);
  Timer1.SetEnabled(true);
  Timer2.SetInterval(kPointerPoll);
}

void frmToolbar::ShowInFront() {
  Show();
  ZOrder(forms::ZPlace::Front);
  Refresh();
  SetFocus();
}

void frmToolbar::StopTimers() {
  Timer2.SetEnabled(false);
  Timer1.SetEnabled(false);
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->SetPoll(false);
}

void frmToolbar::ReadTwips() {
  const forms::PixelScale scale = Scale();
  TwipsX = scale.TwipsPerPixelX;
  TwipsY = scale.TwipsPerPixelY;
}

void frmToolbar::ChooseIconSize() {
  program_.Icons.IconSize = kSmallIconSize;
  if (!program_.OptionFlags.Is(Option::LargeIcons)) return;
  const int large = program_.Services.Icons.IconWidth(IconList::Large);
  program_.Icons.IconSize = large != 0 ? large : kLargeIcon;
}

// The first use brings the default entries without a question. The question is for a user who has
// deleted everything since.
void frmToolbar::OfferDefaultEntries() {
  DefaultEntriesPort* const entries = program_.Ports.DefaultEntries;
  FileSystem& files = program_.Services.Files;
  const bool firstUse = !program_.OptionFlags.Is(Option::DefaultEntriesOffered);
  if (firstUse) {
    // A program without default entries leaves the first use to one that has them.
    if (entries == nullptr) return;
    SetVisible(false);
    entries->IncludeCommonFiles();
    program_.OptionFlags.Set(Option::DefaultEntriesOffered, true);
    program_.Options.SaveOptionFlags();
    SetLeft(Screen().Width);
    return;
  }
  if (HoldsAny(files, program_.Paths.MenusPath, "*.MNU") ||
      HoldsAny(files, program_.Paths.MenusPath, "*.BTN")) {
    return;
  }
  const int answer = program_.Messages.Say(
      hWnd(),
      "Corvelle doesn't contain any entries. Would you like to add the default "
      "entries to Corvelle?",
      forms::msgbox::YesNo | forms::msgbox::IconQuestion | forms::msgbox::OnTop);
  if (!IsLoaded() || answer != forms::msgbox::AnswerYes) return;
  program_.Events.DoEvents();
  if (!IsLoaded()) return;
  SetVisible(false);
  if (entries != nullptr) entries->IncludeCommonFiles();
}

void frmToolbar::InitNewButtons() {
  if (!IsLoaded()) return;
  // One rebuild at a time. The one that runs may have read the options and files already. A strip
  // in the task bar would be shown by it: it is rebuilt when it comes back.
  if (program_.Guards.AppBarBusy || program_.Strip.ToolbarMinimized) {
    news_.Rebuild = true;
    if (!program_.Strip.ToolbarMinimized) Timer1.SetEnabled(true);
    return;
  }
  news_.Rebuild = false;
  const forms::HourglassScope hourglass(program_.Windows);
  program_.Events.DoEvents();
  if (!IsLoaded()) return;
  const ForegroundScope foreground(*this, program_.Services.Desktop, program_.Ports);
  corvelle::SaveEdgeFlags(program_.OptionFlags, program_.Strip);
  program_.Options.SaveOptionFlags();
  UpdateToolbarPosition();
  ForgetCurrentEntry(program_.Entry);
  if (program_.Strip.AppBarDocked && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->SetAppBar(program_.Strip.ToolbarEdge, true);
  } else {
    RebuildAtTop();
  }
  if (!IsLoaded()) return;
  if (program_.Strip.AutoHide && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->RevealToolbar();
  }
  SetFocus();
  picToolbar.Refresh();
  picSingleButton.Refresh();
  Refresh();
  program_.Guards.ToolbarReady = true;
}

void frmToolbar::RebuildAtTop() {
  program_.Guards.ToolbarReady = false;
  program_.Guards.AppBarBusy = true;
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr) capture->SetPicture1();
  UnloadItems();
  if (IsLoaded()) InitButtons();
  if (IsLoaded()) Show();
  program_.Guards.AppBarBusy = false;
  if (program_.Ports.Properties != nullptr) program_.Ports.Properties->HidePreview();
  const LoadedWindow* const image = program_.Ports.ImageWindow;
  if (capture != nullptr && image != nullptr && image->WindowLoaded()) capture->ResetPicture1();
}

void frmToolbar::RestoreToolbar() {
  if (!IsLoaded()) return;
  // A strip that is just being placed would be left half at its edge: it leaves the edge
  // afterwards.
  if (program_.Guards.AppBarBusy) {
    news_.Restore = true;
    Timer1.SetEnabled(true);
    return;
  }
  news_.Restore = false;
  program_.Guards.RestoreBusy = true;
  if (program_.Strip.AppBarDocked) {
    corvelle::SaveEdgeFlags(program_.OptionFlags, program_.Strip);
    if (program_.Ports.Docking != nullptr) program_.Ports.Docking->RemoveAppBar();
  }
  program_.Strip.AppBarRequested = false;
  program_.Strip.AppBarDocked = false;
  program_.Strip.ToolbarVertical = false;
  program_.Strip.ToolbarEdge = Edge::Top;
  InitNewButtons();
  program_.Guards.RestoreBusy = false;
  if (!IsLoaded()) return;
  ShowInFront();
  picToolbar.Refresh();
  picSingleButton.Refresh();
  if (program_.Strip.AutoHide) Timer1.SetEnabled(true);
}

}  // namespace corvelle
