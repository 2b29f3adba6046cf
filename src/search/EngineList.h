#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

/// One search engine of the list.
struct SearchEngine {
  std::string Name;
  std::string Url;  // with the place of the query in square brackets; may be empty

  friend bool operator==(const SearchEngine&, const SearchEngine&) = default;
};

/// The engines that the bytes of an engine list name, in their order. The list is written by hand:
/// a line "NAME=" and the engine's name, then a line "URL=" and its template, in any case and with
/// blanks at will; what is anything else is passed over. An engine whose "URL=" line does not
/// follow its name at once has an empty template. UTF-16 text with its mark at the beginning is
/// read too.
[[nodiscard]] std::vector<SearchEngine> ParseEngines(std::string_view bytes, const CodePage& ansi);

}  // namespace corvelle
