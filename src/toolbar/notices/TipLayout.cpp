#include "toolbar/notices/TipLayout.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace corvelle {

std::vector<std::string> WrapText(std::string_view text, float width,
                                  const std::function<float(std::string_view)>& measure) {
  std::vector<std::string> lines;
  for (const std::string& paragraph : SplitLines(text)) {
    std::string line;
    for (std::size_t at = 0; at < paragraph.size();) {
      const std::size_t end = std::min(paragraph.find(' ', at), paragraph.size());
      const std::string word = paragraph.substr(at, end - at);
      at = end + 1;
      if (word.empty()) continue;
      std::string longer = line.empty() ? word : line + " " + word;
      if (line.empty() || measure(longer) <= width) {
        line = std::move(longer);
      } else {
        lines.push_back(std::exchange(line, word));
      }
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace corvelle
