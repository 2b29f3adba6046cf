#include "forms/SystemControl.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "base/Utf8.h"
#include "forms/Form.h"

namespace corvelle::forms {

char32_t AccessKey(const std::string& caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != '&') continue;
    ++at;
    if (caption[at] != '&') return UpperCharacter(NextCharacter(caption, at).Character);
  }
  return 0;
}

SystemControl::SystemControl(Form& form, std::string name, PeerKind kind)
    : Window(form.Windows(), std::move(name)), form_(form), kind_(kind) {
  form_.controls_.push_back(this);
}

SystemControl::~SystemControl() { std::erase(form_.controls_, this); }

bool SystemControl::MakePeer(WindowPeer* parent) {
  if (!CreatePeer(kind_, parent, false)) return false;
  Peer()->SetCaption(caption_);
  PeerMade();
  if (Visible()) Peer()->Show(ShowKind::NoActivate);
  return true;
}

PixelPoint SystemControl::ContainerOrigin() const noexcept {
  return {form_.BorderPixels(), form_.BorderPixels()};
}

void SystemControl::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  if (Peer() != nullptr) Peer()->SetCaption(caption_);
}

void SystemControl::Press() {
  if (Reachable()) Pressed();
}

void SystemControl::OnKeyDown(int keyCode, ShiftState shift) {
  if (shift.Alt) {
    if (!PressAccessKey(static_cast<char32_t>(keyCode))) form_.OnKeyDown(keyCode, shift);
    return;
  }
  const auto press = [this](const auto& wanted) {
    const auto found = std::find_if(form_.controls_.begin(), form_.controls_.end(), wanted);
    if (found != form_.controls_.end()) (*found)->Press();
  };
  switch (keyCode) {
    case key::Tab:
      MoveFocus(shift.Shift ? -1 : 1);
      break;
    case key::Enter:
      if (TakesEnter()) {
        Press();
      } else {
        press([](const SystemControl* control) { return control->IsDefault(); });
      }
      break;
    case key::Escape:
      press([](const SystemControl* control) { return control->IsCancel(); });
      break;
    default:
      form_.OnKeyDown(keyCode, shift);
      break;
  }
}

void SystemControl::OnKeyPress(char32_t character) {
  constexpr char32_t kLastControlCharacter = 32;
  // What Tab, Enter, Esc and Space type has been dealt with as keys.
  if (character <= kLastControlCharacter) return;
  if (!PressAccessKey(character)) form_.OnKeyPress(character);
}

void SystemControl::MoveFocus(int step) {
  const std::vector<SystemControl*>& all = form_.controls_;
  const int count = static_cast<int>(all.size());
  const int here = static_cast<int>(std::find(all.begin(), all.end(), this) - all.begin());
  for (int away = 1; away < count; ++away) {
    SystemControl* const next =
        all[static_cast<std::size_t>((here + step * away % count + count) % count)];
    if (!next->Reachable()) continue;
    next->SetFocus();
    return;
  }
}

bool SystemControl::PressAccessKey(char32_t character) {
  const char32_t wanted = UpperCharacter(character);
  const auto found =
      std::find_if(form_.controls_.begin(), form_.controls_.end(), [wanted](const auto* control) {
        return control->Reachable() && AccessKey(control->caption_) == wanted;
      });
  if (wanted == 0 || found == form_.controls_.end()) return false;
  (*found)->SetFocus();
  (*found)->Press();
  return true;
}

}  // namespace corvelle::forms
