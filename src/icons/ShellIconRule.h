#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/WindowPorts.h"
#include "desk/AnswerDesk.h"
#include "platform/IconPixels.h"
#include "platform/Lookups.h"

namespace corvelle {

struct IconState;
struct ProgramPaths;

/// Looks how the shell shows icon files and sets IconState::ShellDrawsIcons: true when two of them
/// show different pictures, false when both show the same one, or cannot be looked at.
class ShellIconRule final : public IconRulePort {
 public:
  /// All of it outlives the rule.
  ShellIconRule(desk::AnswerDesk& answers, const ProgramPaths& paths, IconState& icons);
  ~ShellIconRule() override;
  ShellIconRule(const ShellIconRule&) = delete;
  ShellIconRule& operator=(const ShellIconRule&) = delete;

  /// Asks the desk. Until the answer is there it counts as false: icons are then taken from their
  /// files, which gives the same pictures.
  void DetectShellIcons() override;

 private:
  void Ask(Lookup question, std::function<void(const desk::Reply&)> answered);
  void AskForTwo(const desk::Reply& listed);
  void Compare(const desk::Reply& icon);

  desk::AnswerDesk& answers_;
  const ProgramPaths& paths_;
  IconState& icons_;
  std::uint64_t owner_;
  std::optional<IconPixels> first_;
};

}  // namespace corvelle
