#include "forms/LookupWire.h"

#include <cstdint>
#include <utility>

#include "base/Utf8.h"

namespace corvelle::forms {

namespace {

constexpr std::uint8_t kVersion = 1;
constexpr std::size_t kLengthBytes = 4;

enum class WireValue : std::uint8_t { Nothing, Text, Picture };

void PutNumber(std::string& bytes, std::uint64_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

void PutText(std::string& bytes, std::string_view text) {
  PutNumber(bytes, text.size(), 4);
  bytes += text;
}

std::string Framed(const std::string& content) {
  if (content.size() > kMostWireBytes) return {};
  std::string message;
  PutNumber(message, content.size(), kLengthBytes);
  return message + content;
}

/// Takes fields from the front. What is not there is 0 or empty, and IsGood says so.
class Fields {
 public:
  explicit Fields(std::string_view bytes) : left_(bytes) {}

  std::uint64_t Number(std::size_t count) {
    if (left_.size() < count) {
      Fail();
      return 0;
    }
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
      number |= static_cast<std::uint64_t>(static_cast<unsigned char>(left_[i])) << (8 * i);
    left_.remove_prefix(count);
    return number;
  }

  std::string Text() {
    const std::uint64_t length = Number(4);
    if (length > kMostWireText || length > left_.size()) {
      Fail();
      return {};
    }
    std::string text(left_.substr(0, static_cast<std::size_t>(length)));
    left_.remove_prefix(text.size());
    if (!IsValidUtf8(text) || text.find('\0') != std::string::npos) Fail();
    return text;
  }

  IconPixels Picture() {
    const auto width = static_cast<int>(Number(2));
    const auto height = static_cast<int>(Number(2));
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (width > kMostWireSide || height > kMostWireSide || left_.size() < count * 4) {
      Fail();
      return {};
    }
    IconPixels picture{width, height, {}};
    picture.Pixels.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
      picture.Pixels.push_back(static_cast<std::uint32_t>(Number(4)));
    return picture;
  }

  /// True when all was there, and nothing is left.
  [[nodiscard]] bool IsGood() const noexcept { return good_ && left_.empty(); }

 private:
  void Fail() noexcept {
    good_ = false;
    left_ = {};
  }

  std::string_view left_;
  bool good_ = true;
};

}  // namespace

bool GoesOverWire(LookupKind kind) noexcept {
  return kind == LookupKind::FileName || kind == LookupKind::FileIcon ||
         kind == LookupKind::IconInFile || kind == LookupKind::ShellIcon;
}

std::string FormatWireQuestion(const WireQuestion& question) {
  const Lookup& asked = question.Question;
  if (!GoesOverWire(asked.Kind) || asked.Path.size() > kMostWireText) return {};
  std::string content;
  PutNumber(content, kVersion, 1);
  PutNumber(content, question.Id, 8);
  PutNumber(content, static_cast<std::uint64_t>(asked.Kind), 1);
  PutNumber(content, asked.List == IconList::Small ? 0 : 1, 1);
  PutNumber(content, static_cast<std::uint32_t>(asked.Number), 4);
  PutNumber(content, static_cast<std::uint32_t>(asked.Size), 4);
  PutText(content, asked.Path);
  return Framed(content);
}

std::optional<WireQuestion> ParseWireQuestion(std::string_view bytes) {
  Fields fields(bytes);
  if (fields.Number(1) != kVersion) return std::nullopt;
  WireQuestion question;
  question.Id = fields.Number(8);
  const std::uint64_t kind = fields.Number(1);
  const std::uint64_t list = fields.Number(1);
  question.Question.Number = static_cast<std::int32_t>(fields.Number(4));
  question.Question.Size = static_cast<std::int32_t>(fields.Number(4));
  question.Question.Path = fields.Text();
  if (!fields.IsGood() || list > 1) return std::nullopt;
  if (kind > static_cast<std::uint64_t>(LookupKind::ShellIcon)) return std::nullopt;
  question.Question.Kind = static_cast<LookupKind>(kind);
  question.Question.List = list == 0 ? IconList::Small : IconList::Large;
  const int size = question.Question.Size;
  if (!GoesOverWire(question.Question.Kind) || size < 0 || size > kMostWireSide)
    return std::nullopt;
  return question;
}

std::string FormatWireAnswer(const LookupAnswer& answer) {
  std::string content;
  PutNumber(content, kVersion, 1);
  PutNumber(content, answer.Id, 8);
  PutNumber(content, answer.End == LookupEnd::Answered ? 0 : 1, 1);
  if (const auto* const text = std::get_if<std::string>(&answer.Value)) {
    if (text->size() > kMostWireText) return {};
    PutNumber(content, static_cast<std::uint64_t>(WireValue::Text), 1);
    PutText(content, *text);
  } else if (const auto* const picture = std::get_if<IconPixels>(&answer.Value)) {
    if (!picture->IsWhole() || picture->Width > kMostWireSide || picture->Height > kMostWireSide)
      return {};
    PutNumber(content, static_cast<std::uint64_t>(WireValue::Picture), 1);
    PutNumber(content, static_cast<std::uint64_t>(picture->Width), 2);
    PutNumber(content, static_cast<std::uint64_t>(picture->Height), 2);
    for (const std::uint32_t pixel : picture->Pixels) PutNumber(content, pixel, 4);
  } else {
    PutNumber(content, static_cast<std::uint64_t>(WireValue::Nothing), 1);
  }
  return Framed(content);
}

std::optional<LookupAnswer> ParseWireAnswer(std::string_view bytes) {
  Fields fields(bytes);
  if (fields.Number(1) != kVersion) return std::nullopt;
  LookupAnswer answer;
  answer.Id = fields.Number(8);
  const std::uint64_t end = fields.Number(1);
  const std::uint64_t value = fields.Number(1);
  if (value == static_cast<std::uint64_t>(WireValue::Text)) {
    answer.Value = fields.Text();
  } else if (value == static_cast<std::uint64_t>(WireValue::Picture)) {
    answer.Value = fields.Picture();
  } else if (value != static_cast<std::uint64_t>(WireValue::Nothing)) {
    return std::nullopt;
  }
  if (!fields.IsGood() || end > 1) return std::nullopt;
  answer.End = end == 0 ? LookupEnd::Answered : LookupEnd::Failed;
  return answer;
}

void WireReader::Append(std::string_view bytes) {
  if (!broken_) waiting_ += bytes;
}

std::optional<std::string> WireReader::Next() {
  if (broken_ || waiting_.size() < kLengthBytes) return std::nullopt;
  const auto length = static_cast<std::size_t>(
      Fields(std::string_view(waiting_).substr(0, kLengthBytes)).Number(kLengthBytes));
  if (length > kMostWireBytes) {
    broken_ = true;
    waiting_.clear();
    return std::nullopt;
  }
  if (waiting_.size() < kLengthBytes + length) return std::nullopt;
  std::string content = waiting_.substr(kLengthBytes, length);
  waiting_.erase(0, kLengthBytes + length);
  return content;
}

}  // namespace corvelle::forms
