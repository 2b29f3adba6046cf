#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/PictureBox.h"

namespace corvelle::forms {

/// A form with one box that notes the events it gets and can be given things to do in them.
class TestForm : public Form {
 public:
  explicit TestForm(WindowSystem& windows, BorderStyle border = BorderStyle::None,
                    const std::string& name = "TestForm")
      : Form(windows, name, border), Box(*this, "TestBox") {
    Move(1500, 1500, 3000, 1500);
    Box.Move(0, 0, 750, 750);
  }

  PictureBox Box;
  std::vector<std::string> Events;
  std::function<void()> OnLoad;
  std::function<void()> OnUnload;
  std::function<void()> OnQuery;
  std::function<std::optional<std::intptr_t>(std::uint32_t)> OnProcedure;

 protected:
  void Form_Load() override {
    Events.emplace_back("load");
    if (OnLoad) OnLoad();
  }
  void Form_Unload() override {
    Events.emplace_back("unload");
    if (OnUnload) OnUnload();
  }
  void Form_KeyDown(int keyCode, ShiftState shift) override {
    Events.push_back("key " + std::to_string(keyCode) + (shift.Shift ? " shift" : "") +
                     (shift.Ctrl ? " ctrl" : "") + (shift.Alt ? " alt" : ""));
  }
  void Form_KeyPress(char32_t character) override {
    Events.push_back("char " + std::to_string(static_cast<unsigned>(character)));
  }
  void Form_Resize() override { Events.emplace_back("resize"); }
  void Form_Activate() override { Events.emplace_back("activate"); }
  void Form_Deactivate() override { Events.emplace_back("deactivate"); }
  void Form_QueryClose() override {
    Events.emplace_back("query");
    if (OnQuery) {
      OnQuery();
    } else {
      Form::Form_QueryClose();
    }
  }
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t,
                                          std::intptr_t) override {
    return OnProcedure ? OnProcedure(message) : std::nullopt;
  }
};

using Texts = std::vector<std::string>;

}  // namespace corvelle::forms
