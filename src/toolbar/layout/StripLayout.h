#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"
#include "platform/ShellIcons.h"

namespace corvelle {

// Sizes and places of what is on the strip: pure rules. All measures are twips unless told
// otherwise.

/// A button of the strip. Entry 0 of an array of them is the template that every size derives from.
struct ButtonRect {
  std::string Path;  // full path of the menu file, or kMainMenuPath
  std::string Key;   // "B" and the button's index
  float Top = 0;     // in the box of buttons
  float Left = 0;
  float Width = 0;
  float Height = 0;

  [[nodiscard]] float Right() const noexcept { return Left + Width; }
  [[nodiscard]] float Bottom() const noexcept { return Top + Height; }

  friend bool operator==(const ButtonRect&, const ButtonRect&) = default;
};

/// Path of the button that opens the program's own menu.
inline constexpr std::string_view kMainMenuPath = "QMenu";

/// Where the strip is: at the top of the screen by its saved position, or along an edge.
enum class Placement { TopHugging, AtEdge };

/// The strip's direction and the twips of a pixel.
struct StripScale {
  bool Vertical = false;
  float TwipsX = 15;
  float TwipsY = 15;
};

struct TemplateScene {
  bool LargeIcons = false;        // Option::LargeIcons
  int IconSize = kSmallIconSize;  // pixels
  float TwipsX = 15;
  float TwipsY = 15;
  int CaptionHeight = 25;  // SM_CYCAPTION in pixels, 0 when the system does not tell
};

struct TemplateSize {
  float Width = 0;
  float Height = 0;
  int TopCut = 4;  // pixels by which a top-hugging window is pulled above the screen

  friend bool operator==(const TemplateSize&, const TemplateSize&) = default;
};

/// Size of the template button, and how far the window is pulled above the screen.
[[nodiscard]] TemplateSize TemplateButton(const TemplateScene& scene) noexcept;

/// The two lines of a button.
struct ButtonLines {
  TwipLine LinTB1;
  TwipLine LinTB2;

  friend bool operator==(const ButtonLines&, const ButtonLines&) = default;
};

/// The template lines for a template button of that size.
[[nodiscard]] ButtonLines TemplateLines(const ButtonRect& button, const StripScale& scale) noexcept;

/// Size of the template separator, which is also the grip before it is placed.
[[nodiscard]] TwipSize TemplateSeparator(const ButtonRect& button,
                                         const StripScale& scale) noexcept;

/// What a menu file is on the strip.
enum class EntryKind { Button, Separator, Hidden };

/// By the FIcon and FName of the file's first record. A hidden separator is hidden.
[[nodiscard]] EntryKind EntryKindOf(std::string_view icon, std::string_view name);

/// The lines of a button in its place: highlight LinTB1, shadow LinTB2.
[[nodiscard]] ButtonLines LinesOf(const ButtonRect& button, const ButtonRect& templateButton,
                                  const StripScale& scale) noexcept;

/// A menu file in its order.
struct StripEntry {
  std::string Path;
  EntryKind Kind = EntryKind::Button;
};

struct StripContents {
  std::vector<ButtonRect> Buttons;   // entry 0 is the template, 1 the program's own menu
  std::vector<TwipRect> Separators;  // the first is lblSep(1)
  TwipSize Box;                      // of the box of buttons
};

/// The whole strip from its template and its files. The main menu's button comes first; a button
/// right behind a separator starts after it; hidden files take no room.
[[nodiscard]] StripContents LayOutStrip(const TemplateSize& size,
                                        std::span<const StripEntry> entries,
                                        const StripScale& scale);

struct IconScene {
  TwipRect Button;
  int IconSize = kSmallIconSize;  // pixels
  float TwipsX = 15;
  float TwipsY = 15;
  Placement Where = Placement::TopHugging;
  bool Vertical = false;
  int TopCut = 4;  // pixels
};

/// Upper left corner of a button's icon, in pixels of the box of buttons.
[[nodiscard]] PixelPoint IconPlace(const IconScene& scene) noexcept;

struct ControlsScene {
  Placement Where = Placement::TopHugging;
  Edge At = Edge::Top;
  float TwipsX = 15;
  float TwipsY = 15;
  int TopCut = 4;             // pixels
  TwipSize Template;          // template button
  TwipRect LastButton;        // in the box of buttons
  int SingleCount = 0;        // single buttons
  float LastSingleRight = 0;  // Left + Width of the last of them
  // Before the change; what the rule does not set stays.
  TwipRect Buttons;  // picToolbar
  TwipRect Singles;  // picSingleButton
  TwipRect Window;
};

struct StripControls {
  TwipRect Buttons;  // picToolbar
  TwipRect Singles;  // picSingleButton
  TwipRect Grip;     // lblSep(0)
  TwipRect Window;

  friend bool operator==(const StripControls&, const StripControls&) = default;
};

/// Sizes and places of both boxes, the grip and the window.
[[nodiscard]] StripControls SetControlsRule(const ControlsScene& scene) noexcept;

}  // namespace corvelle
