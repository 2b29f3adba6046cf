#include <cstddef>
#include <cstdint>
#include <string>

#include "Check.h"
#include "Input.h"
#include "base/Utf8.h"
#include "forms/LookupWire.h"

// Both ends of the pipe between the program and the process that looks for icons: any bytes, in
// pieces of any length.

namespace corvelle {
namespace {

using namespace forms;

std::string ContentOf(const std::string& message) { return message.substr(4); }

void CheckQuestion(const std::string& bytes) {
  const auto question = ParseWireQuestion(bytes);
  if (!question) return;
  CORVELLE_CHECK(GoesOverWire(question->Question.Kind));
  CORVELLE_CHECK(IsValidUtf8(question->Question.Path));
  CORVELLE_CHECK(question->Question.Path.find('\0') == std::string::npos);
  CORVELLE_CHECK(question->Question.Size >= 0 && question->Question.Size <= kMostWireSide);
  // One form for each question: written again it is the same bytes.
  CORVELLE_CHECK(ContentOf(FormatWireQuestion(*question)) == bytes);
}

void CheckAnswer(const std::string& bytes) {
  const auto answer = ParseWireAnswer(bytes);
  if (!answer) return;
  if (const auto* const picture = std::get_if<IconPixels>(&answer->Value)) {
    CORVELLE_CHECK(picture->IsWhole());
    CORVELLE_CHECK(picture->Width <= kMostWireSide && picture->Height <= kMostWireSide);
  }
  CORVELLE_CHECK(ContentOf(FormatWireAnswer(*answer)) == bytes);
}

}  // namespace
}  // namespace corvelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace corvelle;
  fuzz::Input input(data, size);
  const std::size_t piece = static_cast<std::size_t>(input.Byte()) + 1;
  const std::string bytes = input.Rest();
  CheckQuestion(bytes);
  CheckAnswer(bytes);
  // As a stream: what one piece gives, pieces of any length give.
  forms::WireReader whole;
  forms::WireReader pieces;
  whole.Append(bytes);
  std::string byWhole;
  std::string byPieces;
  while (auto message = whole.Next()) {
    CheckQuestion(*message);
    CheckAnswer(*message);
    byWhole += *message + '|';
  }
  for (std::size_t at = 0; at < bytes.size(); at += piece) {
    pieces.Append(std::string_view(bytes).substr(at, piece));
    while (auto message = pieces.Next()) byPieces += *message + '|';
  }
  CORVELLE_CHECK(byWhole == byPieces);
  CORVELLE_CHECK(whole.IsBroken() == pieces.IsBroken());
  return 0;
}
