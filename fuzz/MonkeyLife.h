#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "program/Parts.h"
#include "sim/World.h"

namespace corvelle::fuzz {

/// One life of the monkey: an installation of random menus and options, a start, random events, an
/// end. The same seed gives the same life.
class MonkeyLife {
 public:
  /// `tell`: every event is printed before it happens.
  MonkeyLife(std::uint64_t seed, bool tell);
  ~MonkeyLife();

  /// Lives through so many events. Empty when all was well, else what was wrong, with the events
  /// that led there.
  [[nodiscard]] std::string Live(int events);

 private:
  // The world before the start.
  void Furnish();
  void WriteMenu(int number);
  [[nodiscard]] std::string RandomRecords(int count);

  // One event each.
  void Act();
  void MoveSomewhere();
  void PressOrRelease();
  void ClickSomewhere();
  void UseKeys();
  void LetTimePass();
  void ChangeFiles();
  void ChangeWindows();
  void ChangeSystem();

  // What must hold when nothing runs. Empty when it does.
  [[nodiscard]] std::string WhatIsWrong();
  [[nodiscard]] std::string WrongRest();
  [[nodiscard]] std::string WrongState() const;
  [[nodiscard]] std::string WrongMenu() const;
  [[nodiscard]] std::string WrongFiles() const;
  [[nodiscard]] std::string WrongEnd();

  [[nodiscard]] int Number(int below);
  [[nodiscard]] bool Chance(int percent) { return Number(100) < percent; }
  [[nodiscard]] PixelPoint SomePoint();
  [[nodiscard]] PixelPoint PointIn(std::string_view className);
  [[nodiscard]] std::string MenuPath(int number) const;
  void Tell(std::string event);

  std::mt19937_64 random_;
  bool tell_;
  std::unique_ptr<sim::World> world_;
  std::unique_ptr<Parts> parts_;
  std::vector<WindowId> others_;
  std::set<int> keysDown_;
  bool diskFails_ = false;
  std::deque<std::string> last_;  // events
};

}  // namespace corvelle::fuzz
