#include "icons/AskedIcons.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "core/IconState.h"
#include "core/ProgramPaths.h"
#include "desk/AnswerDesk.h"
#include "desk/LookupPlaces.h"
#include "forms/WindowSystem.h"
#include "icons/Glyphs.h"
#include "icons/IconQuestions.h"
#include "platform/Canvas.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

/// What is waited for when the question is: a link leads to a place that is not known yet.
std::string PlaceWaitedFor(const Lookup& question) {
  return desk::DependsOnTarget(question) ? "links" : desk::LaneOfLookup(question);
}

}  // namespace

AskedIcons::AskedIcons(const IconSources& from, IconCaller caller)
    : from_(from), caller_(caller), owner_(from.Answers.NewOwner()) {}

void AskedIcons::Drop() {
  late_.clear();
  from_.Answers.Drop(owner_);
}

IconLook AskedIcons::Ask(std::string_view text, int size, int milliseconds, Known known) {
  const IconForm form = ClassifyIcon(text,
                                     {.AppPath = from_.Paths.AppPath,
                                      .IconsPath = from_.Paths.IconsPath,
                                      .WebLinkIcon = from_.Icons.WebLinkIcon},
                                     caller_);
  if (form.Kind == IconKind::BuiltIn) return {};
  if (form.Kind == IconKind::SystemIndex && HasSystemIcon(form.Index, size))
    return {.SystemIndex = form.Index};
  const bool shellDraws = from_.Icons.ShellDrawsIcons;
  const auto icon = std::make_shared<Asked>();
  icon->Questions = IconQuestions(form, shellDraws, size);
  icon->Look = StandIn(*icon, form);
  for (Lookup& question : BlankIconQuestions(from_.Paths.IconsPath, shellDraws, size))
    icon->Questions.push_back(std::move(question));
  icon->Tell = std::move(known);
  GoOn(icon, icon->Look.Pixels.IsEmpty() ? milliseconds : 0);
  return icon->Look;
}

bool AskedIcons::HasSystemIcon(int index, int size) const {
  return from_.Shell.DrawSystemIcon(*from_.Windows.CreateCanvas({size, size}), IconListOf(size),
                                    index, {0, 0}, IconStyle::Normal);
}

IconLook AskedIcons::StandIn(const Asked& icon, const IconForm& form) const {
  for (const Lookup& question : icon.Questions) {
    const LookupValue* const last = from_.Answers.LastKnown(question);
    const auto* const pixels = last != nullptr ? std::get_if<IconPixels>(last) : nullptr;
    if (pixels != nullptr && !pixels->IsEmpty() && pixels->IsWhole()) return {.Pixels = *pixels};
  }
  return {.Glyph = std::string(NeutralGlyph(form))};
}

bool AskedIcons::GoOn(const std::shared_ptr<Asked>& icon, int milliseconds) {
  while (icon->Next < icon->Questions.size()) {
    const std::string place = PlaceWaitedFor(icon->Questions[icon->Next]);
    const auto later = [this, icon, place](const desk::Reply& reply) {
      if (reply.How != desk::End::NotAvailable) late_.erase(place);
      const IconLook before = icon->Look;
      if (Take(*icon, reply) || GoOn(icon, 0)) TellChange(*icon, before);
    };
    const auto back = [this, icon] {
      const IconLook before = icon->Look;
      if (GoOn(icon, 0)) TellChange(*icon, before);
    };
    const auto reply = from_.Answers.AskAtOnce(
        {.Question = icon->Questions[icon->Next], .How = desk::Urgency::OnShow, .Owner = owner_},
        {.Ended = later, .TakesLonger = {}, .Back = back},
        late_.contains(place) ? 0 : milliseconds);
    if (!reply) {
      if (milliseconds > 0) late_.insert(place);
      return false;
    }
    if (Take(*icon, *reply)) return true;
  }
  icon->Look = {};
  return true;
}

void AskedIcons::TellChange(Asked& icon, const IconLook& before) {
  if (icon.Look == before) return;
  // It may end this.
  const Known tell = std::move(icon.Tell);
  tell(icon.Look);
}

bool AskedIcons::Take(Asked& icon, const desk::Reply& reply) {
  // What is in its place stays until it may be asked again.
  if (reply.How == desk::End::NotAvailable) return true;
  const auto* const pixels = std::get_if<IconPixels>(&reply.Value);
  if (reply.How != desk::End::Answered || pixels == nullptr || pixels->IsEmpty() ||
      !pixels->IsWhole()) {
    ++icon.Next;
    return false;
  }
  icon.Look = {.Pixels = *pixels};
  return true;
}

bool AskedIcons::Draw(Canvas& canvas, const IconLook& look, int size) const {
  if (look.SystemIndex) {
    return from_.Shell.DrawSystemIcon(canvas, IconListOf(size), *look.SystemIndex, {0, 0},
                                      IconStyle::Normal);
  }
  if (!look.Pixels.IsEmpty()) {
    canvas.DrawPixels(look.Pixels, {0, 0});
    return true;
  }
  const int scale = std::max(size / kSmallIconSize, 1);
  const int margin = (size - scale * kSmallIconSize) / 2;
  return !look.Glyph.empty() &&
         DrawGlyph(canvas, from_.Windows, look.Glyph, {margin, margin}, scale);
}

}  // namespace corvelle
