#include "properties/ItemRules.h"

#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"

namespace corvelle {

namespace {

bool IsFixedEntry(std::string_view key) noexcept {
  return EqualNoCase(key, "Toolbar") || EqualNoCase(key, "Q1") || EqualNoCase(key, "B1");
}

}  // namespace

ItemControls ControlsFor(std::string_view key) noexcept {
  ItemControls controls;
  if (IsFixedEntry(key)) {
    controls.Title = controls.IconButtons = controls.AddButtons = false;
  }
  if (IsFixedEntry(key) || IsButtonTag(key)) {
    controls.Command = controls.CommandButtons = false;
  }
  return controls;
}

ItemPlace PlaceOf(std::string_view key) noexcept {
  if (IsButtonTag(key)) return ItemPlace::ToolbarButtons;
  return IsSinglesTag(key) ? ItemPlace::SingleButtons : ItemPlace::Menu;
}

}  // namespace corvelle
