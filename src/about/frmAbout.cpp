#include "about/frmAbout.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "base/Text.h"
#include "base/Version.h"
#include "core/ProgramPaths.h"
#include "desk/SlowQuestions.h"
#include "icons/Glyphs.h"
#include "launch/LaunchItem.h"
#include "platform/Clipboard.h"
#include "platform/Input.h"
#include "platform/Registry.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::string_view kCorvelleTab = "corvelle";
constexpr std::string_view kDrivesTab = "drives";
constexpr std::string_view kSystemTab = "system";

constexpr std::string_view kVersionKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr std::string_view kVersionValue = "Version";

constexpr std::string_view kName = "Corvelle";
constexpr std::string_view kCompany = "A desktop launcher for Windows";
constexpr std::string_view kCopyright = "Copyright \xC2\xA9 2026 the Corvelle authors";
constexpr std::string_view kCredits =
    "The program, its icons, its help and its list of search engines were made by the Corvelle "
    "authors.\r\n\r\n"
    "Corvelle uses the C++ standard library and Windows itself, and nothing else. It sends nothing "
    "to anyone: an address goes to your browser only when you choose it.\r\n\r\n"
    "The tabs above list facts about this computer. The button Copy puts what a tab shows on the "
    "clipboard, for whoever helps you.";

constexpr int kLogoPixels = 48;  // of a screen of 96 dots an inch
constexpr float kTwipsOfOne = 15;
constexpr float kTitlePoints = 20;
constexpr float kTextMargin = 60;
constexpr int kLetterC = 67;

}  // namespace

frmAbout::frmAbout(const AboutParts& with)
    : Form(with.Launch.Windows, "frmAbout", forms::BorderStyle::Fixed, true),
      TabStrip1(*this, "TabStrip1"),
      pnlInfo(*this, "pnlInfo"),
      Drive1(pnlInfo, "Drive1", false),
      picInfo(pnlInfo, "picInfo"),
      pnlCorvelle(*this, "pnlCorvelle"),
      picCorvelle(pnlCorvelle, "picCorvelle"),
      picLogo(picCorvelle, "picLogo"),
      picTitle(picCorvelle, "picTitle"),
      lblVersion(pnlCorvelle, "lblVersion"),
      lblCompany(pnlCorvelle, "lblCompany"),
      lblCopyright(pnlCorvelle, "lblCopyright"),
      picArrow(pnlCorvelle, "picArrow"),
      lblMail(pnlCorvelle, "lblMail"),
      lblURL(pnlCorvelle, "lblURL"),
      Frame1(pnlCorvelle, "Frame1"),
      txtCopyright(Frame1, "txtCopyright", {.ManyLines = true}),
      cmdCopy(*this, "cmdCopy"),
      cmdOK(*this, "cmdOK"),
      with_(with) {
  SetKeyPreview(true);
  TabStrip1.Add(std::string(kCorvelleTab), "Corvelle");
  TabStrip1.Add(std::string(kDrivesTab), "Drives");
  TabStrip1.Add(std::string(kSystemTab), "System");
  TabStrip1.Click = [this] { TabStrip1_Click(); };
  Drive1.Click = [this] { Drive1_Change(); };
  txtCopyright.SetReadOnly(true);
  cmdCopy.SetCaption("&Copy");
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdOK.SetCaption("&OK");
  cmdOK.SetDefault(true);
  cmdOK.Click = [this] { cmdOK_Click(); };
  lblMail.DblClick = [this] { lblMail_DblClick(); };
  lblURL.DblClick = [this] { LblURL_DblClick(); };
}

// ---- coming and going ----

void frmAbout::LoadWindow() {
  const bool first = !IsLoaded();
  if (!Load()) return;
  Show();
  if (!IsLoaded()) return;
  SetForeground();
  if (first) cmdOK.SetFocus();
}

void frmAbout::Form_Load() {
  SetCaption("About " + std::string(kName));
  InitAbout();
  Center();
  TabStrip1.Select(std::string(kCorvelleTab));
  TabStrip1_Click();
}

void frmAbout::Form_Unload() { with_.Slow.Drop(asked_); }

void frmAbout::InitAbout() {
  lblVersion.SetCaption("Version " + std::string(kVersion));
  lblCompany.SetCaption(std::string(kCompany));
  lblCopyright.SetCaption(std::string(kCopyright));
  txtCopyright.SetText(std::string(kCredits));
  const bool addresses = !lblMail.Caption().empty() || !lblURL.Caption().empty();
  for (forms::Control* const control :
       std::initializer_list<forms::Control*>{&picArrow, &lblMail, &lblURL}) {
    control->SetVisible(addresses);
  }
  LayOut();
  DrawTitle();
  FillDrives();
}

void frmAbout::Form_KeyDown(int keyCode, forms::ShiftState shift) {
  const bool copies = keyCode == kLetterC && shift == forms::ShiftState{.Ctrl = true};
  if (keyCode == forms::key::Escape) {
    SwallowKey();
    Unload();
  } else if (copies && !txtCopyright.HasFocus()) {
    // In the text it copies what the user has selected there.
    SwallowKey();
    cmdCopy_Click();
  }
}

// ---- the look ----

float frmAbout::WidthOf(std::string_view text) const {
  return static_cast<float>(MeasureText(text).width) * Scale().TwipsPerPixelX;
}

AboutScene frmAbout::Scene() const {
  const forms::ScreenInfo screen = Screen();
  const forms::FrameMargins frame = Margins();
  const auto height = [&](const FontSpec& font) {
    return static_cast<float>(MeasureText("X", font).height) * screen.TwipsPerPixelY;
  };
  return {.TextHeight = height({}),
          .TitleHeight = height({.Points = kTitlePoints, .Bold = true}),
          .LogoSize = static_cast<float>(kLogoPixels) * kTwipsOfOne,
          .CaptionWidth = std::max(WidthOf(cmdCopy.Caption()), WidthOf(cmdOK.Caption())),
          .FrameWidth = static_cast<float>(frame.Left + frame.Right) * screen.TwipsPerPixelX,
          .FrameHeight = static_cast<float>(frame.Top + frame.Bottom) * screen.TwipsPerPixelY};
}

void frmAbout::LayOut() {
  const forms::ScreenInfo screen = Screen();
  const AboutScene scene = Scene();
  const AboutLayout l = LayOutAbout(scene);
  const auto move = [](forms::Control& control, const TwipRect& place) {
    control.Move(place.Left, place.Top, place.Width, place.Height);
  };
  Move(Left(), Top(), l.Window.Width, l.Window.Height);
  move(TabStrip1, l.TabStrip1);
  move(cmdCopy, l.cmdCopy);
  move(cmdOK, l.cmdOK);
  const PixelRect page = TabStrip1.PageRect();
  const TwipRect panel = {TabStrip1.Left() + static_cast<float>(page.left) * screen.TwipsPerPixelX,
                          TabStrip1.Top() + static_cast<float>(page.top) * screen.TwipsPerPixelY,
                          static_cast<float>(page.right - page.left) * screen.TwipsPerPixelX,
                          static_cast<float>(page.bottom - page.top) * screen.TwipsPerPixelY};
  move(pnlInfo, panel);
  move(pnlCorvelle, panel);
  PlacePanels(LayOutPanels({panel.Width, panel.Height}, scene));
}

void frmAbout::PlacePanels(const AboutPanels& places) {
  places_ = places;
  const std::pair<forms::Control&, const TwipRect&> all[] = {
      {Drive1, places_.Drive1},
      {picInfo, places_.InfoAlone},
      {picCorvelle, places_.picCorvelle},
      {picLogo, places_.picLogo},
      {picTitle, places_.picTitle},
      {lblVersion, places_.lblVersion},
      {lblCompany, places_.lblCompany},
      {lblCopyright, places_.lblCopyright},
      {picArrow, places_.picArrow},
      {lblMail, places_.lblMail},
      {lblURL, places_.lblURL},
      {Frame1, places_.Frame1},
      {txtCopyright, places_.txtCopyright},
  };
  for (const auto& [control, place] : all) {
    control.Move(place.Left, place.Top, place.Width, place.Height);
  }
}

void frmAbout::DrawTitle() {
  const forms::ScreenInfo screen = Screen();
  for (forms::PictureBox* const box : {&picCorvelle, &picLogo, &picTitle}) {
    box->SetBackColor(forms::color::WindowGround);
    box->SetAutoRedraw(true);
    box->Cls();
  }
  const int size = static_cast<int>(picLogo.Width() / screen.TwipsPerPixelX);
  picLogo.DrawPixels({0, 0, size, size}, [this, size](Canvas& canvas) {
    // Without the program's icon the place stays empty.
    static_cast<void>(
        with_.Icons.DrawFileIcon(canvas, with_.Paths.ShippedFile("corvelle.exe"), 0, {0, 0}, size));
  });
  picTitle.SetFont({.Points = kTitlePoints, .Bold = true});
  picTitle.Print(0, 0, kName, forms::color::WindowText);
  picArrow.SetAutoRedraw(true);
  picArrow.Cls();
  const PixelSize arrow = GlyphSize("hand");
  picArrow.DrawPixels({0, 0, arrow.width, arrow.height}, [this](Canvas& canvas) {
    DrawGlyph(canvas, Windows(), "hand", {0, 0});
  });
}

// ---- the pages ----

void frmAbout::TabStrip1_Click() {
  const std::string tab = TabStrip1.Selected();
  const bool drives = tab == kDrivesTab;
  const bool info = drives || tab == kSystemTab;
  with_.Slow.Drop(asked_);
  // In front of the tabs, whose page they fill.
  pnlCorvelle.ZOrder(forms::ZPlace::Front);
  pnlInfo.ZOrder(forms::ZPlace::Front);
  pnlCorvelle.SetVisible(!info);
  pnlInfo.SetVisible(info);
  if (!info) return;
  Drive1.SetVisible(drives);
  const TwipRect& place = drives ? places_.InfoBelowDrives : places_.InfoAlone;
  picInfo.Move(place.Left, place.Top, place.Width, place.Height);
  if (drives) {
    Drive1_Change();
  } else {
    PrintSystemInfo();
  }
}

// The drive of the program comes first, which is sure to be there.
void frmAbout::FillDrives() {
  const std::string own = DriveRoot(with_.Paths.ShippedFile(""));
  Drive1.Clear();
  for (const std::string& root : with_.System.LogicalDrives()) {
    Drive1.Add(DropBackslash(root));
    if (EqualNoCase(root, own)) Drive1.Select(Drive1.Count() - 1);
  }
  if (Drive1.Selected() < 0) Drive1.Select(0);
}

void frmAbout::Drive1_Change() { PrintDriveInfo(Drive1.Text()); }

void frmAbout::PrintDriveInfo(const std::string& drive) {
  with_.Slow.Drop(asked_);
  Print(EmptyDriveInfo());
  const std::string root = DriveRoot(drive);
  if (root.empty()) return;
  asked_ = with_.Slow.NewGeneration();
  with_.Slow.Ask({.Kind = LookupKind::Drive, .Path = root, .Lane = root, .Generation = asked_},
                 [this, watch = MakeWatch()](const LookupAnswer& answer) {
                   if (watch.Gone() || !IsLoaded()) return;
                   const auto* const facts = std::get_if<DriveFacts>(&answer.Value);
                   // A drive that says nothing leaves the lines blank.
                   if (facts != nullptr) Print(DriveInfo(*facts));
                 });
}

void frmAbout::PrintSystemInfo() {
  const SystemInfo& system = with_.System;
  Print(SystemPage(
      {.VersionName = with_.Keys.Text(RegistryRoot::LocalMachine, kVersionKey, kVersionValue),
       .Version = system.Version(),
       .Processor = system.Processor(),
       .PhysicalMemory = system.PhysicalMemory(),
       .Drives = system.LogicalDrives(),
       .WindowsFolder = system.WindowsFolder(),
       .TempFolder = system.TempFolder()}));
}

void frmAbout::Print(InfoPage page) {
  page_ = std::move(page);
  const forms::ScreenInfo screen = Screen();
  const float line = static_cast<float>(MeasureText("X").height) * screen.TwipsPerPixelY * 3 / 2;
  float tab = 0;
  for (const InfoLine& one : page_) tab = std::max(tab, WidthOf(one.Caption) + WidthOf(" "));
  picInfo.SetBackColor(forms::color::WindowGround);
  picInfo.SetAutoRedraw(true);
  picInfo.Cls();
  float y = kTextMargin;
  for (const InfoLine& one : page_) {
    if (one.Caption.empty()) {
      picInfo.Print(kTextMargin, y, one.Value, forms::color::WindowText);
    } else {
      picInfo.Print(kTextMargin, y, one.Caption, forms::color::WindowText);
      picInfo.Print(kTextMargin + tab, y, std::string(kInfoColon) + one.Value,
                    forms::color::WindowText);
    }
    y += line;
  }
}

// ---- the buttons and the addresses ----

std::string frmAbout::TextOfTab() const {
  const std::string tab = TabStrip1.Selected();
  if (tab == kSystemTab) return PageText(page_);
  if (tab == kDrivesTab) return Drive1.Text() + "\r\n" + PageText(page_);
  std::string text(kName);
  for (const forms::Label* const label :
       {&lblVersion, &lblCompany, &lblCopyright, &lblMail, &lblURL}) {
    if (!label->Caption().empty()) text += "\r\n" + label->Caption();
  }
  return text + "\r\n";
}

void frmAbout::cmdCopy_Click() {
  if (!with_.Copies.PutText(hWnd(), TextOfTab())) with_.Pointer.Beep();
}

void frmAbout::lblMail_DblClick() {
  if (!lblMail.Caption().empty()) LaunchItem(with_.Launch, "mailto:" + lblMail.Caption());
}

void frmAbout::LblURL_DblClick() {
  if (!lblURL.Caption().empty()) LaunchItem(with_.Launch, lblURL.Caption());
}

}  // namespace corvelle
