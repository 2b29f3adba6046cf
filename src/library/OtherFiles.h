#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/AnswerDesk.h"
#include "icons/OtherIcons.h"

namespace corvelle {

/// What the list works with. All of it outlives it.
struct OtherFileParts {
  OtherIcons Stored;
  desk::AnswerDesk& Answers;
};

/// What came of a file that the user chose for the list.
struct AddedFile {
  /// What the user is to be told; empty when the file is in the list now.
  std::string Refusal;
  /// Place of its row in the list.
  int Row = -1;
};

/// What is asked before a row goes.
[[nodiscard]] std::string RemoveQuestion(std::string_view row);

/// The list of other files as the library's window shows it: read, made where there was no list,
/// and changed by the buttons Add and Remove. Whether a file holds icons may take its time to find
/// out: the desk is asked for it, and what answers late is taken when it does.
class OtherFiles {
 public:
  explicit OtherFiles(const OtherFileParts& with) : with_(with), asked_(with.Answers.NewOwner()) {}
  ~OtherFiles() { Drop(); }
  OtherFiles(const OtherFiles&) = delete;
  OtherFiles& operator=(const OtherFiles&) = delete;

  /// The rows (OtherFileRow), sorted.
  [[nodiscard]] const std::vector<std::string>& Rows() const noexcept { return rows_; }
  /// Place of the row of a path, ignoring case; -1 without one.
  [[nodiscard]] int PlaceOf(std::string_view path) const;

  /// Reads the list that is stored. Without one it is made of the shell's files of icons, as far as
  /// they exist, and of each registered program that holds an icon, once. Those that are known at
  /// once are there when this returns; Made is called when the others are, if there are any.
  void Read();
  /// Not all is known yet of a list that is being made.
  [[nodiscard]] bool IsBeingMade() const noexcept { return open_ > 0; }

  /// Adds a file and stores the list; a shortcut stands for its target. A file without icons, and
  /// one that is in the list, is refused. Added is told, in this call or when the answers come.
  void Add(std::string_view chosen);
  /// Takes a row out of the list and stores the rest; nothing for a row that there is not.
  void Remove(std::string_view row);

  /// What is not known yet is neither added nor told any more.
  void Drop();

  std::function<void()> Made;
  std::function<void(const AddedFile&)> Added;

 private:
  using Then = std::function<void(const desk::Reply&)>;

  void Ask(Lookup question, const Then& then);
  void InitOthers();
  void TakeFirst(std::size_t question, const desk::Reply& reply);
  void ShowFirst();
  void AddPath(const std::string& path, std::string_view wording);
  void TakeCount(const std::string& row, const std::string& named, const desk::Reply& counted);
  void Tell(const AddedFile& added) const;

  OtherFileParts with_;
  std::vector<std::string> rows_;
  std::uint64_t asked_;  // owner of the questions
  // Of a list that is being made.
  std::vector<Lookup> first_;
  std::vector<bool> belongs_;  // by question: the file is one of the list
  std::size_t open_ = 0;       // questions without an answer
  bool whole_ = true;          // all have answered
};

}  // namespace corvelle
