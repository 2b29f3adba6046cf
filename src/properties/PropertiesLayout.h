#pragma once

#include "base/Geometry.h"

namespace corvelle {

// Where the controls of the Properties window stand: pure rules. All measures are whole pixels of
// the screen, in the window around the control.

struct PropertiesScene {
  int Dpi = 96;
  PixelSize Screen{1024, 768};
};

struct PropertiesLayout {
  PixelSize Inside;  // of the form

  // In the form.
  PixelRect TabStrip;
  PixelRect Page;  // each of the three
  PixelRect Ok;
  PixelRect Cancel;
  PixelRect Apply;

  // On the page of the entry.
  PixelRect Picture;
  PixelRect Heading;
  PixelRect TitleLabel;
  PixelRect Title;
  PixelRect IconLabel;
  PixelRect Icon;
  PixelRect Library;
  PixelRect AllFiles;
  PixelRect CommandLabel;
  PixelRect Missing;
  PixelRect Command;
  PixelRect SelectFile;
  PixelRect SelectFolder;
  PixelRect Frame;
  PixelRect File;  // in the frame
  PixelRect Folder;

  // On the page of the buttons.
  PixelRect Tree;
  PixelRect Up;
  PixelRect Down;
  PixelRect Hint;
  PixelRect HintCommand;

  // On the page of the edges.
  PixelRect Screen;
  PixelRect Top;
  PixelRect Bottom;
  PixelRect Left;
  PixelRect Right;
};

[[nodiscard]] PropertiesLayout LayOutProperties(const PropertiesScene& scene) noexcept;

}  // namespace corvelle
