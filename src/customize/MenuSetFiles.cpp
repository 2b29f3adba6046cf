#include "customize/MenuSetFiles.h"

#include <algorithm>
#include <utility>

#include "base/CodePage.h"
#include "base/Digest.h"
#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"

namespace corvelle {
namespace {

constexpr std::size_t kLongestMenu = static_cast<std::size_t>(kMaxRecords) * kRecordLength;

using Names = FileResult<std::vector<std::string>>;

/// Hands the files of a row over, one after the other. The result is how many of them were there.
template <class Take>
MenusResult<std::size_t> ReadEach(FileSystem& files, std::string_view menusPath, const Names& names,
                                  const Take& take) {
  const std::string folder(menusPath);
  if (!names) return MenusError{names.Error(), folder};
  std::size_t there = 0;
  for (const std::string& name : *names) {
    FileResult<std::string> bytes = files.Read(folder + name, 0, kLongestMenu + 1);
    if (!bytes && bytes.Error() == FileError::NotFound) continue;
    if (!bytes) return MenusError{bytes.Error(), folder + name};
    if (bytes->size() > kLongestMenu) return MenusError{FileError::Failed, folder + name};
    ++there;
    take(name, *std::move(bytes));
  }
  return there;
}

MenusResult<std::vector<StoredFile>> ReadRow(FileSystem& files, std::string_view menusPath,
                                             const Names& names) {
  std::vector<StoredFile> row;
  const auto there = ReadEach(files, menusPath, names, [&](const std::string& name, std::string b) {
    row.push_back({name, std::move(b)});
  });
  if (!there) return there.Error();
  return row;
}

/// Makes the stamp of files that come one after the other.
class Stamper {
 public:
  void BeginRow(std::size_t filesOfRow) { digest_.Add(filesOfRow); }
  void Add(std::string_view bytes) {
    length_ += bytes.size();
    digest_.Add(bytes);
  }
  [[nodiscard]] MenusStamp Stamp() const { return {length_, digest_.Value()}; }

 private:
  Digest digest_;
  std::uint64_t length_ = 0;
};

Menu ParseMenu(std::string_view bytes, const CodePage& ansi) {
  Menu menu;
  menu.Head = ParseRecord(bytes, ansi);
  const int count = RecordCount(bytes.size());
  if (count < 2) return menu;
  menu.Items.reserve(static_cast<std::size_t>(count) - 1);
  for (int number = 2; number <= count; ++number) {
    bytes.remove_prefix(kRecordLength);
    menu.Items.push_back(ParseRecord(bytes, ansi));
  }
  return menu;
}

std::string FormatMenu(const Menu& menu, const CodePage& ansi) {
  std::string bytes;
  bytes.reserve((menu.Items.size() + 1) * kRecordLength);
  bytes += FormatRecord(menu.Head, ansi);
  for (const MenuRecord& item : menu.Items) bytes += FormatRecord(item, ansi);
  return bytes;
}

void SortRow(std::vector<StoredFile>& row) {
  std::stable_sort(row.begin(), row.end(), [](const StoredFile& a, const StoredFile& b) {
    return CompareNoCase(a.Name, b.Name) < 0;
  });
}

}  // namespace

MenusResult<StoredMenus> ReadStoredMenus(FileSystem& files, std::string_view menusPath) {
  auto menus = ReadRow(files, menusPath, ListMenuFiles(files, menusPath));
  if (!menus) return menus.Error();
  auto singles = ReadRow(files, menusPath, OrderedSingleFiles(files, menusPath));
  if (!singles) return singles.Error();
  return StoredMenus{*std::move(menus), *std::move(singles)};
}

MenusStamp StampOf(const StoredMenus& stored) {
  Stamper stamper;
  for (const auto* row : {&stored.Menus, &stored.Singles}) {
    stamper.BeginRow(row->size());
    for (const StoredFile& file : *row) stamper.Add(file.Bytes);
  }
  return stamper.Stamp();
}

MenuSet ParseMenus(const StoredMenus& stored, const CodePage& ansi) {
  MenuSet set;
  set.Menus.reserve(stored.Menus.size());
  for (const StoredFile& file : stored.Menus) set.Menus.push_back(ParseMenu(file.Bytes, ansi));
  set.Singles.reserve(stored.Singles.size());
  for (const StoredFile& file : stored.Singles) {
    set.Singles.push_back(ParseRecord(file.Bytes, ansi));
  }
  return set;
}

StoredMenus FormatMenus(const MenuSet& set, const CodePage& ansi) {
  StoredMenus stored;
  stored.Menus.reserve(set.Menus.size());
  int number = 0;
  for (const Menu& menu : set.Menus) {
    stored.Menus.push_back({MenuFileName(++number), FormatMenu(menu, ansi)});
  }
  stored.Singles.reserve(set.Singles.size());
  number = 0;
  for (const MenuRecord& single : set.Singles) {
    stored.Singles.push_back({SingleFileName(++number), FormatRecord(single, ansi)});
  }
  return stored;
}

StoredMenus InListOrder(StoredMenus stored) {
  SortRow(stored.Menus);
  SortRow(stored.Singles);
  return stored;
}

MenusResult<MenuFiles> ReadMenuFiles(FileSystem& files, const CodePage& ansi,
                                     std::string_view menusPath) {
  // Parsed one by one: the bytes of all of them together may be much.
  MenuFiles read;
  Stamper stamper;
  const Names menus = ListMenuFiles(files, menusPath);
  if (menus) stamper.BeginRow(menus->size());
  const auto menusThere =
      ReadEach(files, menusPath, menus, [&](const std::string&, const std::string& bytes) {
        stamper.Add(bytes);
        read.Set.Menus.push_back(ParseMenu(bytes, ansi));
      });
  if (!menusThere) return menusThere.Error();
  const Names singles = OrderedSingleFiles(files, menusPath);
  if (singles) stamper.BeginRow(singles->size());
  const auto singlesThere =
      ReadEach(files, menusPath, singles, [&](const std::string&, const std::string& bytes) {
        stamper.Add(bytes);
        read.Set.Singles.push_back(ParseRecord(bytes, ansi));
      });
  if (!singlesThere) return singlesThere.Error();
  if (*menusThere != menus->size() || *singlesThere != singles->size()) {
    // One has gone since the listing, which the stamp has counted.
    const MenusResult<StoredMenus> stored = ReadStoredMenus(files, menusPath);
    if (!stored) return stored.Error();
    return MenuFiles{ParseMenus(*stored, ansi), StampOf(*stored)};
  }
  read.Stamp = stamper.Stamp();
  return read;
}

}  // namespace corvelle
