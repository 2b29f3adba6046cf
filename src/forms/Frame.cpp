#include "forms/Frame.h"

#include <utility>

namespace corvelle::forms {

Frame::Frame(Window& container, std::string name)
    : Button(container, std::move(name), ButtonLook::Frame) {
  SetTabStop(false);
}

void Frame::PressByKey() { FocusFirst(); }

}  // namespace corvelle::forms
