#include "menus/items/MenuLayout.h"

#include <algorithm>
#include <cmath>

#include "menus/items/MenuRules.h"

namespace corvelle {
namespace {

constexpr float kSeparatorHeight = 12;  // pixels
constexpr float kArrowRow = 36;         // pixels kept for the arrows of a menu of several pages
constexpr float kPageReserve = 3;       // pixels at a page's foot
constexpr float kMarkRoom = 55;         // pixels right of the texts of the program's own menu
constexpr float kMargin = 13;           // pixels right of and below the items

/// The second pass over a file: puts one item after the other onto the pages.
class Builder {
 public:
  explicit Builder(const MenuScene& scene)
      : scene_(scene), metrics_(MetricsFor(scene.TwipsX, scene.TwipsY)) {}

  MenuLayout Build();

 private:
  [[nodiscard]] std::span<const MenuItem> Items() const;
  [[nodiscard]] float EstimatedHeight() const;
  [[nodiscard]] float NextTop() const;
  void AddSeparator();
  void AddItem(MenuItem item);
  void StartPage();
  void EndLayout();

  const MenuScene& scene_;
  MenuMetrics metrics_;
  MenuLayout out_;
  float pageEnd_ = 0;
  bool paged_ = false;
  bool afterSeparator_ = false;
};

std::span<const MenuItem> Builder::Items() const {
  const std::span<const MenuItem> all = scene_.Items;
  const auto most = static_cast<std::size_t>(kMaxRecords);
  return all.empty() ? all : all.first(std::min(all.size(), most)).subspan(1);
}

float Builder::EstimatedHeight() const {
  int items = 0;
  int separators = 0;
  bool inRun = false;
  for (const MenuItem& item : Items()) {
    if (!item.Separator) ++items;
    if (item.Separator && !inRun) ++separators;
    inRun = item.Separator;
  }
  return (scene_.LineHeight + metrics_.ItemGap) * static_cast<float>(items) +
         kSeparatorHeight * metrics_.TwipsY * static_cast<float>(separators);
}

float Builder::NextTop() const {
  if (out_.Items.empty()) return metrics_.FirstTop;
  const float below = out_.Items.back().Top + scene_.LineHeight + metrics_.ItemGap;
  return afterSeparator_ ? below + kSeparatorHeight * metrics_.TwipsY : below;
}

void Builder::AddSeparator() {
  if (afterSeparator_) return;
  afterSeparator_ = true;
  if (out_.Items.empty()) return;
  const ItemBox last{out_.Items.back().Top, scene_.LineHeight};
  out_.Pages.back().Rules.push_back(RuleBelow(last, metrics_.ItemGap, metrics_.TwipsY));
}

void Builder::AddItem(MenuItem item) {
  item.AfterSeparator = afterSeparator_;
  item.Top = NextTop();
  item.Width = scene_.TextWidth ? scene_.TextWidth(item.Title) : 0;
  out_.MaxLabelWidth = std::max(out_.MaxLabelWidth, item.Width);
  afterSeparator_ = false;
  const int number = static_cast<int>(out_.Items.size()) + 1;
  // A page has at least one item, however little room there is.
  if (paged_ && number > out_.Pages.back().FirstLabel && item.Top + scene_.LineHeight >= pageEnd_) {
    StartPage();
    item.Top = metrics_.FirstTop;
  }
  out_.Pages.back().LastLabel = number;
  item.Page = static_cast<int>(out_.Pages.size()) - 1;
  out_.Items.push_back(std::move(item));
}

void Builder::StartPage() {
  // The picture of a page ends right below its last item, and with it a rule that lies there.
  const ItemBox last{out_.Items.back().Top, scene_.LineHeight};
  std::vector<float>& rules = out_.Pages.back().Rules;
  if (!rules.empty() && rules.back() > last.Bottom()) rules.pop_back();
  MenuPage page;
  page.FirstLabel = out_.Pages.back().LastLabel + 1;
  page.LastLabel = page.FirstLabel;
  out_.Pages.push_back(std::move(page));
}

void Builder::EndLayout() {
  out_.Labels = static_cast<int>(out_.Items.size());
  out_.Slides = static_cast<int>(out_.Pages.size()) - 1;
  const float lastTop = out_.Items.empty() ? metrics_.FirstTop : out_.Items.back().Top;
  if (out_.Slides > 0) {
    out_.Height = scene_.WindowHeight;
    std::vector<float>& rules = out_.Pages.back().Rules;
    if (!rules.empty() && rules.back() > lastTop) rules.pop_back();
  } else {
    out_.Height = lastTop + scene_.LineHeight + kMargin * metrics_.TwipsY;
  }
  const float texts = metrics_.ItemLeft + out_.MaxLabelWidth;
  out_.Width = scene_.Key == kMainMenuKey
                   ? texts + kMarkRoom * metrics_.TwipsX
                   : std::max(texts + kMargin * metrics_.TwipsX, kLeastMenuWidth);
}

MenuLayout Builder::Build() {
  out_.ItemGap = metrics_.ItemGap;
  out_.Pages.assign(1, MenuPage{});
  const float reserve = kPageReserve * metrics_.TwipsY;
  paged_ = EstimatedHeight() > scene_.WindowHeight - reserve;
  out_.MenuHeight =
      paged_ ? scene_.WindowHeight - kArrowRow * metrics_.TwipsY : scene_.WindowHeight;
  pageEnd_ = out_.MenuHeight - reserve;
  out_.Items.reserve(Items().size());
  for (const MenuItem& item : Items()) {
    if (item.Hidden) continue;
    if (item.Separator) {
      AddSeparator();
    } else {
      AddItem(item);
    }
  }
  EndLayout();
  return std::move(out_);
}

}  // namespace

MenuMetrics MetricsFor(float twipsX, float twipsY) noexcept {
  const float x = std::trunc(twipsX);
  const float y = std::trunc(twipsY);
  MenuMetrics metrics;
  metrics.TwipsX = x;
  metrics.TwipsY = y;
  metrics.SmallIconW = 16 * x;
  metrics.SmallIconH = 16 * y;
  metrics.ItemLeft = metrics.SmallIconW + 8 * x;
  metrics.FirstTop = 6 * y;
  metrics.ItemGap = ItemGapFor(y);
  metrics.BarLeft = 21 * x;
  metrics.BarHeight = 21 * y;
  return metrics;
}

float MenuRoom(const MenuRoomScene& s) noexcept {
  if (s.Vertical) return s.ScreenHeight;
  const float room = s.At == Edge::Bottom ? s.StripTop : s.ScreenHeight - s.MenuTop;
  return std::max(room, 0.0F);
}

MenuLayout LayOutMenu(const MenuScene& scene) { return Builder(scene).Build(); }

ArrowLayout LayOutArrows(const ArrowScene& s) noexcept {
  ArrowLayout arrows;
  arrows.RuleY = s.MenuHeight + 3 * s.TwipsY;
  arrows.LightRuleY = arrows.RuleY + s.TwipsY;
  const float width = s.WindowWidth / 2 - 7 * s.TwipsX;
  const float top = s.MenuHeight + 3 * s.TwipsY + 5 * s.TwipsY;
  const bool canGoUp = s.CurMenu != 0;
  const bool canGoDown = s.CurMenu != s.Slides;
  arrows.Up = {{3 * s.TwipsX, top, width, 21 * s.TwipsY}, canGoUp, canGoUp ? "up" : "up2"};
  const float left = arrows.Up.Bounds.Right() + s.TwipsX;
  arrows.Down = {{left, top, width, 21 * s.TwipsY}, canGoDown, canGoDown ? "down" : "down2"};
  return arrows;
}

TwipPoint GlyphPlace(const TwipRect& button, const TwipSize& glyph) noexcept {
  return {button.Left + (button.Width - glyph.Width) / 2,
          button.Top + (button.Height - glyph.Height) / 2};
}

}  // namespace corvelle
