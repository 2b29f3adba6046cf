#include "library/OtherFiles.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "base/Sort.h"
#include "base/Text.h"
#include "icons/LibraryFile.h"

namespace corvelle {

namespace {

constexpr std::string_view kShortcut = ".lnk";
constexpr std::string_view kNoTarget = "Cannot find a path for the selected shortcut.";
constexpr std::string_view kOfShortcut = " that the selected shortcut refers to";
constexpr std::string_view kAlreadyThere = " is already in the library.";
constexpr std::string_view kNoIcons = " does not contain icons.";

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

int CountOf(const desk::Reply& counted) {
  const int* const count = std::get_if<int>(&counted.Value);
  return count != nullptr ? *count : 0;
}

bool IsYes(const desk::Reply& reply) {
  const bool* const there = std::get_if<bool>(&reply.Value);
  return there != nullptr ? *there : CountOf(reply) > 0;
}

}  // namespace

std::string RemoveQuestion(std::string_view row) {
  return "Are you sure you want to remove " + Quoted(OtherFileName(row));
}

int OtherFiles::PlaceOf(std::string_view path) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const std::string& row) {
    return EqualNoCase(OtherFilePath(row), path);
  });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void OtherFiles::Ask(Lookup question, const Then& then) {
  const auto now = with_.Answers.AskAtOnce({.Question = std::move(question), .Owner = asked_},
                                           {.Ended = then, .TakesLonger = {}});
  if (now) then(*now);
}

void OtherFiles::Drop() {
  with_.Answers.Drop(asked_);
  first_.clear();
  open_ = 0;
}

// ---- reading, and the list to begin with ----

void OtherFiles::Read() {
  Drop();
  if (auto stored = with_.Stored.Read()) {
    rows_ = *std::move(stored);
  } else {
    InitOthers();
  }
}

void OtherFiles::InitOthers() {
  first_ = with_.Stored.FirstQuestions();
  belongs_.assign(first_.size(), false);
  open_ = first_.size();
  whole_ = true;
  for (std::size_t i = 0; i < first_.size(); ++i) {
    const auto now = with_.Answers.AskAtOnce({.Question = first_[i], .Owner = asked_},
                                             {.Ended =
                                                  [this, i](const desk::Reply& late) {
                                                    TakeFirst(i, late);
                                                    if (IsBeingMade()) return;
                                                    ShowFirst();
                                                    if (Made) Made();
                                                  },
                                              .TakesLonger = {}});
    if (now) TakeFirst(i, *now);
  }
  ShowFirst();
}

void OtherFiles::TakeFirst(std::size_t question, const desk::Reply& reply) {
  --open_;
  belongs_[question] = IsYes(reply);
  if (reply.How == desk::End::NotAvailable) whole_ = false;
}

// A file that does not answer now may hold icons: a list without it is shown, but it is not the one
// that is stored for good.
void OtherFiles::ShowFirst() {
  rows_.clear();
  for (std::size_t i = 0; i < first_.size(); ++i) {
    if (belongs_[i] && PlaceOf(first_[i].Path) < 0) rows_.push_back(OtherFileRow(first_[i].Path));
  }
  SortTexts(rows_);
  if (IsBeingMade()) return;
  first_.clear();
  if (whole_) with_.Stored.Save(rows_);
}

// ---- the buttons ----

void OtherFiles::Add(std::string_view chosen) {
  if (!EndsWithNoCase(chosen, kShortcut)) return AddPath(Trim(chosen), {});
  Ask({.Kind = LookupKind::LinkTarget, .Path = std::string(chosen)},
      [this](const desk::Reply& reply) {
        const auto* const target = std::get_if<std::string>(&reply.Value);
        AddPath(target != nullptr ? Trim(StripAtNull(*target)) : std::string(), kOfShortcut);
      });
}

void OtherFiles::AddPath(const std::string& path, std::string_view wording) {
  if (path.empty()) return Tell({.Refusal = std::string(kNoTarget)});
  const std::string row = OtherFileRow(path);
  const std::string named = Quoted(OtherFileName(row)) + std::string(wording);
  if (PlaceOf(path) >= 0) return Tell({.Refusal = named + std::string(kAlreadyThere)});
  Lookup question{.Kind = LookupKind::IconCount, .Path = path};
  // The user wants it from this file, however its place has answered before.
  with_.Answers.TryAgain(question);
  Ask(std::move(question),
      [this, row, named](const desk::Reply& counted) { TakeCount(row, named, counted); });
}

void OtherFiles::TakeCount(const std::string& row, const std::string& named,
                           const desk::Reply& counted) {
  if (CountOf(counted) <= 0) return Tell({.Refusal = named + std::string(kNoIcons)});
  const std::string path = OtherFilePath(row);
  // It may have been chosen twice while it was counted.
  if (PlaceOf(path) >= 0) return Tell({.Refusal = named + std::string(kAlreadyThere)});
  rows_.push_back(row);
  SortTexts(rows_);
  with_.Stored.Save(rows_);
  Tell({.Row = PlaceOf(path)});
}

void OtherFiles::Tell(const AddedFile& added) const {
  if (Added) Added(added);
}

void OtherFiles::Remove(std::string_view row) {
  const auto at = std::find(rows_.begin(), rows_.end(), row);
  if (at == rows_.end()) return;
  rows_.erase(at);
  with_.Stored.Save(rows_);
}

}  // namespace corvelle
