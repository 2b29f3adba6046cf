#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/ComboBoxPeer.h"
#include "forms/ListRows.h"
#include "forms/SystemControl.h"

namespace corvelle::forms {

/// A list that drops down under one line. With an entry the user may also type; without one the
/// line shows the chosen row. F4 and Alt with an arrow open and close the list; while it is open,
/// Enter and Esc are its own.
class ComboBox final : public SystemControl, private ComboBoxEvents {
 public:
  ComboBox(Window& container, std::string name, bool withEntry)
      : SystemControl(container, std::move(name)), entry_(withEntry) {}

  [[nodiscard]] const std::vector<std::string>& Items() const noexcept { return rows_.Items(); }
  [[nodiscard]] int Count() const noexcept { return rows_.Count(); }
  void Add(std::string text) { Insert(Count(), std::move(text)); }
  void Insert(int at, std::string text);
  void Remove(int at);
  /// The text of an entry goes too.
  void Clear();
  [[nodiscard]] int Selected() const noexcept { return rows_.Selected(); }
  void Select(int row);
  /// What the line shows.
  [[nodiscard]] const std::string& Text() const noexcept { return text_; }
  /// Only of one with an entry.
  void SetText(std::string text);
  [[nodiscard]] bool IsDropped() const noexcept { return dropped_; }
  void Drop(bool down);

  /// The user chose a row; typed; opened or closed the list.
  std::function<void()> Click;
  std::function<void()> Change;
  std::function<void()> DropDown;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  void PeerGoing() override { dropped_ = false; }
  KeyFacts Keys() const override;
  bool OnControlKey(int keyCode, ShiftState shift) override;
  void TabbedInto() override;

 private:
  [[nodiscard]] ComboBoxPeer* Own() const noexcept { return static_cast<ComboBoxPeer*>(Peer()); }
  void OnChosen() override;
  void OnEntryChanged() override;
  void OnDropped(bool down) override;
  void ShowSelected();

  bool entry_;
  ListRows rows_;
  std::string text_;
  bool dropped_ = false;
};

}  // namespace corvelle::forms
