#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "customize/CustTree.h"

namespace corvelle {

/// The changes of a tree, step by step, to be taken back and made again. The tree outlives it.
class CustHistory final : private TreeRecorder {
 public:
  static constexpr std::size_t kMostSteps = 100;

  explicit CustHistory(CustTree& tree);
  CustHistory(const CustHistory&) = delete;
  CustHistory& operator=(const CustHistory&) = delete;
  ~CustHistory();

  /// While it stands, all changes are one step with this name. Inside another one it changes
  /// nothing. A step without changes leaves no trace.
  class Step {
   public:
    /// What is selected now is selected again when the step is taken back, and what is selected at
    /// its end when it is made again.
    Step(CustHistory& history, std::string name, const CustRef& selected);
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step();

   private:
    CustHistory& history_;
    const CustRef& selected_;
    bool outer_;
  };

  /// Drops all steps.
  void Clear();

  [[nodiscard]] bool CanUndo() const noexcept { return !done_.empty(); }
  [[nodiscard]] bool CanRedo() const noexcept { return !undone_.empty(); }
  /// The name of the step that Undo or Redo would apply; empty when nothing can be undone or
  /// redone.
  [[nodiscard]] std::string_view UndoName() const noexcept;
  [[nodiscard]] std::string_view RedoName() const noexcept;
  [[nodiscard]] std::size_t Steps() const noexcept { return done_.size(); }

  /// Takes the last step back, or makes it again. The node to select; kNoRef when there is no step.
  CustRef Undo();
  CustRef Redo();

 private:
  struct Entry {
    std::string Name;
    std::vector<TreeChange> Changes;
    CustRef Before = kNoRef;
    CustRef After = kNoRef;
  };

  void Record(TreeChange change) override;
  void Close();
  void Drop(const Entry& entry, TreeChange::Kind what);

  CustTree& tree_;
  std::deque<Entry> done_;
  std::vector<Entry> undone_;
  Entry open_;
  bool isOpen_ = false;
};

}  // namespace corvelle
