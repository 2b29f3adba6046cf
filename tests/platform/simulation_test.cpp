// The simulated desktop itself: what tests rely on and the contracts do not ask.

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Timer.h"
#include "sim/Complain.h"
#include "sim/World.h"

namespace corvelle::sim {
namespace {

using Texts = std::vector<std::string>;

class PlainForm : public forms::Form {
 public:
  explicit PlainForm(World& world, const std::string& name = "Plain")
      : Form(world.Windows(), name) {
    Move(1500, 1500, 3000, 1500);
  }
  Texts Events;

 protected:
  void Form_Activate() override { Events.emplace_back("activate"); }
  void Form_Deactivate() override { Events.emplace_back("deactivate"); }
};

/// Hears what the simulation complains of, so that a test can expect it.
class Ears {
 public:
  Ears()
      : before_(SetComplaintHandler([this](const std::string& what) { Heard.push_back(what); })) {}
  Ears(const Ears&) = delete;
  Ears& operator=(const Ears&) = delete;
  ~Ears() { SetComplaintHandler(std::move(before_)); }

  Texts Heard;

 private:
  ComplaintHandler before_;
};

struct Simulation : testing::Test {
  World TheWorld;
  SimDesktop& Desktop = TheWorld.Desktop;
};

// Time.

TEST_F(Simulation, AdvanceRunsWhatFallsDueInOrderAndJumpRunsNothing) {
  Texts order;
  forms::Timer fast(Desktop);
  forms::Timer slow(Desktop);
  fast.Tick = [&] { order.push_back("fast " + std::to_string(Desktop.Now() - 1'000'000)); };
  slow.Tick = [&] { order.push_back("slow " + std::to_string(Desktop.Now() - 1'000'000)); };
  fast.SetInterval(10);
  slow.SetInterval(25);
  fast.SetEnabled(true);
  slow.SetEnabled(true);
  Desktop.Advance(30);
  EXPECT_EQ(order, (Texts{"fast 10", "fast 20", "slow 25", "fast 30"}));
  order.clear();
  Desktop.Jump(500);
  EXPECT_EQ(order, Texts{});
  Desktop.Pump();
  EXPECT_EQ(order, (Texts{"fast 530", "slow 530"}));
}

TEST_F(Simulation, TimersCanHaveTheLeastIntervalOfWindows) {
  Desktop.Clock().SetShortestInterval(10);
  int ticks = 0;
  forms::Timer timer(Desktop);
  timer.Tick = [&] { ++ticks; };
  timer.SetInterval(1);
  timer.SetEnabled(true);
  Desktop.Advance(100);
  EXPECT_EQ(ticks, 10);
}

TEST_F(Simulation, EventsThatComeWithoutAnEndAreComplainedOf) {
  const Ears ears;
  PlainForm form(TheWorld);
  form.MouseMove = [&](forms::MouseButton, forms::ShiftState, float, float) {
    Desktop.SetPointerPosition({150, 150});
  };
  form.Show();
  Desktop.MovePointer(150, 150);
  EXPECT_EQ(ears.Heard, Texts{"events come without an end"});
}

// Activation and order.

TEST_F(Simulation, APressActivatesTheWindowUnderThePointer) {
  PlainForm form(TheWorld);
  form.ShowNoActivate();
  const WindowId other = Desktop.AddOtherWindow({.Bounds = {500, 100, 700, 300}});
  Desktop.ClickAt(110, 110);
  EXPECT_EQ(Desktop.ActiveWindow(), form.hWnd());
  Desktop.ClickAt(600, 200);
  EXPECT_EQ(Desktop.ForegroundWindow(), other);
  EXPECT_EQ(Desktop.ActiveWindow(), kNoWindow);
  Desktop.ClickAt(900, 700);
  EXPECT_EQ(Desktop.ForegroundWindow(), Desktop.DesktopWindow());
  EXPECT_EQ(form.Events, (Texts{"activate", "deactivate"}));
}

TEST_F(Simulation, TopmostWindowsStayBeforeAllOthers) {
  PlainForm form(TheWorld);
  form.SetForeground();
  form.Load();
  form.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
  const WindowId other = Desktop.AddOtherWindow({.Bounds = {100, 100, 300, 300}});
  Desktop.TakeForeground(other);
  EXPECT_EQ(Desktop.TopLevel().front(), form.hWnd());
  EXPECT_EQ(Desktop.WindowAt({110, 110}), form.hWnd());
  form.SetWindowPos(forms::InsertAfter::NotTopmost, forms::swp::KeepActivation);
  Desktop.TakeForeground(other);
  EXPECT_EQ(Desktop.WindowAt({110, 110}), other);
}

TEST_F(Simulation, TheDesktopLiesBehindEverything) {
  PlainForm form(TheWorld);
  form.Show();
  Desktop.ClickAt(900, 700);
  form.SetWindowPos(forms::InsertAfter::Bottom, forms::swp::KeepActivation);
  EXPECT_EQ(Desktop.TopLevel().back(), Desktop.DesktopWindow());
  EXPECT_EQ(Desktop.WindowAt({110, 110}), form.hWnd());
}

// Windows documents this, and Wine leaves a minimized window without a caption active.
TEST_F(Simulation, TheNextWindowBelowBecomesActiveWhenOneIsMinimized) {
  PlainForm below(TheWorld, "Below");
  PlainForm minimized(TheWorld, "Minimized");
  PlainForm top(TheWorld, "Top");
  below.Show();
  minimized.Show();
  top.Show();
  minimized.Minimize();
  EXPECT_EQ(Desktop.ActiveWindow(), top.hWnd());
  top.Minimize();
  EXPECT_EQ(Desktop.ActiveWindow(), below.hWnd());
}

TEST_F(Simulation, ALockedForegroundRefusesWindowsThatAreNotActive) {
  PlainForm form(TheWorld);
  const WindowId other = Desktop.AddOtherWindow({});
  Desktop.TakeForeground(other);
  Desktop.LockForeground(true);
  form.Show();
  EXPECT_EQ(Desktop.ForegroundWindow(), other);
  Desktop.BringForward(form.hWnd());
  EXPECT_EQ(Desktop.ActiveWindow(), form.hWnd());
}

TEST_F(Simulation, AWindowInTheTaskBarTellsWhereItIsWhenItComesBack) {
  PlainForm form(TheWorld);
  form.Show();
  form.Minimize();
  Desktop.MoveOther(form.hWnd(), {0, 0, 50, 50});
  EXPECT_EQ(form.Width(), 3000.0F);
  form.RestoreWindow();
  EXPECT_EQ(form.Width(), 750.0F);
}

// The pointer.

TEST_F(Simulation, AWindowThatComesUnderThePointerGetsAMove) {
  PlainForm form(TheWorld);
  int moves = 0;
  form.MouseMove = [&](forms::MouseButton, forms::ShiftState, float, float) { ++moves; };
  Desktop.MovePointer(150, 150);
  form.Show();
  EXPECT_EQ(moves, 0);
  Desktop.Pump();
  EXPECT_EQ(moves, 1);
  Desktop.Pump();
  EXPECT_EQ(moves, 1);
  form.SetLeft(1800);
  Desktop.Pump();
  EXPECT_EQ(moves, 2);
}

TEST_F(Simulation, AnActionCarriesTheKeysAndButtonsOfItsOwnMoment) {
  PlainForm form(TheWorld);
  Texts seen;
  form.MouseMove = [&](forms::MouseButton down, forms::ShiftState shift, float x, float) {
    seen.push_back(std::to_string(static_cast<unsigned>(down)) + (shift.Shift ? " shift " : " ") +
                   std::to_string(static_cast<int>(x)));
  };
  form.MouseDown = [&](forms::MouseButton, forms::ShiftState, float, float) {
    Desktop.MovePointer(151, 150);
    Desktop.Release();
    Desktop.KeyDown(16);
    Desktop.MovePointer(152, 150);
    Desktop.KeyUp(16);
  };
  form.Show();
  Desktop.MovePointer(150, 150);
  seen.clear();
  Desktop.Press();
  EXPECT_EQ(seen, (Texts{"1 765", "0 shift 780"}));
}

// Other programs.

TEST_F(Simulation, OtherWindowsAnswerMessagesAndRememberThem) {
  const WindowId other = Desktop.AddOtherWindow({.Title = "Other"});
  EXPECT_EQ(Desktop.Send(other, 1174, 1, 2), 0);
  Desktop.SetAnswer(other, [](std::uint32_t message, std::uintptr_t, std::intptr_t) {
    return static_cast<std::intptr_t>(message) + 1;
  });
  EXPECT_EQ(Desktop.Send(other, 1174, 3, 4), 1175);
  EXPECT_EQ(Desktop.Sent(), (std::vector<SentMessage>{{other, 1174, 1, 2}, {other, 1174, 3, 4}}));
}

TEST_F(Simulation, OtherWindowsMoveHideAndVanish) {
  const WindowId other = Desktop.AddOtherWindow({.Bounds = {100, 100, 200, 200}});
  EXPECT_EQ(Desktop.WindowAt({150, 150}), other);
  Desktop.MoveOther(other, {300, 300, 400, 400});
  EXPECT_EQ(Desktop.WindowAt({150, 150}), Desktop.DesktopWindow());
  EXPECT_EQ(Desktop.WindowAt({350, 350}), other);
  Desktop.ShowOther(other, false);
  EXPECT_EQ(Desktop.WindowAt({350, 350}), Desktop.DesktopWindow());
  Desktop.CloseOther(other);
  EXPECT_EQ(Desktop.Look(other), nullptr);
}

TEST_F(Simulation, ChildWindowsOfOthersAreTheInnermostAtTheirPlace) {
  const WindowId other = Desktop.AddOtherWindow({.Bounds = {100, 100, 300, 300}});
  const WindowId page = Desktop.AddOtherWindow({.Bounds = {10, 10, 100, 100}, .Parent = other});
  EXPECT_EQ(Desktop.WindowAt({150, 150}), page);
  EXPECT_EQ(Desktop.WindowAt({250, 250}), other);
}

// Messages.

TEST_F(Simulation, APostedMessageArrivesWhenEventsAreLetThrough) {
  PlainForm form(TheWorld);
  form.Load();
  Desktop.Post(form.hWnd(), forms::message::Close, 0, 0);
  EXPECT_TRUE(form.IsLoaded());
  Desktop.Pump();
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Simulation, AMessageForAWindowThatIsGoneIsLost) {
  PlainForm form(TheWorld);
  form.Load();
  Desktop.Post(form.hWnd(), forms::message::Close, 0, 0);
  form.Unload();
  Desktop.Pump();
  EXPECT_EQ(Desktop.Find("Plain"), kNoWindow);
}

TEST_F(Simulation, AnotherResolutionIsToldByAMessage) {
  struct Watching : PlainForm {
    using PlainForm::PlainForm;
    int Changes = 0;
    std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t,
                                            std::intptr_t) override {
      if (message == forms::message::DisplayChange) ++Changes;
      return std::nullopt;
    }
  };
  Watching form(TheWorld);
  form.Load();
  Desktop.SetScreen({800, 600});
  EXPECT_EQ(form.Changes, 1);
  EXPECT_EQ(Desktop.Screen().Width, 12000.0F);
  EXPECT_EQ(Desktop.Screen().Height, 9000.0F);
}

// Message boxes.

TEST_F(Simulation, ABoxIsAnsweredAsScriptedAndRemembered) {
  Desktop.Answer("Really?", forms::msgbox::AnswerYes);
  Desktop.Answer(forms::msgbox::AnswerOk);
  EXPECT_EQ(Desktop.ShowMessage(kNoWindow, "Really?", "Title", forms::msgbox::YesNo),
            forms::msgbox::AnswerYes);
  EXPECT_EQ(Desktop.ShowMessage(kNoWindow, "Done.", "Title", forms::msgbox::IconInformation),
            forms::msgbox::AnswerOk);
  ASSERT_EQ(Desktop.Boxes().size(), 2U);
  EXPECT_EQ(Desktop.Boxes()[0].Text, "Really?");
  EXPECT_EQ(Desktop.Boxes()[1].Flags, forms::msgbox::IconInformation);
  EXPECT_EQ(Desktop.AnswersLeft(), 0);
  EXPECT_EQ(Desktop.UnexpectedBoxes(), 0);
}

TEST_F(Simulation, AStandingAnswerIsForBoxesThatHaveNoneOfTheirOwn) {
  Desktop.AnswerAnyOther(forms::msgbox::AnswerNo);
  Desktop.Answer(forms::msgbox::AnswerYes);
  const auto ask = [&] {
    return Desktop.ShowMessage(kNoWindow, "Really?", "Title", forms::msgbox::YesNo);
  };
  EXPECT_EQ(ask(), forms::msgbox::AnswerYes);
  EXPECT_EQ(ask(), forms::msgbox::AnswerNo);
  EXPECT_EQ(ask(), forms::msgbox::AnswerNo);
}

TEST_F(Simulation, ABoxThatNobodyExpectedIsComplainedOf) {
  const Ears ears;
  EXPECT_EQ(Desktop.ShowMessage(kNoWindow, "Oops", "Title", forms::msgbox::YesNo),
            forms::msgbox::AnswerNo);
  Desktop.Answer("This", forms::msgbox::AnswerOk);
  EXPECT_EQ(Desktop.ShowMessage(kNoWindow, "That", "Title", forms::msgbox::Ok),
            forms::msgbox::AnswerOk);
  EXPECT_EQ(ears.Heard, (Texts{"unexpected message box: \"Oops\"",
                               "unexpected message box: \"That\" instead of \"This\""}));
  EXPECT_EQ(Desktop.UnexpectedBoxes(), 2);
}

TEST(SimulatedWorld, ComplainsOfAnAnswerThatNobodyAskedFor) {
  const Ears ears;
  {
    World world;
    world.Desktop.Answer(forms::msgbox::AnswerOk);
  }
  EXPECT_EQ(ears.Heard, Texts{"a message box that was expected did not come"});
}

TEST_F(Simulation, ABoxTakesTheForegroundBlocksItsOwnerAndGivesItBack) {
  PlainForm form(TheWorld);
  int presses = 0;
  form.MouseDown = [&](forms::MouseButton, forms::ShiftState, float, float) { ++presses; };
  form.Show();
  form.Events.clear();
  Desktop.Answer(forms::msgbox::AnswerOk);
  int ticks = 0;
  forms::Timer timer(Desktop);
  timer.Tick = [&] { ++ticks; };
  timer.SetInterval(10);
  timer.SetEnabled(true);
  Desktop.WhileBoxIsUp([&](const MessageBox& box) {
    EXPECT_EQ(box.Owner, form.hWnd());
    EXPECT_EQ(Desktop.ClassName(Desktop.ForegroundWindow()), "#32770");
    Desktop.ClickAt(110, 110);
    Desktop.Advance(30);
  });
  Desktop.ShowMessage(form.hWnd(), "text", "title", forms::msgbox::Ok);
  EXPECT_EQ(presses, 0);
  EXPECT_EQ(ticks, 3);
  EXPECT_EQ(Desktop.ActiveWindow(), form.hWnd());
  EXPECT_EQ(form.Events, (Texts{"deactivate", "activate"}));
  Desktop.ClickAt(110, 110);
  EXPECT_EQ(presses, 1);
}

TEST_F(Simulation, OtherWindowsOfOursTakeInputWhileABoxIsUpAndItsOwnerComesAfterIt) {
  PlainForm owner(TheWorld);
  owner.Show();
  PlainForm other(TheWorld);
  // The box covers the middle of the screen.
  other.Move(12000, 9000, 1500, 1500);
  other.Show();
  const PixelRect place = Desktop.BoundsOf(other.hWnd());
  int presses = 0;
  other.MouseDown = [&](forms::MouseButton, forms::ShiftState, float, float) { ++presses; };
  Desktop.Answer(forms::msgbox::AnswerOk);
  Desktop.ShowMessage(owner.hWnd(), "text", "title", forms::msgbox::Ok);
  EXPECT_EQ(Desktop.ActiveWindow(), owner.hWnd());
  Desktop.Answer(forms::msgbox::AnswerOk);
  Desktop.WhileBoxIsUp([&](const MessageBox&) { Desktop.ClickAt(place.left + 9, place.top + 9); });
  Desktop.ShowMessage(owner.hWnd(), "text", "title", forms::msgbox::Ok);
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(Desktop.ActiveWindow(), other.hWnd());
}

TEST_F(Simulation, TheOwnerOfABoxMayGoAwayUnderIt) {
  auto form = std::make_unique<PlainForm>(TheWorld);
  form->Show();
  Desktop.Answer(forms::msgbox::AnswerOk);
  Desktop.WhileBoxIsUp([&](const MessageBox&) { form.reset(); });
  EXPECT_EQ(Desktop.ShowMessage(form->hWnd(), "text", "title", forms::msgbox::Ok),
            forms::msgbox::AnswerOk);
  EXPECT_EQ(Desktop.ForegroundWindow(), Desktop.DesktopWindow());
}

// The whole program.

TEST_F(Simulation, RunPlaysTheUserAndReturnsWhenTheProgramEnds) {
  Texts order;
  Desktop.WhileRunning([&] {
    order.emplace_back("user");
    Desktop.Quit();
  });
  Desktop.Run();
  order.emplace_back("end");
  Desktop.Run();
  EXPECT_EQ(order, (Texts{"user", "end"}));
  EXPECT_TRUE(Desktop.QuitCalled());
}

TEST_F(Simulation, ARunThatNothingEndsIsComplainedOf) {
  const Ears ears;
  Desktop.Run();
  Desktop.WhileRunning([] {});
  Desktop.Run();
  EXPECT_EQ(ears.Heard.size(), 2U);
}

TEST(SimulatedDesktop, AWindowThatOutlivesItsDesktopIsComplainedOf) {
  const Ears ears;
  auto desktop = std::make_unique<SimDesktop>();
  PixelRect bounds{0, 0, 10, 10};
  struct Deaf final : forms::WindowEvents {
    void OnMouseDown(forms::MouseButton, forms::ShiftState, PixelPoint) override {}
    void OnMouseMove(forms::MouseButton, forms::ShiftState, PixelPoint) override {}
    void OnMouseUp(forms::MouseButton, forms::ShiftState, PixelPoint) override {}
    void OnDoubleClick(PixelPoint) override {}
    void OnKeyDown(int, forms::ShiftState) override {}
    void OnKeyPress(char32_t) override {}
    void OnPaint(Canvas&, const PixelRect&) override {}
    void OnMoved(const PixelRect&) override {}
    void OnActivated(bool) override {}
    void OnClose() override {}
    void OnSessionEnd() override {}
    std::optional<std::intptr_t> OnMessage(std::uint32_t, std::uintptr_t, std::intptr_t) override {
      return std::nullopt;
    }
  };
  Deaf deaf;
  forms::WindowPeer* leaked =
      desktop->CreatePeer({.ClassName = "Left", .Bounds = bounds}, deaf).release();
  desktop.reset();
  EXPECT_EQ(ears.Heard, Texts{"the window Left outlives its desktop"});
  // Its own end would reach for the desktop, so only the memory is given back.
  ::operator delete(leaked);
}

// The log and the picture.

TEST_F(Simulation, TheLogHasOneLinePerCall) {
  PlainForm form(TheWorld);
  form.Load();
  form.SetCaption("Caption");
  form.Move(0, 0, 150, 150);
  form.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
  form.Show();
  form.ZOrder(forms::ZPlace::Back);
  form.SetForeground();
  form.Hide();
  form.Unload();
  EXPECT_EQ(Desktop.Log(),
            (Texts{"create Plain", "caption Plain Caption", "bounds Plain 0,0,10,10",
                   "setwindowpos Plain -1 19", "show Plain Normal", "zorder Plain Back",
                   "foreground Plain", "hide Plain", "destroy Plain"}));
}

TEST_F(Simulation, ThePictureShowsWindowsInTheirOrder) {
  PlainForm form(TheWorld);
  form.SetBackColor(0x000000FF);
  form.Show();
  Desktop.Pump();
  EXPECT_EQ(Desktop.Picture().PixelAt({150, 150}), 0x000000FFU);
  const WindowId other = Desktop.AddOtherWindow({.Bounds = {140, 100, 400, 300}});
  Desktop.TakeForeground(other);
  EXPECT_NE(Desktop.Picture().PixelAt({150, 150}), 0x000000FFU);
  EXPECT_EQ(Desktop.Picture().PixelAt({120, 150}), 0x000000FFU);
  EXPECT_EQ(Desktop.Picture().PixelAt({900, 700}), Desktop.SystemColor(1));
}

TEST_F(Simulation, ThePictureIsWrittenForPeople) {
  const std::string path = testing::TempDir() + "simulated-screen.ppm";
  ASSERT_TRUE(TheWorld.SavePicture(path));
  std::ifstream file(path, std::ios::binary);
  std::string head(15, '\0');
  file.read(head.data(), 15);
  EXPECT_EQ(head, "P6\n1024 768\n255");
  file.seekg(0, std::ios::end);
  EXPECT_EQ(file.tellg(), std::streampos(16 + 1024 * 768 * 3));
  EXPECT_FALSE(TheWorld.SavePicture("/no/such/folder/picture.ppm"));
}

// The shell.

TEST_F(Simulation, TheShellRemembersWhatWasToBeStarted) {
  TheWorld.Files.Put("C:\\Docs\\letter.txt", "text");
  EXPECT_FALSE(TheWorld.Shell.Open("C:\\Docs\\letter.txt", std::nullopt, "C:\\Docs"));
  TheWorld.Shell.Associate(".TXT", "notepad.exe");
  EXPECT_TRUE(TheWorld.Shell.Open("c:\\docs\\LETTER.TXT", std::nullopt, std::nullopt));
  EXPECT_TRUE(TheWorld.Shell.Open("C:\\Docs", std::nullopt, std::nullopt));
  EXPECT_TRUE(TheWorld.Shell.Open("http://somewhere", std::nullopt, std::nullopt));
  EXPECT_FALSE(TheWorld.Shell.Run("C:\\Docs\\none.exe"));
  ASSERT_EQ(TheWorld.Shell.Log().size(), 5U);
  EXPECT_EQ(TheWorld.Shell.Log()[0].Folder, "C:\\Docs");
  EXPECT_FALSE(TheWorld.Shell.Log()[0].Started);
  EXPECT_EQ(TheWorld.Shell.Started(),
            (Texts{"c:\\docs\\LETTER.TXT", "C:\\Docs", "http://somewhere"}));
}

TEST_F(Simulation, TheShellFailsAsScripted) {
  TheWorld.Files.Put("C:\\Tools\\run.exe", "");
  TheWorld.Shell.Fail("C:\\Tools\\run.exe", RunError::BadFileName);
  EXPECT_FALSE(TheWorld.Shell.Open("C:\\Tools\\run.exe", std::nullopt, std::nullopt));
  const auto result = TheWorld.Shell.Run("C:\\Tools\\run.exe");
  ASSERT_FALSE(result);
  EXPECT_EQ(result.Error(), RunError::BadFileName);
}

TEST_F(Simulation, RunFindsProgramsByTheirNamePathAndBlanks) {
  TheWorld.Files.Put("C:\\Program Files\\My Tool\\run.exe", "");
  TheWorld.Shell.AddToPath("notepad.exe");
  EXPECT_TRUE(TheWorld.Shell.Run("C:\\Program Files\\My Tool\\run.exe a b"));
  EXPECT_TRUE(TheWorld.Shell.Run("notepad"));
  EXPECT_TRUE(TheWorld.Shell.Run("notepad.exe C:\\x.txt"));
  const auto nothing = TheWorld.Shell.Run("  ");
  ASSERT_FALSE(nothing);
  EXPECT_EQ(nothing.Error(), RunError::BadFileName);
  const auto bad = TheWorld.Shell.Run("<what>");
  ASSERT_FALSE(bad);
  EXPECT_EQ(bad.Error(), RunError::BadFileName);
}

TEST_F(Simulation, IconsTellWhichTheyAreByTheirColour) {
  TheWorld.Files.Put("C:\\a.txt", "");
  TheWorld.Files.Put("C:\\b.txt", "");
  TheWorld.Files.Put("C:\\c.doc", "");
  const auto index = [&](const char* path) {
    return TheWorld.Icons.FileInfo(path, IconList::Small).value().SystemIndex;
  };
  EXPECT_EQ(index("C:\\a.txt"), index("C:\\b.txt"));
  EXPECT_NE(index("C:\\a.txt"), index("C:\\c.doc"));
  TheWorld.Icons.SetIndex("c:\\A.TXT", 7);
  EXPECT_EQ(index("C:\\a.txt"), 7);
  EXPECT_EQ(TheWorld.Icons.Lookups(), 5);
  SimCanvas canvas({40, 40});
  EXPECT_TRUE(TheWorld.Icons.DrawSystemIcon(canvas, IconList::Small, 7, {2, 2}, IconStyle::Normal));
  EXPECT_EQ(canvas.PixelAt({2, 2}), SimShellIcons::ColourOf(7));
  EXPECT_EQ(canvas.PixelAt({17, 17}), SimShellIcons::ColourOf(7));
  EXPECT_EQ(canvas.PixelAt({18, 18}), 0U);
  EXPECT_NE(SimShellIcons::ColourOf(7), SimShellIcons::ColourOf(8));
}

}  // namespace
}  // namespace corvelle::sim
