#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/LaunchParts.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/Types.h"
#include "toolbar/singles/SingleEdits.h"

namespace corvelle {

class RowHost;
class SingleRow;
struct GuardFlags;
struct StripPlacement;
namespace forms {
class Form;
}

/// What drops on the single buttons work with. All of it outlives them.
struct SingleDropParts {
  SingleEdits Edits;
  const StripPlacement& Strip;
  const WindowPorts& Ports;
  const GuardFlags& Guards;
  EntryEdit& Entry;
  const LaunchParts& Launch;
};

/// What is dropped on the single buttons, and the edits of their files that others ask for. Every
/// change rewrites files, and the row is read again.
class SingleDrops final : public SingleButtonsPort {
 public:
  /// The strip and its row outlive this.
  SingleDrops(const SingleDropParts& with, RowHost& strip, SingleRow& row);
  SingleDrops(const SingleDrops&) = delete;
  SingleDrops& operator=(const SingleDrops&) = delete;

  void DoItemDrag(forms::MouseButton released) override;
  void DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) override;
  FileStatus DeleteSingle(std::string_view file) override { return DeletePasteSB(file, kDelete); }
  FileStatus PasteSingle(std::string_view file) override { return DeletePasteSB(file, kPaste); }
  FileStatus UndoDeleteSB(std::string_view file) override;
  /// Rewrites the files without the button of `file`, or with the clipboard's entry before it.
  /// Whoever calls it reads the row again. A disk that refuses leaves the row as it was.
  FileStatus DeletePasteSB(std::string_view file, int action);

  static constexpr int kDelete = 0;
  static constexpr int kPaste = 1;

 private:
  bool MoveFromMenu(const std::string& before, const EntryEdit& carried);
  /// Puts records before the button of the file `before`, behind the last one when it is empty.
  void AddDropped(const std::vector<MenuRecord>& records, const std::string& before);

  SingleDropParts with_;
  RowHost& strip_;
  forms::Form& window_;
  SingleRow& row_;
};

}  // namespace corvelle
