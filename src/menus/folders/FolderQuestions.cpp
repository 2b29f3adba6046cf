#include "menus/folders/FolderQuestions.h"

#include <algorithm>
#include <utility>

#include "desk/LookupPlaces.h"

namespace corvelle {

namespace {

/// True for what is asked of files whose names are known, one to a line of the pattern.
bool IsOfFiles(const Lookup& question) {
  return question.Kind == LookupKind::FileNames || question.Kind == LookupKind::ShortPaths;
}

}  // namespace

FolderQuestions::FolderQuestions(desk::AnswerDesk& desk, forms::WindowSystem& windows,
                                 std::function<void()> changed, desk::Urgency how)
    : desk_(desk),
      windows_(windows),
      changed_(std::move(changed)),
      how_(how),
      owner_(desk.NewOwner()),
      began_(windows.Now()),
      mayWait_(how == desk::Urgency::OnShow) {}

FolderQuestions::~FolderQuestions() { desk_.Drop(owner_); }

const FolderQuestions::Known& FolderQuestions::Get(const Lookup& question) {
  const auto [place, isNew] = asked_.try_emplace(desk::KeyOfLookup(question), Asked{question, {}});
  if (isNew) Ask(place->second);
  return place->second.Answer;
}

void FolderQuestions::Ask(Asked& asked) {
  const std::string key = desk::KeyOfLookup(asked.Question);
  asked.Answer.State = FolderState::Reading;
  if (const LookupValue* const last = desk_.LastKnown(asked.Question)) asked.Answer.Value = *last;
  desk::Asker later{.Ended = [this, key](const desk::Reply& reply) { Take(key, reply); },
                    .TakesLonger = [this, key](desk::Stage stage) { TakeStage(key, stage); }};
  desk::Request request{.Question = asked.Question, .How = how_, .Owner = owner_};
  if (!mayWait_) {
    desk_.Ask(std::move(request), std::move(later));
    return;
  }
  if (asked.Question.Kind == LookupKind::FileNames) request.MaxAge = kNamesAge;
  const auto reply = desk_.AskAtOnce(std::move(request), std::move(later), MayWait(asked.Question));
  if (!reply) return;
  asked.Answer = {
      reply->How == desk::End::NotAvailable ? FolderState::NotAvailable : FolderState::Here,
      reply->Value};
}

int FolderQuestions::MayWait(const Lookup& question) const {
  const bool ofFiles = IsOfFiles(question);
  if (ofFiles &&
      std::count(question.Pattern.begin(), question.Pattern.end(), '\n') > kMostWaitedFor) {
    return 0;
  }
  const std::int64_t left = began_ + (ofFiles ? kNamesAtOnce : kAtOnce) - windows_.Now();
  return static_cast<int>(std::max<std::int64_t>(left, 0));
}

void FolderQuestions::Take(const std::string& key, const desk::Reply& reply) {
  Known& answer = asked_.at(key).Answer;
  if (reply.How == desk::End::NotAvailable) {
    answer.State = FolderState::NotAvailable;
  } else {
    answer = {FolderState::Here, reply.Value};
  }
  // It may end this.
  const auto changed = changed_;
  changed();
}

void FolderQuestions::TakeStage(const std::string& key, desk::Stage stage) {
  if (stage != desk::Stage::BeingRead) return;
  Asked& asked = asked_.at(key);
  asked.Answer.State = FolderState::BeingRead;
  // A menu says so of its folders only; of files it shows what it knows.
  if (IsOfFiles(asked.Question)) return;
  // It may end this.
  const auto changed = changed_;
  changed();
}

void FolderQuestions::TryAgain() {
  mayWait_ = false;
  for (auto& [key, asked] : asked_) {
    if (asked.Answer.State != FolderState::NotAvailable) continue;
    desk_.TryAgain(asked.Question);
    Ask(asked);
  }
}

}  // namespace corvelle
