#include "forms/LookupLedger.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace corvelle::forms {

namespace {

LookupAnswer DroppedAnswer(LookupId id) { return {.Id = id, .End = LookupEnd::Dropped}; }

template <class T>
LookupAnswer AnswerOf(std::optional<T> value) {
  if (!value) return {.End = LookupEnd::Failed};
  return {.Value = *std::move(value)};
}

/// What `answer` gives for each line, as a list of entries.
template <class Answer>
std::vector<ShellFolderEntry> OfEachLine(std::string_view lines, Answer answer) {
  std::vector<ShellFolderEntry> answers;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    answers.push_back({.Name = answer(std::string(lines.substr(0, end)))});
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return answers;
}

/// A name that the shell does not know is shown as it is.
std::vector<ShellFolderEntry> NamesOf(ShellIcons& icons, const std::string& folder,
                                      std::string_view lines) {
  return OfEachLine(lines, [&](const std::string& name) {
    return icons.DisplayName(folder + name).value_or(name);
  });
}

}  // namespace

LookupId LookupLedger::Open(Lookup question) {
  const LookupId id = ++last_;
  const std::string lane = question.Lane;
  waiting_.Add(lane, {id, std::move(question)});
  return id;
}

std::optional<LookupLedger::Begun> LookupLedger::Begin() {
  auto taken = waiting_.Take();
  if (!taken) return std::nullopt;
  begun_.emplace(taken->Work.Id, taken->Work.Question.Generation);
  return std::move(taken->Work);
}

bool LookupLedger::End(const Begun& begun, LookupAnswer answer) {
  waiting_.Free(begun.Question.Lane);
  if (begun_.erase(begun.Id) == 0) return false;  // dropped, and told as such
  answer.Id = begun.Id;
  ends_.push_back({begun.Question.Generation, std::move(answer)});
  return ends_.size() == 1;
}

bool LookupLedger::Drop(std::uint64_t generation) {
  const bool nothingToTell = ends_.empty();
  for (Ended& ended : ends_) {
    if (ended.Generation == generation) ended.Answer = DroppedAnswer(ended.Answer.Id);
  }
  for (auto at = begun_.begin(); at != begun_.end();) {
    if (at->second != generation) {
      ++at;
      continue;
    }
    ends_.push_back({generation, DroppedAnswer(at->first)});
    at = begun_.erase(at);
  }
  const auto left = waiting_.Remove(
      [generation](const Begun& waiting) { return waiting.Question.Generation == generation; });
  for (const Begun& waiting : left) ends_.push_back({generation, DroppedAnswer(waiting.Id)});
  return nothingToTell && !ends_.empty();
}

std::vector<LookupAnswer> LookupLedger::TakeEnds() {
  std::vector<LookupAnswer> told;
  told.reserve(ends_.size());
  for (Ended& ended : ends_) told.push_back(std::move(ended.Answer));
  ends_.clear();
  return told;
}

LookupAnswer AnswerLookup(const LookupServices& services, const Lookup& question) {
  const std::string& path = question.Path;
  switch (question.Kind) {
    case LookupKind::IsThere:
      return {.Value = services.Files.FileExists(path) || services.Files.FolderExists(path)};
    case LookupKind::FolderEntries: {
      auto entries = services.Files.List(path, question.Pattern);
      if (!entries) return {.End = LookupEnd::Failed, .Error = entries.Error()};
      return {.Value = *std::move(entries)};
    }
    case LookupKind::Drive:
      return {.Value = services.System.FactsOfDrive(path)};
    case LookupKind::DriveAtHand:
      return {.Value = services.System.IsDriveAtHand(path)};
    case LookupKind::IconTarget:
      if (services.Links.LiesElsewhere(path)) return {.End = LookupEnd::Failed};
      [[fallthrough]];
    case LookupKind::LinkTarget: {
      const auto link = services.Links.CreateLinkObject();
      if (link == nullptr || !link->Load(path)) return {.End = LookupEnd::Failed};
      return {.Value = link->GetPath().value_or(std::string())};
    }
    case LookupKind::FileName:
      return AnswerOf(services.Icons.DisplayName(path));
    case LookupKind::FileNames:
      return {.Value = NamesOf(services.Icons, path, question.Pattern)};
    case LookupKind::FileIcon:
      return AnswerOf(services.Icons.PixelsOfFile(path, question.List));
    case LookupKind::IconInFile:
      return AnswerOf(services.Icons.PixelsInFile(path, question.Number, question.Size));
    case LookupKind::IconCount:
      return {.Value = services.Icons.IconCount(path)};
    case LookupKind::ShellFolder: {
      auto self = services.Folders.Folder(question.Number);
      if (!self) return {.End = LookupEnd::Failed};
      return {.Value = std::vector<ShellFolderEntry>{*std::move(self)}};
    }
    case LookupKind::ShellEntries:
      return AnswerOf(services.Folders.List(question.Number));
    case LookupKind::ShellIcon:
      return AnswerOf(services.Folders.PixelsOf(question.Number, path, question.List));
    case LookupKind::ShortPaths:
      return {.Value = OfEachLine(question.Pattern, [&](const std::string& name) {
                return services.Files.ShortPath(path + name);
              })};
  }
  return {.End = LookupEnd::Failed};
}

}  // namespace corvelle::forms
