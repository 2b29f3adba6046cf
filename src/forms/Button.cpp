#include "forms/Button.h"

#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void Button::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  if (Peer() != nullptr) Peer()->SetCaption(caption_);
}

void Button::Press() {
  if (Visible() && Enabled()) Pressed();
}

void Button::TellClick() {
  const std::function<void()> click = Click;
  if (click) click();
}

std::unique_ptr<WindowPeer> Button::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateButton(SpecIn(parent), look_, *this, *this);
}

void Button::PeerMade() { Peer()->SetCaption(caption_); }

KeyFacts Button::Keys() const {
  return {.Wants = {.Space = true}, .LettersPress = true, .AccessKey = AccessKey(caption_)};
}

}  // namespace corvelle::forms
