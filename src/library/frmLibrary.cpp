#include "library/frmLibrary.h"

#include <utility>
#include <variant>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/AskFiles.h"
#include "core/DroppedFiles.h"
#include "core/IconState.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "forms/Scopes.h"
#include "icons/LibraryFile.h"
#include "library/LibraryLayout.h"
#include "platform/SystemInfo.h"

namespace corvelle {

namespace {

constexpr const char* kLibraryTab = "corvelle";
constexpr const char* kOtherTab = "other";
constexpr std::string_view kAllCategories = "All Categories";
// As wide as most captions.
constexpr std::string_view kSampleCaption = "Folders7.ico";
constexpr int kBoxPadding = 8;  // above and below a line in its box, together
constexpr int kBarWidth = 17;   // pixels at 96 dots an inch, as the padding
constexpr float kTwipsOfPixel = 15;

}  // namespace

frmLibrary::frmLibrary(const LibraryParts& with)
    : Form(with.Windows, "frmLibrary", forms::BorderStyle::Fixed, true),
      TabStrip1(*this, "TabStrip1"),
      List1(*this, "List1"),
      List1Other(*this, "List1Other"),
      txtFilter(*this, "txtFilter"),
      Pic1(*this, "Pic1"),
      Pic2(Pic1, "Pic2"),
      VS1(*this, "VS1"),
      PicOtherFrame(*this, "PicOtherFrame"),
      picOther(PicOtherFrame, "picOther"),
      vsOther(*this, "vsOther"),
      cmdRefresh(*this, "cmdRefresh"),
      cmdAdd(*this, "cmdAdd"),
      cmdRemove(*this, "cmdRemove"),
      cmdOK(*this, "cmdOK"),
      cmdCancel(*this, "cmdCancel"),
      LibraryView(with.Answers, Pic2, VS1),
      OtherView(with.Answers, picOther, vsOther),
      with_(with),
      List2Other(with.Others),
      counted_(with.Answers.NewOwner()) {
  TabStrip1.Add(kLibraryTab, "Library");
  TabStrip1.Add(kOtherTab, "Other Files");
  txtFilter.SetCue("Filter");
  cmdAdd.SetCaption("&Add");
  cmdRemove.SetCaption("&Remove");
  cmdRefresh.SetCaption("Re&fresh");
  cmdOK.SetCaption("&OK");
  cmdOK.SetDefault(true);
  cmdCancel.SetCaption("&Cancel");
  cmdCancel.SetCancel(true);
  Pic1.SetBackColor(forms::color::ButtonShadow);
  PicOtherFrame.SetBackColor(forms::color::ButtonShadow);
  Wire();
}

void frmLibrary::Wire() {
  TabStrip1.Click = [this] { TabStrip1_Click(); };
  List1.Click = [this] { ShowView(List1.Selected()); };
  List1Other.Click = [this] { List1Other_Click(); };
  txtFilter.Change = [this] { txtFilter_Change(); };
  txtFilter.KeyDown = [this](int keyCode, forms::ShiftState) { return txtFilter_KeyDown(keyCode); };
  LibraryView.Chosen = [this] { cmdOK_Click(); };
  OtherView.Chosen = [this] { cmdOK_Click(); };
  List2Other.Made = [this] { ShowMadeList(); };
  List2Other.Added = [this](const AddedFile& added) { ShowAdded(added); };
  cmdAdd.Click = [this] { cmdAdd_Click(); };
  cmdRemove.Click = [this] { cmdRemove_Click(); };
  cmdRefresh.Click = [this] { cmdRefresh_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmLibrary::SetFormName(std::string_view name) {
  caller_ = std::string(name);
  box_ = nullptr;
  if (EqualNoCase(name, "frmProperties")) box_ = with_.Ports.PropertiesIcon;
  if (EqualNoCase(name, "frmCust")) box_ = with_.Ports.CustomizeIcon;
}

void frmLibrary::Show(std::string_view caller) {
  if (IsLoaded()) return SetForeground();
  SetFormName(caller);
  if (box_ != nullptr) {
    box_->SetBrowsing(true);
    ShowModalTo(box_->BoxWindow());
  } else {
    SetOwner(nullptr);
    Form::Show();
  }
  if (IsLoaded()) return Pic2.SetFocus();
  // The system refused the window.
  if (box_ != nullptr) std::exchange(box_, nullptr)->SetBrowsing(false);
}

void frmLibrary::Form_Load() {
  const forms::HourglassScope hourglass(with_.Windows);
  SetCaption("Icon Library");
  SetBackColor(forms::color::ButtonFace);
  txtFilter.SetText({});
  SetFormSize();
  othersRead_ = false;
  TabStrip1.Select(kLibraryTab);
  BuildLibrary();
  ShowTab();
  Center();
}

void frmLibrary::Form_Unload() {
  with_.Answers.Drop(counted_);
  LibraryView.SetShown(false);
  OtherView.SetShown(false);
  LibraryView.Clear();
  OtherView.Clear();
  List2Other.Drop();
  if (box_ != nullptr) std::exchange(box_, nullptr)->SetBrowsing(false);
}

// Pictures that were made under other colours are made again.
void frmLibrary::SetFormSize() {
  static_cast<void>(with_.Lists.CheckDisplay());
  const forms::ScreenInfo screen = Screen();
  const PixelSize caption = MeasureText(kSampleCaption);
  const auto scaled = [&](int pixels) {
    return static_cast<int>(static_cast<float>(pixels) * kTwipsOfPixel / screen.TwipsPerPixelX);
  };
  LibraryScene scene{.Cell = CellMetricsAt(screen.TwipsPerPixelX, caption),
                     .TwipsPerPixel = screen.TwipsPerPixelX,
                     .BoxHeight = caption.height + scaled(kBoxPadding),
                     .BarWidth = scaled(kBarWidth)};
  const auto place = [&](forms::Control& control, const PixelRect& at) {
    control.Move(static_cast<float>(at.left) * screen.TwipsPerPixelX,
                 static_cast<float>(at.top) * screen.TwipsPerPixelY,
                 static_cast<float>(at.Width()) * screen.TwipsPerPixelX,
                 static_cast<float>(at.Height()) * screen.TwipsPerPixelY);
  };
  // How high its tabs are the strip tells itself.
  place(TabStrip1, LayOutLibrary(scene).Frame);
  const PixelRect page = TabStrip1.PageRect();
  if (!page.IsEmpty()) scene.TabHeight = page.top;
  const LibraryLayout at = LayOutLibrary(scene);
  const PixelRect cells = RectAt({scene.BorderWidth, scene.BorderWidth}, at.Cells);
  place(TabStrip1, at.Tabs);
  place(List1, at.List);
  place(List1Other, at.List);
  place(txtFilter, at.Filter);
  place(Pic1, at.Frame);
  place(Pic2, cells);
  place(VS1, at.Bar);
  place(PicOtherFrame, at.Frame);
  place(picOther, cells);
  place(vsOther, at.Bar);
  place(cmdAdd, at.Add);
  place(cmdRemove, at.Remove);
  place(cmdRefresh, at.Refresh);
  place(cmdOK, at.Ok);
  place(cmdCancel, at.Cancel);
  const forms::FrameMargins frame = Margins();
  place(*this, RectAt({0, 0}, {at.Inside.width + frame.Left + frame.Right,
                               at.Inside.height + frame.Top + frame.Bottom}));
  LibraryView.SetMetrics(scene.Cell, at.Cells);
  OtherView.SetMetrics(scene.Cell, at.Cells);
}

// ---- the library ----

void frmLibrary::BuildLibrary() {
  if (!with_.Icons.LibraryBuilt) with_.Lists.DropPrepared();
  List1.Clear();
  List1.Add(std::string(kAllCategories));
  for (const std::string& category : with_.Lists.Categories()) List1.Add(category);
  List1.Select(0);
  ShowView(0);
  with_.Icons.LibraryBuilt = true;
}

void frmLibrary::ShowView(int position) {
  if (position < 0) return;
  std::vector<std::string> names;
  if (position > 0) {
    names = with_.Lists.IconsOf(List1.Items()[static_cast<std::size_t>(position)]);
  } else {
    names = with_.Lists.AllIcons();
    // Not every disk gives its names in order.
    SortTexts(names);
  }
  LibraryView.SetCells(LibraryCells(names, with_.Paths.IconsPath));
}

// ---- the tabs ----

bool frmLibrary::ShowsLibrary() const { return TabStrip1.Selected() == kLibraryTab; }

void frmLibrary::TabStrip1_Click() {
  ShowTab();
  if (ShowsLibrary()) {
    Pic2.SetFocus();
  } else {
    picOther.SetFocus();
  }
}

void frmLibrary::ShowTab() {
  const bool library = ShowsLibrary();
  if (!library && !std::exchange(othersRead_, true)) {
    ReadOthers();
  }
  List1.SetVisible(library);
  Pic1.SetVisible(library);
  VS1.SetVisible(library);
  List1Other.SetVisible(!library);
  PicOtherFrame.SetVisible(!library);
  vsOther.SetVisible(!library);
  cmdAdd.SetVisible(!library);
  cmdRemove.SetVisible(!library);
  LibraryView.SetShown(library);
  OtherView.SetShown(!library);
  CurrentView().SetFilter(txtFilter.Text());
}

void frmLibrary::txtFilter_Change() { CurrentView().SetFilter(txtFilter.Text()); }

// From the filter the keyboard goes straight to what it has left.
bool frmLibrary::txtFilter_KeyDown(int keyCode) {
  if (keyCode != forms::key::Down) return false;
  IconView& view = CurrentView();
  if (view.MarkedPlace() < 0) view.Mark(CellByKey(view.Grid(), -1, forms::key::Home));
  (ShowsLibrary() ? Pic2 : picOther).SetFocus();
  return true;
}

// ---- other files ----

// A list that is not whole is not to be changed: what is stored then would be all there is.
void frmLibrary::ReadOthers() {
  const forms::HourglassScope hourglass(with_.Windows);
  List2Other.Read();
  cmdAdd.SetEnabled(!List2Other.IsBeingMade());
  cmdRemove.SetEnabled(!List2Other.IsBeingMade());
  FillOthers(List2Other.Rows().empty() ? -1 : 0);
}

void frmLibrary::ListOthers(int row) {
  List1Other.Clear();
  for (const std::string& other : List2Other.Rows()) List1Other.Add(OtherFileName(other));
  List1Other.Select(row);
}

void frmLibrary::FillOthers(int row) {
  ListOthers(row);
  List1Other_Click();
}

// What the user has chosen and scrolled to stays.
void frmLibrary::ShowMadeList() {
  cmdAdd.SetEnabled(true);
  cmdRemove.SetEnabled(true);
  const int row = List1Other.Selected() < 0 ? -1 : List2Other.PlaceOf(shownFile_);
  if (row >= 0) return ListOthers(row);
  FillOthers(List2Other.Rows().empty() ? -1 : 0);
}

void frmLibrary::List1Other_Click() {
  with_.Answers.Drop(counted_);
  OtherView.Clear();
  const int row = List1Other.Selected();
  if (row < 0) return;
  const forms::HourglassScope hourglass(with_.Windows);
  const std::string path = OtherFilePath(List2Other.Rows()[static_cast<std::size_t>(row)]);
  shownFile_ = path;
  const auto counted = with_.Answers.AskAtOnce(
      {.Question = {.Kind = LookupKind::IconCount, .Path = path}, .Owner = counted_},
      {.Ended = [this, path](const desk::Reply& late) { ShowFile(path, late); },
       .TakesLonger = {},
       .Back = [this] { List1Other_Click(); }});
  if (counted) ShowFile(path, *counted);
}

void frmLibrary::ShowFile(const std::string& path, const desk::Reply& counted) {
  const int* const count = std::get_if<int>(&counted.Value);
  OtherView.SetCells(FileCells(path, count != nullptr ? *count : 0));
}

void frmLibrary::cmdAdd_Click() {
  const forms::FileQuestion question{
      .Title = "Select one file.",
      .StartFolder = with_.System.WindowsFolder(),
      .Kinds = {{"(*.exe, *.dll, *.ico)", "*.exe;*.dll;*.ico"}, {"All Files (*.*)", "*.*"}}};
  const forms::FileChoice choice = AskFiles(*this, with_.Messages, question);
  if (choice.Paths.empty() || !IsLoaded()) return;
  List2Other.Add(choice.Paths.front());
}

void frmLibrary::ShowAdded(const AddedFile& added) {
  if (added.Refusal.empty()) {
    FillOthers(added.Row);
  } else {
    with_.Messages.Say(hWnd(), added.Refusal, forms::msgbox::IconInformation);
  }
}

void frmLibrary::cmdRemove_Click() {
  const int row = List1Other.Selected();
  if (row < 0) return;
  // A file that was counted meanwhile may move the others.
  const std::string other = List2Other.Rows()[static_cast<std::size_t>(row)];
  const int answer = with_.Messages.Say(hWnd(), RemoveQuestion(other),
                                        forms::msgbox::YesNo | forms::msgbox::IconQuestion);
  if (answer != forms::msgbox::AnswerYes || !IsLoaded()) return;
  List2Other.Remove(other);
  FillOthers(-1);
}

// ---- the buttons ----

void frmLibrary::cmdRefresh_Click() {
  List2Other.Drop();
  with_.Lists.Reset();
  with_.Messages.Say(hWnd(), "Icon library has been reset.", forms::msgbox::IconInformation);
  if (!IsLoaded()) return;
  BuildLibrary();
  othersRead_ = false;
  ShowTab();
}

void frmLibrary::cmdOK_Click() {
  const IconCell* const marked = CurrentView().Marked();
  if (marked == nullptr) return;
  const std::optional<std::string> text = TextToStore(*marked);
  if (!text) {
    with_.Messages.Say(hWnd(), RefusedFilesText({marked->File}), forms::msgbox::IconInformation);
    return;
  }
  if (box_ != nullptr) box_->TakeIcon(*text);
  Unload();
}

std::optional<std::string> frmLibrary::TextToStore(const IconCell& cell) {
  if (FitsRecord(with_.Ansi, cell.Text)) return cell.Text;
  const std::size_t name = cell.File.rfind('\\') + 1;
  const auto reply =
      with_.Answers.AskAtOnce({.Question = {.Kind = LookupKind::ShortPaths,
                                            .Path = cell.File.substr(0, name),
                                            .Pattern = cell.File.substr(name) + "\n"}},
                              {});
  const auto* const paths =
      reply ? std::get_if<std::vector<ShellFolderEntry>>(&reply->Value) : nullptr;
  if (paths == nullptr || paths->empty() || paths->front().Name.empty()) return std::nullopt;
  std::string text = FileIconText(paths->front().Name, cell.Index);
  if (!FitsRecord(with_.Ansi, text)) return std::nullopt;
  return text;
}

}  // namespace corvelle
