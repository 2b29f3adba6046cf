#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle::e2e {

/// A file's bytes; nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> ReadBytes(const std::wstring& path);
/// Makes the file anew; false when that failed.
[[nodiscard]] bool WriteBytes(const std::wstring& path, std::string_view bytes);
/// The names of a folder's files (not of its folders) that a pattern matches, in no order. The
/// folder ends in a backslash.
[[nodiscard]] std::vector<std::wstring> FilesIn(const std::wstring& folder,
                                                const std::wstring& pattern);

}  // namespace corvelle::e2e
