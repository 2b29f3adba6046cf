#include "menus/icons/MenuIcons.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "base/Digest.h"
#include "base/Text.h"
#include "core/IconState.h"
#include "core/MenuRecord.h"
#include "core/ProgramPaths.h"
#include "desk/AnswerDesk.h"
#include "desk/LookupPlaces.h"
#include "forms/WindowSystem.h"
#include "icons/Glyphs.h"
#include "icons/IconQuestions.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr int kFirstRoom = 16;
/// Under which the blank document is kept; no icon text is like it.
const std::string kBlankKey(1, '\0');
/// How long one place is waited for while the icons of a page are asked for. Milliseconds.
constexpr int kMostOfOnePlace = 40;
/// Of the icons that are fetched beforehand, so many that do not answer may be under way.
constexpr std::size_t kMostSlow = 8;

const IconPixels* PixelsOf(const LookupValue& value) {
  const auto* const pixels = std::get_if<IconPixels>(&value);
  return pixels != nullptr && !pixels->IsEmpty() && pixels->IsWhole() ? pixels : nullptr;
}

std::uint64_t DigestOf(const IconPixels& pixels) {
  Digest digest;
  digest.Add(static_cast<std::uint64_t>(pixels.Width));
  for (const std::uint32_t pixel : pixels.Pixels) digest.Add(std::uint64_t{pixel});
  return digest.Value();
}

/// What is waited for when the question is: a link leads to a place that is not known yet.
std::string PlaceAskedOf(const Lookup& question) {
  return desk::DependsOnTarget(question) ? "links" : desk::LaneOfLookup(question);
}

}  // namespace

MenuIcons::MenuIcons(const IconSources& from)
    : from_(from), shown_(from.Answers.NewOwner()), ahead_(from.Answers.NewOwner()) {}

MenuIcons::~MenuIcons() {
  from_.Answers.Drop(shown_);
  from_.Answers.Drop(ahead_);
}

void MenuIcons::ResetPicIcons() {
  ++resets_;
  late_.clear();
  left_.clear();
  from_.Answers.Drop(shown_);
  from_.Answers.Drop(ahead_);
  toFetch_.clear();
  fetching_.clear();
  slow_.clear();
  colIconFile_.clear();
  colIconIndex_.clear();
  cellsByPixels_.clear();
  cellsByExtension_.clear();
  picIcons_.reset();
  cells_ = 0;
  room_ = 0;
}

void MenuIcons::WaitUntil(std::int64_t moment) {
  waitUntil_ = moment;
  late_.clear();
}

IconForm MenuIcons::Classify(std::string_view text) const {
  return ClassifyIcon(text,
                      {.AppPath = from_.Paths.AppPath,
                       .IconsPath = from_.Paths.IconsPath,
                       .WebLinkIcon = from_.Icons.WebLinkIcon},
                      IconCaller::Menu);
}

IconPicture MenuIcons::Find(std::string_view iconText) {
  const std::string text = Trim(iconText);
  const IconForm form = Classify(text);
  const std::string key = Enter(text, form);
  if (key.empty()) return Peek(iconText);
  Entry& found = colIconFile_.at(key);
  found.OnShow = true;
  // Each question takes a little of the system's time, and a page has dozens of icons.
  if (found.Is == State::New && from_.Windows.Now() >= waitUntil_) {
    left_.push_back(key);
    PostAsking();
    return Peek(iconText);
  }
  Ask(key, desk::Urgency::OnShow, true);
  const auto entry = colIconFile_.find(key);
  if (entry != colIconFile_.end() && entry->second.Is == State::Missing) {
    const std::string blank = EnterBlank();
    colIconFile_.at(blank).OnShow = true;
    Ask(blank, desk::Urgency::OnShow, true);
  }
  return Peek(iconText);
}

IconPicture MenuIcons::Peek(std::string_view iconText) {
  const std::string text = Trim(iconText);
  const IconForm form = Classify(text);
  if (form.Kind == IconKind::BuiltIn) return {.Glyph = form.Text};
  if (form.Kind == IconKind::Empty || IsSeparatorIcon(text)) return {};
  if (form.Kind == IconKind::SystemIndex) return {.Cell = LoadSystemIcon(form.Index)};
  const std::string key = LowerCase(text);
  if (colIconFile_.contains(key)) return PictureOf(key);
  return {.Glyph = std::string(NeutralGlyph(form)), .Final = false};
}

IconPicture MenuIcons::PictureOf(const std::string& key) {
  const Entry& entry = colIconFile_.at(key);
  if (entry.Is == State::Found) return {.Cell = entry.Cell};
  if (entry.Is != State::Missing) return StandIn(entry);
  const auto blank = colIconFile_.find(kBlankKey);
  if (blank == colIconFile_.end()) return StandIn(entry);
  if (blank->second.Is == State::Found) return {.Cell = blank->second.Cell};
  // What has no icon at all keeps its empty cell.
  if (blank->second.Is == State::Missing) return {};
  return StandIn(entry);
}

IconPicture MenuIcons::StandIn(const Entry& entry) {
  for (const Lookup& question : entry.Questions) {
    const LookupValue* const last = from_.Answers.LastKnown(question);
    const IconPixels* const pixels = last != nullptr ? PixelsOf(*last) : nullptr;
    if (pixels != nullptr) return {.Cell = CellOf(*pixels), .Final = false};
  }
  const std::string extension = SharedIconExtension(entry.Form);
  const auto kind = cellsByExtension_.find(extension);
  if (!extension.empty() && kind != cellsByExtension_.end())
    return {.Cell = kind->second, .Final = false};
  return {.Glyph = std::string(NeutralGlyph(entry.Form)), .Final = false};
}

void MenuIcons::Draw(Canvas& canvas, PixelPoint at, const IconPicture& picture) const {
  // Nothing of an earlier icon may shine through.
  canvas.FillBox(RectAt(at, {kCell, kCell}),
                 forms::Resolve(from_.Windows, forms::color::ButtonFace));
  if (!picture.Glyph.empty()) {
    DrawGlyph(canvas, from_.Windows, picture.Glyph, at);
  } else if (picture.Cell >= 0 && picture.Cell < cells_) {
    canvas.DrawCanvas(*picIcons_, RectAt({picture.Cell * kCell, 0}, {kCell, kCell}), at);
  }
}

// ---- questions ----

std::string MenuIcons::Enter(std::string_view text, const IconForm& form) {
  if (IsSeparatorIcon(text)) return {};
  std::vector<Lookup> questions = IconQuestions(form, from_.Icons.ShellDrawsIcons);
  if (questions.empty()) return {};
  std::string key = LowerCase(text);
  colIconFile_.try_emplace(key, Entry{.Form = form, .Questions = std::move(questions)});
  return key;
}

std::string MenuIcons::EnterBlank() {
  colIconFile_.try_emplace(
      kBlankKey,
      Entry{.Form = {.Kind = IconKind::File, .Text = {}, .File = {}},
            .Questions = BlankIconQuestions(from_.Paths.IconsPath, from_.Icons.ShellDrawsIcons)});
  return kBlankKey;
}

int MenuIcons::MayWait(const Lookup& question) const {
  const std::int64_t left = waitUntil_ - from_.Windows.Now();
  if (left <= 0 || late_.contains(PlaceAskedOf(question))) return 0;
  return static_cast<int>(std::min<std::int64_t>(left, kMostOfOnePlace));
}

void MenuIcons::Ask(const std::string& key, desk::Urgency how, bool mayWait) {
  for (;;) {
    // What is asked below may forget all icons.
    const auto found = colIconFile_.find(key);
    if (found == colIconFile_.end()) return;
    Entry& entry = found->second;
    if (entry.Is == State::Found || entry.Is == State::Missing) return;
    const bool onShow = how == desk::Urgency::OnShow;
    const std::size_t next = entry.Next;
    const Lookup question = entry.Questions[next];
    // Only an answer that has come since it was asked for is as good as a new one.
    const std::int64_t now = from_.Windows.Now();
    if (entry.Is != State::Waiting) entry.AskedAt = now;
    desk::Request request{.Question = question,
                          .How = how,
                          .Owner = onShow ? shown_ : ahead_,
                          .MaxAge = now - entry.AskedAt - 1};
    desk::Asker later{
        .Ended = [this, key, next](const desk::Reply& reply) { TakeLate(key, next, reply); },
        .TakesLonger = {}};
    entry.Is = State::Waiting;
    if (!onShow) {
      later.TakesLonger = [this, key](desk::Stage) {
        if (fetching_.contains(key)) slow_.insert(key);
        GoOnFetching();
      };
      from_.Answers.Ask(std::move(request), std::move(later));
      return;
    }
    later.Back = [this, key] { TryAgain(key); };
    const int wait = mayWait ? MayWait(question) : 0;
    const auto reply = from_.Answers.AskAtOnce(std::move(request), std::move(later), wait);
    if (!reply) {
      if (wait > 0) late_.insert(PlaceAskedOf(question));
      return;
    }
    Take(key, next, *reply);
    if (reply->How != desk::End::Failed) return;
  }
}

void MenuIcons::Take(const std::string& key, std::size_t question, const desk::Reply& reply) {
  const auto found = colIconFile_.find(key);
  if (found == colIconFile_.end()) return;
  Entry& entry = found->second;
  // Others may have asked the same and been told before.
  if (entry.Is != State::Waiting || entry.Next != question) return;
  const IconPixels* const pixels =
      reply.How == desk::End::Answered ? PixelsOf(reply.Value) : nullptr;
  if (pixels != nullptr) {
    entry.Cell = CellOf(*pixels);
    entry.Is = State::Found;
    const std::string extension = SharedIconExtension(entry.Form);
    if (!extension.empty()) cellsByExtension_[extension] = entry.Cell;
    return;
  }
  if (reply.How == desk::End::NotAvailable) {
    entry.Is = State::NotAvailable;
    return;
  }
  ++entry.Next;
  entry.Is = entry.Next < entry.Questions.size() ? State::New : State::Missing;
}

void MenuIcons::TakeLate(const std::string& key, std::size_t question, const desk::Reply& reply) {
  Take(key, question, reply);
  GoOn(key);
}

void MenuIcons::TryAgain(const std::string& key) {
  const auto found = colIconFile_.find(key);
  if (found == colIconFile_.end()) return;
  if (!found->second.OnShow || found->second.Is != State::NotAvailable) return;
  Ask(key, desk::Urgency::OnShow, false);
  const auto asked = colIconFile_.find(key);
  if (asked != colIconFile_.end() && asked->second.Is != State::Waiting) GoOn(key);
}

void MenuIcons::GoOn(const std::string& key) {
  const auto found = colIconFile_.find(key);
  if (found == colIconFile_.end()) return;
  const Entry& entry = found->second;
  const desk::Urgency how = entry.OnShow ? desk::Urgency::OnShow : desk::Urgency::Ahead;
  if (entry.Is == State::New) Ask(key, how, false);
  if (entry.Is == State::Missing && key != kBlankKey) {
    Entry& blank = colIconFile_.at(EnterBlank());
    blank.OnShow = blank.OnShow || entry.OnShow;
    if (blank.Is == State::New) {
      Ask(kBlankKey, how, false);
      // It counts as a part of what leads to it.
      if (fetching_.contains(key)) fetching_.insert(kBlankKey);
    }
  }
  if (entry.OnShow) PostArrived();
  if (entry.Is != State::Waiting) Fetched(key);
}

void MenuIcons::PostArrived() {
  if (std::exchange(posted_, true)) return;
  from_.Windows.Post([this, watch = alive_.MakeWatch(), resets = resets_] {
    if (watch.Gone()) return;
    posted_ = false;
    // What is forgotten is asked for when it is drawn again.
    if (resets != resets_) return;
    if (const auto arrived = Arrived) arrived();
  });
}

void MenuIcons::PostAsking() {
  if (left_.size() > 1) return;
  from_.Windows.Post([this, watch = alive_.MakeWatch()] {
    if (!watch.Gone()) AskWhatIsLeft();
  });
}

void MenuIcons::AskWhatIsLeft() {
  for (const std::string& key : std::exchange(left_, {})) {
    const auto found = colIconFile_.find(key);
    if (found == colIconFile_.end() || found->second.Is != State::New) continue;
    Ask(key, desk::Urgency::OnShow, false);
    const auto asked = colIconFile_.find(key);
    if (asked != colIconFile_.end() && asked->second.Is != State::Waiting) GoOn(key);
  }
}

void MenuIcons::PutAside() {
  waitUntil_ = 0;
  std::vector<std::string> asked;
  for (auto& [key, entry] : colIconFile_) {
    if (!std::exchange(entry.OnShow, false)) continue;
    if (entry.Is == State::Waiting || entry.Is == State::New) asked.push_back(key);
  }
  for (const std::string& key : asked) Ask(key, desk::Urgency::Ahead, false);
  from_.Answers.Drop(shown_);
}

void MenuIcons::Stop() {
  left_.clear();
  from_.Answers.Drop(shown_);
}

// ---- beforehand ----

void MenuIcons::Fetch(std::string_view iconText) {
  const std::string text = Trim(iconText);
  std::string key = Enter(text, Classify(text));
  if (key.empty() || colIconFile_.at(key).Is != State::New) return;
  toFetch_.push_back(std::move(key));
  GoOnFetching();
}

void MenuIcons::GoOnFetching() {
  while (!toFetch_.empty() && fetching_.size() == slow_.size() && slow_.size() < kMostSlow) {
    const std::string key = std::move(toFetch_.front());
    toFetch_.pop_front();
    const auto found = colIconFile_.find(key);
    // A menu may have asked for it meanwhile.
    if (found == colIconFile_.end() || found->second.Is != State::New) continue;
    fetching_.insert(key);
    Ask(key, desk::Urgency::Ahead, false);
  }
}

void MenuIcons::Fetched(const std::string& key) {
  slow_.erase(key);
  if (fetching_.erase(key) > 0) GoOnFetching();
}

// ---- the strip ----

int MenuIcons::LoadSystemIcon(int index) {
  const std::string key = "i" + std::to_string(index);
  const auto known = colIconIndex_.find(key);
  if (known != colIconIndex_.end()) return known->second;
  // The shell loads its list when it is first drawn from, and may let messages in that empty the
  // strip.
  const std::unique_ptr<Canvas> icon = from_.Windows.CreateCanvas({kCell, kCell});
  icon->FillBox({0, 0, kCell, kCell}, forms::Resolve(from_.Windows, forms::color::ButtonFace));
  // A number without an icon keeps its empty cell, and is not asked for again.
  from_.Shell.DrawSystemIcon(*icon, IconList::Small, index, {0, 0}, IconStyle::Normal);
  const int cell = AddCell([&icon](Canvas& strip, PixelPoint at) {
    strip.DrawCanvas(*icon, {0, 0, kCell, kCell}, at);
  });
  colIconIndex_.emplace(key, cell);
  return cell;
}

int MenuIcons::CellOf(const IconPixels& pixels) {
  const auto [known, isNew] = cellsByPixels_.try_emplace(DigestOf(pixels), cells_);
  if (!isNew) return known->second;
  return AddCell([&](Canvas& strip, PixelPoint at) { strip.DrawPixels(pixels, at); });
}

int MenuIcons::AddCell(const std::function<void(Canvas&, PixelPoint)>& draw) {
  MakeRoom();
  const PixelPoint at{cells_ * kCell, 0};
  picIcons_->FillBox(RectAt(at, {kCell, kCell}),
                     forms::Resolve(from_.Windows, forms::color::ButtonFace));
  draw(*picIcons_, at);
  return cells_++;
}

void MenuIcons::MakeRoom() {
  if (cells_ < room_) return;
  const int room = std::max(kFirstRoom, 2 * room_);
  std::unique_ptr<Canvas> wider = from_.Windows.CreateCanvas({room * kCell, kCell});
  if (picIcons_) wider->DrawCanvas(*picIcons_, {0, 0, cells_ * kCell, kCell}, {0, 0});
  picIcons_ = std::move(wider);
  room_ = room;
}

}  // namespace corvelle
