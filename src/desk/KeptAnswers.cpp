#include "desk/KeptAnswers.h"

#include <utility>

namespace corvelle::desk {

namespace {

constexpr std::size_t kEach = 128;  // of the maps and of a small value

}  // namespace

const KeptAnswers::Kept* KeptAnswers::Find(const std::string& key) {
  const auto found = kept_.find(key);
  if (found == kept_.end()) return nullptr;
  turns_.erase(found->second.Turn);
  found->second.Turn = ++last_;
  turns_.emplace(last_, key);
  return &found->second;
}

void KeptAnswers::Keep(const std::string& key, LookupValue value, std::int64_t now) {
  Forget(key);
  const std::size_t room = kEach + 2 * key.size() + RoomOf(value);
  used_ += room;
  turns_.emplace(++last_, key);
  kept_.emplace(key, Kept{std::move(value), now, room, last_});
  while (used_ > room_) Forget(std::string(turns_.begin()->second));
}

void KeptAnswers::Forget(const std::string& key) {
  const auto found = kept_.find(key);
  if (found == kept_.end()) return;
  used_ -= found->second.Room;
  turns_.erase(found->second.Turn);
  kept_.erase(found);
}

std::size_t RoomOf(const LookupValue& value) {
  std::size_t room = 0;
  if (const auto* const files = std::get_if<std::vector<FileEntry>>(&value)) {
    for (const FileEntry& file : *files) room += sizeof(file) + file.Name.size();
  } else if (const auto* const entries = std::get_if<std::vector<ShellFolderEntry>>(&value)) {
    for (const ShellFolderEntry& entry : *entries) room += sizeof(entry) + entry.Name.size();
  } else if (const auto* const icon = std::get_if<IconPixels>(&value)) {
    room = icon->Pixels.size() * sizeof(icon->Pixels.front());
  } else if (const auto* const text = std::get_if<std::string>(&value)) {
    room = text->size();
  }
  return room;
}

}  // namespace corvelle::desk
