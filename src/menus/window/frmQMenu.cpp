#include "menus/window/frmQMenu.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Text.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "launch/LaunchWiring.h"

namespace corvelle {

using forms::MouseButton;
using forms::ShiftState;

namespace {

constexpr int kPollMilliseconds = 100;

/// Who owns the menu of a key: the text after its first character.
std::string OwnerOf(std::string_view menuKey) {
  return std::string(menuKey.substr(std::min<std::size_t>(menuKey.size(), 1)));
}

}  // namespace

frmQMenu::frmQMenu(Program& program)
    : Form(program.Windows, "frmQMenu", forms::BorderStyle::Raised),
      Shape1(*this, "Shape1"),
      Label1(*this, "Label1"),
      LblButton([this](int) { return std::make_unique<forms::Label>(*this, "LblButton"); }),
      imgButton([this](int) { return std::make_unique<forms::Image>(*this, "imgButton"); }),
      Line1(*this, "Line1"),
      Line2(*this, "Line2"),
      Lbl([this](int index) { return MakeItemLabel(index); }),
      mLineTop(*this, "mLineTop"),
      mLineRight(*this, "mLineRight"),
      mLineDown(*this, "mLineDown"),
      mLineLeft(*this, "mLineLeft"),
      LineLeft(*this, "LineLeft"),
      LineTop(*this, "LineTop"),
      LineRight(*this, "LineRight"),
      LineDown(*this, "LineDown"),
      Timer1(program.Windows),
      KeysTimer(program.Windows),
      UpdateTimer(program.Windows),
      program_(program),
      icons_(program.IconSources),
      items_(program.Services.Ansi),
      drops_({.Files = FileDrops({.Files = program.Services.Files,
                                  .Ansi = program.Services.Ansi,
                                  .Titles = TitlesOf(program),
                                  .Guards = program.Guards,
                                  .Ports = program.Ports}),
              .Launch = program.Launch,
              .Ports = program.Ports,
              .Entry = program.Entry},
             items_),
      prefetch_({.Windows = program.Windows,
                 .Answers = program.Answers,
                 .Files = program.Services.Files,
                 .Ansi = program.Services.Ansi,
                 .Paths = program.Paths,
                 .Guards = program.Guards},
                icons_) {
  LblButton.Load();
  imgButton.Load();
  WireEvents();
}

frmQMenu::~frmQMenu() = default;

void frmQMenu::LoadWindow() { Load(); }

void frmQMenu::UnloadWindow() { Unload(); }

std::unique_ptr<forms::Label> frmQMenu::MakeItemLabel(int index) {
  auto label = std::make_unique<forms::Label>(*this, "Lbl");
  label->SetVisible(false);
  label->SetAutoSize(true);
  if (index == 0) return label;
  // A label forwards what happens on it with its own place added, so that the window alone decides.
  label->SetLeft(Lbl[0].Left());
  label->MouseDown = [this, index](MouseButton button, ShiftState shift, float x, float y) {
    Form_MouseDown(button, shift, x + Lbl[index].Left(), y + Lbl[index].Top());
  };
  label->MouseMove = [this, index](MouseButton down, ShiftState shift, float x, float y) {
    const float left = x + Lbl[index].Left();
    const float top = y + Lbl[index].Top();
    if (StillAway(left, top)) return;
    Form_MouseMove(down, shift, left, top);
  };
  label->MouseUp = [this, index](MouseButton button, ShiftState shift, float x, float y) {
    const float left = x + Lbl[index].Left();
    const float top = y + Lbl[index].Top();
    if (!program_.Entry.ItemDragging && StillAway(left, top)) return;
    Form_MouseUp(button, shift, left, top);
  };
  WireDrags(*label, index);
  return label;
}

void frmQMenu::WireEvents() {
  MouseDown = [this](MouseButton button, ShiftState shift, float x, float y) {
    Form_MouseDown(button, shift, x, y);
  };
  MouseMove = [this](MouseButton down, ShiftState shift, float x, float y) {
    Form_MouseMove(down, shift, x, y);
  };
  MouseUp = [this](MouseButton button, ShiftState shift, float x, float y) {
    Form_MouseUp(button, shift, x, y);
  };
  Paint = [this] { Form_Paint(); };
  Timer1.Tick = [this] { Timer1_Timer(); };
  KeysTimer.Tick = [this] { ActHeldKeys(); };
  KeysTimer.SetInterval(1);
  UpdateTimer.Tick = [this] { TryUpdate(); };
  icons_.Arrived = [this] { IconsArrived(); };
  WireDrags();
  for (int i = 0; i <= 1; ++i) {
    WireArrow(LblButton[i], i);
    // The glyph lies over its button and hands everything on to it; only a release needs its place.
    WireArrow(imgButton[i], i);
  }
}

void frmQMenu::WireArrow(forms::Graphic& control, int index) {
  control.MouseDown = [this, index](MouseButton button, ShiftState, float, float) {
    LblButton_MouseDown(index, button);
  };
  control.MouseMove = [this, index](MouseButton down, ShiftState, float, float) {
    LblButton_MouseMove(index, down);
  };
  control.MouseUp = [this, index, &control](MouseButton button, ShiftState, float x, float y) {
    const forms::Label& arrow = LblButton[index];
    LblButton_MouseUp(index, button, x + control.Left() - arrow.Left(),
                      y + control.Top() - arrow.Top());
  };
  control.DblClick = [this, index] { LblButton_DblClick(index); };
}

void frmQMenu::Form_Load() {
  SetCaption("");
  SetBackColor(forms::color::ButtonFace);
  InitElements();
  Timer1.SetEnabled(false);
  Timer1.SetInterval(kPollMilliseconds);
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide);
}

void frmQMenu::Form_Unload() {
  Timer1.SetEnabled(false);
  KeysTimer.SetEnabled(false);
  UpdateTimer.SetEnabled(false);
  prefetch_.Stop();
  icons_.Stop();
  updateSince_.reset();
  held_.Forget();
  MenuReady = false;
}

void frmQMenu::Form_QueryClose() { CloseMenu(); }

void frmQMenu::InitElements() {
  SetCaption("");
  TakeScale();
  const MenuMetrics metrics = MetricsFor(TwipsX, TwipsY);
  Lbl[0].SetVisible(false);
  Lbl[0].SetAutoSize(true);
  Lbl[0].SetLeft(metrics.ItemLeft);
  Lbl[0].SetTop(metrics.FirstTop);
  Lbl[0].SetForeColor(forms::color::ButtonText);
  Label1.SetVisible(false);
  Shape1.Move(metrics.BarLeft, 0, Screen().Width, metrics.BarHeight);
  Shape1.SetVisible(false);
  ShapeLeft = Shape1.Left();
  for (forms::Line* line : {&mLineLeft, &mLineTop, &LineLeft, &LineTop, &Line2}) {
    line->SetBorderColor(forms::color::Highlight3D);
  }
  for (forms::Line* line : {&mLineRight, &mLineDown, &LineRight, &LineDown, &Line1}) {
    line->SetBorderColor(forms::color::ButtonShadow);
  }
  HideBox();
  HideUpDownButton();
  HideArrows();
}

void frmQMenu::TakeScale() {
  // A menu belongs to the strip, and comes up on its monitor.
  if (program_.Ports.Toolbar != nullptr) SetDpi(program_.Ports.Toolbar->WindowDpi());
  const forms::PixelScale scale = Scale();
  TwipsX = std::trunc(scale.TwipsPerPixelX);
  TwipsY = std::trunc(scale.TwipsPerPixelY);
  const MenuMetrics metrics = MetricsFor(TwipsX, TwipsY);
  SmallIconW = metrics.SmallIconW;
  SmallIconH = metrics.SmallIconH;
  ItemGap = metrics.ItemGap;
}

void frmQMenu::ShowMenu(std::string_view menuKey, std::string_view menuFile) {
  program_.Ports.SetHint("");
  // A build lets nothing else into the window.
  if (program_.Guards.MenuBuilding) return;
  if (!Load()) return;
  TakeScale();
  const std::string key(menuKey);
  const std::string owner = OwnerOf(key);
  if (owner.empty() || owner == "0" || menuFile.empty()) return;
  ResetQMenu();
  HoldUpForIcons();
  ListenToFolders();
  PagePicture.reset();
  if (!EqualNoCase(key, MenuKey)) pages_.ForgetSaved();
  MenuKey = key;
  const std::shared_ptr<BuiltMenu> built = cache_.Find(key);
  const bool changed = built && FoldersChanged(key);
  // The comparison of folders of the shell lets events through.
  if (!IsLoaded()) return;
  if (changed) {
    if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RemoveQMenu(key);
    cache_.Remove(key);
    Tag = owner;
    InitQMenu(menuFile);
  } else if (!built || !RestoreMenu(built)) {
    InitQMenu(menuFile);
  }
  if (!IsLoaded()) return;
  if (EqualNoCase(key, kMainMenuKey)) CheckLabels();
  PresentMenu();
  AwaitHeldKeys();
}

bool frmQMenu::FoldersChanged(std::string_view menuKey) {
  FolderMenusPort* const folders = program_.Ports.FolderMenus;
  if (folders == nullptr) return false;
  // Meanwhile nobody else puts another menu into the window.
  const forms::FlagScope building(program_.Guards.MenuBuilding);
  return folders->UpdateMenu(menuKey);
}

bool frmQMenu::RestoreMenu(const std::shared_ptr<BuiltMenu>& built) {
  // A menu that was laid out for another screen or another place of the strip does not fit.
  if (built->Room != RoomForMenu() || built->Dpi != Dpi()) return false;
  Take(built);
  MenuFile = built->MenuInfo.File;
  pages_.Save();
  PlaceMenu();
  UpDownArrows();
  const clsMenu& page = pages_.Current();
  if (page.Init == 0) {
    DrawPage(false);
  } else {
    PagePicture = page.MenuPicture;
    FillPage();
    ShowPage();
  }
  return true;
}

void frmQMenu::PresentMenu() {
  MenuReady = true;
  UpDownArrows();
  Timer1.SetEnabled(true);
  BringUp();
  InvalidateAll();
}

void frmQMenu::BringUp() {
  if (Visible()) return;
  ShowNoActivate();
  // Another program's drag keeps the foreground.
  if (program_.Drag.DragHolds(program_.Services.Pointer)) return;
  // A menu that was rebuilt behind its still picture has the keyboard again, if the program still
  // has it.
  if (IsCaptured()) {
    SetFocus();
  } else {
    SetForeground();
  }
}

void frmQMenu::PlaceMenu() {
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->SetMenuPosition();
}

void frmQMenu::CloseMenu() {
  if (program_.Ports.Toolbar != nullptr) {
    program_.Ports.Toolbar->ResetMenu();
  } else {
    HideMenu();
  }
}

void frmQMenu::HideMenu() {
  if (!IsLoaded()) return;
  // A refresh hides the menu first, and comes back to the page that was up.
  if (Visible()) pages_.Save();
  Hide();
  if (program_.Guards.MenuBuilding) return;
  held_.Forget();
  ForgetUpdate();
  icons_.PutAside();
}

void frmQMenu::ResetQMenu() {
  if (program_.Guards.MenuBuilding || !IsLoaded()) return;
  MenuReady = false;
  Hide();
  SetAutoRedraw(false);
  Cls();
  for (int i = 1; i <= LoadedLabels(); ++i) Lbl[i].SetVisible(false);
  Timer1.SetEnabled(false);
  ForgetUpdate();
  icons_.PutAside();
  menu_ = std::make_shared<BuiltMenu>();
  items_.Clear();
  pages_.Clear();
  pageBoxes_.clear();
  pageIcons_.clear();
  PagePicture.reset();
  ShadowCount = 0;
  program_.Menu.SelectedItem = 0;
  CurItem = 0;
  PrevItem = 0;
  rebuilt_ = false;
  pressed_ = false;
  HideArrows();
  HideUpDownButton();
  ActiveArrow = kNoArrow;
  Shape1.SetVisible(false);
  HideBox();
}

void frmQMenu::HideArrows() {
  for (int i = 0; i <= 1; ++i) {
    LblButton[i].SetVisible(false);
    LblButton[i].SetEnabled(false);
    imgButton[i].SetVisible(false);
  }
  Line1.SetVisible(false);
  Line2.SetVisible(false);
}

void frmQMenu::CheckLabels() {
  if (program_.Ports.MainMenu != nullptr) program_.Ports.MainMenu->CheckLabels();
}

bool frmQMenu::IsCaptured() const {
  return program_.Ports.Capture != nullptr && program_.Ports.Capture->MenuCaptured();
}

std::optional<std::intptr_t> frmQMenu::WindowProc(std::uint32_t message, std::uintptr_t /*wParam*/,
                                                  std::intptr_t /*lParam*/) {
  if (message == forms::message::SysColorChange) ColoursChanged();
  return std::nullopt;
}

}  // namespace corvelle
