#include "icons/Glyphs.h"

#include <array>
#include <span>
#include <string_view>

#include "base/Text.h"
#include "forms/Graphic.h"
#include "forms/WindowSystem.h"

namespace corvelle {

namespace {

// One character a pixel: "." nothing, "#" button text, "g" grey text, "w" highlight edge, "s"
// shadow edge, "h" highlight, "f" button face, "r" red in every scheme.
using Rows = std::span<const std::string_view>;

constexpr std::array<std::string_view, 5> kUp = {
    "....#....",  //
    "...###...",  //
    "..#####..",  //
    ".#######.",  //
    "#########",
};

constexpr std::array<std::string_view, 5> kDown = {
    "#########",  //
    ".#######.",  //
    "..#####..",  //
    "...###...",  //
    "....#....",
};

constexpr std::array<std::string_view, 6> kUp2 = {
    "....g.....",  //
    "...gggw...",  //
    "..gggggw..",  //
    ".gggggggw.",  //
    "gggggggggw",  //
    ".wwwwwwwww",
};

constexpr std::array<std::string_view, 6> kDown2 = {
    "ggggggggg.",  //
    ".gggggggww",  //
    "..gggggww.",  //
    "...gggww..",  //
    "....gww...",  //
    ".....w....",
};

constexpr std::array<std::string_view, 16> kCircle = {
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    ".....sssss......",  //
    "....s#####w.....",  //
    "...s#######w....",  //
    "...s#######w....",  //
    "...s#######w....",  //
    "...s#######w....",  //
    "...s#######w....",  //
    "....s#####w.....",  //
    ".....wwwww......",  //
    "................",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kNew = {
    "................",  //
    "..sssssssss.....",  //
    "..swwwwwwwss....",  //
    "..swwwwwwwsws...",  //
    "..swwwwwwwssss..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwhwwwww#..",  //
    "..swwwwhwwwww#..",  //
    "..swwhhhhhwww#..",  //
    "..swwwwhwwwww#..",  //
    "..swwwwhwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..############..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kCust = {
    "................",  //
    ".ssssssssssssss.",  //
    ".shhhhhhhhhhhhs.",  //
    ".shhhhhhhhhhhhs.",  //
    ".swwwwwwwwwwwws.",  //
    ".sw###wwwwwwwws.",  //
    ".sw#w#w#####wws.",  //
    ".sw###wwwwwwwws.",  //
    ".swwwwwwwwwwwws.",  //
    ".sw###wwwwwwwws.",  //
    ".sw#w#w#####wws.",  //
    ".sw###wwwwwwwws.",  //
    ".swwwwwwwwwwwws.",  //
    ".ssssssssssssss.",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kHelp = {
    "................",  //
    ".....hhhhh......",  //
    "....hhhhhhh.....",  //
    "...hhh...hhh....",  //
    "...hhh...hhh....",  //
    ".........hhh....",  //
    "........hhh.....",  //
    ".......hhh......",  //
    "......hhh.......",  //
    "......hhh.......",  //
    "......hhh.......",  //
    "................",  //
    "......hhh.......",  //
    "......hhh.......",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kHand = {
    "................",  //
    "......##........",  //
    ".....#ww#.......",  //
    ".....#ww#.......",  //
    ".....#ww#.......",  //
    ".....#ww###.....",  //
    ".....#ww#ww###..",  //
    ".##..#ww#ww#ww#.",  //
    "#ww#.#wwwwwwww#.",  //
    "#www##wwwwwwww#.",  //
    ".#wwwwwwwwwwww#.",  //
    "..#wwwwwwwwwww#.",  //
    "...#wwwwwwwww#..",  //
    "....#wwwwwwww#..",  //
    "....##########..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kTm = {
    "................",  //
    "................",  //
    "hhhhhhhhhhhhhhhh",  //
    "hffffhffffhffffh",  //
    "hf##fhf##fhf##fh",  //
    "hf##fhf##fhf##fh",  //
    "hffffhffffhffffh",  //
    "hhhhhhhhhhhhhhhh",  //
    ".#wwwwwwwww#....",  //
    ".#w#######w#....",  //
    ".#wwwwwwwww#....",  //
    ".#w#####www#....",  //
    ".#wwwwwwwww#....",  //
    ".###########....",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kButton = {
    "................",  //
    "................",  //
    ".wwwwwwwwwwwww#.",  //
    ".wfffffffffffs#.",  //
    ".wfffffffffffs#.",  //
    ".wffhhhhhhhffs#.",  //
    ".wffhhhhhhhffs#.",  //
    ".wffhhhhhhhffs#.",  //
    ".wffhhhhhhhffs#.",  //
    ".wffhhhhhhhffs#.",  //
    ".wfffffffffffs#.",  //
    ".wfffffffffffs#.",  //
    ".wssssssssssss#.",  //
    ".##############.",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kQuestion = {
    "................",  //
    "..ssssssssssss..",  //
    "..swwwwwwwwwws..",  //
    "..swwwhhhhwwws..",  //
    "..swwhhwwhhwws..",  //
    "..swwhhwwhhwws..",  //
    "..swwwwwwhhwws..",  //
    "..swwwwwhhwwws..",  //
    "..swwwwhhwwwws..",  //
    "..swwwwhhwwwws..",  //
    "..swwwwwwwwwws..",  //
    "..swwwwhhwwwws..",  //
    "..swwwwhhwwwws..",  //
    "..swwwwwwwwwws..",  //
    "..ssssssssssss..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kMissingFile = {
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    ".......wwwwwwwww",  //
    ".......wrrwwwrrw",  //
    ".......wrrrwrrrw",  //
    ".......wwrrrrrww",  //
    "........wwrrrww.",  //
    ".......wwrrrrrww",  //
    ".......wrrrwrrrw",  //
    ".......wrrwwwrrw",  //
    ".......wwwwwwwww",
};

constexpr std::array<std::string_view, 16> kUnknown = {
    "................",  //
    "..sssssssss.....",  //
    "..swwwwwwwss....",  //
    "..swwwwwwwsws...",  //
    "..swwwwwwwssss..",  //
    "..swwwwwwwwww#..",  //
    "..swwssssssww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwssssssww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwssssssww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwssssswww#..",  //
    "..swwwwwwwwww#..",  //
    "..############..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kSep = {
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    ".ssssssssssssss.",  //
    ".wwwwwwwwwwwwww.",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kMoveUp = {
    "................",  //
    "................",  //
    ".......hh.......",  //
    "......hhhh......",  //
    ".....hhhhhh.....",  //
    "....hhhhhhhh....",  //
    "...hhhhhhhhhh...",  //
    "..hhhhhhhhhhhh..",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kMoveDown = {
    "................",  //
    "................",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    ".....hhhhhh.....",  //
    "..hhhhhhhhhhhh..",  //
    "...hhhhhhhhhh...",  //
    "....hhhhhhhh....",  //
    ".....hhhhhh.....",  //
    "......hhhh......",  //
    ".......hh.......",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kCut = {
    "................",  //
    "....#.....#.....",  //
    "....#.....#.....",  //
    "....##...##.....",  //
    ".....#...#......",  //
    ".....##.##......",  //
    "......###.......",  //
    "......###.......",  //
    ".......#........",  //
    ".....hh.hh......",  //
    "...hhhh.hhhh....",  //
    "..hh..h.h..hh...",  //
    "..hh..h.h..hh...",  //
    "..hh..h.h..hh...",  //
    "...hhhh.hhhh....",  //
    "................",
};

constexpr std::array<std::string_view, 16> kCopy = {
    "................",  //
    ".#######........",  //
    ".#wwwww##.......",  //
    ".#wwwww###......",  //
    ".#w###www#......",  //
    ".#wwwwhhhhhhh...",  //
    ".#w###hwwwwwhh..",  //
    ".#wwwwhwwwwwhhh.",  //
    ".#w###hwhhhwwwh.",  //
    ".#wwwwhwwwwwwwh.",  //
    ".######whhhhhwh.",  //
    "......hwwwwwwwh.",  //
    "......hwhhhhhwh.",  //
    "......hwwwwwwwh.",  //
    "......hhhhhhhhh.",  //
    "................",
};

constexpr std::array<std::string_view, 16> kPaste = {
    "................",  //
    "......####......",  //
    "..#####ww#####..",  //
    "..#fff#ww#fff#..",  //
    "..#ff######ff#..",  //
    "..#ffffffffff#..",  //
    "..#fffhhhhhhhh..",  //
    "..#fffhwwwwwwh..",  //
    "..#fffhwhhhhwh..",  //
    "..#fffhwwwwwwh..",  //
    "..#fffhwhhhhwh..",  //
    "..#fffhwwwwwwh..",  //
    "..#fffhwhhhhwh..",  //
    "..####hwwwwwwh..",  //
    "......hhhhhhhh..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kDelete = {
    "................",  //
    "................",  //
    "..##........##..",  //
    "..###......###..",  //
    "...###....###...",  //
    "....###..###....",  //
    ".....######.....",  //
    "......####......",  //
    "......####......",  //
    ".....######.....",  //
    "....###..###....",  //
    "...###....###...",  //
    "..###......###..",  //
    "..##........##..",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kUndo = {
    "................",  //
    "................",  //
    "................",  //
    "....h...........",  //
    "...hh...........",  //
    "..hhhhhhhh......",  //
    ".hhhhhhhhhhh....",  //
    "..hhhhhhhhhhh...",  //
    "...hh....hhhh...",  //
    "....h.....hhhh..",  //
    "...........hhh..",  //
    "..........hhhh..",  //
    ".........hhhh...",  //
    ".......hhhhh....",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kDocument = {
    "................",  //
    "..sssssssss.....",  //
    "..swwwwwwwss....",  //
    "..swwwwwwwsws...",  //
    "..swwwwwwwssss..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..############..",  //
    "................",
};

constexpr std::array<std::string_view, 16> kFolder = {
    "................",  //
    "................",  //
    "................",  //
    "..sssss.........",  //
    ".swwwwws........",  //
    ".swwwwwsssssss..",  //
    ".swwwwwwwwwwww#.",  //
    ".swfffffffffff#.",  //
    ".swfffffffffff#.",  //
    ".swfffffffffff#.",  //
    ".swfffffffffff#.",  //
    ".swfffffffffff#.",  //
    ".swfffffffffff#.",  //
    "..#############.",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kProgram = {
    "................",  //
    "................",  //
    ".ssssssssssssss.",  //
    ".shhhhhhhhhhhh#.",  //
    ".shhhhhhhhhhhh#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".swwwwwwwwwwww#.",  //
    ".##############.",  //
    "................",  //
    "................",  //
    "................",
};

constexpr std::array<std::string_view, 16> kLink = {
    "................",  //
    "..sssssssss.....",  //
    "..swwwwwwwss....",  //
    "..swwwwwwwsws...",  //
    "..swwwwwwwssss..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwww#www#..",  //
    "..swwwwww##ww#..",  //
    "..sww#######w#..",  //
    "..sww#www##ww#..",  //
    "..sww#www#www#..",  //
    "..swwwwwwwwww#..",  //
    "..swwwwwwwwww#..",  //
    "..############..",  //
    "................",
};

struct Glyph {
  std::string_view Key;
  Rows Pixels;
};

constexpr std::array<Glyph, 26> kGlyphs = {{{"up", kUp},
                                            {"up2", kUp2},
                                            {"down", kDown},
                                            {"down2", kDown2},
                                            {"circle", kCircle},
                                            {"new", kNew},
                                            {"cust", kCust},
                                            {"help", kHelp},
                                            {"hand", kHand},
                                            {"tm", kTm},
                                            {"button", kButton},
                                            {"qmark", kQuestion},
                                            {"unknown", kUnknown},
                                            {"missing", kMissingFile},
                                            {"sep", kSep},
                                            {"document", kDocument},
                                            {"folder", kFolder},
                                            {"program", kProgram},
                                            {"link", kLink},
                                            {"move up", kMoveUp},
                                            {"move down", kMoveDown},
                                            {"cut", kCut},
                                            {"copy", kCopy},
                                            {"paste", kPaste},
                                            {"delete", kDelete},
                                            {"undo", kUndo}}};

const Glyph* FindGlyph(std::string_view key) noexcept {
  for (const Glyph& glyph : kGlyphs) {
    if (EqualNoCase(glyph.Key, key)) return &glyph;
  }
  return nullptr;
}

PixelSize SizeOf(const Glyph& glyph) noexcept {
  return {static_cast<int>(glyph.Pixels.front().size()), static_cast<int>(glyph.Pixels.size())};
}

constexpr forms::OleColor kRed = 0x2020D0;  // blue, green, red

forms::OleColor ColourOf(char pixel) noexcept {
  switch (pixel) {
    case 'g':
      return forms::color::GrayText;
    case 'w':
      return forms::color::Highlight3D;
    case 's':
      return forms::color::ButtonShadow;
    case 'f':
      return forms::color::ButtonFace;
    case 'h':
      return forms::color::Highlight;
    case 'r':
      return kRed;
    default:
      return forms::color::ButtonText;
  }
}

}  // namespace

PixelSize GlyphSize(std::string_view key) noexcept {
  const Glyph* const glyph = FindGlyph(key);
  return glyph != nullptr ? SizeOf(*glyph) : PixelSize{};
}

bool DrawGlyph(Canvas& canvas, const forms::WindowSystem& windows, std::string_view key,
               PixelPoint at, int scale) {
  const Glyph* const glyph = FindGlyph(key);
  if (glyph == nullptr) return false;
  int y = at.y;
  for (const std::string_view row : glyph->Pixels) {
    for (std::size_t start = 0; start < row.size();) {
      std::size_t end = start + 1;
      while (end < row.size() && row[end] == row[start]) ++end;
      if (row[start] != '.') {
        const PixelRect run{at.x + static_cast<int>(start) * scale, y,
                            at.x + static_cast<int>(end) * scale, y + scale};
        canvas.FillBox(run, forms::Resolve(windows, ColourOf(row[start])));
      }
      start = end;
    }
    y += scale;
  }
  return true;
}

Picture MakeGlyph(forms::WindowSystem& windows, std::string_view key, int scale) {
  const PixelSize one = GlyphSize(key);
  if (one == PixelSize{}) return nullptr;
  const PixelSize size{one.width * scale, one.height * scale};
  std::shared_ptr<Canvas> picture = windows.CreateCanvas(size);
  picture->FillBox({0, 0, size.width, size.height}, forms::Image::kMask);
  DrawGlyph(*picture, windows, key, {0, 0}, scale);
  return picture;
}

}  // namespace corvelle
