#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "menutext/MenuText.h"

// Records and menu files of any bytes: they are read without harm, what is read is stored so that
// it reads the same again, and an edit never touches another record.

namespace corvelle {
namespace {

const Windows1252 kAnsi;

void CheckText(const std::string& text) {
  CORVELLE_CHECK(IsValidUtf8(text));
  CORVELLE_CHECK(FromWide(ToWide(text)) == text);
  CORVELLE_CHECK(Trim(text) == text);
  CORVELLE_CHECK(EqualNoCase(text, UpperCase(text)));
  CORVELLE_CHECK(SingleAmpersands(DoubleAmpersands(text)) == text);
  CORVELLE_CHECK(DecodeText(EncodeText(text, kAnsi), kAnsi) == text);
  const std::string ended = EnsureBackslash(text);
  CORVELLE_CHECK(ended.ends_with('\\') && EnsureBackslash(ended) == ended);
  const std::string bare = StripQuotes(text);
  CORVELLE_CHECK(!bare.starts_with('"') && !bare.ends_with('"'));
}

void CheckRecord(std::string_view bytes) {
  const MenuRecord record = ParseRecord(bytes, kAnsi);
  for (const std::string* text : {&record.FTitle, &record.FIcon, &record.FName}) CheckText(*text);
  const std::string stored = FormatRecord(record, kAnsi);
  CORVELLE_CHECK(stored.size() == kRecordLength);
  // Only text that fits as UTF-8 or ANSI can have been stored: it is never cut on the way back.
  CORVELLE_CHECK(ParseRecord(stored, kAnsi) == record);
  CORVELLE_CHECK(FormatRecord(ParseRecord(stored, kAnsi), kAnsi) == stored);

  CORVELLE_CHECK(IsClosedFolder(CloseFolderText(record.FName)));
  CORVELLE_CHECK(!IsClosedFolder(OpenFolderText(record.FName)));
  const NumberedTitle split = SplitTitle(record.FTitle, 1);
  const MenuRecord numbered{JoinTitle(split.Title, 5012, kAnsi), "", ""};
  const MenuRecord back = ParseRecord(FormatRecord(numbered, kAnsi), kAnsi);
  CORVELLE_CHECK(SplitTitle(back.FTitle, 1).Record == 5012);
}

void CheckEdits(const std::string& bytes, int place, const std::string& record) {
  const std::string whole = WholeRecords(bytes);
  CORVELLE_CHECK(whole.size() / kRecordLength ==
                 static_cast<std::size_t>(RecordCount(bytes.size())));
  CORVELLE_CHECK(whole.size() % kRecordLength == 0);
  CORVELLE_CHECK(WholeRecords(whole) == whole);

  const std::string inserted = InsertRecord(whole, place, record);
  const bool there = place >= 1 && place <= RecordCount(whole.size());
  CORVELLE_CHECK(inserted.size() == whole.size() + (there ? kRecordLength : 0));
  if (!there) CORVELLE_CHECK(inserted == whole && WithoutRecord(whole, place) == whole);
  if (there) CORVELLE_CHECK(WithoutRecord(inserted, place) == whole);
  if (there) {
    const auto offset = static_cast<std::size_t>(place - 1) * kRecordLength;
    const std::string taken = whole.substr(offset, kRecordLength);
    CORVELLE_CHECK(InsertOrAppendRecord(WithoutRecord(whole, place), place, taken) == whole);
  }
}

}  // namespace
}  // namespace corvelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace corvelle;
  fuzz::Input input(data, size);
  const int place = input.Byte() % 12 - 2;
  const std::string bytes = input.Rest();
  const std::string_view view = bytes;
  for (std::size_t at = 0; at < view.size(); at += kRecordLength) CheckRecord(view.substr(at));
  CheckRecord({});
  CheckEdits(bytes, place, FormatRecord(NewItemRecord(), Windows1252()));

  const auto packed = PackMenu(UnpackMenu(bytes, Windows1252()), Windows1252());
  CORVELLE_CHECK(packed && *packed == bytes);
  static_cast<void>(PackMenu(bytes, Windows1252()));
  return 0;
}
