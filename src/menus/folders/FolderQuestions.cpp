#include "menus/folders/FolderQuestions.h"

#include <utility>

#include "desk/LookupPlaces.h"

namespace corvelle {

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
  const std::int64_t left = MayWait(asked.Question.Kind);
  if (left <= 0) {
    desk_.Ask(std::move(request), std::move(later));
    return;
  }
  const auto reply = desk_.AskAtOnce(std::move(request), std::move(later), static_cast<int>(left));
  if (!reply) return;
  asked.Answer = {
      reply->How == desk::End::NotAvailable ? FolderState::NotAvailable : FolderState::Here,
      reply->Value};
}

std::int64_t FolderQuestions::MayWait(LookupKind kind) const {
  if (!mayWait_) return 0;
  const bool ofFiles = kind == LookupKind::FileNames || kind == LookupKind::ShortPaths;
  return began_ + (ofFiles ? kNamesAtOnce : kAtOnce) - windows_.Now();
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
  asked_.at(key).Answer.State = FolderState::BeingRead;
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
