#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/ListBoxPeer.h"
#include "forms/ListRows.h"
#include "forms/SystemControl.h"

namespace corvelle::forms {

/// A list of rows, of which at most one is chosen. Rows count from 0; -1 means no row.
class ListBox final : public SystemControl, private ListBoxEvents {
 public:
  ListBox(Window& container, std::string name) : SystemControl(container, std::move(name)) {}

  [[nodiscard]] const std::vector<std::string>& Items() const noexcept { return rows_.Items(); }
  [[nodiscard]] int Count() const noexcept { return rows_.Count(); }
  void Add(std::string text) { Insert(Count(), std::move(text)); }
  /// Rows from `at` on move down; the chosen one stays chosen.
  void Insert(int at, std::string text);
  /// Nothing is chosen any more when the chosen row goes.
  void Remove(int at);
  void Clear();
  [[nodiscard]] int Selected() const noexcept { return rows_.Selected(); }
  void Select(int row);
  /// The first row that is seen; 0 while the form is not loaded.
  [[nodiscard]] int TopRow() const { return Own() != nullptr ? Own()->TopRow() : 0; }
  void SetTopRow(int row);
  /// The row at a point of the control in pixels.
  [[nodiscard]] int RowAt(PixelPoint at) const { return Own() != nullptr ? Own()->RowAt(at) : -1; }

  /// The user chose a row; that he double-clicked one.
  std::function<void()> Click;
  std::function<void()> DblClick;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  KeyFacts Keys() const override {
    return {.Wants = {.Arrows = true, .Paging = true, .Typing = true}};
  }

 private:
  [[nodiscard]] ListBoxPeer* Own() const noexcept { return static_cast<ListBoxPeer*>(Peer()); }
  void OnRowChosen() override;
  void OnRowActivated() override;

  ListRows rows_;
};

}  // namespace corvelle::forms
