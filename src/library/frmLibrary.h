#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/WindowPorts.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/ScrollBar.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "icons/LibraryLists.h"
#include "library/IconView.h"
#include "library/OtherFiles.h"

namespace corvelle {

class CodePage;
class MessageBoxes;

/// What the window works with. All of it outlives the window.
struct LibraryParts {
  forms::WindowSystem& Windows;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  desk::AnswerDesk& Answers;
  const CodePage& Ansi;
  const SystemInfo& System;
  const ProgramPaths& Paths;
  IconState& Icons;
  LibraryLists Lists;
  OtherFileParts Others;
};

/// The window in which the user picks an icon for an entry: from the program's own library by
/// category, or from other files. The choice goes into the box of the window that opened it, which
/// takes no input meanwhile.
class frmLibrary final : public forms::Form, public LibraryPort {
 public:
  explicit frmLibrary(const LibraryParts& with);

  void Show(std::string_view caller) override;
  void LoadWindow() override { Show({}); }
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }

  /// Which window the choice goes to: "frmProperties", "frmCust"; anything else is nobody.
  void SetFormName(std::string_view name);

  forms::TabStrip TabStrip1;
  forms::ListBox List1;       // categories
  forms::ListBox List1Other;  // other files
  /// Narrows the cells of the tab that is shown.
  forms::TextBox txtFilter;
  forms::PictureBox Pic1;  // frame of the cells
  forms::PictureBox Pic2;
  forms::ScrollBar VS1;
  forms::PictureBox PicOtherFrame;
  forms::PictureBox picOther;
  forms::ScrollBar vsOther;
  forms::CommandButton cmdRefresh;
  forms::CommandButton cmdAdd;
  forms::CommandButton cmdRemove;
  forms::CommandButton cmdOK;
  forms::CommandButton cmdCancel;

  IconView LibraryView;
  IconView OtherView;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void Wire();
  void SetFormSize();
  void BuildLibrary();
  /// Shows the icons of a row of List1; 0 is all of them.
  void ShowView(int position);
  void TabStrip1_Click();
  void List1Other_Click();
  /// Shows the icons of a file that were counted, or could not be.
  void ShowFile(const std::string& path, const desk::Reply& counted);
  void txtFilter_Change();
  [[nodiscard]] bool txtFilter_KeyDown(int keyCode);
  void cmdAdd_Click();
  void cmdRemove_Click();
  void cmdRefresh_Click();
  void cmdOK_Click();
  /// The cell's icon text as a record holds it: with the short names of the disk where it is too
  /// long. Nothing when neither fits, or when the disk does not answer at once.
  [[nodiscard]] std::optional<std::string> TextToStore(const IconCell& cell);

  [[nodiscard]] bool ShowsLibrary() const;
  [[nodiscard]] IconView& CurrentView() { return ShowsLibrary() ? LibraryView : OtherView; }
  void ShowTab();
  void ReadOthers();
  /// Fills the list of other files with a row of it selected; -1 for none.
  void ListOthers(int row);
  /// The same, and shows the icons of that row's file.
  void FillOthers(int row);
  /// All files of a list that was being made are known.
  void ShowMadeList();
  /// Shows what came of the button Add.
  void ShowAdded(const AddedFile& added);

  LibraryParts with_;
  std::string caller_;
  IconBoxPort* box_ = nullptr;
  /// The rows of List1Other with their paths.
  OtherFiles List2Other;
  bool othersRead_ = false;
  std::uint64_t counted_ = 0;  // owner of the question
  std::string shownFile_;      // path of the row that was chosen last
};

}  // namespace corvelle
