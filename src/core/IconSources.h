#pragma once

namespace corvelle {

class ShellIcons;
struct IconState;
struct ProgramPaths;
namespace desk {
class AnswerDesk;
}
namespace forms {
class WindowSystem;
}

/// What icons come from. All of it outlives whoever shows them.
struct IconSources {
  forms::WindowSystem& Windows;
  desk::AnswerDesk& Answers;
  ShellIcons& Shell;
  const ProgramPaths& Paths;
  const IconState& Icons;
};

}  // namespace corvelle
