#include "customize/MissingTargets.h"

#include <algorithm>
#include <utility>

#include "launch/CommandForm.h"

namespace corvelle {

namespace {

constexpr int kStepWait = 10;  // milliseconds
constexpr std::size_t kCommandsAtOnce = 200;
constexpr std::size_t kQuestionsAtOnce = 16;  // of one drive

}  // namespace

MissingTargets::MissingTargets(SlowQuestions& slow, forms::WindowSystem& windows)
    : slow_(slow), tmrStep_(windows), generation_(slow.NewGeneration()) {
  tmrStep_.SetInterval(kStepWait);
  tmrStep_.Tick = [this] { Step(); };
}

MissingTargets::~MissingTargets() { slow_.Drop(generation_); }

bool MissingTargets::Ask(CustRef node, const std::string& command) {
  if (command.empty()) return false;
  const auto [place, isNew] = commands_.try_emplace(command);
  Command& known = place->second;
  known.Nodes.insert(node);
  if (isNew) {
    known.Asked = true;
    fresh_.push_back(command);
    tmrStep_.SetEnabled(true);
  }
  return known.Missing;
}

bool MissingTargets::IsMissing(const std::string& command) const {
  const auto found = commands_.find(command);
  return found != commands_.end() && found->second.Missing;
}

void MissingTargets::AskAgain() {
  if (missing_ == 0) return;
  // A disk may be at rest by now, and another one awake.
  for (auto& [name, drive] : drives_) {
    if (drive.UnderWay == 0 && drive.Waiting.empty()) drive.Known = false;
  }
  for (auto& [text, command] : commands_) {
    if (!command.Missing || command.Asked) continue;
    command.Asked = true;
    fresh_.push_back(text);
  }
  tmrStep_.SetEnabled(!fresh_.empty());
}

void MissingTargets::Clear() {
  slow_.Drop(generation_);
  generation_ = slow_.NewGeneration();
  tmrStep_.SetEnabled(false);
  commands_.clear();
  fresh_.clear();
  drives_.clear();
  missing_ = 0;
}

void MissingTargets::Step() {
  for (std::size_t i = 0; i < kCommandsAtOnce && !fresh_.empty(); ++i) {
    const std::string command = std::move(fresh_.front());
    fresh_.pop_front();
    Begin(command);
  }
  if (fresh_.empty()) tmrStep_.SetEnabled(false);
}

void MissingTargets::Begin(const std::string& command) {
  std::vector<std::string> targets = TargetsOf(command);
  if (targets.empty()) return End(command, false);
  const std::string name = DriveOf(targets.front());
  std::reverse(targets.begin(), targets.end());
  Drive& drive = drives_[name];
  drive.Waiting.push_back({command, std::move(targets)});
  if (drive.Known) return Go(name);
  if (drive.UnderWay == 0) AskDrive(name);
}

void MissingTargets::AskDrive(const std::string& name) {
  Drive& drive = drives_[name];
  if (name.starts_with("\\\\")) {
    drive.Known = true;
    return Go(name);
  }
  ++drive.UnderWay;
  Lookup question{.Kind = LookupKind::DriveAtHand, .Path = name + "\\", .Lane = name};
  question.Generation = generation_;
  slow_.Ask(std::move(question), [this, name](const LookupAnswer& answer) {
    Drive& asked = drives_[name];
    --asked.UnderWay;
    asked.Known = true;
    const bool* const atHand = std::get_if<bool>(&answer.Value);
    asked.AtHand = atHand != nullptr && *atHand;
    Go(name);
  });
}

void MissingTargets::Go(const std::string& name) {
  Drive& drive = drives_[name];
  while (!drive.Waiting.empty() && (!drive.AtHand || drive.UnderWay < kQuestionsAtOnce)) {
    Search search = std::move(drive.Waiting.front());
    drive.Waiting.pop_front();
    if (drive.AtHand) {
      ++drive.UnderWay;
      AskNext(name, std::move(search));
    } else {
      End(search.Text, IsMissing(search.Text));
    }
  }
}

void MissingTargets::AskNext(const std::string& name, Search search) {
  Lookup question{.Kind = LookupKind::IsThere, .Path = search.Targets.back(), .Lane = name};
  question.Generation = generation_;
  search.Targets.pop_back();
  slow_.Ask(std::move(question), [this, name, search](const LookupAnswer& answer) {
    const bool* const there = std::get_if<bool>(&answer.Value);
    // What cannot be told is not missing.
    const bool missing = answer.End == LookupEnd::Answered && there != nullptr && !*there;
    if (missing && !search.Targets.empty()) return AskNext(name, search);
    --drives_[name].UnderWay;
    End(search.Text, missing);
    Go(name);
  });
}

void MissingTargets::End(const std::string& command, bool missing) {
  Command& known = commands_[command];
  known.Asked = false;
  if (known.Missing == missing) return;
  known.Missing = missing;
  missing_ += missing ? 1 : 0;
  missing_ -= missing ? 0 : 1;
  // Telling may ask about more.
  const std::vector<CustRef> nodes(known.Nodes.begin(), known.Nodes.end());
  for (const CustRef node : nodes) {
    if (Changed) Changed(node);
  }
}

}  // namespace corvelle
