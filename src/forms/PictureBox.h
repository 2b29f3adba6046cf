#pragma once

#include "forms/Surface.h"

namespace corvelle::forms {

class Form;

/// A child window of a form that is drawn on, placed in twips of the form's inside. Its keys go to
/// the form. It is visible from the start, and seen when the form is. The form outlives it.
class PictureBox final : public Surface {
 public:
  PictureBox(Form& form, std::string name);
  ~PictureBox() override;

 protected:
  PixelPoint ContainerOrigin() const noexcept override;
  void OnKeyDown(int keyCode, ShiftState shift) override;
  void OnKeyPress(char32_t character) override;

 private:
  friend class Form;
  Form& form_;
};

}  // namespace corvelle::forms
