#include "icons/ShellIconRule.h"

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "core/IconState.h"
#include "core/ProgramPaths.h"
#include "platform/FileSystem.h"

namespace corvelle {

ShellIconRule::ShellIconRule(desk::AnswerDesk& answers, const ProgramPaths& paths, IconState& icons)
    : answers_(answers), paths_(paths), icons_(icons), owner_(answers.NewOwner()) {}

ShellIconRule::~ShellIconRule() { answers_.Drop(owner_); }

// The registry's "icofile" says nothing: the user may have given icon files to another program, and
// the shell then shows that program's picture for all of them.
void ShellIconRule::DetectShellIcons() {
  answers_.Drop(owner_);
  first_.reset();
  icons_.ShellDrawsIcons = false;
  // The strip has not set the other folders yet.
  Ask({.Kind = LookupKind::FolderEntries, .Path = paths_.AppPath + "Icons\\", .Pattern = "*.ico"},
      [this](const desk::Reply& reply) { AskForTwo(reply); });
}

void ShellIconRule::Ask(Lookup question, std::function<void(const desk::Reply&)> answered) {
  const auto reply = answers_.AskAtOnce(
      {.Question = std::move(question), .How = desk::Urgency::Ahead, .Owner = owner_},
      {.Ended = answered, .TakesLonger = {}}, 0);
  if (reply) answered(*reply);
}

void ShellIconRule::AskForTwo(const desk::Reply& listed) {
  const auto* const entries = std::get_if<std::vector<FileEntry>>(&listed.Value);
  if (entries == nullptr) return;
  int asked = 0;
  for (const FileEntry& entry : *entries) {
    if (entry.IsFolder || ++asked > 2) continue;
    Ask({.Kind = LookupKind::FileIcon, .Path = paths_.AppPath + "Icons\\" + entry.Name},
        [this](const desk::Reply& reply) { Compare(reply); });
  }
}

void ShellIconRule::Compare(const desk::Reply& icon) {
  const auto* const pixels = std::get_if<IconPixels>(&icon.Value);
  if (pixels == nullptr) return;
  if (first_) {
    icons_.ShellDrawsIcons = *first_ != *pixels;
  } else {
    first_ = *pixels;
  }
}

}  // namespace corvelle
