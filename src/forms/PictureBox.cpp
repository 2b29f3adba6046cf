#include "forms/PictureBox.h"

#include <utility>

#include "forms/Form.h"

namespace corvelle::forms {

PictureBox::PictureBox(Form& form, std::string name)
    : Surface(form.Windows(), std::move(name)), form_(form) {
  form_.boxes_.push_back(this);
}

PictureBox::~PictureBox() { std::erase(form_.boxes_, this); }

PixelPoint PictureBox::ContainerOrigin() const noexcept {
  return {form_.BorderPixels(), form_.BorderPixels()};
}

void PictureBox::OnKeyDown(int keyCode, ShiftState shift) { form_.OnKeyDown(keyCode, shift); }

void PictureBox::OnKeyPress(char32_t character) { form_.OnKeyPress(character); }

}  // namespace corvelle::forms
