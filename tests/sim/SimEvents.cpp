// The event loop, messages and message boxes.

#include <algorithm>
#include <optional>
#include <utility>

#include "sim/Complain.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

namespace {

/// More events than any program lets through in one go.
constexpr int kEndlessLoop = 100'000;

constexpr int kClassicBoxWidth = 300;
constexpr int kClassicBoxHeight = 120;

}  // namespace

// The loop.

void SimDesktop::Pump() {
  if (++loops_ == kMostLoops + 1) Complain("event loops run inside each other without a bound");
  deepestLoops_ = std::max(deepestLoops_, loops_);
  RunWaiting();
  --loops_;
}

void SimDesktop::RunWaiting() {
  for (int count = 0; count < kEndlessLoop; ++count) {
    if (turnBegins_) turnBegins_();
    std::deque<std::function<void()>>& next = !afterEvent_.empty() ? afterEvent_ : events_;
    if (!next.empty()) {
      const std::function<void()> event = std::move(next.front());
      next.pop_front();
      ++depth_;
      event();
      --depth_;
      continue;
    }
    if (PointerUnsettled()) {
      events_.emplace_back([this, mouse = MouseNow()] { DeliverMove(mouse); });
      continue;
    }
    if (PaintSomething()) continue;
    ++depth_;
    const bool fired = clock_.FireOne();
    --depth_;
    if (!fired) return;
  }
  Complain("events come without an end");
  events_.clear();
}

void SimDesktop::Advance(int milliseconds) {
  const std::int64_t target = clock_.Now() + milliseconds;
  Pump();
  for (auto next = clock_.NextDue(); next && *next <= target; next = clock_.NextDue()) {
    clock_.MoveTo(*next);
    Pump();
  }
  clock_.MoveTo(target);
}

void SimDesktop::Jump(int milliseconds) { clock_.MoveTo(clock_.Now() + milliseconds); }

forms::TimerId SimDesktop::StartTimer(int milliseconds, std::function<void()> tick) {
  return clock_.Start(milliseconds, std::move(tick));
}

void SimDesktop::Run() {
  if (quit_) return;
  if (runScript_) {
    const std::function<void()> script = std::exchange(runScript_, nullptr);
    const int depth = std::exchange(depth_, 0);
    script();
    depth_ = depth;
    Pump();
    if (!quit_) Complain("the script of Run is over, and the program has not ended");
    return;
  }
  // Nobody acts, so only timers can end the program.
  for (int count = 0; !quit_ && count < kEndlessLoop; ++count) {
    Pump();
    const auto next = clock_.NextDue();
    if (quit_ || !next) break;
    clock_.MoveTo(*next);
  }
  if (!quit_) Complain("Run without anything that ends the program");
}

void SimDesktop::Post(std::function<void()> work) {
  if (postedWork_.Add(std::move(work))) events_.emplace_back([this] { RunPostedWork(); });
}

void SimDesktop::RunPostedWork() {
  if (postedWork_.Run()) events_.emplace_back([this] { RunPostedWork(); });
}

// Messages.

bool SimDesktop::FirstToProcedure(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                                  std::intptr_t lParam, std::intptr_t& answer) {
  const SimWindow* at = Look(window);
  if (at == nullptr || at->Events == nullptr || at->Parent != kNoWindow) return false;
  const std::optional<std::intptr_t> said = at->Events->OnMessage(message, wParam, lParam);
  if (said) answer = *said;
  return said.has_value();
}

std::intptr_t SimDesktop::Dispatch(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
  std::intptr_t answer = 0;
  if (FirstToProcedure(window, message, wParam, lParam, answer)) return answer;
  const SimWindow* at = Look(window);
  if (at == nullptr || at->Events == nullptr) return 0;
  if (message == forms::message::Close) {
    at->Events->OnClose();
  } else if (message == forms::message::MouseMove) {
    auto down = forms::MouseButton::None;
    if ((wParam & 1) != 0) down = down | forms::MouseButton::Left;
    if ((wParam & 2) != 0) down = down | forms::MouseButton::Right;
    if ((wParam & 16) != 0) down = down | forms::MouseButton::Middle;
    const PixelPoint point{static_cast<std::int16_t>(lParam & 0xFFFF),
                           static_cast<std::int16_t>((lParam >> 16) & 0xFFFF)};
    at->Events->OnMouseMove(down, {.Shift = (wParam & 4) != 0, .Ctrl = (wParam & 8) != 0}, point);
  }
  return 0;
}

std::optional<std::intptr_t> SimDesktop::Send(WindowId window, std::uint32_t message,
                                              std::uintptr_t wParam, std::intptr_t lParam) {
  const SimWindow* at = Look(window);
  if (at == nullptr || at->Hangs) return std::nullopt;
  if (at->Own) return Dispatch(window, message, wParam, lParam);
  sent_.push_back({window, message, wParam, lParam});
  const auto answer = at->Answer;
  const std::intptr_t said = answer ? answer(message, wParam, lParam) : 0;
  // A program that ends meanwhile has not answered.
  if (Look(window) == nullptr) return std::nullopt;
  return said;
}

void SimDesktop::Post(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                      std::intptr_t lParam) {
  events_.emplace_back(
      [this, window, message, wParam, lParam] { Dispatch(window, message, wParam, lParam); });
}

void SimDesktop::Broadcast(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
  const std::vector<WindowId> all = order_;
  for (const WindowId id : all) Dispatch(id, message, wParam, lParam);
}

void SimDesktop::EndSession() {
  const std::vector<WindowId> all = order_;
  for (const WindowId id : all) EndSession(id);
}

void SimDesktop::EndSession(WindowId window) {
  const SimWindow* at = Look(window);
  if (at != nullptr && at->Events != nullptr) at->Events->OnSessionEnd();
}

// Message boxes.

int SimDesktop::ShowMessage(WindowId owner, std::string_view text, std::string_view title,
                            unsigned flags) {
  const bool yesNo = (flags & 0xF) == forms::msgbox::YesNo;
  MessageBox box{
      .Owner = owner, .Text = std::string(text), .Title = std::string(title), .Flags = flags};
  std::optional<ScriptedAnswer> answer;
  if (!answers_.empty()) {
    answer = std::move(answers_.front());
    answers_.pop_front();
  } else if (standingAnswer_) {
    answer = ScriptedAnswer{std::nullopt, *standingAnswer_};
  }
  if (!answer || (answer->Text && *answer->Text != box.Text)) {
    ++unexpectedBoxes_;
    Complain("unexpected message box: \"" + box.Text + "\"" +
             (answer ? " instead of \"" + answer->Text.value_or("") + "\"" : ""));
    answer =
        ScriptedAnswer{std::nullopt, yesNo ? forms::msgbox::AnswerNo : forms::msgbox::AnswerOk};
  }
  box.Answer = answer->Button;
  boxes_.push_back(box);

  // The box is a window of ours that has the foreground. Its owner gets no input meanwhile; other
  // windows of ours do.
  const PixelPoint corner{(options_.Screen.width - kClassicBoxWidth) / 2,
                          (options_.Screen.height - kClassicBoxHeight) / 2};
  const WindowId window = Add({.Owner = owner,
                               .Own = true,
                               .ClassName = "#32770",
                               .Text = box.Title,
                               .Bounds = RectAt(corner, {kClassicBoxWidth, kClassicBoxHeight}),
                               .Visible = true,
                               .Topmost = (flags & forms::msgbox::OnTop) != 0});
  const SimWindow* const owning = Get(owner);
  const bool wasEnabled = owning != nullptr && owning->Enabled;
  if (owning != nullptr) SetEnabled(owner, false);
  LoseCapture();
  Activate(window);

  const int depth = std::exchange(depth_, 0);
  Pump();
  if (boxAction_) {
    const auto action = boxAction_;
    action(box);
    Pump();
  }
  depth_ = depth;

  if (Get(owner) != nullptr) SetEnabled(owner, wasEnabled);
  Destroy(window);
  return box.Answer;
}

}  // namespace corvelle::sim
