#pragma once

#include <sstream>
#include <string>

#include "base/Twips.h"
#include "toolbar/layout/StripLook.h"

namespace corvelle {

// What a failed expectation shows of the rules' values.

inline std::string Text(const TwipRect& r) {
  std::ostringstream out;
  out << "left " << r.Left << " top " << r.Top << " width " << r.Width << " height " << r.Height;
  return out.str();
}

inline std::string Text(const TwipLine& l) {
  std::ostringstream out;
  out << '(' << l.X1 << ", " << l.Y1 << ")-(" << l.X2 << ", " << l.Y2 << ')';
  return out.str();
}

inline std::string Text(const LineLook& look) {
  std::ostringstream out;
  out << (look.Visible ? "visible " : "hidden ") << std::hex << ColorValue(look.Color);
  return out.str();
}

inline std::string Text(const BorderLine& line) {
  return Text(line.Points) + ' ' + Text(line.Look);
}

}  // namespace corvelle
