#include "menutext/MenuText.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "core/MenuRecord.h"

namespace corvelle {

namespace {

struct FieldPlace {
  std::string_view Key;
  std::size_t Width;
};

constexpr std::array<FieldPlace, 3> kFields = {
    {{"title:", kTitleWidth}, {"icon:", kIconWidth}, {"command:", kNameWidth}}};
constexpr std::string_view kTailKey = "tail:";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

std::string EscapedByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return {'\\', 'x', kHexDigits[value >> 4U], kHexDigits[value & 15U]};
}

/// The bytes with everything escaped that has no place in a line; with `rawBytes` also those of 80
/// and above.
std::string Escaped(std::string_view bytes, bool rawBytes) {
  std::string text;
  for (const char c : bytes) {
    const auto value = static_cast<unsigned char>(c);
    if (c == '\\') {
      text += "\\\\";
    } else if (c == '\n') {
      text += "\\n";
    } else if (value < 0x20 || value == 0x7F || (rawBytes && value >= 0x80)) {
      text += EscapedByte(c);
    } else {
      text.push_back(c);
    }
  }
  return text;
}

std::string Line(std::string_view key, std::string_view value) {
  std::string line(key);
  if (!value.empty()) line += " " + std::string(value);
  return line + "\n";
}

std::string FieldLine(const FieldPlace& place, std::string_view field, const CodePage& ansi) {
  const std::size_t end = field.find_last_not_of(' ');
  const std::string_view kept = field.substr(0, end == std::string_view::npos ? 0 : end + 1);
  const std::string text = DecodeText(kept, ansi);
  const bool isText = EncodeField(text, place.Width, ansi) == field;
  return Line(place.Key, isText ? Escaped(text, false) : Escaped(kept, true));
}

/// A value of a line, with its escapes resolved.
struct Value {
  std::string Bytes;
  bool Raw = false;
};

std::optional<Value> Resolve(std::string_view text) {
  Value value;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\') {
      value.Bytes.push_back(text[at]);
      continue;
    }
    const std::string_view escape = text.substr(at);
    if (escape.starts_with("\\\\") || escape.starts_with("\\n")) {
      value.Bytes.push_back(escape[1] == 'n' ? '\n' : '\\');
      at += 1;
      continue;
    }
    if (!escape.starts_with("\\x") || escape.size() < 4) return std::nullopt;
    const std::string digits = UpperCase(escape.substr(2, 2));
    const std::size_t high = kHexDigits.find(digits[0]);
    const std::size_t low = kHexDigits.find(digits[1]);
    if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
    const std::size_t byte = high * 16 + low;
    value.Bytes.push_back(static_cast<char>(byte));
    value.Raw = value.Raw || byte >= 0x80;
    at += 3;
  }
  return value;
}

class Packer {
 public:
  explicit Packer(const CodePage& ansi) : ansi_(ansi) {}

  /// What is wrong with the line; empty when nothing is.
  std::string Take(std::string_view line) {
    if (line.starts_with('#')) return {};
    if (Trim(line).empty()) {
      EndBlock();
      return {};
    }
    if (!IsValidUtf8(line)) return "not in UTF-8";
    if (tailed_) return "nothing may follow the tail";
    if (line.starts_with(kTailKey)) return TakeTail(line.substr(kTailKey.size()));
    for (std::size_t i = 0; i < kFields.size(); ++i) {
      if (line.starts_with(kFields[i].Key)) {
        return TakeField(i, line.substr(kFields[i].Key.size()));
      }
    }
    return "neither title:, icon:, command: nor tail:";
  }

  std::string Finish() {
    EndBlock();
    return std::move(bytes_) + tail_;
  }

 private:
  static std::string_view AfterBlank(std::string_view value) {
    return value.starts_with(' ') ? value.substr(1) : value;
  }

  std::string TakeField(std::size_t index, std::string_view text) {
    if (fields_[index]) return "the record has that line already";
    const std::optional<Value> value = Resolve(AfterBlank(text));
    if (!value) return "a backslash that begins no escape";
    const FieldPlace& place = kFields[index];
    const std::string tooLong = "longer than " + std::to_string(place.Width) + " bytes";
    if (value->Raw) {
      if (value->Bytes.size() > place.Width) return tooLong;
      fields_[index] = value->Bytes + std::string(place.Width - value->Bytes.size(), ' ');
      return {};
    }
    const std::string field = EncodeField(value->Bytes, place.Width, ansi_);
    if (DecodeField(field, ansi_) != Trim(value->Bytes)) return tooLong;
    fields_[index] = field;
    return {};
  }

  std::string TakeTail(std::string_view text) {
    EndBlock();
    const std::optional<Value> value = Resolve(AfterBlank(text));
    if (!value) return "a backslash that begins no escape";
    if (value->Bytes.size() >= kRecordLength) return "as long as a record";
    tail_ = value->Bytes;
    tailed_ = true;
    return {};
  }

  void EndBlock() {
    bool any = false;
    for (const auto& field : fields_) any = any || field.has_value();
    for (std::size_t i = 0; i < kFields.size(); ++i) {
      if (any) bytes_ += fields_[i].value_or(std::string(kFields[i].Width, ' '));
      fields_[i].reset();
    }
  }

  const CodePage& ansi_;
  std::array<std::optional<std::string>, 3> fields_;
  std::string bytes_;
  std::string tail_;
  bool tailed_ = false;
};

}  // namespace

Result<std::string, MenuTextError> PackMenu(std::string_view text, const CodePage& ansi) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  Packer packer(ansi);
  int number = 0;
  for (const std::string& line : SplitLines(text)) {
    ++number;
    std::string wrong = packer.Take(line);
    if (!wrong.empty()) return MenuTextError{number, std::move(wrong)};
  }
  return packer.Finish();
}

std::string UnpackMenu(std::string_view bytes, const CodePage& ansi) {
  std::string text;
  while (bytes.size() >= kRecordLength) {
    if (!text.empty()) text += "\n";
    std::string_view record = bytes.substr(0, kRecordLength);
    bytes.remove_prefix(kRecordLength);
    for (const FieldPlace& place : kFields) {
      text += FieldLine(place, record.substr(0, place.Width), ansi);
      record.remove_prefix(place.Width);
    }
  }
  if (!bytes.empty()) {
    if (!text.empty()) text += "\n";
    // Blanks count here, and none may get lost at the end of the line.
    std::string tail = Escaped(bytes, true);
    while (tail.ends_with(' ')) tail.pop_back();
    const std::size_t end = bytes.find_last_not_of(' ');
    const std::size_t kept = end == std::string_view::npos ? 0 : end + 1;
    for (std::size_t i = kept; i < bytes.size(); ++i) tail += EscapedByte(' ');
    text += Line(kTailKey, tail);
  }
  return text;
}

}  // namespace corvelle
