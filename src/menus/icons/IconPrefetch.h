#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

#include "forms/Timer.h"
#include "menus/folders/FolderQuestions.h"

namespace corvelle {

class CodePage;
class FileSystem;
class MenuIcons;
struct GuardFlags;
struct ProgramPaths;

/// What fetching icons beforehand works with. All of it outlives the fetching.
struct PrefetchSources {
  forms::WindowSystem& Windows;
  desk::AnswerDesk& Answers;
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const GuardFlags& Guards;  // nothing is fetched while a menu is built
};

/// Fetches icons before a menu asks for them, in moments when nothing else is to be done: one menu
/// file at a time, from a timer. No window.
class IconPrefetch {
 public:
  /// Milliseconds from InitIcons to the first file.
  static constexpr int kFirstPause = 200;

  IconPrefetch(const PrefetchSources& from, MenuIcons& icons);

  /// Those of all menu files, of the files of their folder items, and of the links, each when
  /// nothing more urgent is asked. Begins again when it has not come to its end yet.
  void InitIcons();
  /// Nothing more is fetched.
  void Stop();

 private:
  void Step();
  void ListFiles();
  /// False when a folder item of the file is not known yet.
  [[nodiscard]] bool LoadIconsOf(const std::string& menuFile);
  void GoOn(int milliseconds);

  PrefetchSources from_;
  MenuIcons& icons_;
  forms::Timer timer_;
  std::unique_ptr<FolderQuestions> folders_;
  bool listed_ = false;
  std::deque<std::string> files_;  // menu files and links that are still to be looked at
  std::size_t waiting_ = 0;        // of them, those at the end that wait for what a folder holds
};

}  // namespace corvelle
