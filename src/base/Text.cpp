#include "base/Text.h"

#include <algorithm>
#include <limits>

#include "base/CaseTables.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

/// What a character weighs when case does not count.
char32_t Weight(const Utf8Step& step, std::string_view text, std::size_t at) noexcept {
  if (step.Valid) return UpperCharacter(step.Character);
  return 0x110000U + static_cast<unsigned char>(text[at]);
}

/// Bytes of `text` from byte `at` that equal `what` ignoring case; npos when they do not.
std::size_t MatchAt(std::string_view text, std::size_t at, std::string_view what) noexcept {
  std::size_t here = at;
  for (std::size_t there = 0; there < what.size();) {
    if (here >= text.size()) return std::string_view::npos;
    const Utf8Step a = NextCharacter(text, here);
    const Utf8Step b = NextCharacter(what, there);
    if (Weight(a, text, here) != Weight(b, what, there)) return std::string_view::npos;
    here += a.Length;
    there += b.Length;
  }
  return here - at;
}

std::string MapCharacters(std::string_view text, char32_t (*map)(char32_t) noexcept) {
  std::string mapped;
  mapped.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = NextCharacter(text, at);
    if (step.Character < 0x80) {
      mapped.push_back(static_cast<char>(map(step.Character)));
    } else if (step.Valid) {
      AppendUtf8(mapped, map(step.Character));
    } else {
      mapped.push_back(text[at]);
    }
    at += step.Length;
  }
  return mapped;
}

}  // namespace

std::string_view TrimView(std::string_view text) noexcept {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  text.remove_prefix(first);
  // A field of a record is mostly blanks: several at a time.
  constexpr std::string_view kBlanks = "                ";
  while (text.ends_with(kBlanks)) text.remove_suffix(kBlanks.size());
  while (text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string Trim(std::string_view text) { return std::string(TrimView(text)); }

std::string RemoveBlanks(std::string_view text) {
  std::string rest(text);
  std::erase(rest, ' ');
  return rest;
}

std::string StripAtNull(std::string_view text) { return Trim(text.substr(0, text.find('\0'))); }

std::string StripQuotes(std::string_view text) {
  std::string_view rest = TrimView(text);
  while (!rest.empty() && (rest.front() == '"' || rest.back() == '"')) {
    if (rest.front() == '"') rest.remove_prefix(1);
    if (!rest.empty() && rest.back() == '"') rest.remove_suffix(1);
    rest = TrimView(rest);
  }
  return std::string(rest);
}

std::string EnsureBackslash(std::string_view path) {
  std::string ended = StripAtNull(path);
  if (!ended.ends_with('\\')) ended.push_back('\\');
  return ended;
}

std::string DropBackslash(std::string_view path) {
  std::string bare = StripAtNull(path);
  if (bare.ends_with('\\')) bare.pop_back();
  return bare;
}

std::string DoubleAmpersands(std::string_view caption) {
  std::string doubled;
  doubled.reserve(caption.size());
  for (const char c : caption) doubled.append(c == '&' ? 2U : 1U, c);
  return doubled;
}

std::string SingleAmpersands(std::string_view caption) {
  std::string single;
  single.reserve(caption.size());
  for (std::size_t at = 0; at < caption.size(); ++at) {
    single.push_back(caption[at]);
    if (caption.substr(at, 2) == "&&") ++at;
  }
  return single;
}

int CompareNoCase(std::string_view a, std::string_view b) noexcept {
  std::size_t here = 0;
  std::size_t there = 0;
  while (here < a.size() && there < b.size()) {
    const Utf8Step stepA = NextCharacter(a, here);
    const Utf8Step stepB = NextCharacter(b, there);
    const char32_t weightA = Weight(stepA, a, here);
    const char32_t weightB = Weight(stepB, b, there);
    if (weightA != weightB) return weightA < weightB ? -1 : 1;
    here += stepA.Length;
    there += stepB.Length;
  }
  if (here < a.size()) return 1;
  return there < b.size() ? -1 : 0;
}

bool EqualNoCase(std::string_view a, std::string_view b) noexcept {
  return CompareNoCase(a, b) == 0;
}

bool StartsWithNoCase(std::string_view text, std::string_view start) noexcept {
  return MatchAt(text, 0, start) != std::string_view::npos;
}

bool EndsWithNoCase(std::string_view text, std::string_view end) noexcept {
  // Capitals may be longer or shorter than their small letters, but for plain ones.
  if (IsPlain(text) && IsPlain(end)) {
    return text.size() >= end.size() && EqualNoCase(text.substr(text.size() - end.size()), end);
  }
  for (std::size_t at = 0; at < text.size(); at += NextCharacter(text, at).Length) {
    const std::size_t length = MatchAt(text, at, end);
    if (length != std::string_view::npos && at + length == text.size()) return true;
  }
  return end.empty();
}

std::size_t FindNoCase(std::string_view text, std::string_view what, std::size_t from) noexcept {
  if (what.empty()) return from <= text.size() ? from : std::string_view::npos;
  for (std::size_t at = from; at < text.size(); at += NextCharacter(text, at).Length) {
    if (MatchAt(text, at, what) != std::string_view::npos) return at;
  }
  return std::string_view::npos;
}

bool ContainsNoCase(std::string_view text, std::string_view what) noexcept {
  return FindNoCase(text, what) != std::string_view::npos;
}

std::string UpperCase(std::string_view text) { return MapCharacters(text, UpperCharacter); }

std::string LowerCase(std::string_view text) { return MapCharacters(text, LowerCharacter); }

char32_t UpperCharacter(char32_t character) noexcept {
  if (character < 0x80) return character >= U'a' && character <= U'z' ? character - 32 : character;
  for (const CaseRun& run : kCaseRuns) {
    if (character < run.First) break;
    if (character <= run.Last && (character - run.First) % run.Step == 0) {
      return character - run.Distance;
    }
  }
  for (const CasePair& pair : kCasePairs) {
    if (character == pair.Small) return pair.Capital;
  }
  return character == kFinalSigma.Small ? kFinalSigma.Capital : character;
}

char32_t LowerCharacter(char32_t character) noexcept {
  if (character < 0x80) return character >= U'A' && character <= U'Z' ? character + 32 : character;
  for (const CaseRun& run : kCaseRuns) {
    const char32_t small = character + run.Distance;
    if (small >= run.First && small <= run.Last && (small - run.First) % run.Step == 0) {
      return small;
    }
  }
  for (const CasePair& pair : kCasePairs) {
    if (character == pair.Capital) return pair.Small;
  }
  return character;
}

std::optional<int> ParseNumber(std::string_view text) noexcept {
  std::string_view digits = TrimView(text);
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  if (digits.empty()) return std::nullopt;
  long long value = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
    if (value > static_cast<long long>(std::numeric_limits<int>::max()) + 1) return std::nullopt;
  }
  if (negative) value = -value;
  if (value > std::numeric_limits<int>::max()) return std::nullopt;
  return static_cast<int>(value);
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    const std::size_t mark = text.substr(end, 2) == "\r\n" ? 2 : 1;
    text.remove_prefix(std::min(end + mark, text.size()));
  }
  return lines;
}

}  // namespace corvelle
