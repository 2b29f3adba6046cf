#pragma once

#include <string>
#include <string_view>

#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"

namespace corvelle {

class CodePage;
class DesktopWindows;
class EntryCommands;
class MessageBoxes;
class OptionFile;
struct GuardFlags;
struct ProgramPaths;

/// What the dialog works with. All of it outlives it.
struct WebLinkParts {
  forms::WindowSystem& Windows;
  FileSystem& Files;
  const CodePage& Ansi;
  DesktopWindows& Desktop;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  OptionFile& Options;
  GuardFlags& Guards;
  EntryEdit& Entry;
  EntryCommands& Commands;
};

/// The dialog in which the user corrects title and address of a dropped web address before it
/// becomes an entry. It comes a moment after the drop, which has returned to its source by then;
/// with Option::NoWebLinkDialog the entry is made without it.
///
/// WebLinkPending is true from the drop until the entry is made or given up. Meanwhile
/// nothing else is dropped and no menu is opened or closed by the pointer
/// (GuardFlags::OpenQuestions); while the dialog is up, the strip and the menu take no input.
/// Nothing waits in a loop: each step is an event of its own, so that everything else goes on.
class frmURL final : public forms::Form, public WebLinkPort {
 public:
  explicit frmURL(const WebLinkParts& with);

  void OfferWebLink(std::string_view url, std::string_view title, std::string_view tag,
                    std::string_view file) override;
  void EndWebLink() override { Finish(); }

  /// Writes the entry where Tag says, and refreshes what shows it. A disk that refuses leaves the
  /// files as they were, and nothing is told.
  void UpdateToolbar();
  void CancelURL() { cmdCancel_Click(); }

  /// A dropped web address waits for its dialog.
  bool WebLinkPending = false;

  forms::Label Label2;
  forms::TextBox txtTitle;
  forms::Label Label3;
  forms::TextBox txtAddress;
  forms::CheckBox Check1;
  forms::CommandButton cmdOK;
  forms::CommandButton cmdCancel;

 protected:
  void Form_Load() override;
  void Form_QueryClose() override { cmdCancel_Click(); }
  void Form_SessionEnd() override { Finish(); }

 private:
  enum class Step {
    Idle,
    Offered,    // the drop has not returned yet
    Open,       // the dialog is up
    Confirmed,  // the entry waits to be written
  };

  void tmrStep_Timer();
  void OpenDialog();
  void cmdOK_Click();
  void cmdCancel_Click();
  void Check1_Click();
  void Write();
  /// Gives up or ends what is pending: everything is as it was before the drop.
  void Finish();
  void LayOut();

  [[nodiscard]] std::string NewSingleFile() const;
  void HoldOthers();
  void ReleaseOthers();
  void InsertItem(const std::string& file);
  void InsertSingle(std::string_view before);
  void AppendItem(const std::string& menu, const std::string& file);

  WebLinkParts with_;
  forms::Timer tmrStep_;
  Step step_ = Step::Idle;
  /// The entry under the drop. Others may become the current one while the dialog is up.
  EntryEdit target_;
  bool holdsOthers_ = false;
};

}  // namespace corvelle
