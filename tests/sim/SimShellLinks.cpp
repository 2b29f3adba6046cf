#include "sim/SimShellLinks.h"

#include "base/Text.h"
#include "sim/Complain.h"

namespace corvelle::sim {

namespace {

constexpr std::string_view kHead = "link of the simulated shell\n";
constexpr std::string_view kEnd = "end\n";
constexpr std::string_view kPathItem = "path:";
constexpr std::string_view kFolderItem = "folder:";
constexpr std::size_t kLongestTarget = 259;
constexpr std::size_t kLongestFile = 65536;

// A field is its length, a colon, its bytes and a line end.
void Append(std::string& bytes, std::string_view field) {
  bytes += std::to_string(field.size()) + ":" + std::string(field) + "\n";
}

bool Take(std::string_view& bytes, std::string& field) {
  const std::size_t colon = bytes.find(':');
  if (colon == std::string_view::npos || colon == 0) return false;
  const auto length = ParseNumber(bytes.substr(0, colon));
  if (!length || *length < 0) return false;
  const auto size = static_cast<std::size_t>(*length);
  bytes.remove_prefix(colon + 1);
  if (bytes.size() <= size || bytes[size] != '\n') return false;
  field = bytes.substr(0, size);
  bytes.remove_prefix(size + 1);
  return true;
}

bool TakeNumber(std::string_view& bytes, int& number) {
  std::string field;
  if (!Take(bytes, field)) return false;
  const auto parsed = ParseNumber(field);
  if (parsed) number = *parsed;
  return parsed.has_value();
}

std::string Format(const SimLink& link) {
  std::string bytes(kHead);
  for (const std::string& text : {link.Path, link.WorkDir, link.Arguments, link.Description,
                                  link.Icon.File, link.Item.Bytes}) {
    Append(bytes, text);
  }
  for (const int number : {link.Icon.Index, int{link.Hotkey}, link.ShowCmd}) {
    Append(bytes, std::to_string(number));
  }
  return bytes + std::string(kEnd);
}

std::optional<SimLink> Parse(std::string_view bytes) {
  if (!bytes.starts_with(kHead)) return std::nullopt;
  bytes.remove_prefix(kHead.size());
  SimLink link;
  for (std::string* text : {&link.Path, &link.WorkDir, &link.Arguments, &link.Description,
                            &link.Icon.File, &link.Item.Bytes}) {
    if (!Take(bytes, *text)) return std::nullopt;
  }
  int hotKey = 0;
  if (!TakeNumber(bytes, link.Icon.Index) || !TakeNumber(bytes, hotKey) ||
      !TakeNumber(bytes, link.ShowCmd) || bytes != kEnd) {
    return std::nullopt;
  }
  link.Hotkey = static_cast<std::uint16_t>(hotKey);
  return link;
}

std::optional<std::string> PathOf(const ItemIdList& item) {
  if (!item.Bytes.starts_with(kPathItem)) return std::nullopt;
  return item.Bytes.substr(kPathItem.size());
}

}  // namespace

class SimShellLinks::Object final : public ShellLinkObject {
 public:
  explicit Object(SimShellLinks& shell) : shell_(shell) { ++shell_.alive_; }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  ~Object() override { --shell_.alive_; }

  bool SetPath(std::string_view file) override {
    if (!shell_.Enter("SetPath", file) || file.size() > kLongestTarget) return false;
    link_.Path = file;
    link_.Item = file.empty() ? ItemIdList{} : ItemOf(file);
    return true;
  }
  bool SetWorkingDirectory(std::string_view folder) override {
    return Set("SetWorkingDirectory", link_.WorkDir, folder);
  }
  bool SetArguments(std::string_view arguments) override {
    return Set("SetArguments", link_.Arguments, arguments);
  }
  bool SetHotkey(std::uint16_t hotKey) override {
    if (!shell_.Enter("SetHotkey", std::to_string(hotKey))) return false;
    link_.Hotkey = hotKey;
    return true;
  }
  bool SetIconLocation(std::string_view file, std::int32_t index) override {
    if (!shell_.Enter("SetIconLocation", file)) return false;
    link_.Icon = {.File = std::string(file), .Index = index};
    return true;
  }
  bool SetShowCmd(std::int32_t showCmd) override {
    if (!shell_.Enter("SetShowCmd", std::to_string(showCmd))) return false;
    link_.ShowCmd = showCmd == 3 || showCmd == 7 ? showCmd : 1;
    return true;
  }
  bool SetIDList(const ItemIdList& item) override {
    if (!shell_.Enter("SetIDList", item.Bytes) || item.IsEmpty()) return false;
    link_.Item = item;
    link_.Path = PathOf(item).value_or(std::string());
    return true;
  }

  bool Resolve(unsigned flags) override {
    shell_.TellCall("Resolve", link_.Path);
    if (!shell_.Enter("Resolve", std::to_string(flags))) return false;
    if (link_.Path.empty()) return !link_.Item.IsEmpty();
    if (shell_.files_.Has(link_.Path)) return true;
    if ((flags & kResolveQuietly) == 0) Complain("a box asks for the missing target of a link");
    return false;
  }

  std::optional<std::string> GetPath() override { return Tell("GetPath", link_.Path); }
  std::optional<std::string> GetWorkingDirectory() override {
    return Tell("GetWorkingDirectory", link_.WorkDir);
  }
  std::optional<std::string> GetArguments() override {
    return Tell("GetArguments", link_.Arguments);
  }
  std::optional<std::string> GetDescription() override {
    return Tell("GetDescription", link_.Description);
  }
  std::optional<std::uint16_t> GetHotkey() override { return Tell("GetHotkey", link_.Hotkey); }
  std::optional<IconLocation> GetIconLocation() override {
    return Tell("GetIconLocation", link_.Icon);
  }
  std::optional<ItemIdList> GetIDList() override { return Tell("GetIDList", link_.Item); }
  std::optional<std::int32_t> GetShowCmd() override { return Tell("GetShowCmd", link_.ShowCmd); }

  bool Load(std::string_view linkFile) override {
    shell_.TellCall("Load", linkFile);
    if (!shell_.Enter("Load", linkFile)) return false;
    const auto bytes = shell_.files_.Read(linkFile, 0, kLongestFile);
    if (!bytes) return false;
    auto link = Parse(*bytes);
    if (link) link_ = *std::move(link);
    return link.has_value();
  }
  bool Save(std::string_view linkFile) override {
    shell_.TellCall("Save", linkFile);
    return shell_.Enter("Save", linkFile) && shell_.files_.Write(linkFile, Format(link_));
  }

 private:
  bool Set(std::string_view operation, std::string& field, std::string_view value) {
    if (!shell_.Enter(operation, value)) return false;
    field = value;
    return true;
  }
  template <class T>
  std::optional<T> Tell(std::string_view operation, const T& value) {
    if (!shell_.Enter(operation)) return std::nullopt;
    return value;
  }

  SimShellLinks& shell_;
  SimLink link_;
};

SimShellLinks::~SimShellLinks() {
  if (alive_ != 0) Complain("a shell link was not released");
}

void SimShellLinks::SetFolder(int folder, std::string_view path) {
  files_.MakeFolders(path);
  folders_[folder] = ItemOf(path);
}

void SimShellLinks::SetVirtualFolder(int folder) {
  folders_[folder] = {.Bytes = std::string(kFolderItem) + std::to_string(folder)};
}

void SimShellLinks::Put(std::string_view linkFile, const SimLink& link) {
  SimLink whole = link;
  if (whole.Item.IsEmpty() && !whole.Path.empty()) whole.Item = ItemOf(whole.Path);
  files_.Put(linkFile, Format(whole));
}

void SimShellLinks::PutElsewhere(std::string_view linkFile) {
  elsewhere_.insert(UpperCase(linkFile));
}

std::optional<SimLink> SimShellLinks::Get(std::string_view linkFile) const {
  if (!files_.Has(linkFile)) return std::nullopt;
  return Parse(files_.Get(linkFile).value_or(std::string()));
}

ItemIdList SimShellLinks::ItemOf(std::string_view path) {
  return {.Bytes = std::string(kPathItem) + std::string(path)};
}

bool SimShellLinks::Enter(std::string_view operation, std::string_view argument) {
  log_.push_back(std::string(operation) + (argument.empty() ? "" : " ") + std::string(argument));
  if (failIn_ == 0 || --failIn_ > 0) return true;
  hit_ = true;
  return false;
}

std::unique_ptr<ShellLinkObject> SimShellLinks::CreateLinkObject() {
  if (!Enter("CreateLinkObject")) return nullptr;
  return std::make_unique<Object>(*this);
}

bool SimShellLinks::LiesElsewhere(std::string_view linkFile) {
  TellCall("LiesElsewhere", linkFile);
  return elsewhere_.contains(UpperCase(linkFile));
}

std::optional<ItemIdList> SimShellLinks::SpecialFolderLocation(WindowId, int folder) {
  TellCall("SpecialFolderLocation", "shell");
  if (!Enter("SpecialFolderLocation", std::to_string(folder))) return std::nullopt;
  const auto found = folders_.find(folder);
  if (found == folders_.end()) return std::nullopt;
  return found->second;
}

std::optional<std::string> SimShellLinks::PathFromIDList(const ItemIdList& item) {
  if (!Enter("PathFromIDList", item.Bytes)) return std::nullopt;
  return PathOf(item);
}

}  // namespace corvelle::sim
