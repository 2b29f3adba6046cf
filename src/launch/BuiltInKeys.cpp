#include "launch/BuiltInKeys.h"

#include "platform/KeySynthesis.h"

namespace corvelle {

namespace {

constexpr int kShift = 16;
constexpr int kControl = 17;
constexpr int kLeftWindows = 91;
constexpr int kLetterF = 'F';
constexpr int kLetterM = 'M';

std::vector<int> Chord(ShellKeys keys) {
  switch (keys) {
    case ShellKeys::FindComputer:
      return {kControl, kLeftWindows, kLetterF};
    case ShellKeys::MinimizeAllWindows:
      return {kLeftWindows, kLetterM};
    case ShellKeys::UndoMinimizeAll:
      return {kShift, kLeftWindows, kLetterM};
  }
  return {};
}

}  // namespace

std::vector<KeyStroke> KeySequence(ShellKeys keys) {
  const std::vector<int> chord = Chord(keys);
  std::vector<KeyStroke> strokes;
  for (const unsigned flags : {keyevent::Down, keyevent::Up}) {
    for (const int key : chord) strokes.push_back({key, flags});
  }
  return strokes;
}

}  // namespace corvelle
