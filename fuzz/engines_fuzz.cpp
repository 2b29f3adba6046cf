#include <cstddef>
#include <cstdint>
#include <string>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "base/Utf8.h"
#include "search/EngineList.h"
#include "search/QueryHistory.h"
#include "search/QueryUrl.h"

// The files of Net Search with any bytes: the list of engines reads as texts that a control and a
// browser can take, and the history never grows and reads again as it was saved.

namespace {

bool IsPlainText(const std::string& text) {
  return corvelle::IsValidUtf8(text) && text.find('\0') == std::string::npos &&
         text.find_first_of("\r\n") == std::string::npos;
}

void CheckEngines(const std::string& bytes, const std::string& query) {
  const corvelle::Windows1252 ansi;
  for (const corvelle::SearchEngine& engine : corvelle::ParseEngines(bytes, ansi)) {
    CORVELLE_CHECK(IsPlainText(engine.Name));
    CORVELLE_CHECK(IsPlainText(engine.Url));
    const auto url = corvelle::QueryUrl(engine.Url, query);
    const bool both =
        engine.Url.find('[') != std::string::npos && engine.Url.find(']') != std::string::npos;
    CORVELLE_CHECK(url.has_value() == both);
    if (url)
      CORVELLE_CHECK(url->find(corvelle::EncodeQuery(query)) != std::string::npos ||
                     url->find(corvelle::EncodeQueryUtf8(query)) != std::string::npos);
  }
}

void CheckHistory(const std::string& bytes) {
  const corvelle::Windows1252 ansi;
  const corvelle::QueryHistory history = corvelle::ParseHistory(bytes, ansi);
  CORVELLE_CHECK(history.HistoryCount >= 0 && history.HistoryCount <= 10);
  for (const std::string& query : history.NewestFirst()) {
    CORVELLE_CHECK(!query.empty());
    CORVELLE_CHECK(IsPlainText(query));
  }
  const std::string saved = corvelle::FormatHistory(history, ansi);
  CORVELLE_CHECK(corvelle::FormatHistory(corvelle::ParseHistory(saved, ansi), ansi) == saved);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvelle::fuzz::Input input(data, size);
  const std::string query = input.Take(static_cast<std::size_t>(input.Byte()) % 16);
  const std::string bytes = input.Rest();
  CheckEngines(bytes, query);
  CheckHistory(bytes);
  return 0;
}
