#pragma once

#include <string_view>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

class ListBoxEvents {
 public:
  virtual ~ListBoxEvents() = default;

  /// The user chose a row, with the pointer or by key. Not told for Select.
  virtual void OnRowChosen() = 0;
  /// The user double-clicked a row.
  virtual void OnRowActivated() = 0;
};

/// The window of a list box. Rows count from 0; -1 means no row.
class ListBoxPeer : public WindowPeer {
 public:
  virtual void Insert(int at, std::string_view text) = 0;
  virtual void Remove(int at) = 0;
  virtual void Clear() = 0;
  virtual void Select(int row) = 0;
  [[nodiscard]] virtual int Selected() const = 0;
  /// The first row that is seen.
  virtual void SetTopRow(int row) = 0;
  [[nodiscard]] virtual int TopRow() const = 0;
  /// The row at a point of the window in pixels.
  [[nodiscard]] virtual int RowAt(PixelPoint at) const = 0;
};

}  // namespace corvelle::forms
