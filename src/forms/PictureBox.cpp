#include "forms/PictureBox.h"

#include <utility>

#include "forms/Form.h"

namespace corvelle::forms {

PictureBox::PictureBox(Window& container, std::string name) : Surface(container, std::move(name)) {}

std::unique_ptr<WindowPeer> PictureBox::NewPeer(WindowPeer* parent) {
  PeerSpec wanted = SpecIn(parent);
  wanted.Kind = PeerKind::PictureBox;
  wanted.TabStop = TabStop();
  return Windows().CreatePeer(wanted, *this);
}

void PictureBox::OnKeyDown(int keyCode, ShiftState shift) {
  if (TabStop()) {
    static_cast<void>(OwnForm().ControlKey(*this, keyCode, shift));
  } else {
    OwnForm().OnKeyDown(keyCode, shift);
  }
}

void PictureBox::OnKeyPress(char32_t character) {
  if (TabStop()) {
    static_cast<void>(OwnForm().ControlCharacter(*this, character));
  } else {
    OwnForm().OnKeyPress(character);
  }
}

}  // namespace corvelle::forms
