#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Check.h"
#include "Input.h"
#include "base/ByteText.h"
#include "base/Digest.h"
#include "customize/Draft.h"

// A draft of any bytes: what is taken for one writes back as the same bytes, and what was written
// reads back as it was.

namespace {

using namespace corvelle;

MenuRecord TakeRecord(fuzz::Input& input) {
  MenuRecord record;
  for (std::string* field : {&record.FTitle, &record.FIcon, &record.FName}) {
    *field = input.Take(static_cast<std::size_t>(input.Byte()));
  }
  return record;
}

std::vector<MenuRecord> TakeRow(fuzz::Input& input) {
  std::vector<MenuRecord> row(static_cast<std::size_t>(input.Byte() % 8));
  for (MenuRecord& record : row) record = TakeRecord(input);
  return row;
}

Draft TakeDraft(fuzz::Input& input) {
  Draft draft;
  draft.Files.Length = static_cast<std::uint64_t>(input.Byte());
  draft.Files.Hash = ~static_cast<std::uint64_t>(input.Byte());
  draft.Set.Menus.resize(static_cast<std::size_t>(input.Byte() % 8));
  for (Menu& menu : draft.Set.Menus) {
    menu.Head = TakeRecord(input);
    menu.Items = TakeRow(input);
  }
  draft.Set.Singles = TakeRow(input);
  return draft;
}

void CheckParsing(const std::string& bytes) {
  const std::optional<Draft> draft = ParseDraft(bytes);
  if (draft) CORVELLE_CHECK(FormatDraft(draft->Files, draft->Set) == bytes);
  // Of many, the whole ones at the front count.
  const std::string again = FormatDrafts(ParseDrafts(bytes));
  CORVELLE_CHECK(bytes.starts_with(again));
  CORVELLE_CHECK(!draft || again == bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const int kind = input.Byte() % 3;
  if (kind == 0) {
    CheckParsing(input.Rest());
  } else if (kind == 1) {
    // With the digest that it should have, so that the rest is looked at.
    std::string bytes = input.Rest();
    Digest digest;
    digest.Add(bytes);
    PutNumber(bytes, digest.Value(), 8);
    CheckParsing(bytes);
  } else {
    const Draft draft = TakeDraft(input);
    CORVELLE_CHECK(ParseDraft(FormatDraft(draft.Files, draft.Set)) == draft);
    const Drafts drafts = {draft, TakeDraft(input)};
    CORVELLE_CHECK(ParseDrafts(FormatDrafts(drafts)) == drafts);
  }
  return 0;
}
