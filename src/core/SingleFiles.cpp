#include "core/SingleFiles.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"

namespace corvelle {
namespace {

// What is longer is no button's file, and is not taken into memory to be put back.
constexpr std::size_t kLongestFile = std::size_t{1} << 20U;

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

std::string KeyOf(std::string_view path) { return UpperCase(path); }

std::string NumberedPath(std::string_view menusPath, std::size_t number) {
  return std::string(menusPath) + SingleFileName(static_cast<int>(number));
}

/// Which file a new place overwrites, and where that file's button goes.
class Moves {
 public:
  Moves(std::string_view menusPath, const SingleFiles& before, const SingleFiles& after)
      : before_(before), next_(after.size(), kNowhere), stays_(after.size()) {
    std::map<std::string, std::size_t> newPlace;
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (!after[i].Path.empty()) newPlace[KeyOf(after[i].Path)] = i;
      targets_.push_back(NumberedPath(menusPath, i + 1));
      targetKeys_[KeyOf(targets_.back())] = i;
    }
    for (const SingleFile& old : before) {
      const std::string key = KeyOf(old.Path);
      const auto target = targetKeys_.find(key);
      const auto place = newPlace.find(key);
      if (target == targetKeys_.end() || place == newPlace.end()) continue;
      if (target->second == place->second) {
        stays_[target->second] = true;
      } else {
        next_[target->second] = place->second;
      }
    }
  }

  [[nodiscard]] const std::string& Target(std::size_t place) const { return targets_[place]; }
  /// The file of this place is right as it is.
  [[nodiscard]] bool Stays(std::size_t place) const { return stays_[place]; }
  /// The place that must be written first, since its button stands in this place's file; kNowhere
  /// when there is none.
  [[nodiscard]] std::size_t Before(std::size_t place) const { return next_[place]; }
  [[nodiscard]] bool IsTarget(std::string_view path) const {
    return targetKeys_.contains(KeyOf(path));
  }
  /// A path that neither row has, another one at each call.
  [[nodiscard]] std::string SparePath(std::string_view menusPath) {
    std::string path;
    do {
      path = NumberedPath(menusPath, targets_.size() + ++spares_);
    } while (PlaceOfSingle(before_, path) != before_.size());
    return path;
  }

 private:
  const SingleFiles& before_;
  std::vector<std::string> targets_;
  std::map<std::string, std::size_t> targetKeys_;
  std::vector<std::size_t> next_;
  std::vector<bool> stays_;
  std::size_t spares_ = 0;
};

/// Takes back the first `done` steps, the last one first.
void UndoSteps(FileSystem& files, const SingleFiles& before, const std::vector<SingleStep>& steps,
               std::size_t done) {
  while (done > 0) {
    const std::string& path = steps[--done].Path;
    const std::size_t old = PlaceOfSingle(before, path);
    const bool undone = old != before.size() ? files.Replace(path, before[old].Bytes).HasValue()
                                             : files.Remove(path).HasValue();
    // Farther back a button could get lost. As it is, one may stand there twice.
    if (!undone && files.FileExists(path)) return;
  }
}

}  // namespace

FileResult<SingleFiles> ReadSingleFiles(FileSystem& files, std::string_view menusPath) {
  const auto names = OrderedSingleFiles(files, menusPath);
  if (!names) return names.Error();
  SingleFiles row;
  row.reserve(names->size());
  for (const std::string& name : *names) {
    std::string path = std::string(menusPath) + name;
    FileResult<std::string> bytes = files.Read(path, 0, kLongestFile + 1);
    if (!bytes) return bytes.Error();
    if (bytes->size() > kLongestFile) return FileError::Failed;
    row.push_back({std::move(path), *std::move(bytes)});
  }
  return row;
}

std::string SingleBytes(std::string_view fileBytes) {
  std::string bytes(fileBytes.substr(0, kRecordLength));
  bytes.resize(kRecordLength, ' ');
  return bytes;
}

std::size_t PlaceOfSingle(const SingleFiles& row, std::string_view path) noexcept {
  const auto at = std::find_if(row.begin(), row.end(), [path](const SingleFile& single) {
    return EqualNoCase(single.Path, path);
  });
  return static_cast<std::size_t>(at - row.begin());
}

SingleFiles WithoutSingle(SingleFiles row, std::string_view path) {
  const std::size_t at = PlaceOfSingle(row, path);
  if (at != row.size()) row.erase(row.begin() + static_cast<std::ptrdiff_t>(at));
  return row;
}

SingleFiles WithSingles(SingleFiles row, std::size_t at, const std::vector<MenuRecord>& records,
                        const CodePage& ansi) {
  SingleFiles added;
  added.reserve(records.size());
  for (const MenuRecord& record : records) added.push_back({{}, FormatRecord(record, ansi)});
  const std::size_t place = std::min(at, row.size());
  row.insert(row.begin() + static_cast<std::ptrdiff_t>(place), added.begin(), added.end());
  return row;
}

SingleFiles WithSingleMoved(SingleFiles row, std::string_view path, std::string_view before) {
  const std::size_t from = PlaceOfSingle(row, path);
  if (from == row.size() || EqualNoCase(path, before)) return row;
  if (!before.empty() && PlaceOfSingle(row, before) == row.size()) return row;
  SingleFile moved = row[from];
  row.erase(row.begin() + static_cast<std::ptrdiff_t>(from));
  const auto at = static_cast<std::ptrdiff_t>(PlaceOfSingle(row, before));
  row.insert(row.begin() + at, std::move(moved));
  return row;
}

std::vector<SingleStep> PlanSingleRewrite(std::string_view menusPath, const SingleFiles& before,
                                          const SingleFiles& after) {
  Moves moves(menusPath, before, after);
  std::vector<SingleStep> steps;
  std::vector<std::string> spares;
  std::vector<bool> planned(after.size());
  for (std::size_t first = 0; first < after.size(); ++first) {
    // From each place to the one that must be written before it; written from the far end.
    std::vector<std::size_t> chain;
    std::size_t place = first;
    while (place != kNowhere && !planned[place] && !moves.Stays(place)) {
      planned[place] = true;
      chain.push_back(place);
      place = moves.Before(place);
    }
    // A chain that comes back to its own beginning has no free end: one button waits aside.
    if (!chain.empty() && place == first) {
      spares.push_back(moves.SparePath(menusPath));
      steps.push_back({spares.back(), SingleBytes(after[first].Bytes)});
    }
    for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
      steps.push_back({moves.Target(*at), SingleBytes(after[*at].Bytes)});
    }
  }
  for (const SingleFile& old : before) {
    if (!moves.IsTarget(old.Path)) steps.push_back({old.Path, std::nullopt});
  }
  for (const std::string& spare : spares) steps.push_back({spare, std::nullopt});
  return steps;
}

FileStatus RewriteSingleFiles(FileSystem& files, std::string_view menusPath,
                              const SingleFiles& before, const SingleFiles& after) {
  const std::vector<SingleStep> steps = PlanSingleRewrite(menusPath, before, after);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const SingleStep& step = steps[i];
    const FileStatus status =
        step.Bytes ? files.Replace(step.Path, *step.Bytes) : files.Remove(step.Path);
    if (status) continue;
    UndoSteps(files, before, steps, i);
    return status;
  }
  return Done();
}

FileStatus DeleteSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  return RewriteSingleFiles(files, menusPath, *row, WithoutSingle(*row, path));
}

FileStatus PasteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           std::string_view path, const MenuRecord& record) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const std::size_t at = PlaceOfSingle(*row, path);
  if (at == row->size() && !path.empty()) return FileError::NotFound;
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, at, {record}, ansi));
}

FileStatus UndoDeleteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                                std::string_view path, const MenuRecord& record) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const auto at = std::find_if(row->begin(), row->end(), [path](const SingleFile& single) {
    return CompareNoCase(single.Path, path) >= 0;
  });
  if (at == row->end()) return WriteRecords(files, ansi, path, {record});
  const auto place = static_cast<std::size_t>(at - row->begin());
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, place, {record}, ansi));
}

FileStatus InsertSingleFiles(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                             std::size_t at, const std::vector<MenuRecord>& records) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, at, records, ansi));
}

FileStatus MoveSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path,
                          std::string_view before) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const auto missing = [&row](std::string_view file) {
    return PlaceOfSingle(*row, file) == row->size();
  };
  if (missing(path) || (!before.empty() && missing(before))) return FileError::NotFound;
  return RewriteSingleFiles(files, menusPath, *row, WithSingleMoved(*row, path, before));
}

}  // namespace corvelle
