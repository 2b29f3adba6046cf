#include "properties/OrderFiles.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "core/FileTransaction.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"

namespace corvelle {

namespace {

/// A menu file, what it is called before and after, and its button's record as it is to be.
struct OrderedFile {
  std::string From;
  std::string To;
  std::string Record;
};

/// The bytes of a button's record in a file; blank for an empty file.
std::string FirstRecord(std::string_view records) {
  std::string stored = StoredRecord(records, 1);
  stored.resize(kRecordLength, ' ');
  return stored;
}

/// Left by a change of the order that another version of the program did not end.
void RemoveHalfRenamed(FileSystem& files, std::string_view menusPath) {
  const auto left = files.List(menusPath, "*.xxx");
  if (!left) return;
  for (const FileEntry& entry : *left) {
    // One that stays is in nobody's way: no file is given such a name any more.
    if (!entry.IsFolder) static_cast<void>(files.Remove(std::string(menusPath) + entry.Name));
  }
}

bool HoldsTheseFiles(const std::vector<std::string>& names, std::string_view menusPath,
                     const ButtonOrder& order) {
  std::vector<std::string> there;
  for (const std::string& name : names) there.push_back(UpperCase(std::string(menusPath) + name));
  std::vector<std::string> listed;
  for (const ButtonNode& node : order.Nodes()) listed.push_back(UpperCase(PathOfTag(node.Tag)));
  std::sort(there.begin(), there.end());
  std::sort(listed.begin(), listed.end());
  return there == listed;
}

}  // namespace

FileStatus LoadButtons(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                       ButtonOrder& order) {
  order.Clear();
  const auto names = ListMenuFiles(files, menusPath);
  if (!names) return names.Error();
  for (const std::string& name : *names) {
    const std::string path = std::string(menusPath) + name;
    const FileResult<std::string> first = files.Read(path, 0, kRecordLength);
    // One that cannot be read keeps its place, so that no other file gets its name.
    order.Add(
        MakeButtonNode(path, first ? FirstRecord(WholeRecords(*first)) : std::string(), ansi));
  }
  return Done();
}

OrderOutcome ApplyButtonOrder(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                              ButtonOrder& order) {
  order.CheckNodes();
  RemoveHalfRenamed(files, menusPath);
  const auto names = ListMenuFiles(files, menusPath);
  if (!names) return {OrderResult::Failed, names.Error()};
  if (!HoldsTheseFiles(*names, menusPath, order)) return {OrderResult::Outdated};

  FileTransaction change(files, menusPath);
  for (const ButtonNode& node : order.Nodes()) change.Remove(PathOfTag(node.Tag));
  std::vector<OrderedFile> ordered;
  for (const ButtonNode& node : order.Nodes()) {
    const int number = static_cast<int>(ordered.size()) + 1;
    const OrderedFile& file =
        ordered.emplace_back(OrderedFile{.From = PathOfTag(node.Tag),
                                         .To = std::string(menusPath) + MenuFileName(number),
                                         .Record = RecordFor(node, ansi)});
    FileResult<std::string> records = ReadWholeRecords(files, file.From);
    if (!records && records.Error() == FileError::NotFound) return {OrderResult::Outdated};
    if (!records) return {OrderResult::Failed, records.Error()};
    if (FirstRecord(*records) != node.Stored) return {OrderResult::Outdated};
    if (file.Record == node.Stored) {
      change.Rename(file.From, file.To);
    } else {
      change.Write(file.To,
                   InsertOrAppendRecord(WithoutRecord(*std::move(records), 1), 1, file.Record));
    }
  }
  const FileStatus done = change.Commit();
  if (!done) return {OrderResult::Failed, done.Error()};
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    order.SetFile(i, ordered[i].To, ordered[i].Record, ansi);
  }
  return {OrderResult::Applied};
}

}  // namespace corvelle
