#pragma once

#include <string_view>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

class TabStripEvents {
 public:
  virtual ~TabStripEvents() = default;

  /// The user wants to leave the tab that is shown. False keeps it.
  virtual bool OnTabLeaving() = 0;
  /// The user chose another tab. Not told for Select.
  virtual void OnTabChosen() = 0;
};

/// The window of a tab strip. Tabs count from 0.
class TabStripPeer : public WindowPeer {
 public:
  virtual void Add(std::string_view text) = 0;
  virtual void SetText(int tab, std::string_view text) = 0;
  virtual void Select(int tab) = 0;
  [[nodiscard]] virtual int Selected() const = 0;
  /// Where a page goes, in pixels of the window.
  [[nodiscard]] virtual PixelRect PageRect() const = 0;
  /// The tab itself, in pixels of the window.
  [[nodiscard]] virtual PixelRect TabRect(int tab) const = 0;
};

}  // namespace corvelle::forms
