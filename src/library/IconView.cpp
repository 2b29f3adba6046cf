#include "library/IconView.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "forms/Scale.h"
#include "icons/IconQuestions.h"

namespace corvelle {

using forms::MouseButton;
using forms::ShiftState;

namespace {

// So long the icons may keep the user waiting at a time, and so many are asked for at most.
constexpr int kAskTime = 20;  // milliseconds
constexpr int kAskedAtOnce = 24;
constexpr int kMostUnderWay = 24;
constexpr forms::OleColor kWindowText = 0x80000008;
constexpr int kWideBorder = 2;
constexpr int kBorder = 1;  // pixels around the marked cell

}  // namespace

IconView::IconView(desk::AnswerDesk& answers, forms::PictureBox& sheet, forms::ScrollBar& bar)
    : answers_(answers),
      sheet_(sheet),
      bar_(bar),
      tmrAsk_(sheet.Windows()),
      pictures_(sheet.Windows()),
      asked_(answers.NewOwner()) {
  sheet_.SetTabStop(true);
  sheet_.SetWants({.Arrows = true, .Paging = true, .Typing = true});
  sheet_.SetBackColor(forms::color::WindowGround);
  tmrAsk_.SetInterval(1);
  Wire();
}

void IconView::Wire() {
  sheet_.Paint = [this] { PaintCells(); };
  sheet_.MouseDown = [this](MouseButton, ShiftState, float x, float y) { Press(x, y); };
  sheet_.DblClick = [this] {
    if (pressedCell_ && Chosen) Chosen();
  };
  sheet_.KeyDown = [this](int keyCode, ShiftState shift) { return !shift.Alt && OnKey(keyCode); };
  sheet_.KeyPress = [this](char32_t character) { return OnCharacter(character); };
  sheet_.Wheel = [this](int delta, ShiftState) {
    bar_.TurnWheel(delta);
    return true;
  };
  sheet_.GotFocus = [this] { Repaint(marked_); };
  sheet_.LostFocus = [this] { Repaint(marked_); };
  bar_.Change = [this] { Scrolled(); };
  bar_.Scroll = [this] { Scrolled(); };
  tmrAsk_.Tick = [this] { AskSome(); };
}

void IconView::SetMetrics(const CellMetrics& cell, PixelSize view) {
  grid_.Cell = cell;
  grid_.View = view;
  SetCells(std::move(cells_));
}

void IconView::SetCells(std::vector<IconCell> cells) {
  answers_.Drop(asked_);
  underWay_ = 0;
  late_ = false;
  cells_ = std::move(cells);
  isAsked_.assign(cells_.size(), false);
  pictures_.Start(cells_.size(), grid_.Cell.Icon,
                  forms::Resolve(sheet_.Windows(), forms::color::WindowGround));
  grid_.TopRow = 0;
  ShowCells(-1);
}

void IconView::SetFilter(std::string_view text) {
  filter_ = std::string(text);
  const auto marked = marked_ < 0 ? cells_.size() : shown_[static_cast<std::size_t>(marked_)];
  const std::vector<std::size_t> kept = FilterCells(cells_, filter_);
  const auto found = std::find(kept.begin(), kept.end(), marked);
  ShowCells(found == kept.end() ? -1 : static_cast<int>(found - kept.begin()));
}

void IconView::ShowCells(int marked) {
  shown_ = FilterCells(cells_, filter_);
  marked_ = marked;
  pressedCell_ = false;
  grid_.Count = static_cast<int>(shown_.size());
  grid_.TopRow = std::min(grid_.TopRow, grid_.MostTopRow());
  if (marked_ >= 0) grid_.TopRow = grid_.TopRowToShow(marked_);
  UpdateBar();
  tmrAsk_.SetEnabled(isShown_ && grid_.Count > 0);
  sheet_.InvalidateAll();
}

void IconView::SetShown(bool shown) {
  isShown_ = shown;
  tmrAsk_.SetEnabled(isShown_ && grid_.Count > 0);
}

void IconView::UpdateBar() {
  bar_.SetRange({.Least = 0,
                 .Most = grid_.MostTopRow(),
                 .Line = 1,
                 .Page = grid_.WholeRows(),
                 .Value = grid_.TopRow});
  bar_.SetEnabled(grid_.MostTopRow() > 0);
}

void IconView::Scrolled() {
  grid_.TopRow = bar_.Value();
  sheet_.InvalidateAll();
}

// ---- which cell is marked ----

const IconCell* IconView::Marked() const {
  if (marked_ < 0) return nullptr;
  return &cells_[shown_[static_cast<std::size_t>(marked_)]];
}

void IconView::Mark(int place) {
  const int before = std::exchange(marked_, place < grid_.Count ? place : -1);
  Repaint(before);
  if (marked_ < 0) return;
  Repaint(marked_);
  const int top = grid_.TopRowToShow(marked_);
  if (top == grid_.TopRow) return;
  bar_.SetValue(top);
  Scrolled();
}

void IconView::Press(float x, float y) {
  const int place = grid_.IndexAt(forms::ToPixels(x, y, sheet_.Scale()));
  pressedCell_ = place >= 0;
  if (pressedCell_) Mark(place);
}

bool IconView::OnKey(int keyCode) {
  if (keyCode < forms::key::PageUp || keyCode > forms::key::Down) return false;
  Mark(CellByKey(grid_, marked_, keyCode));
  return true;
}

bool IconView::OnCharacter(char32_t character) {
  if (character <= U' ') return false;
  const int place = CellByLetter(cells_, shown_, marked_, character);
  if (place >= 0) Mark(place);
  return true;
}

// ---- asking ----

void IconView::AskSome() {
  const std::int64_t end = sheet_.Windows().Now() + kAskTime;
  for (int i = 0; i < kAskedAtOnce && sheet_.Windows().Now() < end; ++i) {
    // What is scrolled into view is asked for before the rest, so that the rest is asked for late.
    const int place =
        underWay_ < kMostUnderWay
            ? NextToDraw(grid_,
                         [this](int at) { return isAsked_[shown_[static_cast<std::size_t>(at)]]; })
            : -1;
    if (place < 0) return tmrAsk_.SetEnabled(false);
    Ask(shown_[static_cast<std::size_t>(place)]);
  }
}

void IconView::Ask(std::size_t index) {
  isAsked_[index] = true;
  ++underWay_;
  const IconCell& cell = cells_[index];
  const int wait = late_ ? 0 : kAskTime;
  const auto reply =
      answers_.AskAtOnce({.Question = {.Kind = LookupKind::IconInFile,
                                       .Path = cell.File,
                                       .Number = cell.Index,
                                       .Size = grid_.Cell.Icon},
                          .Owner = asked_},
                         {.Ended =
                              [this, index](const desk::Reply& late) {
                                Take(index, late);
                                tmrAsk_.SetEnabled(isShown_);
                              },
                          .TakesLonger = [this, index](desk::Stage) { ShowStandIn(index); },
                          .Back =
                              [this, index] {
                                isAsked_[index] = false;
                                tmrAsk_.SetEnabled(isShown_);
                              }},
                         wait);
  late_ = !reply;
  if (reply) Take(index, *reply);
}

void IconView::Take(std::size_t index, const desk::Reply& reply) {
  --underWay_;
  if (reply.How == desk::End::NotAvailable) return ShowStandIn(index);
  late_ = false;
  const auto* const icon = std::get_if<IconPixels>(&reply.Value);
  pictures_.Draw(index, icon != nullptr ? *icon : IconPixels{});
  RepaintCell(index);
}

void IconView::ShowStandIn(std::size_t index) {
  if (pictures_.HasPicture(index)) return;
  pictures_.DrawStandIn(
      index, NeutralGlyph({.Kind = IconKind::File, .Text = cells_[index].File, .File = {}}));
  RepaintCell(index);
}

// ---- drawing ----

void IconView::RepaintCell(std::size_t index) {
  const auto place = std::lower_bound(shown_.begin(), shown_.end(), index);
  if (place != shown_.end() && *place == index) Repaint(static_cast<int>(place - shown_.begin()));
}

void IconView::Repaint(int place) {
  if (place < 0 || place >= grid_.Count) return;
  // The border of a marked cell lies around it.
  const PixelRect cell = grid_.CellAt(place);
  sheet_.Invalidate({cell.left - kWideBorder, cell.top - kWideBorder, cell.right + kWideBorder,
                     cell.bottom + kWideBorder});
}

void IconView::PaintCells() {
  const PixelRect all = RectAt({0, 0}, grid_.View);
  sheet_.DrawPixels(all, [this](Canvas& canvas) {
    const CellGrid::Range seen = grid_.Seen();
    for (int place = seen.First; place < seen.End; ++place) PaintCell(canvas, place);
  });
}

void IconView::PaintCell(Canvas& canvas, int place) const {
  const std::size_t index = shown_[static_cast<std::size_t>(place)];
  const auto colour = [this](forms::OleColor of) { return forms::Resolve(sheet_.Windows(), of); };
  const PixelRect icon = grid_.IconOf(place);
  if (pictures_.HasPicture(index)) pictures_.Show(index, canvas, icon.TopLeft());
  const PixelRect label = grid_.LabelOf(place);
  const std::string& caption = cells_[index].Caption;
  const PixelSize text = sheet_.MeasureText(caption);
  const PixelPoint at{label.left + (label.Width() - text.width) / 2, label.top};
  const bool marked = place == marked_;
  if (marked) {
    canvas.FillBox(RectAt(at, text), colour(forms::color::Highlight));
    // The border of the marked cell is thinner while the keyboard is elsewhere.
    const int width = sheet_.HasFocus() ? kWideBorder : kBorder;
    const Rgb line = colour(forms::color::Highlight);
    canvas.FillBox({icon.left - width, icon.top - width, icon.right + width, icon.top}, line);
    canvas.FillBox({icon.left - width, icon.bottom - width, icon.right + width, icon.bottom}, line);
    canvas.FillBox({icon.left - width, icon.top, icon.left, icon.bottom}, line);
    canvas.FillBox({icon.right, icon.top, icon.right + width, icon.bottom}, line);
  }
  canvas.DrawString(at, caption, sheet_.Scaled(),
                    colour(marked ? forms::color::HighlightText : kWindowText));
}

std::vector<std::string> IconView::Captions() const {
  std::vector<std::string> captions;
  captions.reserve(shown_.size());
  for (const std::size_t index : shown_) captions.push_back(cells_[index].Caption);
  return captions;
}

std::size_t IconView::DrawnCount() const {
  std::size_t drawn = 0;
  for (std::size_t i = 0; i < cells_.size(); ++i) drawn += pictures_.IsDrawn(i) ? 1 : 0;
  return drawn;
}

}  // namespace corvelle
