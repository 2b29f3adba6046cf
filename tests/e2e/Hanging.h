#pragma once

#include <string>

namespace corvelle::e2e {

/// A folder of the machine that stops answering when a test says so, as a dead share does: whoever
/// asks for it or for what is in it waits until it answers again. The runner of the session makes
/// that possible (tests/e2e/hanging). It answers at first, and at the end of the test.
class HangingFolder {
 public:
  static constexpr char kPath[] = "C:\\hanging\\";

  /// With so many files, "tool 100.txt" and so on.
  explicit HangingFolder(int files, const std::string& extension = ".txt");
  HangingFolder(const HangingFolder&) = delete;
  HangingFolder& operator=(const HangingFolder&) = delete;
  ~HangingFolder() { Answer(); }

  [[nodiscard]] static std::string File(int number, const std::string& extension = ".txt");

  /// From now on it does not answer. False when it does all the same.
  [[nodiscard]] bool Hang();
  void Answer();
};

}  // namespace corvelle::e2e
