#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/WindowPorts.h"

namespace corvelle {

/// Notes what the files hold each time that it is told of an edit.
struct NotedEdits final : MenuEditsPort {
  explicit NotedEdits(std::function<std::string()> look) : Look(std::move(look)) {}
  std::function<std::string()> Look;
  std::vector<std::string> Seen;

  void MenusEdited() override { Seen.push_back(Look()); }
};

}  // namespace corvelle
