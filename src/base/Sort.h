#pragma once

#include <string>
#include <vector>

namespace corvelle {

/// Sorts texts in ascending order without regard to case; those that differ in case only are in
/// the order of their bytes, so that the result never depends on the order before.
void SortTexts(std::vector<std::string>& texts);

}  // namespace corvelle
