#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle::fuzz {

/// What the monkey has done and what came of it, over all lives of a run: a monkey that has stopped
/// reaching something finds nothing there.
class MonkeyTally {
 public:
  void Note(std::string_view deed) { ++counts_[std::string(deed)]; }
  [[nodiscard]] int Count(std::string_view deed) const;
  /// Deeds that every run of some hundred thousand events has to come to, and this one has not.
  [[nodiscard]] std::vector<std::string> Missing() const;
  /// One line for each deed.
  void Print() const;
  /// Writes the deeds to a file, one a line, and adds those of such a file. False on failure.
  [[nodiscard]] bool Keep(const std::string& file) const;
  [[nodiscard]] bool Add(const std::string& file);

 private:
  std::map<std::string, int, std::less<>> counts_;
};

}  // namespace corvelle::fuzz
