#pragma once

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// Shows the hourglass until the scope ends, then the pointer that was there before. A shape that
/// somebody has given the pointer meanwhile stays.
class HourglassScope {
 public:
  explicit HourglassScope(WindowSystem& windows)
      : windows_(windows), before_(windows.CurrentMousePointer()) {
    windows_.SetMousePointer(MousePointer::Hourglass);
  }
  HourglassScope(const HourglassScope&) = delete;
  HourglassScope& operator=(const HourglassScope&) = delete;
  ~HourglassScope() {
    if (windows_.CurrentMousePointer() == MousePointer::Hourglass)
      windows_.SetMousePointer(before_);
  }

 private:
  WindowSystem& windows_;
  MousePointer before_;
};

/// Holds a guard flag for the length of a scope.
class FlagScope {
 public:
  explicit FlagScope(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;
  ~FlagScope() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

/// Counts itself for the length of a scope.
class CountScope {
 public:
  explicit CountScope(int& count) : count_(count) { ++count_; }
  CountScope(const CountScope&) = delete;
  CountScope& operator=(const CountScope&) = delete;
  ~CountScope() { --count_; }

 private:
  int& count_;
};

}  // namespace corvelle::forms
