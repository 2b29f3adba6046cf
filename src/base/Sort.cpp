#include "base/Sort.h"

#include <algorithm>

#include "base/Text.h"

namespace corvelle {

void SortTexts(std::vector<std::string>& texts) {
  std::sort(texts.begin(), texts.end(), [](const std::string& a, const std::string& b) {
    const int order = CompareNoCase(a, b);
    return order != 0 ? order < 0 : a < b;
  });
}

}  // namespace corvelle
