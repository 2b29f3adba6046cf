#pragma once

#include <string>
#include <string_view>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

class ComboBoxEvents {
 public:
  virtual ~ComboBoxEvents() = default;

  /// The user chose a row of the list. Not told for Select.
  virtual void OnChosen() = 0;
  /// The user typed in the entry. Not told for SetText.
  virtual void OnEntryChanged() = 0;
  /// The list came down or went up.
  virtual void OnDropped(bool down) = 0;
};

/// The window of a combo box: a list that drops down, with an entry or without. It is as high as
/// one line, whatever its bounds say. Rows count from 0; -1 means no row.
class ComboBoxPeer : public WindowPeer {
 public:
  virtual void Insert(int at, std::string_view text) = 0;
  virtual void Remove(int at) = 0;
  virtual void Clear() = 0;
  virtual void Select(int row) = 0;
  [[nodiscard]] virtual int Selected() const = 0;
  /// Of one with an entry. The chosen row is chosen no more.
  virtual void SetText(std::string_view text) = 0;
  [[nodiscard]] virtual std::string Text() const = 0;
  virtual void SelectText() = 0;
  virtual void Drop(bool down) = 0;
};

}  // namespace corvelle::forms
