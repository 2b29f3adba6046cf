// File and folder dialogs: what they ask, and what the user answers.

#include <utility>

#include "sim/Complain.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

template <class Act>
void SimDesktop::WhileDialogIsUp(WindowId owner, std::string title, const Act& act) {
  // As with a message box: a window of ours in front, and an owner that takes no input.
  const WindowId before = foreground_;
  const WindowId window = Add({.Own = true,
                               .ClassName = "#32770",
                               .Text = std::move(title),
                               .Bounds = {200, 150, 620, 480},
                               .Visible = true});
  const bool wasEnabled = Get(owner) != nullptr && Get(owner)->Enabled;
  if (Get(owner) != nullptr) SetEnabled(owner, false);
  LoseCapture();
  Activate(window);
  const int depth = std::exchange(depth_, 0);
  Pump();
  act();
  Pump();
  depth_ = depth;
  if (Get(owner) != nullptr) SetEnabled(owner, wasEnabled);
  if (foreground_ == window && Look(before) != nullptr && IsShown(before)) Activate(before);
  Destroy(window);
}

forms::FileChoice SimDesktop::AskFiles(WindowId owner, const forms::FileQuestion& question) {
  fileQuestions_.push_back(question);
  forms::FileChoice choice;
  const bool open = fileChoices_.empty() && anyFiles_;
  if (fileChoices_.empty() && !open) {
    Complain("unexpected file dialog: \"" + question.Title + "\"");
  } else if (!open) {
    choice = std::move(fileChoices_.front());
    fileChoices_.pop_front();
  }
  if (choice.Paths.size() > 1 && !question.Several) {
    Complain("several files for a dialog that asks for one");
  }
  WhileDialogIsUp(owner, question.Title, [&] {
    if (open) choice = anyFiles_(question);
    if (const auto action = dialogAction_) action();
  });
  return choice;
}

forms::FolderChoice SimDesktop::AskFolder(WindowId owner, const forms::FolderQuestion& question) {
  folderQuestions_.push_back(question);
  forms::FolderChoice choice;
  const bool open = folderChoices_.empty() && anyFolder_;
  if (folderChoices_.empty() && !open) {
    Complain("unexpected folder dialog: \"" + question.Text + "\"");
  } else if (!open) {
    choice = std::move(folderChoices_.front());
    folderChoices_.pop_front();
  }
  WhileDialogIsUp(owner, "Browse for Folder", [&] {
    if (open) choice = anyFolder_(question);
    if (const auto action = dialogAction_) action();
  });
  return choice;
}

}  // namespace corvelle::sim
