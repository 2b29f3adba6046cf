#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellLinks.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"

namespace corvelle::sim {

/// All that a link of the simulated shell holds.
struct SimLink {
  std::string Path;
  std::string WorkDir;
  std::string Arguments;
  std::string Description;
  IconLocation Icon;
  std::uint16_t Hotkey = 0;
  std::int32_t ShowCmd = 1;
  ItemIdList Item;

  friend bool operator==(const SimLink&, const SimLink&) = default;
};

/// Links as files of the simulated disk, with a content of their own, and the special folders that
/// a test sets up. A link to a missing file does not resolve; asking for it not quietly would bring
/// up a box, and makes the test fail.
class SimShellLinks final : public ShellLinks, public Priced {
 public:
  explicit SimShellLinks(SimFiles& files) : files_(files) {}
  SimShellLinks(const SimShellLinks&) = delete;
  SimShellLinks& operator=(const SimShellLinks&) = delete;
  ~SimShellLinks() override;

  // Setting up and asking.
  /// A special folder with a path, which is made on the disk.
  void SetFolder(int folder, std::string_view path);
  /// A special folder that has no path.
  void SetVirtualFolder(int folder);
  /// A link file as another program would make it, without being logged; with its folders.
  void Put(std::string_view linkFile, const SimLink& link);
  /// The content of that link file lies in a cloud from now on.
  void PutElsewhere(std::string_view linkFile);
  /// What a link file holds; nothing for a missing or damaged one.
  [[nodiscard]] std::optional<SimLink> Get(std::string_view linkFile) const;
  /// The item of a path.
  [[nodiscard]] static ItemIdList ItemOf(std::string_view path);

  /// Makes the n-th operation from now (1: the next one) fail, whichever it is.
  void FailCall(int n) { failIn_ = n; }
  [[nodiscard]] bool Hit() const { return hit_; }
  /// The operations on links in their order, each with its first argument.
  [[nodiscard]] const std::vector<std::string>& Log() const { return log_; }
  void ClearLog() { log_.clear(); }
  /// How many link objects have not been released.
  [[nodiscard]] int Alive() const { return alive_; }

  // The port.
  std::unique_ptr<ShellLinkObject> CreateLinkObject() override;
  bool LiesElsewhere(std::string_view linkFile) override;
  std::optional<ItemIdList> SpecialFolderLocation(WindowId window, int folder) override;
  std::optional<std::string> PathFromIDList(const ItemIdList& item) override;

 private:
  class Object;

  /// Logs an operation; false when it is to fail.
  bool Enter(std::string_view operation, std::string_view argument = {});

  SimFiles& files_;
  std::map<int, ItemIdList> folders_;
  std::set<std::string> elsewhere_;  // in capitals
  std::vector<std::string> log_;
  int failIn_ = 0;
  bool hit_ = false;
  int alive_ = 0;
};

}  // namespace corvelle::sim
