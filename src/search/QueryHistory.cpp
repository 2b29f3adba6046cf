#include "search/QueryHistory.h"

#include <algorithm>

#include "base/FieldText.h"
#include "base/Text.h"

namespace corvelle {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// The query as one line of text: what is pasted may hold more.
std::string OneLine(std::string_view query) {
  std::string line(query);
  for (char& character : line) {
    if (character == '\r' || character == '\n') character = ' ';
  }
  return StripAtNull(line);
}

}  // namespace

std::vector<std::string> QueryHistory::NewestFirst() const {
  std::vector<std::string> queries(History.begin(), History.begin() + HistoryCount);
  std::reverse(queries.begin(), queries.end());
  return queries;
}

bool QueryHistory::Holds(std::string_view query) const {
  return std::any_of(History.begin(), History.begin() + HistoryCount,
                     [query](const std::string& past) { return EqualNoCase(past, query); });
}

bool QueryHistory::Add(std::string_view query) {
  const std::string line = OneLine(query);
  if (line.empty() || Holds(line)) return false;
  if (HistoryCount == kMost) {
    std::move(History.begin() + 1, History.begin() + kMost, History.begin());
    --HistoryCount;
  }
  History[static_cast<std::size_t>(HistoryCount)] = line;
  ++HistoryCount;
  return true;
}

void QueryHistory::Clear() { *this = QueryHistory(); }

std::string FormatHistory(const QueryHistory& history, const CodePage& ansi) {
  std::string content;
  for (std::int16_t slot = 0; slot < history.HistoryCount; ++slot) {
    content += EncodeText(history.History[static_cast<std::size_t>(slot)], ansi);
    content += kLineEnd;
  }
  return content;
}

QueryHistory ParseHistory(std::string_view bytes, const CodePage& ansi) {
  QueryHistory history;
  for (const std::string& line : SplitLines(bytes)) history.Add(DecodeText(line, ansi));
  return history;
}

}  // namespace corvelle
