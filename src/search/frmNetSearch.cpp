#include "search/frmNetSearch.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "base/Text.h"
#include "core/Program.h"
#include "platform/FileSystem.h"
#include "search/EngineList.h"
#include "search/NetSearchLayout.h"
#include "search/QueryUrl.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr std::string_view kEngineFile = "netsrch.ini";
constexpr std::string_view kFactoryFile = "anetsrch.org";
constexpr std::string_view kHistoryFile = "nsearch.dat";
constexpr std::string_view kScratchPage = "temphtml.htm";
constexpr std::size_t kMostBytes = 1 << 20;  // nobody writes a longer list by hand

constexpr std::string_view kNoEngines =
    "The file netsrch.ini couldn't be found in your system. No search engine will be available in "
    "the program.";
constexpr std::string_view kBadTemplate =
    "Error reading the file netsrch.ini for the selected search engine.";
constexpr std::string_view kClearQuestion = "Are you sure you want to clear all search items ?";

}  // namespace

frmNetSearch::frmNetSearch(Program& program)
    : Form(program.Windows, "frmNetSearch", forms::BorderStyle::Fixed, true),
      Frame1(*this, "Frame1"),
      picFrame(Frame1, "picFrame"),
      Label1(picFrame, "Label1"),
      cmbText(picFrame, "cmbText", true),
      Label2(picFrame, "Label2"),
      cmbEngine(picFrame, "cmbEngine", false),
      cmdFind(*this, "cmdFind"),
      cmdClear(*this, "cmdClear"),
      program_(program) {
  SetMinimizeBox(true);
  SetKeyPreview(true);
  Label1.SetCaption("Looking for:");
  Label2.SetCaption("Search with:");
  cmdFind.SetCaption("&Find");
  cmdClear.SetCaption("&Clear");
  // Enter in either box means this button.
  cmdFind.SetDefault(true);
  cmdFind.Click = [this] { cmdFind_Click(); };
  cmdClear.Click = [this] { cmdClear_Click(); };
}

std::string frmNetSearch::PathOf(std::string_view name) const {
  return program_.Paths.AppPath + std::string(name);
}

// ---- coming and going ----

void frmNetSearch::LoadWindow() {
  const bool first = !IsLoaded();
  if (!Load()) return;
  if (IsMinimized()) RestoreWindow();
  Show();
  if (!IsLoaded()) return;
  SetForeground();
  if (first) cmbText.SetFocus();
  Refresh();
}

void frmNetSearch::Form_Load() {
  SetCaption("Net Search");
  LayOut();
  Center();
  FetchFactoryList();
  if (!IsLoaded()) return;  // the message lets events run
  LoadEngines();
  LoadHistory();
  cmbEngine.Select(0);
}

void frmNetSearch::LayOut() {
  const forms::ScreenInfo screen = Screen();
  const forms::FrameMargins frame = Margins();
  const auto width = [&](const std::string& text) {
    return static_cast<float>(MeasureText(text).width) * screen.TwipsPerPixelX;
  };
  const auto height = MeasureText("X").height;
  const NetSearchLayout l = LayOutNetSearch(
      {.TextHeight = static_cast<float>(height) * screen.TwipsPerPixelY,
       .LabelWidth = std::max(width(Label1.Caption()), width(Label2.Caption())),
       .CaptionWidth = std::max(width(cmdFind.Caption()), width(cmdClear.Caption())),
       .FrameWidth = static_cast<float>(frame.Left + frame.Right) * screen.TwipsPerPixelX,
       .FrameHeight = static_cast<float>(frame.Top + frame.Bottom) * screen.TwipsPerPixelY});
  const auto move = [](forms::Control& control, const TwipRect& place) {
    control.Move(place.Left, place.Top, place.Width, place.Height);
  };
  Move(Left(), Top(), l.Window.Width, l.Window.Height);
  move(Frame1, l.Frame1);
  move(picFrame, l.Inside);
  move(Label1, l.Label1);
  move(cmbText, l.cmbText);
  move(Label2, l.Label2);
  move(cmbEngine, l.cmbEngine);
  move(cmdFind, l.cmdFind);
  move(cmdClear, l.cmdClear);
}

// The user's list, else the one that came with the program.
void frmNetSearch::FetchFactoryList() {
  FileSystem& files = program_.Services.Files;
  if (files.FileExists(PathOf(kEngineFile))) return;
  const std::string factory = program_.Paths.ShippedFile(kFactoryFile);
  if (files.FileExists(factory)) {
    // A folder that takes no file leaves the window without engines, which it says when one is
    // needed.
    static_cast<void>(files.Copy(factory, PathOf(kEngineFile)));
    return;
  }
  program_.Messages.Say(program_.Ports.ToolbarWindow(), kNoEngines,
                        msgbox::IconInformation | msgbox::OnTop);
}

void frmNetSearch::LoadEngines() {
  cmbEngine.Clear();
  EngineUrls.clear();
  const auto bytes = program_.Services.Files.Read(PathOf(kEngineFile), 0, kMostBytes);
  if (!bytes) return;
  for (SearchEngine& engine : ParseEngines(*bytes, program_.Services.Ansi)) {
    cmbEngine.Add(std::move(engine.Name));
    EngineUrls.push_back(std::move(engine.Url));
  }
}

void frmNetSearch::LoadHistory() {
  const auto bytes = program_.Services.Files.Read(PathOf(kHistoryFile), 0, kMostBytes);
  Queries = bytes ? ParseHistory(*bytes, program_.Services.Ansi) : QueryHistory();
  ShowHistory();
}

// What is typed stays.
void frmNetSearch::ShowHistory() {
  std::string typed = cmbText.Text();
  cmbText.Clear();
  for (std::string& query : Queries.NewestFirst()) cmbText.Add(std::move(query));
  cmbText.SetText(std::move(typed));
}

void frmNetSearch::Form_Unload() {
  FileSystem& files = program_.Services.Files;
  // On a disk that refuses, the history of before stays; the window is gone and could not say so.
  if (Queries.HistoryCount > 0) {
    static_cast<void>(
        files.Replace(PathOf(kHistoryFile), FormatHistory(Queries, program_.Services.Ansi)));
  }
  // Most often the file does not exist.
  static_cast<void>(files.Remove(PathOf(kScratchPage)));
}

void frmNetSearch::Form_KeyDown(int keyCode, forms::ShiftState /*shift*/) {
  if (keyCode != forms::key::Escape) return;
  SwallowKey();
  Unload();
}

// ---- the buttons ----

void frmNetSearch::cmdFind_Click() {
  const std::string query = Trim(cmbText.Text());
  if (query.empty()) return;
  if (Queries.Add(query)) ShowHistory();
  const std::string url = AddressOf(query);
  if (url.empty() || program_.Ports.Browser == nullptr) return;
  program_.Ports.SetHint("");
  Minimize();
  program_.Ports.Browser->OpenUrl(url, [this, watch = MakeWatch()](bool opened) {
    // The user goes on here when there is no browser.
    if (!opened && !watch.Gone() && IsLoaded()) LoadWindow();
  });
}

std::string frmNetSearch::AddressOf(const std::string& query) {
  const int engine = cmbEngine.Selected();
  std::optional<std::string> url;
  if (engine >= 0 && static_cast<std::size_t>(engine) < EngineUrls.size()) {
    url = QueryUrl(EngineUrls[static_cast<std::size_t>(engine)], query);
  }
  if (url) return *url;
  program_.Messages.Say(hWnd(), kBadTemplate, msgbox::IconStop | msgbox::OnTop);
  return {};
}

void frmNetSearch::cmdClear_Click() {
  const forms::Alive::Watch watch = MakeWatch();
  const int answer = program_.Messages.SayAs(program_.Title + " - Net Search", hWnd(),
                                             kClearQuestion, msgbox::YesNo);
  if (answer != msgbox::AnswerYes || watch.Gone()) return;
  // A history that cannot be deleted is shown no more, and written over by the next one.
  static_cast<void>(program_.Services.Files.Remove(PathOf(kHistoryFile)));
  Queries.Clear();
  cmbText.Clear();
  if (IsLoaded()) cmbText.SetFocus();
}

}  // namespace corvelle
