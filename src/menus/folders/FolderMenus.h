#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "menus/folders/FolderMenusPort.h"
#include "menus/folders/FolderQuestions.h"
#include "menus/folders/clsFolder.h"
#include "menus/folders/mFolder.h"
#include "menus/folders/sFolder.h"

namespace corvelle {

class GeneratedMenu;
struct IconState;
struct Platform;

/// Folder items: a menu that has open ones is built from memory, with what they hold in their
/// places, and that is remembered for each menu until it is built again.
class FolderMenus final : public FolderMenusPort {
 public:
  FolderMenus(const Platform& services, forms::WindowSystem& windows, desk::AnswerDesk& answers,
              IconState& icons)
      : services_(services), windows_(windows), answers_(answers), icons_(icons) {}

  std::optional<ExpandedMenu> Expand(std::string_view menuKey, std::string_view menuFile,
                                     std::string_view stored) override;
  bool WriteGenerated(const ExpandedMenu& menu) override;
  bool UpdateMenu(std::string_view menuKey) override;
  void SetListener(std::function<void(const std::string& menuKey)> listener) override {
    listener_ = std::move(listener);
  }
  void Leave() override;
  void TryAgain() override;

  /// The folder items of a built menu; none for a menu without.
  [[nodiscard]] std::vector<clsFolder> Folders(std::string_view menuKey) const;

 private:
  /// What is kept of one built menu.
  struct Built {
    std::vector<clsFolder> Folders;
    clsFolderUpdate Update;
    // The bin's icon as it was when the menu was built.
    std::string RecycleIcon;
    int RecycleIndex = -1;
    bool Whole = true;  // see ExpandedMenu
  };

  /// What was asked for a menu. One that is built because a comparison found a change, or because
  /// more has come to be known, is built from that: no folder is listed twice for one opening.
  struct Reading {
    std::string MenuKey;
    std::unique_ptr<FolderQuestions> Questions;
    bool MayBuild = false;
    std::map<std::string, FoundFiles, std::less<>> Files;  // by the command of a folder item
  };

  void BeginReading(const std::string& key);
  void ExpandItems(GeneratedMenu& menu, std::string_view menuFile, Built& built);
  void ExpandOne(GeneratedMenu& menu, int record, std::string_view menuFile, Built& built);
  /// Shows what the generated file holds of folder item `record`, for which there is no answer, or
  /// else the item itself.
  void ShowKept(GeneratedMenu& menu, int record, std::string_view menuFile, FolderState state);
  const FoundFiles& FilesOf(std::string_view folderName);
  /// Fills in what is asked of the files themselves: their names, and short paths where the long
  /// ones fit no record.
  void NameFiles(FoundFiles& found);
  void AskOfFiles(LookupKind kind, FoundFiles& found,
                  const std::function<bool(const FoundFiles::File&)>& asks,
                  const std::function<void(FoundFiles::File&, const std::string&)>& take);
  [[nodiscard]] SpecialFolderLines LinesOf(std::string_view folderName);
  [[nodiscard]] bool AnyChanged(const Built& built);
  [[nodiscard]] bool HasChanged(const Built& built, std::size_t index);
  [[nodiscard]] bool BinHasChanged(const Built& built);
  /// Looks which icon the Recycle Bin has now.
  void LookAtBin();
  /// More is known of the menu that was asked for last.
  void Arrived();

  const Platform& services_;
  forms::WindowSystem& windows_;
  desk::AnswerDesk& answers_;
  IconState& icons_;
  std::map<std::string, std::shared_ptr<const Built>, std::less<>>
      built_;  // by the key in capitals
  Reading reading_;
  std::function<void(const std::string& menuKey)> listener_;
};

}  // namespace corvelle
