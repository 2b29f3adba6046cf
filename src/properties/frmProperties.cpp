#include "properties/frmProperties.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "base/Text.h"
#include "core/GuardFlags.h"
#include "core/RecordEdits.h"
#include "core/StripPlacement.h"
#include "desk/AnswerDesk.h"
#include "desk/SlowQuestions.h"
#include "forms/Scopes.h"
#include "icons/IconForm.h"
#include "properties/PropertiesLayout.h"
#include "shell/LinkFiles.h"

namespace corvelle {
namespace {

constexpr std::string_view kItemTab = "item";
constexpr std::string_view kButtonsTab = "buttons";
constexpr std::string_view kPositionTab = "position";
constexpr int kStartMenu = 11;
constexpr int kAtOnce = 40;        // milliseconds for which the window waits for its icon
constexpr int kTargetDelay = 300;  // milliseconds without a key
constexpr int kEdgeInterval = 100;

void Place(forms::Control& control, const PixelRect& at, const forms::ScreenInfo& screen) {
  control.Move(static_cast<float>(at.left) * screen.TwipsPerPixelX,
               static_cast<float>(at.top) * screen.TwipsPerPixelY,
               static_cast<float>(at.Width()) * screen.TwipsPerPixelX,
               static_cast<float>(at.Height()) * screen.TwipsPerPixelY);
}

bool HasFocusInside(const forms::Window& window) {
  return window.HasFocus() ||
         std::any_of(window.Children().begin(), window.Children().end(),
                     [](const forms::Window* child) { return HasFocusInside(*child); });
}

}  // namespace

frmProperties::frmProperties(const PropertiesParts& with)
    : Form(with.Icons.Windows, "frmProperties", forms::BorderStyle::Fixed, true),
      TabStrip1(*this, "TabStrip1"),
      Picture1(*this, "Picture1"),
      Pix(Picture1, "Pix"),
      Label1(Picture1, "Label1"),
      lblTitle(Picture1, "lblTitle"),
      lblIcon(Picture1, "lblIcon"),
      lblFile(Picture1, "lblFile"),
      lblMissing(Picture1, "lblMissing"),
      txtTitle(Picture1, "txtTitle"),
      txtIcon(Picture1, "txtIcon"),
      cmdLibrary(Picture1, "cmdLibrary"),
      cmdAllFiles(Picture1, "cmdAllFiles"),
      txtCommand(Picture1, "txtCommand"),
      cmdSelectFile(Picture1, "cmdSelectFile"),
      cmdSelectFolder(Picture1, "cmdSelectFolder"),
      Frame1(Picture1, "Frame1"),
      cmdFile(Frame1, "cmdFile"),
      cmdFolder(Frame1, "cmdFolder"),
      picButtons(*this, "picButtons"),
      TreeView1(picButtons, "TreeView1", {.CheckBoxes = true}),
      cmdUp(picButtons, "cmdUp"),
      cmdDown(picButtons, "cmdDown"),
      lblHint(picButtons, "lblHint"),
      lblHintCommand(picButtons, "lblHintCommand"),
      Picture2(*this, "Picture2"),
      picScreen(Picture2, "picScreen"),
      cmdTop(Picture2, "cmdTop"),
      cmdLeft(Picture2, "cmdLeft"),
      cmdRight(Picture2, "cmdRight"),
      cmdBottom(Picture2, "cmdBottom"),
      cmdOK(*this, "cmdOK"),
      cmdCancel(*this, "cmdCancel"),
      cmdApply(*this, "cmdApply"),
      with_(with),
      icon_(with.Icons, IconCaller::Properties),
      nodeIcons_(with.Icons, IconCaller::Tree),
      nodeImages_(TreeView1),
      desktopAsked_(with.Icons.Answers.NewOwner()),
      tmrEdge_(with.Icons.Windows),
      tmrTarget_(with.Icons.Windows) {
  SetCaption("Properties");
  SetKeyPreview(true);
  TabStrip1.Add(std::string(kItemTab), "Item");
  TabStrip1.Add(std::string(kButtonsTab), "Buttons");
  TabStrip1.Add(std::string(kPositionTab), "Position");
  TabStrip1.Click = [this] { TabStrip1_Click(); };
  WireItem();
  WireButtons();
  WireEdges();
  cmdOK.SetCaption("OK");
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.SetCaption("Cancel");
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdApply.SetCaption("Apply");
  cmdApply.Click = [this] { cmdApply_Click(); };
}

void frmProperties::WireItem() {
  // A picture takes no press.
  Pix.SetEnabled(false);
  lblTitle.SetCaption("Title");
  lblIcon.SetCaption("Icon");
  lblFile.SetCaption("File");
  lblMissing.SetCaption("Not found");
  lblMissing.SetFont({.Bold = true});
  txtTitle.SetLimit(static_cast<int>(kTitleWidth));
  txtIcon.SetLimit(static_cast<int>(kIconWidth));
  txtCommand.SetLimit(static_cast<int>(kNameWidth));
  cmdLibrary.SetCaption("Library");
  cmdLibrary.Click = [this] { static_cast<void>(txtIcon_KeyDown(forms::key::F3)); };
  cmdAllFiles.SetCaption("File");
  cmdAllFiles.Click = [this] { static_cast<void>(txtIcon_KeyDown(forms::key::F2)); };
  cmdSelectFile.SetCaption("File");
  cmdSelectFile.Click = [this] { static_cast<void>(txtCommand_KeyDown(forms::key::F2)); };
  cmdSelectFolder.SetCaption("Folder");
  cmdSelectFolder.Click = [this] { static_cast<void>(txtCommand_KeyDown(forms::key::F3)); };
  txtIcon.KeyDown = [this](int key, forms::ShiftState) { return txtIcon_KeyDown(key); };
  txtCommand.KeyDown = [this](int key, forms::ShiftState) { return txtCommand_KeyDown(key); };
  txtCommand.Change = [this] { AskTargetSoon(); };
  Frame1.SetCaption("Change Item");
  cmdFile.SetCaption("File");
  cmdFile.Click = [this] { cmdFile_Click(); };
  cmdFolder.SetCaption("Folder");
  cmdFolder.Click = [this] { cmdFolder_Click(); };
  tmrTarget_.SetInterval(kTargetDelay);
  tmrTarget_.Tick = [this] { AskTarget(); };
}

void frmProperties::WireButtons() {
  cmdUp.SetCaption("Up");
  cmdUp.Click = [this] { cmdUp_Click(); };
  cmdDown.SetCaption("Down");
  cmdDown.Click = [this] { cmdDown_Click(); };
  // Titles are edited on the first tab.
  TreeView1.Editing = [](forms::NodeId, bool) { return false; };
  TreeView1.SelectedChanged = [this](forms::NodeId, forms::SelectCause) { ShowLoss(); };
  TreeView1.CheckChanged = [this](forms::NodeId node) {
    SetNodeChecked(node, TreeView1.Checked(node));
  };
  TreeView1.Activated = [this](forms::NodeId node) { TreeView1_DblClick(node); };
  TreeView1.DragBegin = [this](forms::NodeId node) {
    dragNode_ = node;
    return true;
  };
  TreeView1.DragOver = [this](const forms::TreeHit& hit) { ShowDropMark(hit); };
  TreeView1.DragEnd = [this](const forms::TreeHit& hit, bool dropped) {
    TreeView1_DragDrop(hit, dropped);
  };
}

void frmProperties::WireEdges() {
  picScreen.SetEnabled(false);
  picScreen.SetAutoRedraw(true);
  cmdTop.SetCaption("Top");
  cmdTop.Click = [this] { MoveToEdge(Edge::Top); };
  cmdBottom.SetCaption("Bottom");
  cmdBottom.Click = [this] { MoveToEdge(Edge::Bottom); };
  cmdLeft.SetCaption("Left");
  cmdLeft.Click = [this] { MoveToEdge(Edge::Left); };
  cmdRight.SetCaption("Right");
  cmdRight.Click = [this] { MoveToEdge(Edge::Right); };
  tmrEdge_.SetInterval(kEdgeInterval);
  tmrEdge_.Tick = [this] {
    const std::optional<Edge> edge = EdgeInUse();
    if (edge != shownEdge_) DrawStrip(edge);
  };
}

void frmProperties::PlaceControls() {
  const forms::ScreenInfo screen = Screen();
  const PropertiesLayout at = LayOutProperties({.Dpi = Dpi(), .Screen = Windows().ScreenSize()});
  const std::pair<forms::Control&, const PixelRect&> places[] = {
      {TabStrip1, at.TabStrip},
      {Picture1, at.Page},
      {picButtons, at.Page},
      {Picture2, at.Page},
      {cmdOK, at.Ok},
      {cmdCancel, at.Cancel},
      {cmdApply, at.Apply},
      {Pix, at.Picture},
      {Label1, at.Heading},
      {lblTitle, at.TitleLabel},
      {txtTitle, at.Title},
      {lblIcon, at.IconLabel},
      {txtIcon, at.Icon},
      {cmdLibrary, at.Library},
      {cmdAllFiles, at.AllFiles},
      {lblFile, at.CommandLabel},
      {lblMissing, at.Missing},
      {txtCommand, at.Command},
      {cmdSelectFile, at.SelectFile},
      {cmdSelectFolder, at.SelectFolder},
      {Frame1, at.Frame},
      {cmdFile, at.File},
      {cmdFolder, at.Folder},
      {TreeView1, at.Tree},
      {cmdUp, at.Up},
      {cmdDown, at.Down},
      {lblHint, at.Hint},
      {lblHintCommand, at.HintCommand},
      {picScreen, at.Screen},
      {cmdTop, at.Top},
      {cmdBottom, at.Bottom},
      {cmdLeft, at.Left},
      {cmdRight, at.Right},
  };
  for (const auto& [control, place] : places) Place(control, place, screen);
  const forms::FrameMargins frame = Margins();
  Place(*this,
        {0, 0, at.Inside.width + frame.Left + frame.Right,
         at.Inside.height + frame.Top + frame.Bottom},
        screen);
  Center();
}

void frmProperties::Form_Load() {
  ButtonsTabShown = ButtonsTabLoaded = PositionTabLoaded = OrderApplied = false;
  orderTouched_ = browsing_ = busy_ = false;
  lblMissing.SetVisible(false);
  lastFolder_ = GetSpecialFolder(with_.Links, with_.Ports, kStartMenu);
  lastBrowseFolder_.clear();
  PlaceControls();
  for (forms::PictureBox* page : {&Picture1, &picButtons, &Picture2}) {
    page->ZOrder(forms::ZPlace::Front);
  }
  ShowTab(std::string(kItemTab));
}

void frmProperties::Form_Unload() {
  tmrEdge_.SetEnabled(false);
  tmrTarget_.SetEnabled(false);
  with_.Slow.Drop(targetAsked_);
  icon_.Drop();
  nodeIcons_.Drop();
  with_.Icons.Answers.Drop(desktopAsked_);
  TabStrip1.Select(std::string(kItemTab));
  if (with_.Ports.Library != nullptr && with_.Ports.Library->WindowLoaded()) {
    with_.Ports.Library->UnloadWindow();
  }
  TreeView1.Clear();
  order_.Clear();
  desktop_.reset();
}

void frmProperties::ShowProperties(std::string_view title, std::string_view icon,
                                   std::string_view command) {
  if (browsing_ && IsLoaded()) return ShowWhatIsOpen();
  const EntryEdit entry = with_.Entry;
  // One of the two windows that edit is open at a time. The other one may ask, and stay.
  EditingWindow* const customize = with_.Ports.Customize;
  if (customize != nullptr && customize->WindowLoaded()) {
    if (!customize->CloseWindow()) return;
    SetCurrentEntry(with_.Entry, entry);
  }
  if (!IsLoaded()) {
    nodeImages_.Clear();
    images_.clear();
  }
  if (!Load()) return;
  SetFileItem({std::string(title), std::string(icon), std::string(command)});
  if (!IsLoaded()) return;
  Show();
  SetForeground();
  if (IsLoaded()) FocusPage(std::string(kItemTab));
}

// What is chosen there belongs to the entry that is in the boxes now.
void frmProperties::ShowWhatIsOpen() {
  LibraryPort* const library = with_.Ports.Library;
  if (library != nullptr && library->WindowLoaded()) return library->Show("frmProperties");
  // A dialog comes up with the window that it belongs to.
  SetForeground();
}

// ---- tabs ----

void frmProperties::TabStrip1_Click() { ShowTab(TabStrip1.Selected()); }

// The focus must not stay on a page that goes.
void frmProperties::ShowTab(const std::string& key) {
  TabStrip1.Select(key);
  const forms::PictureBox* const pages[] = {&Picture1, &picButtons, &Picture2};
  const bool movesFocus = std::any_of(std::begin(pages), std::end(pages), [](const auto* page) {
    return page->Visible() && HasFocusInside(*page);
  });
  Picture1.SetVisible(key == kItemTab);
  picButtons.SetVisible(key == kButtonsTab);
  Picture2.SetVisible(key == kPositionTab);
  ButtonsTabShown = key == kButtonsTab;
  tmrEdge_.SetEnabled(key == kPositionTab);
  if (movesFocus) FocusPage(key);
  if (ButtonsTabShown) LoadButtonsTab();
  if (key == kPositionTab && IsLoaded()) LoadPositionTab();
}

void frmProperties::FocusPage(const std::string& key) {
  if (key == kButtonsTab) {
    TreeView1.SetFocus();
  } else if (key == kPositionTab) {
    cmdTop.SetFocus();
  } else if (txtTitle.Enabled()) {
    txtTitle.SetFocus();
    txtTitle.SelectAll();
  } else {
    cmdCancel.SetFocus();
  }
}

void frmProperties::DrawIcon() {
  Label1.SetCaption(DoubleAmpersands(Trim(txtTitle.Text())));
  const std::string icon = Trim(txtIcon.Text());
  const forms::ScreenInfo screen = Screen();
  const PixelSize side{static_cast<int>(Pix.Width() / screen.TwipsPerPixelX),
                       static_cast<int>(Pix.Height() / screen.TwipsPerPixelY)};
  icon_.Drop();
  PaintIcon(side, icon == "button"
                      ? IconLook{.Glyph = icon}
                      : icon_.Ask(icon, side.width, kAtOnce,
                                  [this, side](const IconLook& look) { PaintIcon(side, look); }));
}

void frmProperties::PaintIcon(PixelSize side, const IconLook& look) {
  const std::shared_ptr<Canvas> drawn = Windows().CreateCanvas(side);
  drawn->FillBox({0, 0, side.width, side.height},
                 forms::Resolve(Windows(), forms::color::ButtonFace));
  // What has no icon at all leaves the place empty.
  static_cast<void>(icon_.Draw(*drawn, look, side.width));
  Pix.SetAutoRedraw(true);
  Pix.Cls();
  Pix.PaintPicture(drawn, 0, 0);
}

// ---- keys ----

void frmProperties::Form_KeyDown(int keyCode, forms::ShiftState /*shift*/) {
  if (keyCode == forms::key::Escape) {
    SwallowKey();
    Unload();
    return;
  }
  if (keyCode != forms::key::Enter) return;
  // A button that has the focus is pressed.
  for (const forms::TextBox* box : {&txtTitle, &txtIcon, &txtCommand}) {
    if (!box->HasFocus()) continue;
    SwallowKey();
    DrawIcon();
    AskTarget();
    return;
  }
}

void frmProperties::Form_KeyPress(char32_t character) {
  // Both keys have been dealt with.
  if (character == forms::key::Enter || character == forms::key::Escape) SwallowKey();
}

// ---- the buttons below ----

// A strip that hides comes out for the change and is put away until it is drawn again.
void frmProperties::ShowHidingStrip() {
  if (!with_.Strip.AutoHide) return;
  if (with_.Ports.Docking != nullptr) with_.Ports.Docking->RevealToolbar();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->HideWindow();
}

// What was changed on a tab that is not shown is meant as well.
bool frmProperties::Apply() {
  if (busy_) return false;
  const forms::FlagScope busy(busy_);
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const bool item = !ButtonsTabShown || BoxesChanged();
  const bool order = (ButtonsTabShown && !OrderApplied) || orderTouched_;
  ShowHidingStrip();
  // The order gives the entry's file another name.
  bool done = !item || ApplyItem();
  if (done && order && IsLoaded()) done = ApplyOrder();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->ShowToolbar();
  return done && IsLoaded();
}

void frmProperties::cmdApply_Click() { static_cast<void>(Apply()); }

void frmProperties::cmdOK_Click() {
  if (Apply()) Unload();
}

void frmProperties::cmdCancel_Click() {
  if (busy_) return;
  CancelFileItem();
  if (IsLoaded()) Unload();
}

}  // namespace corvelle
