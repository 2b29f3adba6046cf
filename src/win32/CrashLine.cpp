#include "win32/CrashLine.h"

namespace corvelle::win32 {

namespace {

constexpr std::wstring_view kWord = L"/crashed";
constexpr std::wstring_view kDigits = L"0123456789abcdef";
constexpr unsigned kBase = 16;

class Writer {
 public:
  explicit Writer(wchar_t (&line)[kLongestCrashLine]) noexcept : line_(line) { *line_ = 0; }

  void Text(std::wstring_view text) noexcept {
    for (const wchar_t c : text) Put(c);
  }
  void Number(std::uintptr_t number) noexcept {
    Put(L' ');
    for (int shift = static_cast<int>(sizeof number) * 8 - 4; shift >= 0; shift -= 4) {
      Put(kDigits[(number >> static_cast<unsigned>(shift)) % kBase]);
    }
  }

 private:
  void Put(wchar_t c) noexcept {
    if (length_ + 1 >= kLongestCrashLine) return;
    line_[length_++] = c;
    line_[length_] = 0;
  }

  wchar_t* line_;
  std::size_t length_ = 0;
};

/// The number at the beginning, which is taken away; nothing when the text does not begin with one.
std::optional<std::uintptr_t> TakeNumber(std::wstring_view& text) noexcept {
  if (text.empty() || text.front() != L' ') return std::nullopt;
  text.remove_prefix(1);
  const std::wstring_view digits = text.substr(0, text.find(L' '));
  if (digits.empty() || digits.size() > 2 * sizeof(std::uintptr_t)) return std::nullopt;
  std::uintptr_t number = 0;
  for (const wchar_t c : digits) {
    const std::size_t digit = kDigits.find(c);
    if (digit == std::wstring_view::npos) return std::nullopt;
    number = number * kBase + digit;
  }
  text.remove_prefix(digits.size());
  return number;
}

}  // namespace

void FormatCrashLine(const wchar_t* program, const CrashLine& facts,
                     wchar_t (&line)[kLongestCrashLine]) noexcept {
  Writer writer(line);
  writer.Text(L"\"");
  writer.Text(program);
  writer.Text(L"\" ");
  writer.Text(kWord);
  writer.Number(facts.Process);
  writer.Number(facts.Thread);
  writer.Number(facts.Pointers);
  writer.Number(facts.Bar);
}

std::optional<CrashLine> ParseCrashLine(std::wstring_view line) noexcept {
  if (line.empty() || line.front() != L'"') return std::nullopt;
  const std::size_t end = line.find(L'"', 1);
  if (end == std::wstring_view::npos) return std::nullopt;
  std::wstring_view rest = line.substr(end + 1);
  if (rest.substr(0, 1) != L" " || rest.substr(1, kWord.size()) != kWord) return std::nullopt;
  rest.remove_prefix(1 + kWord.size());
  const auto process = TakeNumber(rest);
  const auto thread = TakeNumber(rest);
  const auto pointers = TakeNumber(rest);
  const auto bar = TakeNumber(rest);
  if (!process || !thread || !pointers || !bar || !rest.empty()) return std::nullopt;
  return CrashLine{.Process = static_cast<std::uint32_t>(*process),
                   .Thread = static_cast<std::uint32_t>(*thread),
                   .Pointers = *pointers,
                   .Bar = *bar};
}

}  // namespace corvelle::win32
