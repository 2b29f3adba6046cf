#include "icons/AskedIcons.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "core/IconState.h"
#include "core/ProgramPaths.h"
#include "desk/AnswerDesk.h"
#include "forms/WindowSystem.h"
#include "icons/Glyphs.h"
#include "icons/IconQuestions.h"
#include "icons/IconResolution.h"
#include "platform/Canvas.h"
#include "platform/ShellIcons.h"

namespace corvelle {

AskedIcons::AskedIcons(const IconSources& from, IconCaller caller)
    : from_(from), caller_(caller), owner_(from.Answers.NewOwner()) {}

void AskedIcons::Drop() { from_.Answers.Drop(owner_); }

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
  for (Lookup& question : BlankIconQuestions(from_.Paths.IconsPath, shellDraws, size))
    icon->Questions.push_back(std::move(question));
  icon->Look = StandIn(*icon, form);
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
    const auto later = [this, icon](const desk::Reply& reply) {
      const IconLook before = icon->Look;
      if (!Take(*icon, reply) && !GoOn(icon, 0)) return;
      if (icon->Look == before) return;
      // It may end this.
      const Known tell = std::move(icon->Tell);
      tell(icon->Look);
    };
    const auto reply = from_.Answers.AskAtOnce(
        {.Question = icon->Questions[icon->Next], .How = desk::Urgency::OnShow, .Owner = owner_},
        {.Ended = later, .TakesLonger = {}}, milliseconds);
    if (!reply) return false;
    if (Take(*icon, *reply)) return true;
  }
  icon->Look = {};
  return true;
}

bool AskedIcons::Take(Asked& icon, const desk::Reply& reply) {
  // What stands for it stays.
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
