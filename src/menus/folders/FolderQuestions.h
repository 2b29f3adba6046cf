#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "desk/AnswerDesk.h"
#include "menus/items/FolderState.h"
#include "platform/Lookups.h"

namespace corvelle {

/// What is asked of folders for one opening of a menu. A quick disk answers at once, as if it had
/// been asked here; what is slower is told when it comes. Each question is asked once. No window.
class FolderQuestions {
 public:
  /// What is known so far.
  struct Known {
    FolderState State = FolderState::Reading;
    /// The answer; until it comes, the previous answer if one is kept. Empty after a failure.
    LookupValue Value;
  };

  /// Milliseconds for which all questions together may hold up the menu.
  static constexpr int kAtOnce = 60;
  /// The same of questions about the files of a folder that is known: without their answers the
  /// captions are the names that the disk gives. The first captions are to be there within 50 ms.
  static constexpr int kNamesAtOnce = 25;
  /// More files than these are not asked about in that time, and are not waited for.
  static constexpr int kMostWaitedFor = 100;
  /// Names that are younger, in milliseconds, are not asked for again: they came after their menu
  /// was closed, or the menu was laid out once more.
  static constexpr int kNamesAge = 10'000;

  /// `changed` is called, never inside a call of this, whenever more is known. It may end this.
  /// What is not asked for a menu on show holds nothing up.
  FolderQuestions(desk::AnswerDesk& desk, forms::WindowSystem& windows,
                  std::function<void()> changed, desk::Urgency how = desk::Urgency::OnShow);
  FolderQuestions(const FolderQuestions&) = delete;
  FolderQuestions& operator=(const FolderQuestions&) = delete;
  /// Nobody wants to know any more; the desk keeps what still comes.
  ~FolderQuestions();

  /// Asks if nobody has asked that yet.
  const Known& Get(const Lookup& question);
  /// Asks places again that do not answer.
  void TryAgain();

 private:
  struct Asked {
    Lookup Question;
    Known Answer;
  };

  void Ask(Asked& asked);
  [[nodiscard]] int MayWait(const Lookup& question) const;
  void Take(const std::string& key, const desk::Reply& reply);
  void TakeStage(const std::string& key, desk::Stage stage);

  desk::AnswerDesk& desk_;
  forms::WindowSystem& windows_;
  std::function<void()> changed_;
  desk::Urgency how_;
  std::uint64_t owner_ = 0;
  std::int64_t began_ = 0;
  bool mayWait_ = false;
  std::map<std::string, Asked> asked_;
};

}  // namespace corvelle
